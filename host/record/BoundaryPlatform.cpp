#include "host/record/BoundaryPlatform.h"

#include "host/record/Boundary.h"

#include <algorithm>

namespace host {

namespace {

constexpr std::size_t KeyCount = 256;
constexpr std::size_t MostCharacters = 2; // that a key gives

constexpr std::size_t MostOfFile = 64u << 20; // no interface is longer

// The bytes of a file, which then stands at its start again.
std::string ReadAll(std::FILE* file)
{
    std::string bytes;
    char part[4096];
    for (std::size_t read = 0; bytes.size() < MostOfFile && (read = std::fread(part, 1, sizeof part, file)) > 0;)
        bytes.append(part, read);
    std::rewind(file);
    return bytes;
}

// A file of these bytes that lies in memory.
std::FILE* OpenBytes(const std::string& bytes)
{
    std::FILE* file = fmemopen(nullptr, bytes.size() + 1, "w+");
    if (file) {
        std::fwrite(bytes.data(), 1, bytes.size(), file);
        std::rewind(file);
    }
    return file;
}

} // namespace

u32 BoundaryPlatform::GetTickCount()
{
    Tick now{m_Boundary.Names().LastTick};
    m_Boundary.Cross(Operation::GetTickCount, {Out(now)}, [&] { now.Milliseconds = m_Inner->GetTickCount(); });
    return now.Milliseconds;
}

bool BoundaryPlatform::IsKeyToggled(u32 key)
{
    bool isOn = false;
    m_Boundary.Cross(Operation::IsKeyToggled, {In(key), Out(isOn)}, [&] { isOn = m_Inner->IsKeyToggled(key); });
    return isOn;
}

int BoundaryPlatform::ToAscii(u32 key, const u8* keyState, char* characters)
{
    const std::string state(reinterpret_cast<const char*>(keyState), KeyCount);
    std::string written;
    m_Boundary.Cross(Operation::ToAscii, {In(key), In(state), Out(written)}, [&] {
        const int count = m_Inner->ToAscii(key, keyState, characters);
        written.assign(characters, static_cast<std::size_t>(std::max(count, 0)));
    });
    return static_cast<int>(written.copy(characters, MostCharacters));
}

char16_t BoundaryPlatform::AnsiToWide(u8 character)
{
    char16_t unit = 0;
    m_Boundary.Cross(Operation::AnsiToWide, {In(character), Out(unit)}, [&] { unit = m_Inner->AnsiToWide(character); });
    return unit;
}

// The whole file stands in the recording, whatever of it is read.
std::FILE* BoundaryPlatform::OpenFile(const char16_t* path)
{
    const std::u16string name = path;
    std::FILE* file = nullptr;
    bool isOpen = false;
    std::string bytes;
    m_Boundary.Cross(Operation::OpenFile, {In(name), Out(isOpen), Out(bytes)}, [&] {
        file = m_Inner->OpenFile(path);
        isOpen = file;
        if (file)
            bytes = ReadAll(file);
    });
    return isOpen && !file ? OpenBytes(bytes) : file;
}

bool BoundaryPlatform::FileExists(const char16_t* path)
{
    const std::u16string name = path;
    bool exists = false;
    m_Boundary.Cross(Operation::FileExists, {In(name), Out(exists)}, [&] { exists = m_Inner->FileExists(path); });
    return exists;
}

std::string BoundaryPlatform::GetModulePath()
{
    std::string path;
    m_Boundary.Cross(Operation::GetModulePath, {Out(path)}, [&] { path = m_Inner->GetModulePath(); });
    return path;
}

void BoundaryPlatform::WriteDebugOutput(const char* text)
{
    m_Boundary.Cross(Operation::WriteDebugOutput, {In(text)}, [&] { m_Inner->WriteDebugOutput(text); });
}

void BoundaryPlatform::RangeFailure()
{
    m_Boundary.Cross(Operation::RangeFailure, {}, [&] { m_Inner->RangeFailure(); });
}

bool BoundaryPlatform::OpenClipboard()
{
    bool isDone = false;
    m_Boundary.Cross(Operation::OpenSystemClipboard, {Out(isDone)}, [&] { isDone = m_Inner->OpenClipboard(); });
    return isDone;
}

void BoundaryPlatform::CloseClipboard()
{
    m_Boundary.Cross(Operation::CloseSystemClipboard, {}, [&] { m_Inner->CloseClipboard(); });
}

bool BoundaryPlatform::EmptyClipboard()
{
    bool isDone = false;
    m_Boundary.Cross(Operation::EmptySystemClipboard, {Out(isDone)}, [&] { isDone = m_Inner->EmptyClipboard(); });
    return isDone;
}

bool BoundaryPlatform::SetClipboardText(const std::string& text)
{
    bool isDone = false;
    m_Boundary.Cross(
        Operation::SetClipboardText, {In(text), Out(isDone)}, [&] { isDone = m_Inner->SetClipboardText(text); });
    return isDone;
}

bool BoundaryPlatform::GetClipboardText(std::string& text)
{
    bool isText = false;
    m_Boundary.Cross(
        Operation::GetClipboardText, {Out(text), Out(isText)}, [&] { isText = m_Inner->GetClipboardText(text); });
    return isText;
}

} // namespace host
