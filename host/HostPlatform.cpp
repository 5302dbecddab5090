#include "host/HostPlatform.h"

#include "host/HostClock.h"
#include "host/display/Characters.h"
#include "host/display/KeyCodes.h"

#include <SDL.h>

namespace host {

namespace {

constexpr u8 Held = 0x80;

bool HasDisplay()
{
    return SDL_WasInit(SDL_INIT_VIDEO) != 0;
}

} // namespace

HostPlatform::HostPlatform(const HostClock& clock) : m_Clock(clock), m_System(SystemPlatform()) { }

void HostPlatform::SetTypedCharacter(u32 key, char32_t character)
{
    if (key < m_Typed.size())
        m_Typed[key] = character;
}

void HostPlatform::ForgetTypedCharacter(u32 key)
{
    if (key < m_Typed.size())
        m_Typed[key].reset();
}

u32 HostPlatform::GetTickCount()
{
    return m_Clock.Ticks();
}

bool HostPlatform::IsKeyToggled(u32 key)
{
    if (!HasDisplay())
        return false;
    if (key == KeyCapsLock)
        return (SDL_GetModState() & KMOD_CAPS) != 0;
    return key == KeyNumLock && (SDL_GetModState() & KMOD_NUM) != 0;
}

int HostPlatform::ToAscii(u32 key, const u8* keyState, char* characters)
{
    const std::optional<char32_t> typed = key < m_Typed.size() ? m_Typed[key] : std::nullopt;
    if (typed.value_or(0) != 0)
        return m_CodePage.Encode(*typed, characters);

    // SDL has no text for the control characters.
    const bool control = (keyState[KeyControl] & Held) != 0;
    if (typed && !control)
        return 0;

    const bool shift = (keyState[KeyShift] & Held) != 0;
    const u8 character = CharacterOfKey(key, shift, control, (keyState[KeyCapsLock] & 1) != 0);
    if (character == 0)
        return 0;

    characters[0] = static_cast<char>(character);
    return 1;
}

char16_t HostPlatform::AnsiToWide(u8 character)
{
    const char16_t borrower = m_CodePage.BorrowerOf(character);
    return borrower != 0 ? borrower : m_System.AnsiToWide(character);
}

std::FILE* HostPlatform::OpenFile(const char16_t* path)
{
    return m_System.OpenFile(path);
}

bool HostPlatform::FileExists(const char16_t* path)
{
    return m_System.FileExists(path);
}

std::string HostPlatform::GetModulePath()
{
    return m_System.GetModulePath();
}

void HostPlatform::WriteDebugOutput(const char* text)
{
    m_System.WriteDebugOutput(text);
}

void HostPlatform::RangeFailure()
{
    // Returning lets the toolkit cut the text and go on with the frame.
}

bool HostPlatform::OpenClipboard()
{
    return true;
}

void HostPlatform::CloseClipboard() { }

bool HostPlatform::EmptyClipboard()
{
    return SetClipboardText({});
}

bool HostPlatform::SetClipboardText(const std::string& text)
{
    if (HasDisplay())
        return SDL_SetClipboardText(WideToUtf8(Utf8ToWide(text)).c_str()) == 0;

    m_OwnClipboard = text;
    return true;
}

bool HostPlatform::GetClipboardText(std::string& text)
{
    if (!HasDisplay()) {
        text = m_OwnClipboard;
        return !text.empty();
    }
    if (!SDL_HasClipboardText())
        return false;

    char* narrow = SDL_GetClipboardText();
    text = narrow ? narrow : "";
    SDL_free(narrow);
    return !text.empty();
}

} // namespace host
