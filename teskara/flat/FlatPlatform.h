#pragma once

#include "teskara/core/platform/Platform.h"
#include "teskara/flat/FlatTable.h"
#include "teskara/host.h"

// A platform that is a flat table of functions. What the table does not have is the system's own.
class FlatPlatform : public Platform
{
public:
    // Keeps a copy. Unless the answer is TESKARA_OK, the table before stays.
    teskara_answer SetTable(const teskara_platform* table) { return TakeTable(table, m_Table); }

    u32 GetTickCount() override;
    bool IsKeyToggled(u32 key) override;
    int ToAscii(u32 key, const u8* keyState, char* characters) override;
    char16_t AnsiToWide(u8 character) override;
    std::FILE* OpenFile(const char16_t* path) override;
    bool FileExists(const char16_t* path) override;
    std::string GetModulePath() override { return SystemPlatform().GetModulePath(); }
    void WriteDebugOutput(const char* text) override;
    void RangeFailure() override;
    bool OpenClipboard() override;
    void CloseClipboard() override;
    bool EmptyClipboard() override;
    bool SetClipboardText(const std::string& text) override;
    bool GetClipboardText(std::string& text) override;

private:
    bool ReadClipboard(std::string& text) const;

    teskara_platform m_Table = {};
};
