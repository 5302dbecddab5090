#include "teskara/flat/FlatCommands.h"

#include "teskara/core/BoundedText.h"
#include "teskara/script/MvTypeVar.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr int NoCommand = -1;
constexpr char Quote = '"';
constexpr std::string_view Blanks = " \t\r\n";

// Takes the next word off a line that begins with none of the blanks.
std::string TakeWord(std::string_view& line)
{
    const bool isQuoted = line.front() == Quote;
    line.remove_prefix(isQuoted ? 1 : 0);
    const std::size_t end = std::min(isQuoted ? line.find(Quote) : line.find_first_of(Blanks), line.size());
    std::string word(line.substr(0, end));
    line.remove_prefix(std::min(end + (isQuoted ? 1 : 0), line.size()));
    return word;
}

std::vector<std::string> WordsOf(std::string_view line)
{
    std::vector<std::string> words;
    for (std::size_t at = line.find_first_not_of(Blanks); at != line.npos; at = line.find_first_not_of(Blanks)) {
        line.remove_prefix(at);
        words.push_back(TakeWord(line));
    }
    return words;
}

} // namespace

int FlatCommands::Run(const char* line) const
{
    std::vector<std::string> words = WordsOf(line);
    if (words.empty())
        return NoCommand;

    std::vector<char*> argv;
    for (std::string& word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);
    return Run(static_cast<int>(words.size()), argv.data());
}

// The entry may be gone while its body runs.
int FlatCommands::Run(int argc, char** argv) const
{
    const auto found = m_Commands.find(std::string_view(TextOrEmpty(argv[0])));
    if (found == m_Commands.end())
        return NoCommand;
    const CommandHandler body = found->second;
    return body(argc, argv);
}

bool FlatCommands::Ask(const char* object, int argc, char** argv, _MvTypeVar& result) const
{
    const auto found = m_Objects.find(std::string_view(object));
    if (found == m_Objects.end())
        return false;
    const TopLevelObjectHandler body = found->second;
    return body(argc, argv, result);
}
