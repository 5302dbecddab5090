#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "teskara/core/Utf8.h"
#include "teskara/core/platform/Platform.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <io.h>
#include <string_view>

namespace {

static_assert(sizeof(wchar_t) == sizeof(char16_t), "Windows' wide characters are UTF-16 units");

const wchar_t* ToWide(const char16_t* text)
{
    return reinterpret_cast<const wchar_t*>(text);
}

std::string ToNarrow(std::wstring_view text)
{
    return ToUtf8({reinterpret_cast<const char16_t*>(text.data()), text.size()});
}

std::wstring FullPath(const wchar_t* path)
{
    std::wstring full;
    DWORD needed = GetFullPathNameW(path, 0, nullptr, nullptr);
    while (needed > full.size()) {
        full.resize(needed);
        needed = GetFullPathNameW(path, needed, full.data(), nullptr);
    }
    full.resize(needed);
    return full;
}

// A path as Windows takes it whatever its length: a long one is refused but with a sign in front, which only a full path
// may have.
std::wstring OfAnyLength(const char16_t* path)
{
    constexpr std::wstring_view LongSign = L"\\\\?\\";
    constexpr std::wstring_view LongShareSign = L"\\\\?\\UNC\\";
    constexpr std::wstring_view ShareSign = L"\\\\";

    const std::wstring_view given = ToWide(path);
    if (given.size() < MAX_PATH || given.starts_with(LongSign))
        return std::wstring(given);

    const std::wstring full = FullPath(given.data());
    if (full.starts_with(ShareSign))
        return std::wstring(LongShareSign) + full.substr(ShareSign.size());
    return std::wstring(LongSign) + full;
}

// Memory that the clipboard hands out, held in its place for the length of a scope.
class LockedMemory
{
public:
    explicit LockedMemory(HGLOBAL memory) : m_Memory(memory), m_Bytes(memory ? GlobalLock(memory) : nullptr) { }
    ~LockedMemory()
    {
        if (m_Bytes)
            GlobalUnlock(m_Memory);
    }
    LockedMemory(const LockedMemory&) = delete;
    LockedMemory& operator=(const LockedMemory&) = delete;

    char* Bytes() const { return static_cast<char*>(m_Bytes); }
    std::size_t Size() const { return GlobalSize(m_Memory); }

private:
    HGLOBAL m_Memory;
    void* m_Bytes;
};

class Win32Platform final : public Platform
{
public:
    u32 GetTickCount() override { return ::GetTickCount(); }
    bool IsKeyToggled(u32 key) override { return (GetKeyState(static_cast<int>(key)) & 1) != 0; }

    int ToAscii(u32 key, const u8* keyState, char* characters) override
    {
        constexpr UINT NoScanCode = 0x80000000;
        WORD translated = 0;
        // Negative for a dead key, which waits for the next.
        const int count = ::ToAscii(key, NoScanCode, keyState, &translated, 0);
        characters[0] = static_cast<char>(translated & 0xff);
        if (count > 1)
            characters[1] = static_cast<char>(translated >> 8);
        return std::max(count, 0);
    }

    char16_t AnsiToWide(u8 character) override
    {
        const char byte = static_cast<char>(character);
        wchar_t wide = 0;
        return MultiByteToWideChar(CP_ACP, 0, &byte, 1, &wide, 1) == 1 ? static_cast<char16_t>(wide) : character;
    }

    // Whoever waits at the other end of a pipe must not act in this process's name, and only a regular file is kept.
    std::FILE* OpenFile(const char16_t* path) override
    {
        constexpr DWORD Sharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
        const HANDLE file = CreateFileW(OfAnyLength(path).c_str(), GENERIC_READ, Sharing, nullptr, OPEN_EXISTING,
            SECURITY_SQOS_PRESENT | SECURITY_ANONYMOUS, nullptr);
        if (file == INVALID_HANDLE_VALUE)
            return nullptr;

        const bool isRegular = GetFileType(file) == FILE_TYPE_DISK;
        const int number =
            isRegular ? _open_osfhandle(reinterpret_cast<std::intptr_t>(file), _O_RDONLY | _O_NOINHERIT) : -1;
        if (number < 0) {
            CloseHandle(file);
            return nullptr;
        }
        std::FILE* stream = _fdopen(number, "rb");
        if (!stream)
            _close(number);
        return stream;
    }

    bool FileExists(const char16_t* path) override
    {
        return GetFileAttributesW(OfAnyLength(path).c_str()) != INVALID_FILE_ATTRIBUTES;
    }

    std::string GetModulePath() override
    {
        constexpr DWORD ByAddress =
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
        HMODULE module = nullptr;
        if (!GetModuleHandleExW(ByAddress, reinterpret_cast<const wchar_t*>(&SystemPlatform), &module))
            return {};

        constexpr std::size_t LongestPath = 32768;
        std::wstring path(MAX_PATH, 0);
        DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
        while (length == path.size() && length < LongestPath) {
            path.resize(2 * path.size());
            length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
        }
        return ToNarrow({path.data(), length});
    }

    void WriteDebugOutput(const char* text) override { OutputDebugStringW(ToWide(ToUtf16(text).c_str())); }

    void RangeFailure() override
    {
        constexpr const char* Line = "Teskara: a text is too long for its buffer\n";
        WriteDebugOutput(Line);
        std::fputs(Line, stderr);
        std::abort();
    }

    // Others hold the clipboard for a moment now and then.
    bool OpenClipboard() override
    {
        constexpr int Tries = 8;
        constexpr DWORD Pause = 5;
        for (int tried = 1; !::OpenClipboard(nullptr); ++tried) {
            if (tried == Tries)
                return false;
            Sleep(Pause);
        }
        return true;
    }

    void CloseClipboard() override { ::CloseClipboard(); }
    bool EmptyClipboard() override { return ::EmptyClipboard() != 0; }

    // The clipboard owns the memory once it has taken it.
    bool SetClipboardText(const std::string& text) override
    {
        const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
        if (!Fill(memory, text) || !SetClipboardData(CF_TEXT, memory)) {
            GlobalFree(memory);
            return false;
        }
        return true;
    }

    bool GetClipboardText(std::string& text) override
    {
        const LockedMemory memory(GetClipboardData(CF_TEXT));
        if (!memory.Bytes())
            return false;

        const std::string_view bytes(memory.Bytes(), memory.Size());
        text = bytes.substr(0, bytes.find('\0'));
        return true;
    }

private:
    static bool Fill(HGLOBAL memory, const std::string& text)
    {
        const LockedMemory locked(memory);
        if (!locked.Bytes())
            return false;

        std::memcpy(locked.Bytes(), text.c_str(), text.size() + 1);
        return true;
    }
};

} // namespace

Platform& SystemPlatform()
{
    static Win32Platform platform;
    return platform;
}
