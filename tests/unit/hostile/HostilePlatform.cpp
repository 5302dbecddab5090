#include "tests/unit/hostile/HostilePlatform.h"

#include "tests/unit/hostile/Answering.h"

#include <stdexcept>
#include <string_view>

namespace {

// What an operation may write of a key.
constexpr std::size_t CharactersOfAKey = 2;

constexpr char16_t HalfOfAPair = 0xd800;

std::FILE* FileOf(std::string_view text)
{
    std::FILE* file = std::tmpfile();
    if (!file)
        throw std::runtime_error("no room for a file");

    std::fwrite(text.data(), 1, text.size(), file);
    std::rewind(file);
    return file;
}

// The first half of what stands in a file, which it closes.
std::FILE* FirstHalfOf(std::FILE* file)
{
    std::string text(Answering::HugeText, 0);
    text.resize(file ? std::fread(text.data(), 1, text.size(), file) / 2 : 0);
    if (file)
        std::fclose(file);
    return FileOf(text);
}

} // namespace

u32 HostilePlatform::GetTickCount()
{
    return Answering::Number(Operation::GetTickCount, [&] { return Ticks; });
}

bool HostilePlatform::IsKeyToggled(u32)
{
    return Answering::Decision(Operation::IsKeyToggled, [] { return false; });
}

int HostilePlatform::ToAscii(u32 key, const u8*, char* characters)
{
    return Answering::NumberAndText(Operation::ToAscii, characters, CharactersOfAKey, [&] {
        characters[0] = static_cast<char>(key);
        return key >= ' ' ? 1 : 0;
    });
}

char16_t HostilePlatform::AnsiToWide(u8 character)
{
    const Allocations::Spared spared;
    switch (g_Hostility.Take(Operation::AnsiToWide)) {
    case Answer::Good:
        return character;
    case Answer::Unterminated:
        return HalfOfAPair;
    case Answer::Huge:
        return 0xffff;
    default:
        return 0;
    }
}

std::FILE* HostilePlatform::OpenFile(const char16_t* path)
{
    const Allocations::Spared spared;
    switch (g_Hostility.Take(Operation::OpenFile)) {
    case Answer::Good:
        return SystemPlatform().OpenFile(path);
    case Answer::Empty:
        return FileOf("");
    case Answer::Unterminated:
        return FirstHalfOf(SystemPlatform().OpenFile(path));
    case Answer::Huge:
        return FileOf(Answering::HugeTextWithEnd());
    default:
        return nullptr;
    }
}

bool HostilePlatform::FileExists(const char16_t*)
{
    return Answering::Decision(Operation::FileExists, [] { return true; });
}

std::string HostilePlatform::GetModulePath()
{
    const Allocations::Spared spared;
    const char* path = Answering::TextPointer(Operation::GetModulePath, [] { return "/"; });
    return path ? path : "";
}

void HostilePlatform::WriteDebugOutput(const char*)
{
    Answering::Nothing(Operation::WriteDebugOutput, [] {});
}

void HostilePlatform::RangeFailure()
{
    Answering::Nothing(Operation::RangeFailure, [] {});
}

bool HostilePlatform::OpenClipboard()
{
    return Answering::Decision(Operation::OpenSystemClipboard, [&] { return TestPlatform::OpenClipboard(); });
}

void HostilePlatform::CloseClipboard()
{
    Answering::Nothing(Operation::CloseSystemClipboard, [&] { TestPlatform::CloseClipboard(); });
}

bool HostilePlatform::EmptyClipboard()
{
    return Answering::Decision(Operation::EmptySystemClipboard, [&] { return TestPlatform::EmptyClipboard(); });
}

bool HostilePlatform::SetClipboardText(const std::string& text)
{
    return Answering::Decision(Operation::SetClipboardText, [&] { return TestPlatform::SetClipboardText(text); });
}

bool HostilePlatform::GetClipboardText(std::string& text)
{
    const Allocations::Spared spared;
    const Answer answer = g_Hostility.Take(Operation::GetClipboardText);
    if (answer == Answer::Good)
        return TestPlatform::GetClipboardText(text);
    if (answer == Answer::Null)
        return true;

    text.assign(Answering::HugeText, ' ');
    return Answering::SpoilText(answer, text.data(), text.size());
}

void HostilePlatform::Give(const char* text, int times)
{
    const Allocations::Spared spared;
    Clipboard.emplace();
    for (int time = 0; time < times; ++time)
        *Clipboard += text;
}
