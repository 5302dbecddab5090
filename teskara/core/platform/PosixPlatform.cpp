#include "teskara/core/Utf8.h"
#include "teskara/core/platform/Platform.h"

#include <array>
#include <cstdlib>
#include <ctime>
#include <dlfcn.h>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// What Windows-1252 puts in the place of the C1 control codes; 0 where it has nothing of its own.
constexpr std::array<char16_t, 32> CodePage1252 = {0x20ac, 0, 0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6,
    0x2030, 0x0160, 0x2039, 0x0152, 0, 0x017d, 0, 0, 0x2018, 0x2019, 0x201c, 0x201d, 0x2022, 0x2013, 0x2014, 0x02dc,
    0x2122, 0x0161, 0x203a, 0x0153, 0, 0x017e, 0x0178};

std::string ToPath(const char16_t* path)
{
    return ToUtf8(path);
}

// There is no keyboard and no clipboard of the system's here: a host brings both in a table of its own.
class PosixPlatform final : public Platform
{
public:
    u32 GetTickCount() override
    {
        timespec now = {};
        clock_gettime(CLOCK_MONOTONIC, &now);
        return static_cast<u32>(static_cast<u64>(now.tv_sec) * 1000 + static_cast<u64>(now.tv_nsec) / 1000000);
    }

    bool IsKeyToggled(u32) override { return false; }
    int ToAscii(u32, const u8*, char*) override { return 0; }

    char16_t AnsiToWide(u8 character) override
    {
        const bool isMapped = character >= 0x80 && character < 0xa0 && CodePage1252[character - 0x80u] != 0;
        return isMapped ? CodePage1252[character - 0x80u] : character;
    }

    // A pipe would block, so it is not waited for, and only a regular file is kept.
    std::FILE* OpenFile(const char16_t* path) override
    {
        const int file = open(ToPath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
        if (file < 0)
            return nullptr;

        struct stat status = {};
        std::FILE* stream = fstat(file, &status) == 0 && S_ISREG(status.st_mode) ? fdopen(file, "rb") : nullptr;
        if (!stream)
            close(file);
        return stream;
    }

    bool FileExists(const char16_t* path) override { return access(ToPath(path).c_str(), F_OK) == 0; }

    std::string GetModulePath() override
    {
        Dl_info info = {};
        return dladdr(reinterpret_cast<const void*>(&CurrentPlatform), &info) && info.dli_fname ? info.dli_fname : "";
    }

    void WriteDebugOutput(const char* text) override { std::fputs(text, stderr); }

    void RangeFailure() override
    {
        std::fputs("Teskara: a text is too long for its buffer\n", stderr);
        std::abort();
    }

    bool OpenClipboard() override { return false; }
    void CloseClipboard() override { }
    bool EmptyClipboard() override { return false; }
    bool SetClipboardText(const std::string&) override { return false; }
    bool GetClipboardText(std::string&) override { return false; }
};

} // namespace

Platform& SystemPlatform()
{
    static PosixPlatform platform;
    return platform;
}
