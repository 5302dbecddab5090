#pragma once

#include "host/record/Boundary.h"
#include "host/record/RecordingWriter.h"

#include <filesystem>

namespace host {

// Stands between toolkit and host, lets every call through and writes it into a recording. What the host calls is in the
// file before the toolkit begins, so that a recording shows how a process ended.
class Recorder : public Boundary
{
public:
    ~Recorder() override;

    // Begins. False if the file cannot be written; then nothing is recorded.
    bool Open(const std::filesystem::path& file);

    // Ends the recording. False if not all of it could be written.
    bool Close();

    using Boundary::Cross;
    void Cross(Operation operation, std::span<const Field> fields, Passage passage) override;

private:
    void PutFields(std::span<const Field> fields, bool results);
    void PutPending();

    RecordingWriter m_Writer;
    ItemBytes m_Pending; // a call that has begun, while no other one has begun inside it
    bool m_IsPending = false;
    bool m_InToolkit = false;
    u32 m_Depth = 0;
    bool m_IsOpen = false;
};

} // namespace host
