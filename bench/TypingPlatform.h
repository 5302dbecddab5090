#pragma once

#include "teskara/core/platform/Platform.h"

#include <string>

// The system's platform with a keyboard, on which each key gives the character of its number, and a clipboard.
class TypingPlatform final : public Platform
{
public:
    TypingPlatform() : m_System(SystemPlatform()) { SetPlatform(this); }
    ~TypingPlatform() override { SetPlatform(nullptr); }

    u32 GetTickCount() override { return m_System.GetTickCount(); }
    bool IsKeyToggled(u32) override { return false; }
    int ToAscii(u32 key, const u8*, char* characters) override
    {
        characters[0] = static_cast<char>(key);
        return 1;
    }
    char16_t AnsiToWide(u8 character) override { return m_System.AnsiToWide(character); }
    std::FILE* OpenFile(const char16_t* path) override { return m_System.OpenFile(path); }
    bool FileExists(const char16_t* path) override { return m_System.FileExists(path); }
    std::string GetModulePath() override { return m_System.GetModulePath(); }
    void WriteDebugOutput(const char* text) override { m_System.WriteDebugOutput(text); }
    void RangeFailure() override { }
    bool OpenClipboard() override { return true; }
    void CloseClipboard() override { }
    bool EmptyClipboard() override { return true; }
    bool SetClipboardText(const std::string&) override { return true; }
    bool GetClipboardText(std::string& text) override
    {
        text = Clipboard;
        return true;
    }

    std::string Clipboard;

private:
    Platform& m_System;
};
