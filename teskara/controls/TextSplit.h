#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <algorithm>
#include <cstddef>

// Breaks a text into lines: at the last space of a line that is full, or else right there. A line may pass its width by
// one character.
class TextSplit
{
public:
    // Bytes of a buffer for a text that is broken in place, with the terminator. Breaks may make a text longer; what no
    // longer fits is cut.
    static constexpr std::size_t BufferSize = 2048;
    static constexpr char LineBreak = '\n';

    // Both break the text in such a buffer and return the number of lines. reached, which may be null, takes the width of
    // a line: of one that ends by itself if it is larger than what reached holds, of one that is broken in any case.

    // measure(byte) gives the width of a byte in pixels.
    template <class Measure> static u64 ByPixels(char* text, u64 width, u64* reached, Measure measure)
    {
        char output[BufferSize];
        TextSplit split(text, output, width, reached);
        const u64 lines = split.Run(measure);
        *std::copy_n(output, split.m_Length, text) = 0;
        return lines;
    }

    // Counts bytes instead. Without columns the result is 0, and the text stays as it is.
    static TESKARA_EXPORT u64 ByColumns(char* text, u64 columns, u64* reached);

private:
    TextSplit(const char* input, char* output, u64 width, u64* reached)
        : m_Input(input), m_Output(output), m_Width(width), m_Reached(reached)
    {
    }

    template <class Measure> u64 Run(Measure measure)
    {
        while (*m_Input && m_Length < BufferSize - 1) {
            if (*m_Input == LineBreak)
                CopyBreak();
            else if (m_LineWidth < m_Width)
                CopyByte(measure(*m_Input));
            else
                BreakLine();
        }
        NoteNaturalWidth();
        return m_Lines;
    }

    void CopyByte(u64 width)
    {
        if (*m_Input == ' ') {
            m_Space = m_Input;
            m_LengthAtSpace = m_Length;
        }
        m_Output[m_Length++] = *m_Input++;
        m_LineWidth += width;
    }

    void CopyBreak()
    {
        NoteNaturalWidth();
        ++m_Input;
        StartLine();
    }

    // The line is full. A space that would begin the next one is dropped; a word that was begun goes to the next line as
    // a whole.
    void BreakLine()
    {
        if (m_Reached)
            *m_Reached = m_LineWidth;
        if (*m_Input == ' ') {
            ++m_Input;
        } else if (m_Space) {
            m_Length = m_LengthAtSpace;
            m_Input = m_Space + 1;
        } else if (m_Width == 0) {
            FillUp();
            return;
        }
        StartLine();
    }

    // Where there is no width, breaks without end stand before the first character.
    void FillUp()
    {
        const std::size_t rest = BufferSize - 1 - m_Length;
        std::fill_n(m_Output + m_Length, rest, LineBreak);
        m_Length += rest;
        m_Lines += rest;
    }

    void StartLine()
    {
        m_Output[m_Length++] = LineBreak;
        ++m_Lines;
        m_LineWidth = 0;
        m_Space = nullptr;
    }

    void NoteNaturalWidth()
    {
        if (m_Reached)
            *m_Reached = std::max(*m_Reached, m_LineWidth);
    }

    const char* m_Input;
    char* m_Output; // an array in here would keep the other fields out of registers
    u64 m_Width;
    u64* m_Reached;
    u64 m_Lines = 1;
    u64 m_LineWidth = 0;
    const char* m_Space = nullptr; // the last one on this line
    std::size_t m_LengthAtSpace = 0;
    std::size_t m_Length = 0;
};
