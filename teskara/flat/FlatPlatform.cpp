#include "teskara/flat/FlatPlatform.h"

#include "teskara/core/Utf8.h"
#include "teskara/flat/FlatGuard.h"

#include <cstring>

u32 FlatPlatform::GetTickCount()
{
    return m_Table.tick_count ? m_Table.tick_count(m_Table.user) : SystemPlatform().GetTickCount();
}

bool FlatPlatform::IsKeyToggled(u32 key)
{
    return m_Table.is_key_toggled ? m_Table.is_key_toggled(m_Table.user, key) : SystemPlatform().IsKeyToggled(key);
}

int FlatPlatform::ToAscii(u32 key, const u8* keyState, char* characters)
{
    return m_Table.to_ascii ? m_Table.to_ascii(m_Table.user, key, keyState, characters)
                            : SystemPlatform().ToAscii(key, keyState, characters);
}

char16_t FlatPlatform::AnsiToWide(u8 character)
{
    return m_Table.ansi_to_wide ? static_cast<char16_t>(m_Table.ansi_to_wide(m_Table.user, character))
                                : SystemPlatform().AnsiToWide(character);
}

std::FILE* FlatPlatform::OpenFile(const char16_t* path)
{
    if (!m_Table.open_file)
        return SystemPlatform().OpenFile(path);
    return Guarded(
        static_cast<std::FILE*>(nullptr), [&] { return m_Table.open_file(m_Table.user, ToUtf8(path).c_str()); });
}

bool FlatPlatform::FileExists(const char16_t* path)
{
    if (!m_Table.file_exists)
        return SystemPlatform().FileExists(path);
    return Guarded(false, [&] { return m_Table.file_exists(m_Table.user, ToUtf8(path).c_str()); });
}

void FlatPlatform::WriteDebugOutput(const char* text)
{
    if (m_Table.write_debug)
        m_Table.write_debug(m_Table.user, text);
    else
        SystemPlatform().WriteDebugOutput(text);
}

void FlatPlatform::RangeFailure()
{
    if (m_Table.range_failure)
        m_Table.range_failure(m_Table.user);
    else
        SystemPlatform().RangeFailure();
}

bool FlatPlatform::OpenClipboard()
{
    return m_Table.open_clipboard ? m_Table.open_clipboard(m_Table.user) : SystemPlatform().OpenClipboard();
}

void FlatPlatform::CloseClipboard()
{
    if (m_Table.close_clipboard)
        m_Table.close_clipboard(m_Table.user);
    else
        SystemPlatform().CloseClipboard();
}

bool FlatPlatform::EmptyClipboard()
{
    return m_Table.empty_clipboard ? m_Table.empty_clipboard(m_Table.user) : SystemPlatform().EmptyClipboard();
}

bool FlatPlatform::SetClipboardText(const std::string& text)
{
    return m_Table.set_clipboard_text ? m_Table.set_clipboard_text(m_Table.user, text.c_str())
                                      : SystemPlatform().SetClipboardText(text);
}

bool FlatPlatform::GetClipboardText(std::string& text)
{
    if (!m_Table.clipboard_text)
        return SystemPlatform().GetClipboardText(text);
    return Guarded(false, [&] { return ReadClipboard(text); });
}

// Asked for the length first, and for the bytes then.
bool FlatPlatform::ReadClipboard(std::string& text) const
{
    constexpr i64 MostBytes = i64{1} << 30;
    char end = 0;
    const i64 length = m_Table.clipboard_text(m_Table.user, &end, sizeof end);
    if (length < 0 || length > MostBytes)
        return false;
    text.assign(static_cast<std::size_t>(length) + 1, 0);
    if (m_Table.clipboard_text(m_Table.user, text.data(), text.size()) < 0)
        return false;
    text.back() = 0;
    text.resize(std::strlen(text.c_str()));
    return true;
}
