#pragma once

#include "teskara/core/Types.h"
#include "teskara/markup/XMLToken.h"
#include "teskara/markup/XMLUnit.h"

#include <cstddef>
#include <memory>

class XMLDocument;

// Cuts an input into tokens. Sources deliver the input as UTF-16 units; what is delivered and not yet read stands
// between Unread and DataEnd. Units are moved only to make room for more, and always so that the token in hand is the
// first thing in the buffer: how much is asked for depends on the input alone, and sources that cut a sequence of
// bytes in two do so at the same places each time.
class XMLStream
{
public:
    // document: receives messages; it must outlive the stream.
    explicit XMLStream(XMLDocument* document);
    XMLStream(const XMLStream&) = delete;
    XMLStream& operator=(const XMLStream&) = delete;
    virtual ~XMLStream();

    // Writes up to capacity units of the input and returns their number; 0 at its end only.
    virtual std::size_t Read(char16_t* buffer, std::size_t capacity) = 0;

    // Takes the next token. None at the end of the input, and also once the stream has failed.
    XMLSpan Next();

    // Takes tokens up to the next unit that has one of the stops of XMLUnit, or up to the token that more input is
    // needed for, and returns them as one.
    std::u16string_view TakeUntil(u8 stops);

    // Short cuts for what lies in the buffer already; where they do not apply they take nothing, and Next does it.

    // Takes a token of one character, other than an opening bracket.
    bool TakeCharacter(char16_t character);

    // Takes an opening bracket that begins no declaration.
    bool TakeTagBegin();

    // Takes a text token; empty if there is none.
    std::u16string_view TakeText();

    void SkipSpace();

    // Whether no unit in the buffer is above 127.
    bool HoldsOnlyAscii() const { return m_HoldsOnlyAscii; }

    // Whether a token could not be read, as opposed to the input being at its end.
    bool HasFailed() const { return m_Failed; }

    // How many units of the input have been taken.
    u64 Position() const { return m_UnitsBefore + static_cast<u64>(Unread - Buffer); }

    char16_t* Buffer = m_Nothing;
    char16_t* DataEnd = m_Nothing; // a zero unit and more that may be read stand behind it
    char16_t* BufferEnd = m_Nothing;
    XMLDocument* Document;
    const char16_t* Unread = m_Nothing;

    // The size of the whole input in bytes, as far as it is parsed.
    u64 InputBytes = 0;

private:
    static constexpr std::size_t FirstUnits = 4096;
    static constexpr std::size_t ReadBehind = 16;

    // So many units are looked at before an opening bracket is taken for what it is.
    static constexpr std::size_t BracketLookAhead = 13;

    XMLSpan NextAcrossReads();
    XMLSpan NextBracket();
    XMLSpan NextSection();
    XMLSpan Take(u32 type, const char16_t* end);
    static const char16_t* TokenBegin(const char16_t* begin, const char16_t* end);
    bool ReadMore();
    bool Grow(std::size_t units);
    void SetData(std::size_t units);
    bool Fail();

    std::size_t UnreadCount() const { return static_cast<std::size_t>(DataEnd - Unread); }

    std::unique_ptr<char16_t[]> m_Memory; // of the buffer
    char16_t m_Nothing[ReadBehind] = {}; // stands for the buffer where there is no memory for it
    u64 m_UnitsBefore = 0; // that left the buffer
    bool m_HoldsOnlyAscii = true;
    bool m_Failed = false;
};

inline XMLSpan XMLStream::Take(u32 type, const char16_t* end)
{
    const char16_t* const begin = Unread;
    Unread = end;
    return {type, {begin, end}};
}

inline XMLSpan XMLStream::Next()
{
    const char16_t* end = XMLUnit::FindStop(Unread, XMLUnit::TypeMask, m_HoldsOnlyAscii);
    if (end != Unread)
        return end == DataEnd ? NextAcrossReads() : Take(XMLTextToken, end);

    const u32 type = XMLUnit::TypeOf(*end);
    if (type == XMLZeroToken)
        return NextAcrossReads();
    if (type == XMLOpenBracketToken)
        return NextBracket();
    return Take(type, end + 1);
}

inline bool XMLStream::TakeCharacter(char16_t character)
{
    if (*Unread != character)
        return false;
    ++Unread;
    return true;
}

inline bool XMLStream::TakeTagBegin()
{
    if (Unread[0] != u'<' || Unread[1] == u'!' || UnreadCount() < BracketLookAhead)
        return false;
    ++Unread;
    return true;
}

inline std::u16string_view XMLStream::TakeText()
{
    const char16_t* const begin = Unread;
    const char16_t* const end = XMLUnit::FindStop(begin, XMLUnit::TypeMask, m_HoldsOnlyAscii);
    if (end == DataEnd)
        return {};
    Unread = end;
    return {begin, end};
}

inline void XMLStream::SkipSpace()
{
    while (XMLUnit::IsSpace(*Unread))
        ++Unread;
}

inline std::u16string_view XMLStream::TakeUntil(u8 stops)
{
    const char16_t* const begin = Unread;
    const char16_t* end = XMLUnit::FindStop(begin, stops, m_HoldsOnlyAscii);
    if (end == DataEnd)
        end = TokenBegin(begin, end);
    Unread = end;
    return {begin, end};
}
