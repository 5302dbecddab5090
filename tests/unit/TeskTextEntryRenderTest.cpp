// How a text entry is drawn: 100 by 20 pixels at 10, 50, with its text from 13 on, every byte 6 pixels wide.

#include "tests/unit/Allocations.h"
#include "tests/unit/TextEntryTest.h"

namespace {

constexpr char Background[] = "DrawRect (10,50,110,70) ff000000\n";

class TeskTextEntryRenderTest : public TextEntryTest
{
protected:
    static std::string Words(const std::string& text, int x)
    {
        return "DrawText \"" + text + "\" (" + std::to_string(x) + ",51,110,600) ffffffff format=32 font 1\n";
    }

    // The caret in insert mode; its border is drawn first.
    static std::string Caret(int x, const char* inner = "ff0000bb", const char* outer = "ff0000aa")
    {
        const std::string left = std::to_string(x);
        const std::string right = std::to_string(x + 6);
        const std::string innerLeft = std::to_string(x + 1);
        const std::string innerRight = std::to_string(x + 5);
        return "DrawRect (" + left + ",50," + right + ",51) " + outer + "\nDrawRect (" + left + ",51," + innerLeft
            + ",69) " + outer + "\nDrawRect (" + innerRight + ",51," + right + ",69) " + outer + "\nDrawRect (" + left
            + ",69," + right + ",70) " + outer + "\nDrawRect (" + innerLeft + ",51," + innerRight + ",69) " + inner
            + "\n";
    }

    static std::string Image(u32 texture)
    {
        return "DrawTexturedRect texture " + std::to_string(texture)
            + " to=(10,50,110,70) from=(0,0,0,0) flags=2 alpha=255 orientation=0 mask=00000000\n";
    }

    // Sets a text and the caret, and lets the scrolling come to rest.
    void Settle(TeskTextEntry& entry, const std::string& text, u64 caret)
    {
        entry.SetText(text.c_str());
        entry.Text.CaretPos = caret;
        for (int frame = 0; frame < 3; ++frame)
            Frame();
    }
};

} // namespace

TEST_F(TeskTextEntryRenderTest, WithoutTheFocusTheTextIsDrawnWhole)
{
    TeskTextEntry& entry = Unfocused();
    EXPECT_EQ(Background, Frame());
    entry.SetText("words");
    EXPECT_EQ(Background + Words("words", 13), Frame());
}

TEST_F(TeskTextEntryRenderTest, AnEmptyEntryWithTheFocusShowsItsCaret)
{
    LoadEntry();
    EXPECT_EQ(Background + Caret(13), Frame());
}

TEST_F(TeskTextEntryRenderTest, TheCaretStandsBetweenTheTwoPartsOfTheText)
{
    TeskTextEntry& entry = LoadEntry();
    entry.SetText("words");
    entry.Text.CaretPos = 2;
    EXPECT_EQ(Background + Words("wo", 13) + Caret(25) + Words("rds", 25), Frame());
    entry.Text.CaretPos = 5;
    EXPECT_EQ(Background + Words("words", 13) + Caret(43), Frame());
    entry.Text.CaretPos = 0;
    EXPECT_EQ(Background + Words("", 13) + Caret(13) + Words("words", 13), Frame());
}

TEST_F(TeskTextEntryRenderTest, OverwritingTheCaretIsInsideOut)
{
    LoadEntry().Text.InsertMode = false;
    EXPECT_EQ(Background + Caret(13, "ff0000aa", "ff0000bb"), Frame());
}

TEST_F(TeskTextEntryRenderTest, TheCaretIsAsWideAsASpaceAndKeepsOffTheBorder)
{
    Host.Widths[' '] = 9;
    TeskTextEntry& entry = LoadEntry();
    entry.Border = 4;
    entry.BorderColor = 0xff00ff00;
    const std::string frame = Frame();
    EXPECT_NE(std::string::npos, frame.find("DrawRect (10,50,110,54) ff00ff00\n")) << frame;
    EXPECT_NE(std::string::npos, frame.find("DrawRect (13,54,22,55) ff0000aa\n")) << frame;
    EXPECT_NE(std::string::npos, frame.find("DrawRect (14,55,21,65) ff0000bb\n")) << frame;
}

TEST_F(TeskTextEntryRenderTest, AMaskStandsForEveryByte)
{
    Host.Widths['*'] = 10;
    TeskTextEntry& entry = LoadEntry("<PasswordCharacter>*</PasswordCharacter>");
    EXPECT_EQ(Background + Caret(13), Frame());
    entry.SetText("abc");
    entry.Text.CaretPos = 1;
    EXPECT_EQ(Background + Words("*", 13) + Caret(23) + Words("**", 23), Frame());
    EXPECT_STREQ("abc", entry.Text.Bytes());
}

TEST_F(TeskTextEntryRenderTest, AMaskCoversTheLongestText)
{
    TeskTextEntry& entry = Unfocused("<PasswordCharacter>*</PasswordCharacter>");
    Type(entry, std::string(5000, 'x'));
    entry.Text.CaretPos = 0;
    EXPECT_EQ(4096u, entry.Text.TextLength);
    Host.Recorded = 0;
    Frame();
    EXPECT_EQ(0u, entry.FirstVisible);
}

TEST_F(TeskTextEntryRenderTest, AnotherImageShowsTheFocus)
{
    TeskTextEntry& entry = LoadEntry("<Texture Filename='#a'/><TextureFocused Filename='#b'/>");
    EXPECT_EQ(Image(1) + Caret(13), Frame());
    g_UIManager.SetFocusElement(nullptr);
    EXPECT_EQ(Image(2), Frame());
    entry.TextureFocused.reset();
    Focus(entry);
    EXPECT_EQ(Image(2) + Caret(13), Frame());
    entry.TextureFocused = std::move(entry.Texture);
    EXPECT_EQ(Background + Caret(13), Frame());
}

