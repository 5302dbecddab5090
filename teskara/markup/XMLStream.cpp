#include "teskara/markup/XMLStream.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/Limits.h"
#include "teskara/markup/XMLDocument.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace {

constexpr std::u16string_view SectionBegin = u"<![CDATA[";
constexpr std::u16string_view SectionEnd = u"]]>";

bool IsAscii(const char16_t* units, std::size_t count)
{
    char16_t all = 0;
    for (std::size_t index = 0; index < count; ++index)
        all = static_cast<char16_t>(all | units[index]);
    return all < 128;
}

} // namespace

XMLStream::XMLStream(XMLDocument* document) : Document(document)
{
    if (!Grow(FirstUnits))
        Fail();
}

XMLStream::~XMLStream() = default;

bool XMLStream::Fail()
{
    m_Failed = true;
    Document->SetErrorText("Memory allocation failed");
    return false;
}

bool XMLStream::Grow(std::size_t units)
{
    std::unique_ptr<char16_t[]> memory(new (std::nothrow) char16_t[units + ReadBehind]);
    if (!memory)
        return false;

    const std::size_t held = UnreadCount();
    std::memcpy(memory.get(), Unread, held * sizeof(char16_t));
    m_Memory = std::move(memory);
    Buffer = m_Memory.get();
    BufferEnd = Buffer + units;
    SetData(held);
    return true;
}

void XMLStream::SetData(std::size_t units)
{
    Unread = Buffer;
    DataEnd = Buffer + units;
    std::memset(DataEnd, 0, ReadBehind * sizeof(char16_t));
}

// False at the end of the input, or if the stream failed.
bool XMLStream::ReadMore()
{
    if (m_Failed)
        return false;

    const std::size_t held = UnreadCount();
    m_UnitsBefore = Position();
    std::memmove(Buffer, Unread, held * sizeof(char16_t));
    SetData(held);

    const std::size_t wanted = held + held;
    if (wanted > Limits::TokenUnits)
        return Fail();
    if (wanted > static_cast<std::size_t>(BufferEnd - Buffer) && !Grow(wanted))
        return Fail();

    const std::size_t count = Read(DataEnd, static_cast<std::size_t>(BufferEnd - DataEnd));
    m_HoldsOnlyAscii = (held == 0 || m_HoldsOnlyAscii) && IsAscii(DataEnd, count);
    SetData(held + count);
    return count > 0;
}

XMLSpan XMLStream::NextAcrossReads()
{
    if (Unread != DataEnd && *Unread == 0)
        return {};

    while (true) {
        const std::size_t scanned = UnreadCount();
        if (!ReadMore())
            return scanned == 0 || m_Failed ? XMLSpan{} : Take(XMLTextToken, DataEnd);
        if (scanned == 0)
            return Next();

        const char16_t* const end = XMLUnit::FindStop(Unread + scanned, XMLUnit::TypeMask, m_HoldsOnlyAscii);
        if (end != DataEnd)
            return Take(XMLTextToken, end);
    }
}

XMLSpan XMLStream::NextBracket()
{
    while (UnreadCount() < BracketLookAhead && ReadMore()) { }
    if (m_Failed)
        return {};
    if (std::u16string_view(Unread, UnreadCount()).starts_with(SectionBegin))
        return NextSection();
    return Take(XMLOpenBracketToken, Unread + 1);
}

// The marker at the beginning stays part of the text. The one at the end is seen only where another unit follows it.
// A zero does not end the input here, but the text.
XMLSpan XMLStream::NextSection()
{
    for (std::size_t from = SectionBegin.size();;) {
        const std::u16string_view section(Unread, UnreadCount() - 1);
        const std::size_t end = section.find(SectionEnd, from);
        if (end != section.npos) {
            XMLSpan span = Take(XMLTextToken, Unread + end);
            Unread += SectionEnd.size();
            span.Units = span.Units.substr(0, span.Units.find(u'\0'));
            return span;
        }
        from = std::max(from, section.size() - std::min(section.size(), SectionEnd.size() - 1));
        if (ReadMore())
            continue;
        if (!m_Failed)
            Document->SetErrorText("No end to CDATA tag");
        m_Failed = true;
        return {};
    }
}

// Where the token begins that more input is needed for.
const char16_t* XMLStream::TokenBegin(const char16_t* begin, const char16_t* end)
{
    while (end != begin && XMLUnit::TypeOf(end[-1]) == XMLTextToken)
        --end;
    return end;
}
