#include "host/script/DataSequences.h"

#include <algorithm>
#include <cstring>

namespace host {

namespace {

constexpr std::string_view Opening = "${";
constexpr char Closing = '}';
constexpr std::size_t LongestValue = 256;

// Cuts where a character begins, so that no broken one is shown.
void WriteText(std::string_view text, char* output, u32 size)
{
    if (size == 0)
        return;

    std::size_t length = std::min<std::size_t>(text.size(), size - 1);
    while (length > 0 && length < text.size() && (static_cast<u8>(text[length]) & 0xC0) == 0x80)
        --length;
    std::memcpy(output, text.data(), length);
    output[length] = '\0';
}

} // namespace

DataSequences::DataSequences(const Variables& variables) : m_Variables(variables) { }

void DataSequences::Expand(std::string_view text, char* output, u32 size)
{
    m_Expanded.clear();
    while (!text.empty()) {
        const std::size_t opening = text.find(Opening);
        const std::size_t closing = opening == text.npos ? text.npos : text.find(Closing, opening);
        if (closing == text.npos) {
            m_Expanded += text;
            break;
        }
        char value[LongestValue];
        const std::size_t start = opening + Opening.size();
        m_Expanded += text.substr(0, opening);
        m_Expanded.append(value, m_Variables.Write(text.substr(start, closing - start), value, sizeof value));
        text.remove_prefix(closing + 1);
    }
    WriteText(m_Expanded, output, size);
}

u32 DataSequences::Keep(const char* text)
{
    const u32 id = ++m_LastID;
    if (id != 0 && text)
        m_Texts[id] = text;
    return text ? id : 0;
}

void DataSequences::Free(u32 sequence)
{
    m_Texts.erase(sequence);
}

bool DataSequences::WriteOriginal(u32 sequence, char* buffer, u32 size) const
{
    const auto found = m_Texts.find(sequence);
    if (found == m_Texts.end())
        return false;

    WriteText(found->second, buffer, size);
    return true;
}

bool DataSequences::WriteProcessed(u32 sequence, char* buffer, u32 size)
{
    const auto found = m_Texts.find(sequence);
    if (found == m_Texts.end())
        return false;

    Expand(found->second, buffer, size);
    return true;
}

} // namespace host
