// What keys do to a text entry, and the clipboard that they paste.

#include "teskara/text/TextKeys.h"
#include "tests/unit/TextEntryTest.h"

namespace {

using Heard = std::vector<std::string>;

class TeskTextEntryKeysTest : public TextEntryTest
{
};

} // namespace

TEST_F(TeskTextEntryKeysTest, KeysGiveCharactersInUtf8)
{
    TeskTextEntry& entry = MakeEntry();
    System.KeyTexts['A'] = "a";
    System.KeyTexts['E'] = "\xe9"; // the test's code page is Latin-1
    System.KeyTexts['D'] = "^e"; // a dead key that found no letter to stand on
    for (const char key : {'A', 'E', 'D'})
        EXPECT_TRUE(entry.OnKeyDown(static_cast<u8>(key)));
    EXPECT_STREQ("a\xc3\xa9^e", entry.Text.Bytes());
}

TEST_F(TeskTextEntryKeysTest, AByteOfACharacterIsPassedAndDeletedAlone)
{
    TeskTextEntry& entry = MakeEntry();
    entry.SetText("\xc3\xa9x");
    entry.OnKeyDown(KeyRight);
    EXPECT_EQ(1u, entry.Text.CaretPos);
    entry.OnKeyDown(KeyBackspace);
    EXPECT_STREQ("\xa9x", entry.Text.Bytes());
}

TEST_F(TeskTextEntryKeysTest, KeysMoveTheCaretAndDelete)
{
    TeskTextEntry& entry = MakeEntry();
    Type(entry, "abcd");
    const auto press = [&](u32 key) { EXPECT_TRUE(entry.OnKeyDown(key)) << key; };
    press(KeyRight);
    EXPECT_EQ(4u, entry.Text.CaretPos);
    press(KeyLeft);
    EXPECT_EQ(3u, entry.Text.CaretPos);
    press(KeyHome);
    press(KeyLeft);
    EXPECT_EQ(0u, entry.Text.CaretPos);
    press(KeyRight);
    press(KeyDelete);
    EXPECT_STREQ("acd", entry.Text.Bytes());
    press(KeyBackspace);
    EXPECT_STREQ("cd", entry.Text.Bytes());
    press(KeyEnd);
    EXPECT_EQ(2u, entry.Text.CaretPos);
    press(KeyEscape);
    EXPECT_STREQ("cd", entry.Text.Bytes());
}

TEST_F(TeskTextEntryKeysTest, InsertFlipsTheModeAndTheModeStays)
{
    TeskTextEntry& entry = MakeEntry();
    Type(entry, "abc");
    entry.OnKeyDown(KeyInsert);
    EXPECT_FALSE(entry.Text.InsertMode);
    entry.OnKeyboardExit(nullptr);
    entry.SetText("xyz");
    EXPECT_FALSE(entry.Text.InsertMode);
    entry.Text.MoveToStart();
    Type(entry, "Q");
    EXPECT_STREQ("Qyz", entry.Text.Bytes());
    entry.OnKeyDown(KeyInsert);
    EXPECT_TRUE(entry.Text.InsertMode);
}

TEST_F(TeskTextEntryKeysTest, BothEnterKeysTellTheParentAndOneOfThemIsHeld)
{
    TeskTextEntry& entry = MakeEntry();
    entry.OnKeyDown(KeyLeft);
    EXPECT_TRUE(entry.OnKeyDown(KeyEnter));
    EXPECT_EQ(0u, entry.Repeat.HeldKey);
    EXPECT_TRUE(entry.OnKeyDown(KeySeparator));
    EXPECT_EQ(u32{KeySeparator}, entry.Repeat.HeldKey);
    EXPECT_EQ((Heard{"5:0", "5:0"}), Parent.Heard);
}

TEST_F(TeskTextEntryKeysTest, EnterMayDeleteTheEntry)
{
    for (const u32 key : {u32{KeyEnter}, u32{KeySeparator}}) {
        TeskTextEntry& entry = Make<TeskTextEntry>("textentry", "<OnKeyDown>key</OnKeyDown>");
        bool ran = false;
        Host.NamesKeys = true;
        Host.Scripts["key"] = [&](TeskElement&) { ran = true; };
        Parent.Act = [&](TeskElement& source) { Parent.DeleteChild(&source); };
        EXPECT_TRUE(entry.OnKeyDown(key));
        EXPECT_TRUE(IsGone());
        EXPECT_FALSE(ran);
    }
}

TEST_F(TeskTextEntryKeysTest, AKeyWithoutACharacterIsRefusedAndNotHeld)
{
    bool ran = false;
    Host.NamesKeys = true;
    Host.Scripts["key"] = [&](TeskElement&) { ran = true; };
    auto& entry = Make<TeskTextEntry>("textentry", "<OnKeyDown>key</OnKeyDown>");
    entry.OnKeyDown(KeyLeft);
    ran = false;
    EXPECT_FALSE(entry.OnKeyDown(112));
    EXPECT_EQ(u32{KeyLeft}, entry.Repeat.HeldKey);
    EXPECT_FALSE(ran);
}

TEST_F(TeskTextEntryKeysTest, AKeyBeyondTheCharactersIsTakenAndHeld)
{
    TeskTextEntry& entry = MakeEntry();
    System.KeyTexts[256] = "x";
    EXPECT_TRUE(entry.OnKeyDown(256));
    EXPECT_EQ(256u, entry.Repeat.HeldKey);
    EXPECT_TRUE(entry.OnKeyDown(0xffffffff));
    EXPECT_STREQ("", entry.Text.Bytes());
    System.KeyTexts[255] = "y";
    EXPECT_TRUE(entry.OnKeyDown(255));
    EXPECT_STREQ("y", entry.Text.Bytes());
}

