#pragma once

#include "tests/unit/TestHost.h"

// The platform that belongs to it. Keys from 32 to 255 give the character of that number; every file is there.
class HostilePlatform final : public TestPlatform
{
public:
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

    // Puts a text on the clipboard, so many times.
    void Give(const char* text, int times);
};
