#include "host/probe/Probe.h"

#include "host/probe/ExpectedLines.h"
#include "host/probe/Transcript.h"
#include "host/probe/TranscriptProcess.h"

#include <algorithm>
#include <deque>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <thread>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t Parallel = 2;
constexpr int ExitFailed = 1;
constexpr int ExitUsage = 2;

struct TranscriptFile {
    std::string Path;
    Transcript Content;
};

// A transcript on its way. It is read in its turn: the process that it runs in begins as a copy of this one, and takes
// the longer the more this one holds.
class RunningTranscript
{
public:
    explicit RunningTranscript(const std::string& path) : RunningTranscript(path, Transcript::FromFile(path)) { }

    const TranscriptFile& File() const { return m_File; }
    bool HasEnded() { return m_Process.HasEnded(); }

    TranscriptRun TakeResult()
    {
        TranscriptRun run = m_Process.TakeResult();
        if (!m_WasRead)
            run.Failure = "cannot be read any more";
        return run;
    }

private:
    RunningTranscript(const std::string& path, const std::optional<Transcript>& content)
        : m_File{path, content.value_or(Transcript())}, m_WasRead(content.has_value()),
          m_Process(m_File.Path, m_File.Content)
    {
    }

    TranscriptFile m_File;
    bool m_WasRead;
    TranscriptProcess m_Process;
};

void AddFolder(const fs::path& folder, std::vector<std::string>& files)
{
    std::error_code error;
    for (fs::recursive_directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        if (entry->is_regular_file(error) && entry->path().extension() == ".probe")
            files.push_back(entry->path().generic_string());
    }
}

// Nothing, with a message, if a path does not exist or cannot be read.
std::optional<std::vector<std::string>> FindTranscripts(const std::vector<std::string>& paths)
{
    std::vector<std::string> files;
    for (const std::string& path : paths) {
        std::error_code error;
        if (!fs::exists(path, error)) {
            std::cerr << "teskara probe: there is no " << path << '\n';
            return std::nullopt;
        }
        std::vector<std::string> found;
        if (fs::is_directory(path, error))
            AddFolder(path, found);
        else
            found.push_back(path);
        std::sort(found.begin(), found.end());
        files.insert(files.end(), found.begin(), found.end());
    }

    for (const std::string& file : files) {
        if (!std::ifstream(file)) {
            std::cerr << "teskara probe: cannot read " << file << '\n';
            return std::nullopt;
        }
    }
    return files;
}

// Runs all transcripts, some at a time, and hands over each result in the order of the files.
template <class Take> void RunAll(const std::vector<std::string>& files, Take take)
{
    std::deque<std::unique_ptr<RunningTranscript>> running;
    std::size_t started = 0;
    while (started < files.size() || !running.empty()) {
        const auto alive =
            std::count_if(running.begin(), running.end(), [](auto& transcript) { return !transcript->HasEnded(); });
        if (started < files.size() && static_cast<std::size_t>(alive) < Parallel) {
            running.push_back(std::make_unique<RunningTranscript>(files[started++]));
            continue;
        }
        if (running.front()->HasEnded()) {
            take(running.front()->File(), running.front()->TakeResult());
            running.pop_front();
            continue;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

void PrintRun(const TranscriptFile& file, const TranscriptRun& run)
{
    for (std::size_t index = 0; index < file.Content.Commands().size(); ++index) {
        if (index > run.Answers.size())
            break;
        for (const std::string& line : file.Content.LinesOf(index))
            std::cout << line << '\n';
        if (index < run.Answers.size()) {
            for (const std::string& line : run.Answers[index])
                std::cout << line << '\n';
        }
    }
    if (!run.Failure.empty())
        std::cout << file.Path << ": " << run.Failure << '\n';
}

// Whether a transcript went as expected; prints how it did not.
bool CheckRun(const TranscriptFile& file, const TranscriptRun& run)
{
    const auto& commands = file.Content.Commands();
    std::string report;
    if (!file.Content.Fault().empty())
        report += "  " + file.Content.Fault() + '\n';
    for (std::size_t index = 0; index < run.Answers.size() && index < commands.size(); ++index) {
        if (MatchLines(commands[index].Expected, run.Answers[index]))
            continue;
        report += "  line " + std::to_string(commands[index].Line) + ": > " + commands[index].Command.Text + '\n';
        for (const std::string& line : DifferentLines(commands[index].Expected, run.Answers[index]))
            report += "    " + line + '\n';
    }
    if (!run.Failure.empty())
        report += "  " + run.Failure + '\n';
    if (!report.empty())
        std::cout << file.Path << '\n' << report;
    return report.empty();
}

// Whether the file could be rewritten.
bool UpdateFile(const TranscriptFile& file, const TranscriptRun& run)
{
    if (!run.Failure.empty()) {
        std::cout << file.Path << ": " << run.Failure << '\n';
        return false;
    }

    std::ofstream out(file.Path, std::ios::binary);
    out << file.Content.Updated(run.Answers);
    out.close();
    if (!out)
        std::cerr << "teskara probe: cannot write " << file.Path << '\n';
    return static_cast<bool>(out);
}

int CheckAll(const std::vector<std::string>& files)
{
    std::size_t passed = 0;
    RunAll(files, [&](const TranscriptFile& file, const TranscriptRun& run) { passed += CheckRun(file, run); });
    // As texts, since a stream puts points between the digits where the locale has them.
    std::cout << std::to_string(passed) << " passed, " << std::to_string(files.size() - passed) << " failed\n";
    return passed == files.size() ? 0 : ExitFailed;
}

} // namespace

int RunProbe(ProbeMode mode, const std::vector<std::string>& paths)
{
    if (mode == ProbeMode::Print && paths == std::vector<std::string>{"-"})
        return AnswerStandardInput();

    const auto files = FindTranscripts(paths);
    if (!files)
        return ExitUsage;
    if (mode == ProbeMode::Check)
        return CheckAll(*files);

    bool allWell = true;
    RunAll(*files, [&](const TranscriptFile& file, const TranscriptRun& run) {
        if (mode == ProbeMode::Update) {
            allWell = UpdateFile(file, run) && allWell;
        } else {
            PrintRun(file, run);
            allWell = run.Failure.empty() && allWell;
        }
    });
    return allWell ? 0 : ExitFailed;
}