TEST_F(TeskTextEntryKeysTest, TheKeyScriptsRunAfterTheChange)
{
    std::string seen;
    Host.NamesKeys = true;
    System.KeyTexts['A'] = "a";
    Host.Scripts["down"] = [&](TeskElement& self) { seen += dynamic_cast<TeskTextEntry&>(self).Text.Bytes(); };
    Host.Scripts["up"] = [&](TeskElement&) { seen += " up"; };
    auto& entry =
        Make<TeskTextEntry>("textentry", "<MaxLength>9</MaxLength><OnKeyDown>down</OnKeyDown><OnKeyUp>up</OnKeyUp>");
    EXPECT_TRUE(entry.OnKeyDown('A'));
    EXPECT_TRUE(entry.OnKeyUp('A'));
    EXPECT_EQ("a up", seen);
}

TEST_F(TeskTextEntryKeysTest, AChangeMayDeleteTheEntryInTheMiddleOfACharacter)
{
    System.KeyTexts['E'] = "\xe9";
    Host.Scripts["change"] = [&](TeskElement& self) { Parent.DeleteChild(&self); };
    EXPECT_TRUE(MakeEntry().OnKeyDown('E'));
    EXPECT_TRUE(IsGone());
    Host.Scripts["change"] = [&](TeskElement& self) { Parent.DeleteChild(&self); };
    TeskTextEntry& entry = MakeEntry();
    entry.Text.Fill("a", 20);
    EXPECT_TRUE(entry.OnKeyDown(KeyDelete));
    EXPECT_TRUE(IsGone());
}

// --- The clipboard

TEST_F(TeskTextEntryKeysTest, ShiftInsertAndControlVPaste)
{
    System.Clipboard = "abc";
    System.KeyTexts['V'] = "v";
    TeskTextEntry& entry = LoadEntry();
    g_UIManager.OnKeyDown('V');
    EXPECT_STREQ("v", entry.Text.Bytes());
    g_UIManager.OnKeyDown(16);
    g_UIManager.OnKeyDown(KeyInsert);
    g_UIManager.OnKeyUp(16);
    EXPECT_STREQ("vabc", entry.Text.Bytes());
    EXPECT_TRUE(entry.Text.InsertMode);
    g_UIManager.OnKeyDown(17);
    g_UIManager.OnKeyDown('V');
    g_UIManager.OnKeyUp(17);
    EXPECT_STREQ("vabcabc", entry.Text.Bytes());
    EXPECT_FALSE(System.ClipboardIsOpen);
}

TEST_F(TeskTextEntryKeysTest, PastedBytesGoInAsTheyAreButForKeysAndLineEnds)
{
    TeskTextEntry& entry = MakeEntry();
    System.Clipboard = std::string("ab\r\nc\bd\x7f\t\xff\x01\xc3\0never", 17);
    entry.Text.Fill("xy", 20);
    entry.PasteClipboard();
    EXPECT_STREQ("abd\t\xff\x01\xc3y", entry.Text.Bytes());
    EXPECT_EQ(10u, Parent.Heard.size()); // a b c BS d DEL and four more
}

TEST_F(TeskTextEntryKeysTest, AClipboardWithoutATextPastesNothing)
{
    TeskTextEntry& entry = MakeEntry();
    entry.PasteClipboard();
    System.Clipboard = "abc";
    System.RefusesClipboard = true;
    entry.PasteClipboard();
    EXPECT_STREQ("", entry.Text.Bytes());
    EXPECT_EQ((Heard{}), Parent.Heard);
}

TEST_F(TeskTextEntryKeysTest, AScriptFindsTheClipboardClosedAndMayDeleteTheEntry)
{
    int runs = 0;
    System.Clipboard = "abc";
    Host.Scripts["change"] = [&](TeskElement& self) {
        EXPECT_FALSE(System.ClipboardIsOpen);
        System.Clipboard = "other";
        if (++runs == 2)
            Parent.DeleteChild(&self);
    };
    MakeEntry().PasteClipboard();
    EXPECT_TRUE(IsGone());
    EXPECT_EQ(2, runs);
}

TEST_F(TeskTextEntryKeysTest, TenMegabytesArePastedUpToTheLength)
{
    TeskTextEntry& entry = MakeEntry("<MaxLength>4096</MaxLength>");
    System.Clipboard = std::string(10'000'000, 'x');
    entry.PasteClipboard();
    EXPECT_EQ(4096u, entry.Text.TextLength);
    EXPECT_EQ(std::string(4096, 'x'), entry.Text.Bytes());
    EXPECT_EQ(4096u, Parent.Heard.size());
}

TEST_F(TeskTextEntryKeysTest, BinaryContentIsPastedUpToItsFirstZero)
{
    TeskTextEntry& entry = MakeEntry("<MaxLength>300</MaxLength>");
    std::string all;
    for (int byte = 255; byte >= 0; --byte)
        all += static_cast<char>(byte);
    System.Clipboard = all + "after";
    entry.PasteClipboard();
    const std::string text = entry.Text.Bytes();
    EXPECT_EQ(255u - 5u, text.size()); // without DEL, CR, LF and BS, and without the byte that BS took
    EXPECT_EQ('\x01', text.back());
}
