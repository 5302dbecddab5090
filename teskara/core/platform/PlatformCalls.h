#pragma once

#include "teskara/core/Types.h"

#include <cstdio>
#include <string>

// Every call of the toolkit to the platform goes through here: when an operation throws, the result is that operation's
// failure.
namespace System {

u32 GetTickCount() noexcept;
bool IsKeyToggled(u32 key) noexcept;
int ToAscii(u32 key, const u8* keyState, char* characters) noexcept;
char16_t AnsiToWide(u8 character) noexcept;
std::FILE* OpenFile(const char16_t* path) noexcept;
bool FileExists(const char16_t* path) noexcept;
std::string GetModulePath() noexcept;
void WriteDebugOutput(const char* text) noexcept;
void RangeFailure() noexcept;
bool OpenClipboard() noexcept;
void CloseClipboard() noexcept;
bool EmptyClipboard() noexcept;
bool SetClipboardText(const std::string& text) noexcept;
bool GetClipboardText(std::string& text) noexcept;

} // namespace System
