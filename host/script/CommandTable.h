#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace host {

// The commands that can be typed or run by scripts. Names compare without regard to case.
class CommandTable
{
public:
    // argv[0] is the command's name as it was written.
    using Command = std::function<int(int argc, char** argv)>;

    static constexpr int NoSuchCommand = -1;

    void Add(const char* name, Command command);
    void Remove(const char* name);

    bool Has(const std::string& name) const;

    // In their order, in lower case.
    std::vector<std::string> Names() const;

    // Runs the command that the first word names.
    int Execute(std::vector<std::string> words) const;

private:
    std::map<std::string, Command> m_Commands; // by name in lower case
};

} // namespace host
