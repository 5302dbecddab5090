#pragma once

#include "teskara/core/platform/Platform.h"

namespace host {

class Boundary;

// The platform's table on the boundary.
class BoundaryPlatform : public Platform
{
public:
    // The boundary is borrowed.
    explicit BoundaryPlatform(Boundary& boundary) : m_Boundary(boundary) { }

    // What is behind it; borrowed.
    void SetInner(Platform& inner) { m_Inner = &inner; }

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
    Boundary& m_Boundary;
    Platform* m_Inner = nullptr;
};

} // namespace host
