#pragma once

#include "teskara/core/Types.h"
#include "teskara/element/DataText.h"

class TeskFont;

// The text of a dialog, broken into lines that are no wider than most of the screen.
class DialogText
{
public:
    // Copies a text, cut to what the buffer holds; null is the empty text.
    void Set(const char* text);

    // Evaluates the data sequences in the text. May run scripts.
    void Expand();
    void Split(TeskFont* font);

    const char* Lines() const { return m_Text; }
    u64 LineCount() const { return m_LineCount; }
    u64 Width() const { return m_Width; } // of the widest line, in pixels

private:
    DataText::Buffer m_Text = "";
    u64 m_LineCount = 1;
    u64 m_Width = 1;
};
