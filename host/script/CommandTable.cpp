#include "host/script/CommandTable.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace host {

namespace {

constexpr int NoSuchCommand = -1;

std::string ToLower(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
        [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

std::vector<std::string> SplitLine(std::string_view line)
{
    std::vector<std::string> words;
    bool inWord = false;
    bool quoted = false;
    for (const char character : line) {
        if (!quoted && (character == ' ' || character == '\t')) {
            inWord = false;
            continue;
        }
        if (!inWord)
            words.emplace_back();
        inWord = true;
        if (character == '"')
            quoted = !quoted;
        else
            words.back() += character;
    }
    return words;
}

} // namespace

void CommandTable::Add(const char* name, CommandHandler handler)
{
    m_Handlers[ToLower(name)] = handler;
}

void CommandTable::Remove(const char* name)
{
    m_Handlers.erase(ToLower(name));
}

int CommandTable::Execute(const char* line)
{
    std::vector<std::string> words = SplitLine(line);
    if (words.empty())
        return NoSuchCommand;

    const auto found = m_Handlers.find(ToLower(words[0]));
    if (found == m_Handlers.end())
        return NoSuchCommand;

    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    return found->second(static_cast<int>(arguments.size()), arguments.data());
}

} // namespace host
