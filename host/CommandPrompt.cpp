#include "host/CommandPrompt.h"

#include "host/ReferenceHost.h"

namespace host {

namespace {

// What lines about a command that was typed begin with, until they are shown to who typed it.
const std::string Subject = "typed";

} // namespace

void CommandPrompt::Advance()
{
    const std::optional<std::string> line = m_Input.Take();
    if (!line || line->find_first_not_of(" \t") == line->npos)
        return;

    Console& console = m_Host.Output();
    int result = 0;
    {
        const ConsoleDiversion diversion(console, [this](const std::string& text) { Answer(text); });
        const TrailStep step(console.Trail(), Subject);
        result = m_Host.ExecuteCommand(line->c_str());
    }
    m_Write("> = " + std::to_string(result));
}

void CommandPrompt::Answer(std::string line) const
{
    const std::string prefix = Subject + ": ";
    if (line.starts_with(prefix))
        line.erase(0, prefix.size());
    m_Write("> " + line);
}

} // namespace host
