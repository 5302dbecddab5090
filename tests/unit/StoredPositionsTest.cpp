#include "host/files/StoredPositions.h"

#include "host/Console.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using host::StoredPositions;
using Position = StoredPositions::Position;

// A folder of its own for each test, and what a person was told.
class StoredPositionsTest : public testing::Test
{
protected:
    StoredPositionsTest()
    {
        char pattern[] = "/tmp/teskara-positions-XXXXXX";
        m_Folder = mkdtemp(pattern);
        Console.SendTo([this](const std::string& line) { Lines.push_back(line); });
    }

    ~StoredPositionsTest() override
    {
        std::error_code error;
        fs::permissions(m_Folder, fs::perms::owner_all, error);
        fs::remove_all(m_Folder, error);
    }

    // In a folder that is not there yet.
    fs::path File() const { return m_Folder / "data" / "positions.txt"; }
    fs::path Aside() const { return File().string() + ".damaged"; }

    StoredPositions Open() { return StoredPositions(File(), Console); }

    void Write(const std::string& text) const
    {
        fs::create_directories(File().parent_path());
        std::ofstream(File(), std::ios::binary) << text;
    }

    static std::string Contents(const fs::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    // The names of all files beside the one with the positions, and its own.
    std::size_t FilesInFolder() const
    {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(File().parent_path()), fs::directory_iterator()));
    }

    static constexpr char Whole[] = "positions of teskara, 1\n-5 10 300 4294967295 Main\n0 0 1 2 ok button@Main\nend\n";

    host::Console Console;
    std::vector<std::string> Lines;

private:
    fs::path m_Folder;
};

} // namespace

TEST_F(StoredPositionsTest, WhatIsStoredIsThereInTheNextRun)
{
    {
        StoredPositions positions = Open();
        EXPECT_EQ(nullptr, positions.Find("Main"));
        positions.Store("Main", {-5, 10, 300, 4294967295u});
        positions.Store("ok button@Main", {0, 0, 1, 2});
        EXPECT_TRUE(positions.Save());
        EXPECT_EQ(Whole, Contents(File()));
    }
    const StoredPositions positions = Open();
    ASSERT_NE(nullptr, positions.Find("Main"));
    EXPECT_EQ((Position{-5, 10, 300, 4294967295u}), *positions.Find("Main"));
    EXPECT_EQ((Position{0, 0, 1, 2}), *positions.Find("ok button@Main"));
    EXPECT_EQ(nullptr, positions.Find("main"));
    EXPECT_TRUE(Lines.empty());
}

TEST_F(StoredPositionsTest, TheEndSavesToo)
{
    Open().Store("Main", {1, 2, 3, 4});
    EXPECT_EQ("positions of teskara, 1\n1 2 3 4 Main\nend\n", Contents(File()));
    EXPECT_EQ(1u, FilesInFolder());
}

TEST_F(StoredPositionsTest, WithoutAChangeNothingIsWritten)
{
    Write(Whole);
    StoredPositions positions = Open();
    fs::remove(File());
    positions.Store("Main", {-5, 10, 300, 4294967295u});
    EXPECT_TRUE(positions.Save());
    EXPECT_FALSE(fs::exists(File()));
    positions.Store("Main", {-5, 10, 300, 5});
    EXPECT_TRUE(positions.Save());
    EXPECT_TRUE(fs::exists(File()));
}

TEST_F(StoredPositionsTest, WithoutAFileTheyLastAsLongAsTheRun)
{
    StoredPositions positions(fs::path(), Console);
    positions.Store("Main", {1, 2, 3, 4});
    EXPECT_TRUE(positions.Save());
    EXPECT_NE(nullptr, positions.Find("Main"));
    EXPECT_TRUE(Lines.empty());
}

TEST_F(StoredPositionsTest, ANameThatDoesNotFitOnALineIsRefused)
{
    StoredPositions positions = Open();
    for (const std::string& name : {std::string("a\nb"), std::string(), std::string("a\0b", 3), std::string("\r")}) {
        positions.Store(name, {1, 2, 3, 4});
        EXPECT_EQ(nullptr, positions.Find(name));
    }
    EXPECT_EQ(4u, Lines.size());
    EXPECT_EQ("The position of 'a?b' cannot be stored under such a name", Lines[0]);
}

TEST_F(StoredPositionsTest, ANameMayBeginWithANumberOrABlank)
{
    Open().Store("12 monkeys", {1, 2, 3, 4});
    Open().Store(" blank ", {5, 6, 7, 8});
    const StoredPositions positions = Open();
    EXPECT_NE(nullptr, positions.Find("12 monkeys"));
    EXPECT_NE(nullptr, positions.Find(" blank "));
}

// --- Damage

TEST_F(StoredPositionsTest, AFileThatWasCutAnywhereIsSetAside)
{
    const std::string whole = Whole;
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const std::string cut = whole.substr(0, size);
        Write(cut);
        Lines.clear();
        const StoredPositions positions = Open();
        EXPECT_EQ(nullptr, positions.Find("Main")) << size;
        EXPECT_FALSE(fs::exists(File())) << size;
        EXPECT_EQ(cut, Contents(Aside())) << size;
        ASSERT_EQ(1u, Lines.size()) << size;
        EXPECT_EQ(File().string() + " is damaged and was set aside as " + Aside().string(), Lines[0]);
    }
}

