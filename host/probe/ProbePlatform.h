#pragma once

#include "host/probe/ProbeOutput.h"
#include "teskara/core/platform/Platform.h"

#include <map>
#include <optional>

// The operating system as a transcript sees it: a clock that stands still, a US keyboard and a clipboard in memory.
// Files are the system's.
class ProbePlatform : public Platform
{
public:
    explicit ProbePlatform(const HostRefusals& refusals) : m_Refusals(refusals) { }

    u32 GetTickCount() override { return Tick; }
    bool IsKeyToggled(u32 key) override;
    int ToAscii(u32 key, const u8* keyState, char* characters) override;
    char16_t AnsiToWide(u8 character) override;
    std::FILE* OpenFile(const char16_t* path) override { return SystemPlatform().OpenFile(path); }
    bool FileExists(const char16_t* path) override { return SystemPlatform().FileExists(path); }
    std::string GetModulePath() override { return SystemPlatform().GetModulePath(); }
    void WriteDebugOutput(const char*) override { }
    void RangeFailure() override { }

    bool OpenClipboard() override;
    void CloseClipboard() override { }
    bool EmptyClipboard() override;
    bool SetClipboardText(const std::string& text) override;
    bool GetClipboardText(std::string& text) override;

    u32 Tick = 10000;
    bool CapsLock = false;
    bool NumLock = false;
    std::map<u32, std::string> KeyTexts; // what a key gives in place of its own character
    std::optional<std::string> ClipboardText;

private:
    bool ClipboardWorks() const { return !m_Refusals.Refuses(HostOperation::OpenSystemClipboard); }

    const HostRefusals& m_Refusals;
};
