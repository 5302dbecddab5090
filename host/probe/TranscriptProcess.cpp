#include "host/probe/TranscriptProcess.h"

#include "host/probe/Probe.h"
#include "host/probe/ProbeFolder.h"
#include "host/probe/ValueText.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>

namespace {

constexpr auto TimeLimit = std::chrono::seconds(60);

} // namespace

TranscriptProcess::TranscriptProcess(const std::string& path, const Transcript& transcript)
    : m_Transcript(transcript), m_Work{MakeProbeFolder(), path, &transcript}, m_Process(m_Work),
      m_Deadline(std::chrono::steady_clock::now() + TimeLimit)
{
}

TranscriptProcess::~TranscriptProcess()
{
    m_Process.End();
    m_Process.Wait();
    std::error_code error;
    std::filesystem::remove(m_Work.Results(), error);
    RemoveProbeFolder(m_Work.Folder);
}

bool TranscriptProcess::HasEnded()
{
    if (m_Process.HasEnded())
        return true;

    if (!m_TimeIsOver && std::chrono::steady_clock::now() > m_Deadline) {
        m_TimeIsOver = true;
        m_Process.End();
    }
    return false;
}

TranscriptRun TranscriptProcess::TakeResult()
{
    TranscriptRun run;
    if (!m_Process.StartFailure().empty()) {
        run.Failure = m_Process.StartFailure();
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
    std::ifstream file(m_Work.Results(), std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(file), {});
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
    const std::string failure = m_Process.HowItFailed();
    if (failure.empty() && finished)
        return {};

    const auto& commands = m_Transcript.Commands();
    const std::string place = run.Answers.size() < commands.size()
        ? " in line " + std::to_string(commands[run.Answers.size()].Line)
        : " at the end";
    if (m_TimeIsOver)
        return "still running after " + std::to_string(TimeLimit.count()) + " seconds" + place;
    return (failure.empty() ? "ended with exit status 0" : failure) + place;
}

int AnswerStandardInput()
{
    const SessionWork work = {MakeProbeFolder(), "-"};
    SessionProcess process(work);
    if (!process.StartFailure().empty()) {
        std::cerr << "teskara probe: " << process.StartFailure() << '\n';
        return EXIT_FAILURE;
    }

    process.Wait();
    RemoveProbeFolder(work.Folder);
    const std::string failure = process.HowItFailed();
    if (failure.starts_with("crashed"))
        std::cout << failure << std::endl;
    return process.ExitStatus();
}

int RunProbeSession(const std::string& folder, const std::string& path)
{
    const auto transcript = path == "-" ? std::nullopt : Transcript::FromFile(path);
    if (path != "-" && !transcript)
        return EXIT_FAILURE;

    DoSessionWork({folder, path, transcript ? &*transcript : nullptr});
    return EXIT_SUCCESS;
}
