#include "tests/fuzz/AnswerPlatform.h"

Answer AnswerPlatform::Next(HostCall call)
{
    const Answer answer = m_Told.Next(call);
    return answer == Answer::Exception ? Answer::Failure : answer;
}

u32 AnswerPlatform::GetTickCount()
{
    return m_Told.Of(Next(HostCall::GetTickCount), m_Usual.GetTickCount());
}

bool AnswerPlatform::IsKeyToggled(u32 key)
{
    return Next(HostCall::IsKeyToggled) == Answer::Huge || m_Usual.IsKeyToggled(key);
}

// One character or two, of which any may be the end of a text, or more than there is room for.
int AnswerPlatform::ToAscii(u32 key, const u8* keyState, char* characters)
{
    const Answer answer = Next(HostCall::ToAscii);
    const int count = m_Usual.ToAscii(key, keyState, characters);
    if (answer == Answer::Empty || answer == Answer::Unterminated) {
        characters[0] = static_cast<char>(m_Told.Detail());
        characters[1] = answer == Answer::Empty ? '\0' : 'y';
        return 2;
    }
    return m_Told.Of(answer, count);
}

char16_t AnswerPlatform::AnsiToWide(u8 character)
{
    constexpr char16_t units[] = {0, 0xd800, 0xdc00, 0xffff, 0xfeff, '\n', 0x7f, 0x20ac};
    return Next(HostCall::AnsiToWide) == Answer::True ? m_Usual.AnsiToWide(character) : units[m_Told.Detail() % 8];
}

std::FILE* AnswerPlatform::OpenFile(const char16_t* path)
{
    return Next(HostCall::OpenFile) == Answer::True ? m_Usual.OpenFile(path) : nullptr;
}

bool AnswerPlatform::FileExists(const char16_t* path)
{
    return Next(HostCall::FileExists) == Answer::True ? m_Usual.FileExists(path) : m_Told.Detail() % 2 == 0;
}

std::string AnswerPlatform::GetModulePath()
{
    const Answer answer = Next(HostCall::GetModulePath);
    if (answer == Answer::Huge || answer == Answer::Unterminated)
        return std::string(100000, static_cast<char>(m_Told.Detail()));
    return m_Usual.GetModulePath();
}

bool AnswerPlatform::OpenClipboard()
{
    return Next(HostCall::OpenPlatformClipboard) == Answer::True && m_Usual.OpenClipboard();
}

bool AnswerPlatform::EmptyClipboard()
{
    return Next(HostCall::EmptyClipboard) == Answer::True && m_Usual.EmptyClipboard();
}

bool AnswerPlatform::SetClipboardText(const std::string& text)
{
    return Next(HostCall::SetClipboardText) == Answer::True && m_Usual.SetClipboardText(text);
}

bool AnswerPlatform::GetClipboardText(std::string& text)
{
    switch (Next(HostCall::GetClipboardText)) {
    case Answer::True:
        return m_Usual.GetClipboardText(text);
    case Answer::Empty:
        text.clear();
        return true;
    case Answer::Unterminated:
        text.assign(m_Told.Detail(), '\0');
        return true;
    case Answer::Huge:
        text.assign(20000, static_cast<char>(m_Told.Detail()));
        return true;
    default:
        return false;
    }
}
