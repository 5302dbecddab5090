#pragma once

#include "host/probe/SessionProcess.h"
#include "host/probe/Transcript.h"

#include <chrono>
#include <string>
#include <vector>

// What came of a transcript.
struct TranscriptRun {
    std::vector<std::vector<std::string>> Answers; // one list for each command that was answered
    std::string Failure; // a crash, a hang or a broken tree; empty if there was none
};

// A transcript that runs in a process of its own, in a folder of its own that goes with it.
class TranscriptProcess
{
public:
    // The transcript is borrowed.
    TranscriptProcess(const std::string& path, const Transcript& transcript);
    ~TranscriptProcess();
    TranscriptProcess(const TranscriptProcess&) = delete;
    TranscriptProcess& operator=(const TranscriptProcess&) = delete;

    // Whether it has ended; ends it when its time is over.
    bool HasEnded();

    // What came of it, once it has ended.
    TranscriptRun TakeResult();

private:
    void ReadAnswers(TranscriptRun& run, bool& finished) const;
    std::string DescribeEnd(const TranscriptRun& run, bool finished) const;

    const Transcript& m_Transcript;
    SessionWork m_Work;
    SessionProcess m_Process;
    bool m_TimeIsOver = false;
    std::chrono::steady_clock::time_point m_Deadline;
};

// Answers the commands of standard input, in a process of its own. Returns the exit status.
int AnswerStandardInput();
