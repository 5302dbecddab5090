#pragma once

#include "host/AnsiCodePage.h"
#include "teskara/core/platform/Platform.h"

#include <array>
#include <optional>

namespace host {

class HostClock;

// The system's table, with the host's clock, its keyboard and its clipboard.
class HostPlatform : public Platform
{
public:
    // The clock is borrowed.
    explicit HostPlatform(const HostClock& clock);

    // Tells what a key gives in the user's layout, 0 for no character, until that is forgotten. A key that nothing is told
    // of gives what it gives on an American keyboard.
    void SetTypedCharacter(u32 key, char32_t character);
    void ForgetTypedCharacter(u32 key);

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
    std::array<std::optional<char32_t>, 256> m_Typed;
    AnsiCodePage m_CodePage;
    std::string m_OwnClipboard; // when there is no display
};

} // namespace host