TEST_F(TeskTextEntryRenderTest, AnImageHasItsOwnBorderOrThatOfTheEntry)
{
    TeskTextEntry& entry = Unfocused("<Border>2</Border><BorderColor>ff00ff00</BorderColor><Texture Filename='#a'/>");
    EXPECT_EQ(Image(1)
            + "DrawRect (10,50,110,52) ff00ff00\nDrawRect (10,52,12,68) ff00ff00\nDrawRect (108,52,110,68) ff00ff00\n"
              "DrawRect (10,68,110,70) ff00ff00\n",
        Frame());
    entry.Texture->Border = 2;
    EXPECT_EQ("DrawTexturedRects 9\n", Frame().substr(0, 20));
}

TEST_F(TeskTextEntryRenderTest, AFaceThatCannotBeMadeCountsTwelvePixelsAByte)
{
    Host.RefusesFonts = true;
    TeskTextEntry& entry = LoadEntry();
    entry.SetText("ab");
    entry.Text.CaretPos = 1;
    const std::string frame = Frame();
    EXPECT_NE(std::string::npos, frame.find("DrawRect (14,51,24,69) ff0000bb\n")) << frame;
}

// --- Scrolling. 16 bytes fit into the width.

TEST_F(TeskTextEntryRenderTest, ThreeBytesStayInSightBeforeTheCaret)
{
    TeskTextEntry& entry = LoadEntry();
    entry.SetText("0123456789");
    entry.FirstVisible = 9;
    entry.Text.CaretPos = 8;
    Frame();
    EXPECT_EQ(5u, entry.FirstVisible);
    entry.Text.CaretPos = 3;
    Frame();
    EXPECT_EQ(0u, entry.FirstVisible);
}

TEST_F(TeskTextEntryRenderTest, ATextThatFitsWithItsCaretIsNotScrolled)
{
    TeskTextEntry& entry = LoadEntry();
    Settle(entry, "012345678901234", 15); // 96 pixels with the caret
    EXPECT_EQ(0u, entry.FirstVisible);
}

TEST_F(TeskTextEntryRenderTest, ACaretBeyondTheWidthTakesTheTextAlong)
{
    TeskTextEntry& entry = LoadEntry();
    entry.SetText("0123456789012345");
    entry.Text.CaretPos = 16;
    Frame();
    EXPECT_EQ(3u, entry.FirstVisible); // all 16 fit, the caret doesn't
    entry.SetText("01234567890123456789");
    entry.Text.CaretPos = 20;
    Frame();
    EXPECT_EQ(2u, entry.FirstVisible); // 3 + 3 + 16 - 20
    Frame();
    EXPECT_EQ(1u, entry.FirstVisible);
}

TEST_F(TeskTextEntryRenderTest, APositionThatFallsBehindZeroIsMendedByTheNextFrames)
{
    TeskTextEntry& entry = LoadEntry();
    const std::string text(40, 'x');
    entry.SetText(text.c_str());
    entry.Text.CaretPos = 40;
    const std::string frame = Frame();
    EXPECT_EQ(static_cast<u64>(-21), entry.FirstVisible); // 0 + 3 + 16 - 40
    EXPECT_EQ(Background + Words("", 13) + Caret(13), frame);
    EXPECT_EQ(Background + Words("xxx", 13) + Caret(31), Frame());
    EXPECT_EQ(37u, entry.FirstVisible);
}

TEST_F(TeskTextEntryRenderTest, ACutTextIsShownFromItsEndAtMost)
{
    TeskTextEntry& entry = Unfocused();
    Settle(entry, std::string(40, 'x'), 40);
    entry.SetText("ab");
    Frame();
    EXPECT_EQ(0u, entry.FirstVisible);
}

TEST_F(TeskTextEntryRenderTest, AWayThatIsTooLongForItsBufferIsAFaultAndIsCut)
{
    Host.Widths['.'] = 0;
    struct Row {
        std::size_t Length;
        int Failures;
    };
    for (const Row& row : {Row{1022, 0}, Row{1023, 0}, Row{1024, 1}, Row{1025, 1}, Row{4095, 1}}) {
        TeskTextEntry& entry = LoadEntry();
        System.RangeFailures = 0;
        entry.SetText(std::string(row.Length, '.').c_str());
        entry.Text.MoveToEnd();
        Frame();
        EXPECT_EQ(row.Failures, System.RangeFailures) << row.Length;
        EXPECT_EQ(0u, entry.FirstVisible);
        g_UIManager.Screen->DeleteChild(&entry);
    }
}

TEST_F(TeskTextEntryRenderTest, ACaretSetBeyondTheTextIsDrawnAtItsEnd)
{
    TeskTextEntry& entry = LoadEntry();
    entry.SetText("ab");
    entry.Text.CaretPos = ~u64{0};
    EXPECT_EQ(Background + Words("ab", 13) + Caret(25), Frame());
}

TEST_F(TeskTextEntryRenderTest, EntriesAllocateNothingInAFrame)
{
    TeskTextEntry& entry = LoadEntry("<PasswordCharacter>*</PasswordCharacter>");
    Settle(entry, "some words that are longer than a short text", 9);
    Host.Recorded = 0;
    const std::size_t before = Allocations::Count();
    for (int frame = 0; frame < 10; ++frame)
        g_UIManager.Render();
    EXPECT_EQ(before, Allocations::Count());
}
