#include "teskara/core/platform/PlatformCalls.h"

#include "teskara/core/HostCalls.h"
#include "teskara/core/platform/Platform.h"

namespace System {

namespace {

// Calls an operation; failure is what stands for "it did not work". None of them may call back.
template <class Result, class Operation> Result Call(Result failure, Operation&& operation) noexcept
{
    try {
        const Host::AnsweringScope answering;
        return operation(CurrentPlatform());
    } catch (...) {
        return failure;
    }
}

template <class Operation> void Call(Operation&& operation) noexcept
{
    try {
        const Host::AnsweringScope answering;
        operation(CurrentPlatform());
    } catch (...) {
        return; // an operation that fails without a result has no further effect
    }
}

} // namespace

u32 GetTickCount() noexcept
{
    return Call(u32{0}, [](Platform& platform) { return platform.GetTickCount(); });
}

bool IsKeyToggled(u32 key) noexcept
{
    return Call(false, [key](Platform& platform) { return platform.IsKeyToggled(key); });
}

int ToAscii(u32 key, const u8* keyState, char* characters) noexcept
{
    return Call(0, [&](Platform& platform) { return platform.ToAscii(key, keyState, characters); });
}

char16_t AnsiToWide(u8 character) noexcept
{
    return Call(u'\0', [character](Platform& platform) { return platform.AnsiToWide(character); });
}

std::FILE* OpenFile(const char16_t* path) noexcept
{
    return Call<std::FILE*>(nullptr, [path](Platform& platform) { return platform.OpenFile(path); });
}

bool FileExists(const char16_t* path) noexcept
{
    return Call(false, [path](Platform& platform) { return platform.FileExists(path); });
}

std::string GetModulePath() noexcept
{
    return Call(std::string(), [](Platform& platform) { return platform.GetModulePath(); });
}

void WriteDebugOutput(const char* text) noexcept
{
    Call([text](Platform& platform) { platform.WriteDebugOutput(text); });
}

void RangeFailure() noexcept
{
    Call([](Platform& platform) { platform.RangeFailure(); });
}

bool OpenClipboard() noexcept
{
    return Call(false, [](Platform& platform) { return platform.OpenClipboard(); });
}

void CloseClipboard() noexcept
{
    Call([](Platform& platform) { platform.CloseClipboard(); });
}

bool EmptyClipboard() noexcept
{
    return Call(false, [](Platform& platform) { return platform.EmptyClipboard(); });
}

bool SetClipboardText(const std::string& text) noexcept
{
    return Call(false, [&text](Platform& platform) { return platform.SetClipboardText(text); });
}

bool GetClipboardText(std::string& text) noexcept
{
    return Call(false, [&text](Platform& platform) { return platform.GetClipboardText(text); });
}

} // namespace System
