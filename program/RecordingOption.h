#pragma once

#include "host/record/Recorder.h"

#include <memory>
#include <string>

// The recording that a command makes on request. It begins before its session and ends behind it.
class RecordingOption
{
public:
    // file: empty for no recording.
    explicit RecordingOption(std::string file) : m_File(std::move(file)) { }

    // False: the file could not be written, which was said.
    bool Begin();
    bool End();

    // For the session; null if there is none.
    host::Recorder* Get() { return m_Recorder.get(); }

private:
    bool SayFailure() const;

    std::string m_File;
    std::unique_ptr<host::Recorder> m_Recorder;
};
