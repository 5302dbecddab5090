#pragma once

#include "teskara/core/platform/Platform.h"

namespace host {

class HostClock;

// The system's table, with the host's clock, its keyboard and its clipboard.
class HostPlatform : public Platform
{
public:
    // The clock is borrowed.
    explicit HostPlatform(const HostClock& clock);

    // What a key gives in the user's layout, as long as it is held; 0 for what an American keyboard gives.
    void SetTypedCharacter(u32 key, u8 character);

    u32 GetTickCount() override;
    bool IsKeyToggled(u32 key) override;
    int ToAscii(u32 key, const u8* keyState, char* characters) override;
    char16_t AnsiToWide(u8 character) override;
    std::FILE* OpenFile(const char16_t* path) override;
    bool FileExists(const char16_t* path) override;
    std::string GetModulePath() override;
    void WriteDebugOutput(const char* text) override;
    void RangeFailure() override;
    bool OpenClipboard() override;
    void CloseClipboard() override;
    bool EmptyClipboard() override;
    bool SetClipboardText(const std::string& text) override;
    bool GetClipboardText(std::string& text) override;

private:
    const HostClock& m_Clock;
    Platform& m_System;
    u8 m_Typed[256] = {};
    std::string m_OwnClipboard; // when there is no display
};

} // namespace host
