#pragma once

#include <string>
#include <vector>

namespace host {

// What is going on: loads, commands and scripts inside each other. A line for a person begins with the innermost.
class CallTrail
{
public:
    // Empty: nothing in particular is going on.
    const std::string& Where() const;

    // An interface file was found for what is going on. A command that reads one goes on as that file.
    void NoteFile(const std::string& name);

private:
    friend class TrailStep;

    std::vector<class TrailStep*> m_Steps;
};

// One thing that goes on as long as the object lives. The text is borrowed.
class TrailStep
{
public:
    TrailStep(CallTrail& trail, const std::string& where) : m_Trail(trail), m_Where(&where)
    {
        m_Trail.m_Steps.push_back(this);
    }
    ~TrailStep() { m_Trail.m_Steps.pop_back(); }
    TrailStep(const TrailStep&) = delete;
    TrailStep& operator=(const TrailStep&) = delete;

protected:
    // Nothing goes on around it.
    bool IsOutermost() const { return m_Trail.m_Steps.size() == 1; }

    CallTrail& m_Trail;
    const std::string* m_Where;
    std::string* m_File = nullptr; // where the name of a file is to be kept; null: it does not matter

    friend class CallTrail;
};

// A command. It is told of as what it is part of, or else as itself.
class CommandStep : public TrailStep
{
public:
    CommandStep(CallTrail& trail, const std::string& line);

private:
    std::string m_Name;
};

} // namespace host
