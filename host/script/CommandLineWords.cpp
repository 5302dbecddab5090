#include "host/script/CommandLineWords.h"

#include "host/script/SequenceParser.h"

namespace host {

std::vector<CommandWord> SplitCommandLine(std::string_view line)
{
    std::vector<CommandWord> words;
    bool inWord = false;
    bool quoted = false;
    bool hasParts = true; // until one has no end: then there are none behind it either
    for (std::size_t at = 0; at < line.size();) {
        const char character = line[at];
        if (!quoted && (character == ' ' || character == '\t')) {
            inWord = false;
            ++at;
            continue;
        }
        if (!inWord)
            words.emplace_back();
        inWord = true;
        CommandWord& word = words.back();
        const bool isPart = !quoted && hasParts && line.substr(at).starts_with("${");
        const std::size_t end = isPart ? SequenceParser::FindEnd(line, at) : line.npos;
        hasParts = hasParts && (!isPart || end != line.npos);
        if (end != line.npos) {
            word.Text += line.substr(at, end - at);
            at = end;
            continue;
        }
        if (character == '"') {
            quoted = !quoted;
            word.IsQuoted = true;
        } else {
            word.Text += character;
        }
        ++at;
    }
    return words;
}

} // namespace host
