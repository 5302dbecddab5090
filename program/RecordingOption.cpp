#include "program/RecordingOption.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

bool RecordingOption::Begin()
{
    if (m_File.empty())
        return true;

    m_Recorder = std::make_unique<host::Recorder>();
    return m_Recorder->Open(m_File) || SayFailure();
}

bool RecordingOption::End()
{
    return !m_Recorder || m_Recorder->Close() || SayFailure();
}

bool RecordingOption::SayFailure() const
{
    std::fprintf(stderr, "teskara: Could not write %s: %s\n", m_File.c_str(), std::strerror(errno));
    return false;
}
