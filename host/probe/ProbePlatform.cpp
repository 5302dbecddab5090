#include "host/probe/ProbePlatform.h"

#include "host/probe/Keyboard.h"
#include "host/probe/ProbeEncoding.h"

#include <algorithm>

bool ProbePlatform::IsKeyToggled(u32 key)
{
    return (key == KeyCapsLock && CapsLock) || (key == KeyNumLock && NumLock);
}

int ProbePlatform::ToAscii(u32 key, const u8* keyState, char* characters)
{
    constexpr std::size_t Room = 2;
    const auto mapped = KeyTexts.find(key);
    const std::string text = mapped != KeyTexts.end() ? mapped->second : TranslateKey(key, keyState);
    const std::size_t length = std::min(text.size(), Room);
    std::copy_n(text.begin(), length, characters);
    return static_cast<int>(length);
}

char16_t ProbePlatform::AnsiToWide(u8 character)
{
    return WideFromCodePage(character);
}

bool ProbePlatform::OpenClipboard()
{
    return ClipboardWorks();
}

bool ProbePlatform::EmptyClipboard()
{
    if (!ClipboardWorks())
        return false;

    ClipboardText.reset();
    return true;
}

bool ProbePlatform::SetClipboardText(const std::string& text)
{
    if (!ClipboardWorks())
        return false;

    ClipboardText = text;
    return true;
}

bool ProbePlatform::GetClipboardText(std::string& text)
{
    if (!ClipboardWorks() || !ClipboardText)
        return false;

    text = *ClipboardText;
    return true;
}
