#include "teskara/flat/FlatPlatform.h"
#include "tests/unit/FlatProgram.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace {

teskara_platform Nothing()
{
    teskara_platform table = {};
    table.size = sizeof(teskara_platform);
    table.version = TESKARA_TABLE_VERSION;
    return table;
}

class FlatPlatformTest : public testing::Test
{
protected:
    FlatPlatformTest()
    {
        const teskara_platform table = Program.Platform();
        EXPECT_EQ(TESKARA_OK, Flat.SetTable(&table));
    }

    void ExpectCalls(const char* calls) { EXPECT_EQ(calls, Program.TakeCalls()); }

    FlatProgram Program;
    FlatPlatform Flat;
};

} // namespace

TEST_F(FlatPlatformTest, AsksTheTableForClockAndKeys)
{
    EXPECT_EQ(71u, Flat.GetTickCount());
    EXPECT_TRUE(Flat.IsKeyToggled(20));
    u8 state[256] = {};
    state[255] = 0x80;
    char characters[2] = {};
    EXPECT_EQ(2, Flat.ToAscii(65, state, characters));
    EXPECT_EQ('b', characters[1]);
    EXPECT_EQ(u'\u20ac', Flat.AnsiToWide(0x80));
    ExpectCalls("tick_count\nis_key_toggled 20\nto_ascii 65 128\nansi_to_wide 128\n");
}

TEST_F(FlatPlatformTest, AsksTheTableForFilesByTheirNameInUtf8)
{
    EXPECT_EQ(nullptr, Flat.OpenFile(u"\u00e4.xml"));
    EXPECT_TRUE(Flat.FileExists(u"\u00e4.png"));
    ExpectCalls("open_file \u00e4.xml\nfile_exists \u00e4.png\n");
}

TEST_F(FlatPlatformTest, TellsTheTableOfFailures)
{
    Flat.WriteDebugOutput("a line\n");
    Flat.RangeFailure();
    ExpectCalls("write_debug a line\n\nrange_failure\n");
}

TEST_F(FlatPlatformTest, UsesTheClipboardOfTheTable)
{
    std::string text;
    EXPECT_TRUE(Flat.OpenClipboard());
    EXPECT_TRUE(Flat.EmptyClipboard());
    EXPECT_TRUE(Flat.SetClipboardText("mine"));
    EXPECT_TRUE(Flat.GetClipboardText(text));
    Flat.CloseClipboard();
    EXPECT_EQ("from elsewhere", text);
    ExpectCalls("open_clipboard\nempty_clipboard\nset_clipboard_text mine\nclipboard_text 1\nclipboard_text 15\n"
                "close_clipboard\n");
}

TEST_F(FlatPlatformTest, TakesOfAClipboardThatChangesMeanwhileWhatFits)
{
    teskara_platform table = Program.Platform();
    table.clipboard_text = [](void* user, char* output, size_t size) {
        auto& text = static_cast<FlatProgram*>(user)->Clipboard;
        std::snprintf(output, size, "%s", text.c_str());
        const auto length = static_cast<int64_t>(text.size());
        text += " and more";
        return length;
    };
    Flat.SetTable(&table);
    std::string text;
    EXPECT_TRUE(Flat.GetClipboardText(text));
    EXPECT_EQ("from elsewhere", text);

    table.clipboard_text = [](void*, char*, size_t) { return int64_t{-1}; };
    Flat.SetTable(&table);
    EXPECT_FALSE(Flat.GetClipboardText(text));
    table.clipboard_text = [](void*, char*, size_t) { return INT64_MAX; };
    Flat.SetTable(&table);
    EXPECT_FALSE(Flat.GetClipboardText(text));
}

TEST_F(FlatPlatformTest, DoesWithoutATableWhatTheSystemDoes)
{
    const teskara_platform nothing = Nothing();
    ASSERT_EQ(TESKARA_OK, Flat.SetTable(&nothing));
    Platform& system = SystemPlatform();
    EXPECT_LE(system.GetTickCount(), Flat.GetTickCount());
    EXPECT_EQ(system.IsKeyToggled(20), Flat.IsKeyToggled(20));
    const u8 state[256] = {};
    char mine[2] = {};
    char theirs[2] = {};
    EXPECT_EQ(system.ToAscii(65, state, theirs), Flat.ToAscii(65, state, mine));
    EXPECT_EQ(system.AnsiToWide(0x80), Flat.AnsiToWide(0x80));
    EXPECT_EQ(system.GetModulePath(), Flat.GetModulePath());
    EXPECT_TRUE(Flat.FileExists(u"."));
    EXPECT_EQ(nullptr, Flat.OpenFile(u"/no/such/file"));

    std::string text;
    EXPECT_EQ(system.OpenClipboard(), Flat.OpenClipboard());
    EXPECT_EQ(system.EmptyClipboard(), Flat.EmptyClipboard());
    EXPECT_EQ(system.SetClipboardText("text"), Flat.SetClipboardText("text"));
    EXPECT_EQ(system.GetClipboardText(text), Flat.GetClipboardText(text));
    Flat.CloseClipboard();

    ExpectCalls("");
}

TEST_F(FlatPlatformTest, LeavesTheRangeFailureOfTheSystemToEndTheProcess)
{
    const teskara_platform nothing = Nothing();
    Flat.SetTable(&nothing);
    EXPECT_DEATH(Flat.RangeFailure(), "");
}
