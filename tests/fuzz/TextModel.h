#pragma once

#include "teskara/core/Types.h"

#include <string>

// What a text entry is, written down as plainly as possible: a string and numbers. Every byte is 6 pixels wide.
class TextModel
{
public:
    TextModel(u64 room, u64 width) : MaxLength(room), m_Room(room), m_Width(width) { }

    void Insert(char byte);
    void Backspace();
    void Delete();
    void SetText(const std::string& text);

    // A press so many pixels from the left edge.
    void PressAt(u64 offset);

    // False: the key gives no character. Keys from 32 to 255 give the character of that number.
    bool KeyDown(u32 key);
    void KeyUp(u32 key);
    void LoseFocus();
    void Frame();

    std::string Text;
    u64 Caret = 0;
    bool Inserts = true;
    bool IsMasked = false; // then zero bytes are seen too
    u64 MaxLength;
    u64 FirstVisible = 0;
    u32 HeldKey = 0;
    u64 Changes = 0; // that were told

    // What lies around it.
    u32 Tick = 0;
    bool Shift = false;
    bool Control = false;
    bool HasFocus = false;
    std::string Clipboard;

private:
    bool Act(u32 key);
    bool Type(u32 key);
    void Paste();
    void Scroll();
    u64 Limit() const { return MaxLength < m_Room ? MaxLength : m_Room; }

    u64 m_Room;
    u64 m_Width;
    u32 m_Due = 0;
};
