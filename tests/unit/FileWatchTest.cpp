#include "host/files/FileWatch.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Paths = std::vector<std::string>;

class FileWatchTest : public testing::Test
{
protected:
    FileWatchTest()
    {
        char pattern[] = "/tmp/teskara-watch-XXXXXX";
        m_Folder = mkdtemp(pattern);
    }

    ~FileWatchTest() override { fs::remove_all(m_Folder); }

    std::string Path(const char* name) const { return (m_Folder / name).string(); }

    // The length of what is written tells one state of a file from another, however fast they follow each other.
    std::string Write(const char* name, const std::string& text) const
    {
        std::ofstream(m_Folder / name, std::ios::binary) << text;
        return Path(name);
    }

    host::FileWatch Watch;

private:
    fs::path m_Folder;
};

TEST_F(FileWatchTest, TellsOfAChangeOnceItHasSettled)
{
    const std::string file = Write("a", "1");
    Watch.Add(file);
    EXPECT_EQ(Paths(), Watch.TakeChanged());
    Write("a", "12");
    EXPECT_EQ(Paths(), Watch.TakeChanged());
    Write("a", "123");
    EXPECT_EQ(Paths(), Watch.TakeChanged());
    EXPECT_EQ(Paths{file}, Watch.TakeChanged());
    EXPECT_EQ(Paths(), Watch.TakeChanged());
}

TEST_F(FileWatchTest, WaitsForAFileThatIsGoneOrNotThereYet)
{
    const std::string file = Write("a", "1");
    Watch.Add(file);
    Watch.Add(Path("b"));
    fs::remove(file);
    EXPECT_EQ(Paths(), Watch.TakeChanged());
    EXPECT_EQ(Paths(), Watch.TakeChanged());
    Write("a", "12");
    Write("b", "1");
    EXPECT_EQ(Paths(), Watch.TakeChanged());
    EXPECT_EQ((Paths{file, Path("b")}), Watch.TakeChanged());
}

TEST_F(FileWatchTest, AFileThatIsAddedAgainStaysAsItWasKnown)
{
    const std::string file = Write("a", "1");
    Watch.Add(file);
    Write("a", "12");
    Watch.Add(file);
    EXPECT_EQ(Paths(), Watch.TakeChanged());
    EXPECT_EQ(Paths{file}, Watch.TakeChanged());
}

} // namespace
