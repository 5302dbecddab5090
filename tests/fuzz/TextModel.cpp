#include "tests/fuzz/TextModel.h"

#include <cstring>

namespace {

constexpr u64 ByteWidth = 6;

} // namespace

void TextModel::Insert(char byte)
{
    if (Caret >= Limit())
        return;

    const bool isInside = Caret < Text.size();
    Text.insert(Caret, 1, byte);
    if (isInside && !Inserts)
        Text.erase(Caret + 1, 1);
    else if (isInside && Text.size() > Limit())
        Text.pop_back();
    ++Caret;
    ++Changes;
}

void TextModel::Backspace()
{
    if (Caret == 0)
        return;

    Text.erase(--Caret, 1);
    ++Changes;
}

void TextModel::Delete()
{
    if (Caret == Text.size())
        return;

    Text.erase(Caret, 1);
    ++Changes;
}

void TextModel::SetText(const std::string& text)
{
    Text = Limit() == 0 ? "" : text.substr(0, Limit() - 1);
    Caret = Caret < Text.size() ? Caret : Text.size();
}

void TextModel::Paste()
{
    for (const char byte : Clipboard) {
        if (byte == 0)
            return;
        if (byte == 8)
            Backspace();
        else if (byte == 127)
            Delete();
        else if (byte != 10 && byte != 13)
            Insert(byte);
    }
}

void TextModel::PressAt(u64 offset)
{
    const u64 length = std::strlen(Text.c_str());
    Caret = offset / ByteWidth < length ? offset / ByteWidth : length;
    HasFocus = true;
}

bool TextModel::Act(u32 key)
{
    switch (key) {
    case 8:
        Backspace();
        return true;
    case 13:
    case 27:
    case 108:
        return true;
    case 35:
        Caret = Text.size();
        return true;
    case 36:
        Caret = 0;
        return true;
    case 37:
        Caret -= Caret > 0;
        return true;
    case 39:
        Caret += Text.c_str()[Caret] != 0;
        return true;
    case 45:
        Shift ? Paste() : void(Inserts = !Inserts);
        return true;
    case 46:
        Delete();
        return true;
    default:
        return Type(key);
    }
}

bool TextModel::Type(u32 key)
{
    if (key == 86 && Control)
        Paste();
    else if (key < 32)
        return false;
    else if (key < 128)
        Insert(static_cast<char>(key));
    else if (key < 256) {
        Insert(static_cast<char>(0xc0 | key >> 6));
        Insert(static_cast<char>(0x80 | (key & 0x3f)));
    }
    return true;
}

bool TextModel::KeyDown(u32 key)
{
    if (!Act(key))
        return false;

    HeldKey = key == 13 ? 0 : key;
    m_Due = Tick + 250;
    return true;
}

void TextModel::KeyUp(u32 key)
{
    if (key == HeldKey)
        HeldKey = 0;
}

void TextModel::LoseFocus()
{
    if (HasFocus)
        HeldKey = 0;
    HasFocus = false;
}

void TextModel::Frame()
{
    const u32 due = m_Due;
    if (!HasFocus) {
        HeldKey = 0;
    } else if (HeldKey != 0 && Tick > due) {
        KeyDown(HeldKey);
        m_Due = due + 50;
    }
    if (FirstVisible > Text.size())
        FirstVisible = Text.size();
    if (!Text.empty())
        Scroll();
}

void TextModel::Scroll()
{
    if (FirstVisible + 3 > Caret) {
        FirstVisible = Caret > 3 ? Caret - 3 : 0;
        return;
    }
    const u64 visible = IsMasked ? Text.size() - FirstVisible : std::strlen(Text.c_str() + FirstVisible);
    if (Caret <= 3 || (visible + 1) * ByteWidth < m_Width)
        return;

    const u64 fitting = m_Width / ByteWidth < visible ? m_Width / ByteWidth : visible;
    if (FirstVisible < Caret && Caret - FirstVisible + 1 > fitting)
        FirstVisible = FirstVisible + 3 + fitting - Caret;
}
