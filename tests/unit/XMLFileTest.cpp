#include "tests/unit/XMLParsing.h"

#include "teskara/core/Utf8.h"
#include "teskara/markup/XMLAttribute.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

// A folder of its own for each test.
class XMLFileTest : public testing::Test
{
protected:
    XMLFileTest()
    {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        m_Folder = std::filesystem::temp_directory_path() / (std::string("teskara_XMLFile_") + test->name());
        std::filesystem::remove_all(m_Folder);
        std::filesystem::create_directories(m_Folder);
    }

    ~XMLFileTest() override { std::filesystem::remove_all(m_Folder); }

    std::string PathOf(const std::string& name) const { return (m_Folder / name).generic_string(); }

    std::string Write(const std::string& name, const std::string& bytes) const
    {
        const std::filesystem::path path = m_Folder / name;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
        return PathOf(name);
    }

    XMLDocument Document;

private:
    std::filesystem::path m_Folder;
};

std::string CouldNotOpen(const std::string& path)
{
    return ("Could not open file '" + path + "'").substr(0, 2047);
}

} // namespace

TEST_F(XMLFileTest, AFileParsesByEitherPath)
{
    const std::string path = Write("a\xC3\xA4.xml", "<a b='c'/>");
    EXPECT_TRUE(Document.ParseFile(path.c_str()));
    EXPECT_EQ(DumpTree(Document.Root), "0 'DOCUMENT ROOT'\n.1 'a' b=c\n");
    EXPECT_EQ(Document.Stream, nullptr);
    Document.Reset();
    EXPECT_TRUE(Document.ParseFile(ToUtf16(path).c_str()));
    EXPECT_EQ(DumpTree(Document.Root), "0 'DOCUMENT ROOT'\n.1 'a' b=c\n");
}

TEST_F(XMLFileTest, AFileThatIsNotThereIsNamed)
{
    const std::string path = PathOf("%s%n.xml");
    EXPECT_FALSE(Document.ParseFile(path.c_str()));
    EXPECT_EQ(Document.ErrorText, CouldNotOpen(path));
    EXPECT_EQ(Document.Root, nullptr);
    EXPECT_EQ(Document.Entities.count("filename"), 0u);
    EXPECT_FALSE(Document.ParseFile(ToUtf16(PathOf("\xC3\xA4")).c_str()));
    EXPECT_EQ(Document.ErrorText, CouldNotOpen(PathOf("\xC3\xA4")));
}

TEST_F(XMLFileTest, FoldersDevicesAndNothingAreNoFiles)
{
    for (const std::string& path : {PathOf(""), std::string("/dev/zero"), std::string("/dev/null"), std::string()}) {
        EXPECT_FALSE(Document.ParseFile(path.c_str())) << path;
        EXPECT_EQ(Document.ErrorText, CouldNotOpen(path));
    }
    EXPECT_FALSE(Document.ParseFile(static_cast<const char*>(nullptr)));
    EXPECT_EQ(Document.ErrorText, CouldNotOpen(""));
    EXPECT_FALSE(Document.ParseFile(static_cast<const char16_t*>(nullptr)));
    EXPECT_EQ(Document.ErrorText, CouldNotOpen(""));
}

TEST_F(XMLFileTest, APathMayHave512Units)
{
    const std::string base = PathOf("");
    for (const std::size_t length : {511u, 512u, 513u, 4096u}) {
        std::string path = base;
        while (path.size() < length)
            path += path.size() + 2 <= length ? "./" : "a";
        if (path.back() != 'a')
            path.back() = 'a';
        Write("a", "<a>&filename;</a>");
        // A path that ends in "/a" or in ".a" is needed: only the former names the file.
        Write(".a", "<a>&filename;</a>");
        Document.Reset();
        EXPECT_EQ(Document.ParseFile(path.c_str()), length <= 512) << length;
        if (length <= 512)
            EXPECT_EQ(Document.Entities.at("filename"), path);
        else
            EXPECT_EQ(Document.ErrorText, CouldNotOpen(path));
    }
}

TEST_F(XMLFileTest, MarkupKnowsItsFileAndFolder)
{
    const std::string path = Write("a.xml", "<a b='&filepath;/c.png'>&filename;</a>");
    EXPECT_TRUE(Document.ParseFile(path.c_str()));
    const std::string folder = path.substr(0, path.size() - 6);
    EXPECT_EQ(DumpTree(Document.Root), "0 'DOCUMENT ROOT'\n.1 'a' b=" + folder + "/c.png\n..3 '" + path + "'\n");
}

TEST_F(XMLFileTest, BackslashesInAPathBecomeSlashes)
{
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(PathOf(""));
    Write("b\\c.xml", "<a/>");
    Write("d.xml", "<a/>");
    EXPECT_TRUE(Document.ParseFile("b\\c.xml"));
    EXPECT_EQ(Document.Entities.at("filename"), "b/c.xml");
    EXPECT_EQ(Document.Entities.at("filepath"), "b");
    Document.Reset();
    EXPECT_TRUE(Document.ParseFile("d.xml"));
    EXPECT_EQ(Document.Entities.at("filename"), "d.xml");
    EXPECT_EQ(Document.Entities.count("filepath"), 0u);
    std::filesystem::current_path(before);
}

TEST_F(XMLFileTest, AByteOrderMarkIsToldByItsFirstByte)
{
    EXPECT_TRUE(Document.ParseFile(Write("a", "\xEF\xBB\xBF<a/>").c_str()));
    Document.Reset();
    EXPECT_TRUE(Document.ParseFile(Write("b", "\xEFxx<a/>").c_str()));
    Document.Reset();
    EXPECT_FALSE(Document.ParseFile(Write("c", "\xEF\xBB").c_str()));
    EXPECT_STREQ(Document.ErrorText, "Bad text outside elements: \xEF\xBF\xBD");
    Document.Reset();
    EXPECT_FALSE(Document.ParseFile(Write("d", "\xEF\xBB\xBF").c_str()));
    EXPECT_STREQ(Document.ErrorText, "Unknown Error");
    Document.Reset();
    EXPECT_TRUE(Document.ParseFile(Write("e", "<a>").c_str()) == false && Document.Root != nullptr);
}

TEST_F(XMLFileTest, AnEmptyFileFailsWithoutAMessage)
{
    EXPECT_FALSE(Document.ParseFile(Write("a", "").c_str()));
    EXPECT_STREQ(Document.ErrorText, "Unknown Error");
    EXPECT_EQ(Document.Root, nullptr);
}

TEST_F(XMLFileTest, AFileParsesLikeTheSameTextInMemory)
{
    for (const std::size_t ahead : {0u, 10u, 4080u, 4090u, 4095u, 4096u, 8190u, 20000u}) {
        const std::string text = "<a>" + std::string(ahead, 'x') + " \xC3\xA4\xE2\x82\xAC<b c='\xF0\x9F\x98\x80'/>"
            + std::string(50000, 'y') + "</a>";
        Document.Reset();
        EXPECT_TRUE(Document.ParseFile(Write("a", text).c_str()));
        XMLDocument other;
        EXPECT_TRUE(other.ParseBuffer(text.data(), text.size()));
        EXPECT_EQ(DumpTree(Document.Root), DumpTree(other.Root)) << ahead;
    }
}
