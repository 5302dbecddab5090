#pragma once

#include "host/LineInput.h"

#include <functional>

namespace host {

class ReferenceHost;

// Runs command lines that somebody types, and says what comes of them: each line of an answer begins with "> ".
class CommandPrompt
{
public:
    using Writer = std::function<void(const std::string& line)>;

    // The host and the descriptor are borrowed.
    CommandPrompt(ReferenceHost& host, int descriptor, Writer write)
        : m_Host(host), m_Input(descriptor), m_Write(std::move(write))
    {
    }

    // Runs the next line, if there is one.
    void Advance();

private:
    void Answer(std::string line) const;

    ReferenceHost& m_Host;
    LineInput m_Input;
    Writer m_Write;
};

} // namespace host
