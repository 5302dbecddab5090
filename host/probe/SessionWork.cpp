#include "host/probe/SessionWork.h"

#include "host/probe/ProbeSession.h"
#include "host/probe/TreeChecker.h"
#include "host/probe/ValueText.h"

#include <fstream>
#include <iostream>
#include <optional>
#include <string_view>

namespace {

// The host must outlive the library's own end, which comes with that of the process.
ProbeSession& StartSession(const std::string& folder)
{
    static ProbeSession* session = nullptr;
    session = new ProbeSession(folder);
    return *session;
}

std::optional<std::string> CheckTree()
{
#ifdef TESKARA_CHECK_TREE
    return FindTreeFault();
#else
    return std::nullopt;
#endif
}

void WriteLine(std::ostream& results, char sign, std::string_view text)
{
    results << sign << text << '\n';
}

void AnswerTranscript(ProbeSession& session, const Transcript& transcript, std::ostream& results)
{
    for (const TranscriptCommand& command : transcript.Commands()) {
        for (const std::string& line : session.Answer(command.Command))
            WriteLine(results, AnswerSign, line);
        if (const auto fault = CheckTree())
            WriteLine(results, FaultSign, *fault);
        WriteLine(results, CommandEndSign, "");
        results.flush();
    }
}

class StandardInput
{
public:
    explicit StandardInput(ProbeSession& session) : m_Session(session) { }

    void AnswerAll()
    {
        std::string line;
        while (std::getline(std::cin, line))
            Take(line);
        AnswerPending();
    }

private:
    void Take(std::string line)
    {
        if (line.ends_with('\r'))
            line.pop_back();
        if (const auto text = TextOfLine(line); text && m_Pending) {
            *m_Pending->Body += std::string(*text) + '\n';
            return;
        }
        AnswerPending();
        if (line.starts_with("> "))
            line.erase(0, 2);
        if (TrimBlanks(line).empty() || line.starts_with('#'))
            return;

        CommandLine command{line, {}};
        if (!TakeTextSign(command.Text)) {
            Answer(command);
            return;
        }
        command.Body = "";
        m_Pending = command;
    }

    void AnswerPending()
    {
        if (!m_Pending)
            return;

        const CommandLine command = *m_Pending;
        m_Pending.reset();
        Answer(command);
    }

    void Answer(const CommandLine& command)
    {
        for (const std::string& line : m_Session.Answer(command))
            std::cout << line << '\n';
        if (const auto fault = CheckTree())
            std::cout << "the tree is broken: " << *fault << '\n';
        std::cout.flush();
    }

    ProbeSession& m_Session;
    std::optional<CommandLine> m_Pending; // waits for its text
};

} // namespace

void DoSessionWork(const SessionWork& work)
{
    ProbeSession& session = StartSession(work.Folder);
    if (!work.Commands) {
        StandardInput(session).AnswerAll();
        session.End();
        return;
    }

    std::ofstream results(work.Results(), std::ios::binary);
    AnswerTranscript(session, *work.Commands, results);
    session.End();
    WriteLine(results, EndSign, "");
}
