#include "teskara/core/platform/Platform.h"

#include <gtest/gtest.h>

#include <string>

// The table of the system alone, without the one that the tests put over it.

TEST(PosixPlatform, TimeNeverGoesBack)
{
    const u32 before = SystemPlatform().GetTickCount();
    EXPECT_LE(SystemPlatform().GetTickCount() - before, 60000u);
}

TEST(PosixPlatform, WithoutATableOfTheHostsThereIsNoKeyboard)
{
    char characters[2] = {'x', 'x'};
    const u8 keys[256] = {};
    EXPECT_EQ(0, SystemPlatform().ToAscii('A', keys, characters));
    EXPECT_FALSE(SystemPlatform().IsKeyToggled(20));
    EXPECT_EQ('x', characters[0]);
}

TEST(PosixPlatform, WithoutATableOfTheHostsThereIsNoClipboard)
{
    std::string text = "kept";
    EXPECT_FALSE(SystemPlatform().OpenClipboard());
    EXPECT_FALSE(SystemPlatform().EmptyClipboard());
    EXPECT_FALSE(SystemPlatform().SetClipboardText(text));
    EXPECT_FALSE(SystemPlatform().GetClipboardText(text));
    SystemPlatform().CloseClipboard();
    EXPECT_EQ("kept", text);
}

TEST(PosixPlatform, BytesOfTheCodePageBecomeUnits)
{
    EXPECT_EQ(u'A', SystemPlatform().AnsiToWide('A'));
    EXPECT_EQ(u'\u20ac', SystemPlatform().AnsiToWide(0x80));
    EXPECT_EQ(u'\u0081', SystemPlatform().AnsiToWide(0x81)) << "the code page has nothing of its own there";
    EXPECT_EQ(u'\u00e4', SystemPlatform().AnsiToWide(0xe4));
}

TEST(PosixPlatform, AFolderIsThereAndIsNoFile)
{
    EXPECT_TRUE(SystemPlatform().FileExists(u"/"));
    EXPECT_EQ(nullptr, SystemPlatform().OpenFile(u"/"));
    EXPECT_FALSE(SystemPlatform().FileExists(u"/a file that nobody has"));
    EXPECT_EQ(nullptr, SystemPlatform().OpenFile(u"/a file that nobody has"));
}

TEST(PosixPlatform, ItsModuleIsNamed)
{
    EXPECT_NE(std::string::npos, SystemPlatform().GetModulePath().find("teskara"));
}

TEST(PosixPlatformDeathTest, ATextBeyondItsBoundEndsTheProcessWithALine)
{
    EXPECT_DEATH(SystemPlatform().RangeFailure(), "a text is too long for its buffer");
}
