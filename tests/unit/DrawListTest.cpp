#include "host/drawlist/DrawList.h"
#include "host/drawlist/DrawListFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace {

using host::DrawList;

DrawList SomeList()
{
    DrawList list{640, 480, {}};
    list.Calls.push_back({"Main", "DrawRect", {{{0, 0, 100, 50}, {{"color", "ff202020"}}}}});
    list.Calls.push_back(
        {"Icon@Main", "DrawTexturedRects", {{{1, 2, 3, 4}, {{"image", "\"a b.png\""}}}, {{-5, 0, 1, 1}, {}}}});
    list.Calls.push_back({"say \"Gr\xc3\xbc\xc3\x9f"
                          "e\"\n",
        "DrawText", {{{10, 10, 90, 30}, {{"text", host::QuotedLine("a = \"b\" \\ \x7f\xff")}, {"align", "left"}}}}});
    return list;
}

constexpr char SomeText[] = "TeskaraDrawList 1 640x480\n"
                            "\"Main\" DrawRect (0,0,100,50) color=ff202020\n"
                            "\"Icon@Main\" DrawTexturedRects 2\n"
                            "- (1,2,3,4) image=\"a b.png\"\n"
                            "- (-5,0,1,1)\n"
                            "\"say \\\"Gr\xc3\xbc\xc3\x9f"
                            "e\\\"\\n\" DrawText (10,10,90,30) "
                            "text=\"a = \\\"b\\\" \\\\ \\x7f\\xff\" align=left\n";

TEST(DrawList, HasALineForEachCallAndEachOfItsImages)
{
    EXPECT_EQ(WriteDrawList(SomeList()), SomeText);
}

TEST(DrawList, ReadsBackAsItWasWritten)
{
    std::string why;
    const auto list = host::ReadDrawList(SomeText, why);
    ASSERT_TRUE(list) << why;
    EXPECT_EQ(WriteDrawList(*list), SomeText);
    EXPECT_EQ(list->Calls[2].Element,
        "say \"Gr\xc3\xbc\xc3\x9f"
        "e\"\n");
    EXPECT_EQ(list->Calls[1].Marks[1].Place.left, -5);
}

TEST(DrawList, MayHaveTheLineEndsOfOtherSystemsAndNoneAtItsEnd)
{
    std::string why;
    EXPECT_TRUE(host::ReadDrawList("TeskaraDrawList 1 1x1\r\n\"A\" DrawRect (0,0,1,1)", why)) << why;
}

TEST(DrawList, IsReadOrRefusedWhereverItIsCut)
{
    const std::string whole = SomeText;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        std::string why;
        const auto list = host::ReadDrawList(std::string_view(whole).substr(0, length), why);
        EXPECT_NE(list.has_value(), !why.empty()) << length;
    }
}

TEST(DrawList, ThatIsNoneSaysWhatStandsInItsWay)
{
    const std::pair<std::string, std::string> cases[] = {
        {"", "is no draw list: its first line is not one such as 'TeskaraDrawList 1 1200x675'"},
        {std::string("\0\xff\x7f", 3),
            "is no draw list: its first line is not one such as 'TeskaraDrawList 1 1200x675'"},
        {"TeskaraDrawList 2 640x480\n",
            "is no draw list: its first line is not one such as 'TeskaraDrawList 1 1200x675'"},
        {"TeskaraDrawList 1 640x480\n\"A\" DrawRect (0,0,1\n",
            "is a damaged draw list: line 2 is none that such a list has there"},
        {"TeskaraDrawList 1 640x480\n\"A\" DrawRect (0,0,1,99999999999)\n",
            "is a damaged draw list: line 2 is none that such a list has there"},
        {"TeskaraDrawList 1 640x480\n\"A\" DrawTexturedRects 4000000000\n- (0,0,1,1)\n",
            "is a damaged draw list: line 2 is none that such a list has there"},
        {"TeskaraDrawList 1 640x480\n\"A\" DrawTexturedRects 2\n- (0,0,1,1)\n",
            "is a damaged draw list: it breaks off in its last call"},
    };
    for (const auto& [text, message] : cases) {
        std::string why;
        EXPECT_FALSE(host::ReadDrawList(text, why));
        EXPECT_EQ(why, message);
    }
}

TEST(DrawListFile, OfAGigabyteIsRefusedAndNotRead)
{
    const std::filesystem::path file = "/tmp/teskara-drawlist-" + std::to_string(getpid());
    std::ofstream(file) << "TeskaraDrawList 1 1x1\n";
    std::filesystem::resize_file(file, std::uintmax_t{1} << 30);
    std::string why;
    EXPECT_FALSE(host::ReadDrawListFile(file, why));
    EXPECT_EQ(why, "is larger than 64 MiB, so it is no draw list");
    std::filesystem::remove(file);
}

TEST(DrawListFile, ThatIsNotThereOrIsAFolderIsNotRead)
{
    std::string why;
    EXPECT_FALSE(host::ReadDrawListFile("/tmp/teskara-no-such-file", why));
    EXPECT_EQ(why, "cannot be read: No such file or directory");
    EXPECT_FALSE(host::ReadDrawListFile("/tmp", why));
    EXPECT_EQ(why, "cannot be read: Is a directory");
}

} // namespace
