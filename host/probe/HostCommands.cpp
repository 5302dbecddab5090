#include "host/probe/HostCommands.h"

#include "host/probe/ValueText.h"

#include <vector>

namespace {

std::vector<std::string> SplitCommandLine(std::string_view line)
{
    std::vector<std::string> words;
    bool inWord = false;
    bool inQuotes = false;
    for (const char character : line) {
        if (!inQuotes && (character == ' ' || character == '\t')) {
            inWord = false;
            continue;
        }
        if (!inWord)
            words.emplace_back();
        inWord = true;
        if (character == '"')
            inQuotes = !inQuotes;
        else
            words.back() += character;
    }
    return words;
}

} // namespace

void HostCommands::Add(const char* name, CommandHandler handler)
{
    if (name && handler)
        m_Commands[LowerCase(name)] = {name, handler};
}

void HostCommands::Remove(const char* name)
{
    if (name)
        m_Commands.erase(LowerCase(name));
}

int HostCommands::Execute(std::string_view line) const
{
    std::vector<std::string> words = SplitCommandLine(line);
    if (words.empty())
        return -1;

    const auto found = m_Commands.find(LowerCase(words[0]));
    if (found == m_Commands.end())
        return -1;

    words[0] = found->second.Name;
    std::vector<char*> argv;
    for (std::string& word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);
    return found->second.Handler(static_cast<int>(words.size()), argv.data());
}
