#include "host/files/CommandHistory.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

using host::CommandHistory;

namespace {

using Lines = std::deque<std::string>;

class CommandHistoryTest : public testing::Test
{
protected:
    CommandHistoryTest()
    {
        char folder[] = "/tmp/teskara-history-XXXXXX";
        m_Folder = mkdtemp(folder);
    }
    ~CommandHistoryTest() override { std::filesystem::remove_all(m_Folder); }

    std::filesystem::path File() const { return m_Folder / "deeper" / "history.txt"; }

    void Write(const std::string& text) const
    {
        std::filesystem::create_directories(File().parent_path());
        std::ofstream(File(), std::ios::binary) << text;
    }

    std::string Read() const
    {
        std::ifstream file(File(), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    std::filesystem::path m_Folder;
};

} // namespace

TEST_F(CommandHistoryTest, LinesComeBackInTheNextRun)
{
    {
        CommandHistory history(File());
        EXPECT_TRUE(history.Lines().empty());
        EXPECT_TRUE(history.Add("one"));
        EXPECT_TRUE(history.Add("two"));
    }
    EXPECT_EQ("one\ntwo\n", Read());
    EXPECT_EQ((Lines{"one", "two"}), CommandHistory(File()).Lines());
}

TEST_F(CommandHistoryTest, ALineThatWasTypedJustBeforeIsKeptOnce)
{
    CommandHistory history(File());
    for (const char* line : {"one", "one", "two", "one"})
        history.Add(line);
    EXPECT_EQ((Lines{"one", "two", "one"}), history.Lines());
}

TEST_F(CommandHistoryTest, WhatNoLineCanHoldIsPassedOver)
{
    CommandHistory history(File());
    for (const std::string& line : {std::string(), std::string("a\nb"), std::string("a\0b", 3), std::string(5000, 'x')})
        EXPECT_TRUE(history.Add(line));
    EXPECT_TRUE(history.Lines().empty());
}

TEST_F(CommandHistoryTest, ADamagedFileGivesTheLinesThatAreWhole)
{
    Write("one\n\x01\x02\n\nt\xc3\xa4wo\n" + std::string(100000, 'x') + "\nend");
    EXPECT_EQ((Lines{"one", "t\xc3\xa4wo", "end"}), CommandHistory(File()).Lines());
}

TEST_F(CommandHistoryTest, TheOldestLinesGo)
{
    CommandHistory history(File());
    std::string text;
    for (int line = 0; line < 600; ++line)
        text += std::to_string(line) + '\n';
    Write(text);
    CommandHistory read(File());
    EXPECT_EQ(500u, read.Lines().size());
    EXPECT_EQ("100", read.Lines().front());
    read.Add("new");
    EXPECT_EQ(500u, read.Lines().size());
    EXPECT_EQ("new", read.Lines().back());
}

TEST_F(CommandHistoryTest, WithoutAPathNothingIsKeptForLater)
{
    CommandHistory history("");
    EXPECT_TRUE(history.Add("one"));
    EXPECT_EQ((Lines{"one"}), history.Lines());
}

TEST_F(CommandHistoryTest, AFolderInItsPlaceIsTold)
{
    std::filesystem::create_directories(File());
    CommandHistory history(File());
    EXPECT_FALSE(history.Add("one"));
}
