#include "host/script/CommandTable.h"

#include <algorithm>
#include <string_view>

namespace host {

namespace {

std::string ToLower(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
        [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

} // namespace

void CommandTable::Add(const char* name, Command command)
{
    m_Commands[ToLower(name)] = std::move(command);
}

void CommandTable::Remove(const char* name)
{
    m_Commands.erase(ToLower(name));
}

bool CommandTable::Has(const std::string& name) const
{
    return m_Commands.count(ToLower(name)) != 0;
}

std::vector<std::string> CommandTable::Names() const
{
    std::vector<std::string> names;
    for (const auto& [name, command] : m_Commands)
        names.push_back(name);
    return names;
}

int CommandTable::Execute(std::vector<std::string> words) const
{
    if (words.empty())
        return NoSuchCommand;

    const auto found = m_Commands.find(ToLower(words[0]));
    if (found == m_Commands.end())
        return NoSuchCommand;

    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const Command command = found->second; // which may take itself out of the table
    return command(static_cast<int>(words.size()), arguments.data());
}

} // namespace host
