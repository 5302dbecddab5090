#pragma once

#include "teskara/core/platform/Platform.h"
#include "tests/fuzz/Answers.h"

// A platform that answers as it is told. usual: what answers otherwise; both must outlive it. It throws nothing, as no
// platform may.
class AnswerPlatform final : public Platform
{
public:
    AnswerPlatform(Platform& usual, Answers& told) : m_Usual(usual), m_Told(told) { }

    u32 GetTickCount() override;
    bool IsKeyToggled(u32 key) override;
    int ToAscii(u32 key, const u8* keyState, char* characters) override;
    char16_t AnsiToWide(u8 character) override;
    std::FILE* OpenFile(const char16_t* path) override;
    bool FileExists(const char16_t* path) override;
    std::string GetModulePath() override;
    void WriteDebugOutput(const char* text) override { m_Usual.WriteDebugOutput(text); }
    void RangeFailure() override { m_Usual.RangeFailure(); }
    bool OpenClipboard() override;
    void CloseClipboard() override { m_Usual.CloseClipboard(); }
    bool EmptyClipboard() override;
    bool SetClipboardText(const std::string& text) override;
    bool GetClipboardText(std::string& text) override;

private:
    // An answer that is no exception.
    Answer Next(HostCall call);

    Platform& m_Usual;
    Answers& m_Told;
};
