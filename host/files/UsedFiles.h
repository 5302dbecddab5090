#pragma once

#include <string>
#include <unordered_set>
#include <vector>

namespace host {

// The files that the toolkit has asked for, by their full paths, each once and in the order of the first question.
class UsedFiles
{
public:
    void NoteInterface(const std::string& path) { Note(path, m_Interfaces); }
    void NoteImage(const std::string& path) { Note(path, m_Images); }

    const std::vector<std::string>& Interfaces() const { return m_Interfaces; }
    const std::vector<std::string>& Images() const { return m_Images; }

private:
    void Note(const std::string& path, std::vector<std::string>& files)
    {
        if (m_Known.insert(path).second)
            files.push_back(path);
    }

    std::unordered_set<std::string> m_Known;
    std::vector<std::string> m_Interfaces;
    std::vector<std::string> m_Images;
};

} // namespace host
