#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace host {

class CompletionNames;

// Completes the end of a command line: the name of a command, or inside of ${...} a variable, an object, or what follows
// an object's path. Where more than one name fits, each further question shows the next.
class CommandCompletion
{
public:
    // The names are borrowed.
    explicit CommandCompletion(CompletionNames& names) : m_Names(names) { }

    // The line, completed. Asked for the line that it gave last, it goes on to the next possibility, or back to the one
    // before. Null: nothing fits.
    const std::string* Complete(std::string_view line, bool back);

private:
    std::vector<std::string> Find(std::string_view line);
    std::vector<std::string> FindInPath(std::string_view line, std::size_t pathStart);

    CompletionNames& m_Names;
    std::vector<std::string> m_Lines; // that the last question could have meant
    std::size_t m_Shown = 0;
};

} // namespace host
