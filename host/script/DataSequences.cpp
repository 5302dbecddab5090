#include "host/script/DataSequences.h"

#include "host/script/SequenceParser.h"

#include <algorithm>
#include <cstring>

namespace host {

namespace {

constexpr std::string_view Opening = "${";
constexpr std::size_t MostRecentBytes = 256 * 1024; // of their texts; parsed they take far more
constexpr std::size_t LongestText = 64 * 1024; // a longer one is taken as it is

// Cuts where a character begins, so that no broken one is shown.
void WriteText(std::string_view text, char* output, u32 size)
{
    if (size == 0)
        return;

    std::size_t length = std::min<std::size_t>(text.size(), size - 1);
    while (length > 0 && length < text.size() && (static_cast<u8>(text[length]) & 0xC0) == 0x80)
        --length;
    std::memmove(output, text.data(), length);
    output[length] = '\0';
}

} // namespace

void DataSequences::Expand(std::string_view text, char* output, u32 size)
{
    if (text.find(Opening) == text.npos)
        WriteText(text, output, size);
    else
        Write(*Parse(text), output, size);
}

std::string DataSequences::Expand(std::string_view text)
{
    if (text.find(Opening) == text.npos)
        return std::string(text);

    std::string expanded;
    m_Evaluator.Append(*Parse(text), expanded);
    return expanded;
}

u32 DataSequences::Keep(std::string_view text, const std::string& where)
{
    if (m_LastID + 1 == 0)
        return 0;

    m_Kept[++m_LastID] = Read(text, where);
    return m_LastID;
}

bool DataSequences::WriteOriginal(u32 sequence, char* buffer, u32 size) const
{
    const Shared kept = Find(sequence);
    if (kept)
        WriteText(kept->Original, buffer, size);
    return kept != nullptr;
}

bool DataSequences::WriteProcessed(u32 sequence, char* buffer, u32 size)
{
    const Shared kept = Find(sequence);
    if (kept)
        Write(*kept, buffer, size);
    return kept != nullptr;
}

void DataSequences::ForgetRecent()
{
    m_Recent.clear();
    m_Older.clear();
    m_RecentBytes = 0;
}

DataSequences::Shared DataSequences::Parse(std::string_view text)
{
    if (const auto recent = m_Recent.find(text); recent != m_Recent.end())
        return recent->second;

    const auto older = m_Older.find(text);
    Shared sequence = older == m_Older.end() ? Read(text, {}) : older->second;
    if (m_Recent.size() >= MostRecent || m_RecentBytes + text.size() > MostRecentBytes) {
        m_Older = std::move(m_Recent);
        m_Recent.clear();
        m_RecentBytes = 0;
    }
    m_Recent.emplace(sequence->Original, sequence);
    m_RecentBytes += text.size();
    return sequence;
}

std::shared_ptr<const Sequence> DataSequences::Find(u32 sequence) const
{
    const auto found = m_Kept.find(sequence);
    return found == m_Kept.end() ? nullptr : found->second;
}

DataSequences::Shared DataSequences::Read(std::string_view text, const std::string& where)
{
    const auto sequence = std::make_shared<Sequence>();
    sequence->Original = text;
    if (text.size() <= LongestText)
        sequence->Parts = SequenceParser::Read(text).Parts;
    else
        sequence->Parts.emplace_back().Text = text;
    sequence->Where = where;
    m_Evaluator.Prepare(*sequence);
    return sequence;
}

// An evaluation inside this one finds no memory to reuse, and makes its own.
void DataSequences::Write(const Sequence& sequence, char* buffer, u32 size)
{
    std::string expanded = std::move(m_Expanded);
    expanded.clear();
    m_Evaluator.Append(sequence, expanded);
    WriteText(expanded, buffer, size);
    m_Expanded = std::move(expanded);
}

} // namespace host
