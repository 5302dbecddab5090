#include "host/probe/TranscriptProcess.h"

#include "host/probe/ProbeFolder.h"
#include "host/probe/ProbeSession.h"
#include "host/probe/TreeChecker.h"
#include "host/probe/ValueText.h"

#include <cstdlib>
#include <cstring>
#include <iostream>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr auto TimeLimit = std::chrono::seconds(60);

// Lines that the child writes: the sign, then a text.
constexpr char AnswerSign = '=';
constexpr char CommandEndSign = '.';
constexpr char FaultSign = '!';
constexpr char EndSign = '#';

// The host must outlive the library's own end, which comes with that of the process.
ProbeSession& StartSession(const std::string& folder)
{
    static ProbeSession* session = nullptr;
    session = new ProbeSession(folder);
    return *session;
}

// A crash is reported by its signal; nobody wants the file.
void LeaveNoCore()
{
    const rlimit noCores = {0, 0};
    setrlimit(RLIMIT_CORE, &noCores);
}

std::optional<std::string> CheckTree()
{
#ifdef TESKARA_CHECK_TREE
    return FindTreeFault();
#else
    return std::nullopt;
#endif
}

void WriteLine(std::FILE* results, char sign, std::string_view text)
{
    std::fputc(sign, results);
    std::fwrite(text.data(), 1, text.size(), results);
    std::fputc('\n', results);
}

[[noreturn]] void RunInChild(const Transcript& transcript, const std::string& folder, std::FILE* results)
{
    LeaveNoCore();
    ProbeSession& session = StartSession(folder);
    for (const TranscriptCommand& command : transcript.Commands()) {
        for (const std::string& line : session.Answer(command.Command))
            WriteLine(results, AnswerSign, line);
        if (const auto fault = CheckTree())
            WriteLine(results, FaultSign, *fault);
        WriteLine(results, CommandEndSign, "");
        std::fflush(results);
    }
    session.End();
    WriteLine(results, EndSign, "");
    std::fflush(results);
    std::exit(EXIT_SUCCESS);
}

std::string SignalName(int signal)
{
    const char* name = sigabbrev_np(signal);
    return name ? "SIG" + std::string(name) : "signal " + std::to_string(signal);
}

} // namespace

TranscriptProcess::TranscriptProcess(const Transcript& transcript)
    : m_Transcript(transcript), m_Folder(MakeProbeFolder()), m_Results(std::tmpfile()),
      m_Deadline(std::chrono::steady_clock::now() + TimeLimit)
{
    if (m_Folder.empty() || !m_Results)
        m_StartFailure = "no room for temporary files";
    else
        Start();
}

TranscriptProcess::~TranscriptProcess()
{
    if (m_Process > 0) {
        kill(m_Process, SIGKILL);
        waitpid(m_Process, &m_Status, 0);
    }
    if (m_Results)
        std::fclose(m_Results);
    RemoveProbeFolder(m_Folder);
}

void TranscriptProcess::Start()
{
    std::cout.flush();
    std::fflush(nullptr);
    m_Process = fork();
    if (m_Process == 0)
        RunInChild(m_Transcript, m_Folder, m_Results);
    if (m_Process < 0)
        m_StartFailure = "no process could be started";
}

bool TranscriptProcess::HasEnded()
{
    if (m_Process <= 0)
        return true;

    if (waitpid(m_Process, &m_Status, WNOHANG) == m_Process) {
        m_Process = -1;
        return true;
    }
    if (!m_TimeIsOver && std::chrono::steady_clock::now() > m_Deadline) {
        m_TimeIsOver = true;
        kill(m_Process, SIGKILL);
    }
    return false;
}

TranscriptRun TranscriptProcess::TakeResult()
{
    TranscriptRun run;
    if (!m_StartFailure.empty()) {
        run.Failure = m_StartFailure;
        return run;
    }

    bool finished = false;
    ReadAnswers(run, finished);
    if (run.Failure.empty())
        run.Failure = DescribeEnd(run, finished);
    return run;
}

void TranscriptProcess::ReadAnswers(TranscriptRun& run, bool& finished) const
{
    std::rewind(m_Results);
    std::string text;
    char buffer[65536];
    while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, m_Results))
        text.append(buffer, count);

    std::vector<std::string> answer;
    for (const std::string_view line : SplitLines(text)) {
        if (line.empty())
            continue;
        if (line[0] == AnswerSign) {
            answer.emplace_back(line.substr(1));
        } else if (line[0] == CommandEndSign) {
            run.Answers.push_back(std::move(answer));
            answer.clear();
        } else if (line[0] == FaultSign && run.Failure.empty()) {
            const std::size_t at = m_Transcript.Commands()[run.Answers.size()].Line;
            run.Failure = "the tree is broken after line " + std::to_string(at) + ": " + std::string(line.substr(1));
        } else if (line[0] == EndSign) {
            finished = true;
        }
    }
}

std::string TranscriptProcess::DescribeEnd(const TranscriptRun& run, bool finished) const
{
    const bool exited = WIFEXITED(m_Status);
    if (exited && WEXITSTATUS(m_Status) == EXIT_SUCCESS && finished)
        return {};

    const auto& commands = m_Transcript.Commands();
    const std::string place = run.Answers.size() < commands.size()
        ? " in line " + std::to_string(commands[run.Answers.size()].Line)
        : " at the end";
    if (m_TimeIsOver)
        return "still running after " + std::to_string(TimeLimit.count()) + " seconds" + place;
    if (exited)
        return "ended with exit status " + std::to_string(WEXITSTATUS(m_Status)) + place;
    return "crashed with " + SignalName(WTERMSIG(m_Status)) + place;
}

namespace {

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

int AnswerStandardInput()
{
    const std::string folder = MakeProbeFolder();
    const pid_t process = folder.empty() ? -1 : fork();
    if (process < 0) {
        std::cerr << "teskara probe: no room for temporary files\n";
        return EXIT_FAILURE;
    }
    if (process == 0) {
        LeaveNoCore();
        ProbeSession& session = StartSession(folder);
        StandardInput(session).AnswerAll();
        session.End();
        std::exit(EXIT_SUCCESS);
    }

    int status = 0;
    waitpid(process, &status, 0);
    RemoveProbeFolder(folder);
    if (WIFEXITED(status))
        return WEXITSTATUS(status);
    std::cout << "crashed with " << SignalName(WTERMSIG(status)) << std::endl;
    return EXIT_FAILURE;
}
