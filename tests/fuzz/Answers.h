#pragma once

#include "teskara/core/Types.h"

#include <array>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <type_traits>

// The operations whose answers an input can choose: of the host, of its second table and of the platform.
enum class HostCall : u8 {
    GetCurrentScript,
    ExecuteCommand,
    DataParse,
    FindType,
    InvalidateTransientObject,
    RegisterTransientClass,
    CompleteCommandLine,
    Calculate,
    PrintLine,
    CompileAtom,
    ReleaseAtom,
    ExecuteAtomForText,
    ExecuteAtom,
    FindAtom,
    PreParseSequence,
    RetrieveOriginalText,
    RetrieveProcessedText,
    RetrieveProcessedResult,
    FreeSequence,
    InvalidateObject,
    FindResourceFile,
    LocateFile,
    OpenClipboard,
    SaveElementPosition,
    LoadElementPosition,
    GetKeyName,
    GetOutputConsole,
    SetOutputConsole,
    DrawRect,
    DrawTexturedRect,
    DrawTexturedRects,
    DrawLine,
    CreateFontResource,
    ReleaseFontResource,
    DrawText,
    MeasureText,
    GetGlyphMetrics,
    GetDisplaySize,
    LoadTextureResource,
    GetTextureResourceSize,
    ReleaseTextureResource,

    ParseTypedValue,
    MakeTempBuffer,
    RegisterTransientClass2,
    InvalidateTransientObject2,
    CreateQuery,
    EvaluateQuery,
    FreeQuery,

    GetTickCount,
    IsKeyToggled,
    ToAscii,
    AnsiToWide,
    OpenFile,
    FileExists,
    GetModulePath,
    OpenPlatformClipboard,
    EmptyClipboard,
    SetClipboardText,
    GetClipboardText,

    Count,
};

// What an operation says in place of the truth. Kinds that make no sense for it change nothing.
enum class Answer : u8 {
    True,
    Failure,
    Empty,
    Unterminated, // as much as fits, without an end
    Huge,
    Negative,
    NotANumber,
    Exception, // after it has done what it should
    Count,
};

// The answers that an input has chosen, call by call.
class Answers
{
public:
    void Clear() { m_Told = {}; }

    // The next so many calls of that operation get that answer. detail: a byte of it.
    void Tell(HostCall call, Answer answer, u8 detail, u8 times)
    {
        m_Told[static_cast<std::size_t>(call)] = {answer, detail, times};
    }

    // The answer to the call that is being made.
    Answer Next(HostCall call)
    {
        Line& line = m_Told[static_cast<std::size_t>(call)];
        if (line.Left == 0)
            return Answer::True;

        --line.Left;
        m_Detail = line.Detail;
        return line.Said;
    }

    u8 Detail() const { return m_Detail; }

    // Ends an operation that has done its work.
    void Finish(HostCall call)
    {
        if (Next(call) == Answer::Exception)
            throw std::runtime_error("thrown by the host");
    }

    // A number of that answer.
    template <class Number> Number Of(Answer answer, Number whole) const
    {
        using Limits = std::numeric_limits<Number>;
        switch (answer) {
        case Answer::Failure:
        case Answer::Empty:
            return 0;
        case Answer::Huge:
            return m_Detail % 2 ? Limits::max() : static_cast<Number>(1 << 24);
        case Answer::Negative:
            return m_Detail % 2 ? Limits::lowest() : static_cast<Number>(-1);
        case Answer::NotANumber:
            return Limits::has_quiet_NaN ? Limits::quiet_NaN() : static_cast<Number>(m_Detail);
        case Answer::Exception:
            throw std::runtime_error("thrown by the host");
        default:
            return whole;
        }
    }

    // Writes a text of that answer. True: it did.
    bool WriteText(Answer answer, char* buffer, std::size_t size) const
    {
        if (size == 0)
            return false;
        if (answer == Answer::Empty)
            buffer[0] = 0;
        else if (answer == Answer::Unterminated || answer == Answer::Huge)
            std::memset(buffer, answer == Answer::Huge ? m_Detail : 'x', size);
        else
            return false;
        return true;
    }

private:
    struct Line {
        Answer Said = Answer::True;
        u8 Detail = 0;
        u8 Left = 0;
    };

    std::array<Line, static_cast<std::size_t>(HostCall::Count)> m_Told;
    u8 m_Detail = 0;
};
