#include "host/record/RecordingWriter.h"

#include "host/record/RecordingFormat.h"

namespace host {

namespace {

using namespace RecordingFormat;

constexpr std::size_t BlockSize = 1u << 16; // from which a block is written

} // namespace

bool RecordingWriter::Open(const std::filesystem::path& file)
{
    m_File.reset(std::fopen(file.c_str(), "wb"));
    if (!m_File)
        return false;

    Write(Magic);
    Write(std::string_view(reinterpret_cast<const char*>(&Version), 1));
    return IsGood();
}

void RecordingWriter::Put(std::string_view item)
{
    const auto predicted = m_Table.Prediction();
    if (predicted && *m_Table.At(*predicted) == item) {
        m_Table.Repeat(*predicted);
        if (++m_Run == LongestRun)
            EndRun();
        return;
    }
    EndRun();
    if (const auto known = m_Table.Find(item)) {
        m_Block.PutUnsigned(FirstKnown + *known);
        m_Table.Repeat(*known);
    } else {
        m_Block.PutUnsigned(NewItem);
        m_Block.PutText(item);
        m_Table.Add(item);
    }
    if (m_Block.Size() >= BlockSize)
        Flush();
}

void RecordingWriter::Flush()
{
    EndRun();
    if (m_Block.Size() == 0)
        return;

    ItemBytes header;
    for (const u32 number : {static_cast<u32>(m_Block.Size()), CheckSum(m_Block.View())})
        for (unsigned shift = 0; shift < 32; shift += 8)
            header.PutByte(static_cast<u8>(number >> shift));
    Write(header.View());
    Write(m_Block.View());
    m_Block.Clear();
    m_Good = m_File && std::fflush(m_File.get()) == 0 && m_Good;
}

void RecordingWriter::EndRun()
{
    if (m_Run == 0)
        return;

    m_Block.PutUnsigned(Predicted);
    m_Block.PutUnsigned(m_Run);
    m_Run = 0;
}

void RecordingWriter::Write(std::string_view bytes)
{
    m_Good = m_File && std::fwrite(bytes.data(), 1, bytes.size(), m_File.get()) == bytes.size() && m_Good;
}

} // namespace host