TEST_F(StoredPositionsTest, LinesThatAreNoPositionDamageTheFile)
{
    for (const char* line : {"1 2 3 4", "1 2 3 4 ", "1 2 3 Main", "x 2 3 4 Main", "1 2 -3 4 Main",
             "1 2 3 4294967296 Main", "2147483648 2 3 4 Main", "1.5 2 3 4 Main", " 1 2 3 4 Main", "1  2 3 4 Main",
             "1\t2 3 4 Main", "+1 2 3 4 Main", "0x1 2 3 4 Main", "1 2 3 4 Main\r", "", "1 2 3 4 \x01"}) {
        Write(std::string("positions of teskara, 1\n") + line + "\nend\n");
        Lines.clear();
        Open();
        EXPECT_EQ(1u, Lines.size()) << line;
    }
}

TEST_F(StoredPositionsTest, WhatFollowsTheEndDamagesTheFile)
{
    Write(std::string(Whole) + "1 2 3 4 More\n");
    Open();
    EXPECT_EQ(1u, Lines.size());
}

TEST_F(StoredPositionsTest, BinaryContentIsSetAside)
{
    std::string bytes;
    for (int count = 0; count < 4096; ++count)
        bytes += static_cast<char>(count * 37);
    for (const std::string& text : {bytes, std::string(3, '\0'), Whole + bytes, std::string(100'000, '\xff')}) {
        Write(text);
        Lines.clear();
        Open();
        EXPECT_EQ(1u, Lines.size());
        EXPECT_EQ(text, Contents(Aside()));
    }
}

TEST_F(StoredPositionsTest, AFileThatIsFarTooLargeIsNotRead)
{
    Write("");
    fs::resize_file(File(), std::uintmax_t{1} << 40);
    Open();
    EXPECT_EQ(1u, Lines.size());
    EXPECT_TRUE(fs::exists(Aside()));
}

TEST_F(StoredPositionsTest, AFolderInItsPlaceIsSetAside)
{
    fs::create_directories(File());
    Open().Store("Main", {1, 2, 3, 4});
    EXPECT_EQ(1u, Lines.size());
    EXPECT_TRUE(fs::is_directory(Aside()));
    EXPECT_TRUE(fs::is_regular_file(File()));
}

TEST_F(StoredPositionsTest, AfterDamagePositionsAreStoredAgain)
{
    Write("damaged");
    Open().Store("Main", {1, 2, 3, 4});
    EXPECT_NE(nullptr, Open().Find("Main"));
    EXPECT_EQ("damaged", Contents(Aside()));
}

TEST_F(StoredPositionsTest, WhatCannotBeSetAsideIsLeftAlone)
{
    Write("damaged");
    fs::create_directories(Aside() / "full");
    {
        StoredPositions positions = Open();
        positions.Store("Main", {1, 2, 3, 4});
        EXPECT_TRUE(positions.Save());
        EXPECT_NE(nullptr, positions.Find("Main"));
    }
    EXPECT_EQ("damaged", Contents(File()));
    EXPECT_EQ((std::vector<std::string>{File().string() + " is damaged; positions of windows are not kept"}), Lines);
}

// --- Writing

TEST_F(StoredPositionsTest, AFileThatCannotBeWrittenIsToldOnceAndLeftWhole)
{
    Write(Whole);
    StoredPositions positions = Open();
    fs::remove(File());
    fs::create_directories(File() / "in its place");
    positions.Store("Main", {1, 2, 3, 4});
    EXPECT_FALSE(positions.Save());
    EXPECT_TRUE(positions.Save());
    EXPECT_EQ((std::vector<std::string>{"Could not write " + File().string() + "; positions of windows are not kept"}),
        Lines);
    EXPECT_EQ(1u, FilesInFolder());
    fs::remove_all(File());
    positions.Store("Main", {1, 2, 3, 5});
    EXPECT_TRUE(positions.Save());
    EXPECT_EQ("positions of teskara, 1\n1 2 3 5 Main\n0 0 1 2 ok button@Main\nend\n", Contents(File()));
}

TEST_F(StoredPositionsTest, AFolderThatCannotBeMadeIsTold)
{
    std::ofstream(File().parent_path()) << "a file in its place";
    StoredPositions positions = Open();
    positions.Store("Main", {1, 2, 3, 4});
    EXPECT_FALSE(positions.Save());
    EXPECT_EQ(1u, Lines.size());
}

TEST_F(StoredPositionsTest, TheFileLiesInTheUsersDataFolder)
{
    const char* const names[] = {"XDG_DATA_HOME", "HOME"};
    std::vector<std::string> before;
    for (const char* name : names)
        before.emplace_back(std::getenv(name) ? std::getenv(name) : "");

    setenv("HOME", "/home/user", 1);
    setenv("XDG_DATA_HOME", "/data", 1);
    EXPECT_EQ("/data/teskara/positions.txt", StoredPositions::DefaultFile());
    setenv("XDG_DATA_HOME", "", 1);
    EXPECT_EQ("/home/user/.local/share/teskara/positions.txt", StoredPositions::DefaultFile());
    unsetenv("XDG_DATA_HOME");
    unsetenv("HOME");
    EXPECT_EQ("", StoredPositions::DefaultFile());

    for (std::size_t index = 0; index < std::size(names); ++index) {
        if (!before[index].empty())
            setenv(names[index], before[index].c_str(), 1);
    }
}
