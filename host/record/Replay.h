#pragma once

#include "host/record/Boundary.h"
#include "host/record/RecordingReader.h"

#include <deque>
#include <filesystem>
#include <string>

namespace host {

// Runs the toolkit against a recording, which answers for the host and its platform, and makes the host's calls. Every
// call of the toolkit is compared with the one that was recorded, byte for byte, and so is every result. At the first
// difference the toolkit gets no more answers, and what was running ends.
class Replay : public Boundary
{
public:
    // Runs a recording to its end. False if something was different, or if the recording cannot be read to its end: then
    // Report says so, in words that follow the name of the file. The toolkit must not have been started in this process.
    bool Run(const std::filesystem::path& file);

    const std::string& Report() const { return m_Report; }
    u64 Frames() const { return m_Frames; }
    u64 Calls() const { return m_Calls; }

    using Boundary::Cross;
    void Cross(Operation operation, std::span<const Field> fields, Passage passage) override;

private:
    struct LatestItem {
        u32 Depth;
        std::string Bytes;
    };

    void PlayCall();
    void EnterToolkit(Operation operation, std::span<const Field> fields, Passage passage);
    void AnswerToolkit(Operation operation, std::span<const Field> fields);
    void PlayCallsInside(Operation operation);
    bool TakeItem();
    bool ReadFields(std::span<const Field> fields, bool results, ItemView& bytes);
    void MakeFields(std::span<const Field> fields, bool results);
    void Stop(const std::string& why);
    void Differ();

    RecordingReader m_Reader;
    std::string m_Item; // of the recording, the latest one
    ItemBytes m_Made; // what came instead
    std::deque<LatestItem> m_Latest; // with m_Item, if that is no end
    std::string m_Report;
    u64 m_Frames = 0;
    u64 m_Calls = 0;
    u32 m_Depth = 0;
    bool m_InToolkit = false;
    bool m_IsStopped = false;
};

} // namespace host
