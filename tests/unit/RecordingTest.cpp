#include "host/record/ItemTable.h"
#include "host/record/ItemText.h"
#include "host/record/RecordingFormat.h"
#include "host/record/RecordingReader.h"
#include "host/record/RecordingWriter.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;

using Items = std::vector<std::string>;

class Recording : public testing::Test
{
protected:
    ~Recording() override { fs::remove(m_File); }

    void Write(const Items& items) const
    {
        host::RecordingWriter writer;
        ASSERT_TRUE(writer.Open(m_File));
        for (const std::string& item : items)
            writer.Put(item);
        writer.Flush();
        EXPECT_TRUE(writer.IsGood());
    }

    Items Read()
    {
        host::RecordingReader reader;
        reader.Open(m_File);
        Items items;
        for (std::string_view item; reader.Next(item);)
            items.emplace_back(item);
        m_Fault = reader.Fault();
        return items;
    }

    std::string Bytes() const
    {
        std::ifstream file(m_File, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    void SetBytes(const std::string& bytes) const { std::ofstream(m_File, std::ios::binary) << bytes; }

    fs::path m_File = "/tmp/teskara-recording-" + std::to_string(getpid());
    std::string m_Fault;
};

Items SomeItems()
{
    Items items;
    for (int frame = 0; frame < 20; ++frame) {
        items.push_back("begin");
        for (int call = 0; call < 5; ++call)
            items.push_back("call " + std::to_string(call));
        items.push_back("clock " + std::to_string(frame / 3));
        items.push_back("begin");
    }
    items.emplace_back();
    items.push_back(std::string(host::ItemTable::LongestKept + 1, 'x'));
    items.push_back(items.back());
    items.push_back(std::string("\0\xff", 2));
    return items;
}

bool IsStartOf(const Items& start, const Items& whole)
{
    return start.size() <= whole.size() && std::equal(start.begin(), start.end(), whole.begin());
}

TEST_F(Recording, GivesBackTheItemsInTheirOrder)
{
    Write(SomeItems());
    EXPECT_EQ(SomeItems(), Read());
    EXPECT_EQ("", m_Fault);
}

TEST_F(Recording, IsSmallWhenFramesAreAlike)
{
    Items items;
    for (int frame = 0; frame < 1000; ++frame)
        for (int call = 0; call < 100; ++call)
            items.push_back("a call with arguments, number " + std::to_string(call));
    Write(items);
    EXPECT_LT(fs::file_size(m_File), 6000u);
    EXPECT_EQ(items, Read());
}

TEST_F(Recording, ShowsEveryFlippedByte)
{
    Write(SomeItems());
    const std::string whole = Bytes();
    const Items items = SomeItems();
    std::fstream file(m_File, std::ios::in | std::ios::out | std::ios::binary);
    const auto put = [&file](std::size_t at, int byte) {
        file.seekp(static_cast<std::streamoff>(at)).put(static_cast<char>(byte)).flush();
    };
    for (std::size_t at = 0; at < whole.size(); ++at) {
        put(at, whole[at] ^ (1 << at % 8));
        EXPECT_TRUE(IsStartOf(Read(), items)) << at;
        EXPECT_NE("", m_Fault) << at;
        put(at, whole[at]);
    }
    EXPECT_EQ(items, Read());
}

TEST_F(Recording, GivesOfACutFileWhatIsWhole)
{
    Write(SomeItems());
    const Items items = SomeItems();
    for (std::size_t size = fs::file_size(m_File); size > 0; --size) {
        fs::resize_file(m_File, size - 1);
        EXPECT_TRUE(IsStartOf(Read(), items)) << size;
    }
}

TEST_F(Recording, OfAnotherVersionIsNotRead)
{
    Write(SomeItems());
    std::string bytes = Bytes();
    bytes[host::RecordingFormat::Magic.size()] = 99;
    SetBytes(bytes);
    EXPECT_EQ(Items(), Read());
    EXPECT_EQ("is a recording of version 99; this program reads version 1", m_Fault);
}

TEST_F(Recording, IsToldFromOtherFiles)
{
    SetBytes("<Tesk></Tesk> and more bytes than a header has");
    EXPECT_EQ(Items(), Read());
    EXPECT_EQ("is no recording", m_Fault);
    SetBytes("");
    EXPECT_EQ(Items(), Read());
    EXPECT_EQ("is no recording", m_Fault);
    fs::remove(m_File);
    EXPECT_EQ(Items(), Read());
    EXPECT_EQ("does not exist", m_Fault);
}

TEST(ItemText, EndsForAnyBytes)
{
    u32 seed = 1;
    for (int round = 0; round < 20000; ++round) {
        std::string bytes;
        for (u32 size = 0; size < 24; ++size) {
            seed = seed * 1664525 + 1013904223;
            bytes += "0nufdtpriloyx=\x01\x02\xff"[(seed >> 16) % 17];
        }
        EXPECT_NE("", host::DescribeItem(bytes));
    }
    EXPECT_NE("", host::DescribeItem(""));
}

} // namespace
