#include "host/record/RecordingReader.h"

#include "host/record/RecordingFormat.h"

namespace host {

namespace {

using namespace RecordingFormat;

constexpr const char* Damaged = "is damaged";
constexpr const char* BreaksOff = "breaks off";

u32 NumberAt(const u8* bytes)
{
    return static_cast<u32>(bytes[0]) | static_cast<u32>(bytes[1]) << 8 | static_cast<u32>(bytes[2]) << 16
        | static_cast<u32>(bytes[3]) << 24;
}

} // namespace

bool RecordingReader::Open(const std::filesystem::path& file)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error))
        return Fail(std::filesystem::exists(file, error) ? "is no file" : "does not exist");
    m_Left = std::filesystem::file_size(file, error);
    m_File.reset(std::fopen(file.c_str(), "rb"));
    if (error || !m_File)
        return Fail("could not be opened");

    char header[Magic.size() + 1] = {};
    const std::size_t read = std::fread(header, 1, sizeof header, m_File.get());
    if (read < sizeof header || std::string_view(header, Magic.size()) != Magic)
        return Fail("is no recording");
    const auto version = static_cast<u8>(header[Magic.size()]);
    if (version != Version)
        return Fail(("is a recording of version " + std::to_string(version) + "; this program reads version "
            + std::to_string(Version))
                        .c_str());
    m_Left -= sizeof header;
    return true;
}

bool RecordingReader::Next(std::string_view& item)
{
    if (!m_File || !m_Fault.empty())
        return false;
    if (m_Run > 0)
        return TakePrediction(item);
    if (m_Tokens.IsAtEnd() && !ReadBlock())
        return false;

    const u64 token = m_Tokens.TakeUnsigned();
    if (m_Tokens.IsBroken())
        return Fail(Damaged);
    if (token == NewItem)
        return TakeNew(item);
    if (token == Predicted) {
        m_Run = m_Tokens.TakeUnsigned();
        return m_Run > 0 && m_Run <= LongestRun ? TakePrediction(item) : Fail(Damaged);
    }
    const std::string* known = m_Table.At(token - FirstKnown);
    if (!known)
        return Fail(Damaged);
    item = *known;
    m_Table.Repeat(static_cast<u32>(token - FirstKnown));
    return true;
}

bool RecordingReader::Fail(const char* fault)
{
    m_Fault = fault;
    m_File.reset();
    return false;
}

bool RecordingReader::ReadBlock()
{
    if (m_Left == 0)
        return false;

    u8 header[BlockHeaderSize] = {};
    if (m_Left < sizeof header || std::fread(header, 1, sizeof header, m_File.get()) != sizeof header)
        return Fail(BreaksOff);
    m_Left -= sizeof header;
    const u32 size = NumberAt(header);
    if (size == 0 || size > LargestBlock)
        return Fail(Damaged);
    if (size > m_Left)
        return Fail(BreaksOff);
    m_Left -= size;
    m_Block.resize(size);
    if (std::fread(m_Block.data(), 1, size, m_File.get()) != size)
        return Fail(BreaksOff);
    if (CheckSum(m_Block) != NumberAt(header + 4))
        return Fail(Damaged);
    m_Tokens = ItemView(m_Block);
    return true;
}

bool RecordingReader::TakePrediction(std::string_view& item)
{
    const auto predicted = m_Table.Prediction();
    if (!predicted)
        return Fail(Damaged);

    --m_Run;
    item = *m_Table.At(*predicted);
    m_Table.Repeat(*predicted);
    return true;
}

bool RecordingReader::TakeNew(std::string_view& item)
{
    item = m_Tokens.TakeText();
    if (m_Tokens.IsBroken())
        return Fail(Damaged);

    m_Table.Add(item);
    return true;
}

} // namespace host
