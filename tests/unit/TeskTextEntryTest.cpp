// What a text entry holds, and what a press does to it.

#include "teskara/element/TeskEmbeddedScript.h"
#include "teskara/text/TextKeys.h"
#include "tests/unit/TextEntryTest.h"

namespace {

using Heard = std::vector<std::string>;

class TeskTextEntryTest : public TextEntryTest
{
protected:
    static _Point2i At(i32 x) { return {x, 0}; }
};

} // namespace

TEST_F(TeskTextEntryTest, MarkupGivesItsFields)
{
    const auto& entry = Make<TeskTextEntry>("textentry",
        "<MaxLength>9</MaxLength><SelectionColor>01020304</SelectionColor><BackgroundColor>11121314</BackgroundColor>"
        "<BorderColor>21222324</BorderColor><Border>2</Border><CaretOuterColor>31323334</CaretOuterColor>"
        "<CaretInnerColor>41424344</CaretInnerColor><Font><Name>Face</Name></Font><OnChange>change</OnChange>"
        "<Texture Filename='#a'/><TextureFocused Filename='#b'/><PasswordCharacter>*+</PasswordCharacter>");
    EXPECT_EQ(9u, entry.MaxLength);
    EXPECT_STREQ("", entry.Text.Bytes());
    EXPECT_EQ(0x01020304u, entry.SelectionColor);
    EXPECT_EQ(0x11121314u, entry.BackgroundColor);
    EXPECT_EQ(0x21222324u, entry.BorderColor);
    EXPECT_EQ(2u, entry.Border);
    EXPECT_EQ(0x31323334u, entry.CaretOuterColor);
    EXPECT_EQ(0x41424344u, entry.CaretInnerColor);
    EXPECT_EQ("Face", entry.Font->Name);
    EXPECT_TRUE(entry.OnChange);
    EXPECT_EQ("#a", entry.Texture->Filename);
    EXPECT_EQ("#b", entry.TextureFocused->Filename);
    EXPECT_FALSE(entry.TextureCaret);
    EXPECT_FALSE(entry.TextureCaretOverwrite);
    EXPECT_EQ('*', entry.PasswordCharacter);
    EXPECT_TRUE(entry.Text.InsertMode);
}

TEST_F(TeskTextEntryTest, ValuesFallBackToTheTemplateOfItsKind)
{
    g_UIManager.AddTemplate("textentry", "<Template><MaxLength>7</MaxLength><Border>2</Border></Template>");
    const auto& entry = Make<TeskTextEntry>("textentry", "<Border>1</Border>");
    EXPECT_EQ(7u, entry.MaxLength);
    EXPECT_EQ(1u, entry.Border);
    EXPECT_EQ(0, entry.PasswordCharacter);
    EXPECT_TRUE(entry.Font);
    EXPECT_FALSE(entry.Texture);
}

TEST_F(TeskTextEntryTest, TheLengthHasBounds)
{
    struct Row {
        const char* Text;
        u32 Length;
    };
    for (const Row& row : {Row{"0", 1}, Row{"1", 1}, Row{"4095", 4095}, Row{"4096", 4096}, Row{"4097", 4096},
             Row{"5000", 4096}, Row{"-1", 4096}, Row{"none", 1}})
        EXPECT_EQ(row.Length,
            Make<TeskTextEntry>("textentry", std::string("<MaxLength>") + row.Text + "</MaxLength>").MaxLength)
            << row.Text;
    EXPECT_EQ(1u, Make<TeskTextEntry>("textentry").MaxLength);
}

TEST_F(TeskTextEntryTest, IsATextEntryAndAnElement)
{
    TeskTextEntry& entry = MakeEntry();
    EXPECT_TRUE(entry.IsTypeOf("TextEntry"));
    EXPECT_TRUE(entry.IsTypeOf("teskelement"));
    EXPECT_FALSE(entry.IsTypeOf("commandentry"));
    EXPECT_FALSE(entry.IsTypeOf("frame"));
    EXPECT_FALSE(entry.IsTypeOf(nullptr));
}

TEST_F(TeskTextEntryTest, MadeFromARecordItTakesItsValuesAndTheRestFromTheTemplate)
{
    g_UIManager.AddTemplate("textentry",
        "<Template><MaxLength>8</MaxLength><SelectionColor>1</SelectionColor><BackgroundColor>2</BackgroundColor>"
        "<BorderColor>3</BorderColor><Border>4</Border><CaretOuterColor>5</CaretOuterColor>"
        "<CaretInnerColor>6</CaretInnerColor><Font><Name>Kind</Name></Font><PasswordCharacter>*</PasswordCharacter>"
        "<OnChange>change</OnChange></Template>");
    auto& entry = dynamic_cast<TeskTextEntry&>(*g_UIManager.LoadElement(&Parent, "textentry", "E"));
    _CreateTextEntry record;
    record.X = 3;
    record.Text = "some words";
    entry.Create(record, nullptr);
    EXPECT_EQ(3, entry.X);
    EXPECT_STREQ("some wo", entry.Text.Bytes());
    EXPECT_EQ(7u, entry.Text.CaretPos);
    EXPECT_EQ(8u, entry.MaxLength);
    EXPECT_EQ(1u, entry.SelectionColor);
    EXPECT_EQ(2u, entry.BackgroundColor);
    EXPECT_EQ(3u, entry.BorderColor);
    EXPECT_EQ(4u, entry.Border);
    EXPECT_EQ(5u, entry.CaretOuterColor);
    EXPECT_EQ(6u, entry.CaretInnerColor);
    EXPECT_EQ("Kind", entry.Font->Name);
    EXPECT_EQ(0, entry.PasswordCharacter);
    EXPECT_FALSE(entry.OnChange);

    g_UIManager.AddTemplate("other", "<Template><MaxLength>8</MaxLength><Border>7</Border></Template>");
    record.Text = nullptr;
    record.MaxLength = 5000;
    record.SelectionColor = 11;
    record.BackgroundColor = 12;
    record.BorderColor = 13;
    record.CaretOuterColor = 15;
    record.CaretInnerColor = 16;
    record.PasswordCharacter = '#';
    entry.Create(record, g_UIManager.FindTemplate("other"));
    EXPECT_STREQ("", entry.Text.Bytes());
    EXPECT_EQ(0u, entry.Text.CaretPos);
    EXPECT_EQ(4096u, entry.MaxLength);
    EXPECT_EQ(11u, entry.SelectionColor);
    EXPECT_EQ(12u, entry.BackgroundColor);
    EXPECT_EQ(13u, entry.BorderColor);
    EXPECT_EQ(7u, entry.Border);
    EXPECT_EQ(15u, entry.CaretOuterColor);
    EXPECT_EQ(16u, entry.CaretInnerColor);
    EXPECT_EQ('#', entry.PasswordCharacter);
    EXPECT_EQ((Heard{}), Parent.Heard);
}

TEST_F(TeskTextEntryTest, MadeWithoutMarkupItHoldsNothingAndStands)
{
    auto& entry = dynamic_cast<TeskTextEntry&>(*g_UIManager.LoadElement(g_UIManager.Screen, "textentry", "E"));
    System.KeyTexts['A'] = "a";
    System.Clipboard = "words";
    g_UIManager.SetFocusElement(&entry);
    entry.SetText("words");
    entry.SetFontSize(20);
    entry.PasteClipboard();
    for (const u32 key : {u32{'A'}, u32{KeyBackspace}, u32{KeyDelete}, u32{KeyRight}, u32{KeyEnd}, u32{KeyEnter}})
        g_UIManager.OnKeyDown(key);
    _Point2i point = {5, 5};
    EXPECT_TRUE(entry.OnLMouseDown(point));
    EXPECT_EQ(nullptr, entry.Text.Bytes());
    EXPECT_EQ(0u, entry.Text.TextLength);
    Frame();
}

TEST_F(TeskTextEntryTest, ReadTwiceItsTextIsEmptyAgain)
{
    TeskTextEntry& entry = MakeEntry();
    entry.SetText("words");
    XMLNode* node = g_UIManager.AddTemplate("n", "<Template><MaxLength>3</MaxLength></Template>");
    EXPECT_TRUE(entry.FromXML(node, nullptr));
    EXPECT_STREQ("", entry.Text.Bytes());
    Type(entry, "abcdef");
    EXPECT_STREQ("abc", entry.Text.Bytes());
}

// --- Texts that are set

TEST_F(TeskTextEntryTest, ASetTextIsShorterThanTheLengthThatTypingReaches)
{
    TeskTextEntry& entry = MakeEntry("<MaxLength>4</MaxLength>");
    entry.SetText("abc");
    EXPECT_STREQ("abc", entry.Text.Bytes());
    entry.SetText("abcd");
    EXPECT_STREQ("abc", entry.Text.Bytes());
    entry.Text.MoveToEnd();
    Type(entry, "xyz");
    EXPECT_STREQ("abcx", entry.Text.Bytes());
    EXPECT_EQ(4u, entry.Text.TextLength);
    entry.SetText(nullptr);
    EXPECT_STREQ("", entry.Text.Bytes());
}

TEST_F(TeskTextEntryTest, ASetTextRunsTheScriptAndIsNotToldToTheParent)
{
    int runs = 0;
    Host.Scripts["change"] = [&](TeskElement&) { ++runs; };
    TeskTextEntry& entry = MakeEntry();
    entry.SetText("a");
    entry.SetText("a");
    EXPECT_EQ(2, runs);
    EXPECT_EQ((Heard{}), Parent.Heard);
}

TEST_F(TeskTextEntryTest, ASetTextKeepsTheCaretWhereThereStillIsText)
{
    TeskTextEntry& entry = MakeEntry();
    Type(entry, "abcdef");
    entry.FirstVisible = 4;
    entry.SetText("xyz");
    EXPECT_EQ(3u, entry.Text.CaretPos);
    EXPECT_EQ(4u, entry.FirstVisible);
    entry.SetText("longer");
    EXPECT_EQ(3u, entry.Text.CaretPos);
}

TEST_F(TeskTextEntryTest, AScriptThatSetsTheTextOfItsChangeEnds)
{
    int runs = 0;
    Host.Scripts["change"] = [&](TeskElement& self) {
        ++runs;
        dynamic_cast<TeskTextEntry&>(self).SetText("again");
    };
    TeskTextEntry& entry = MakeEntry();
    entry.SetText("a");
    EXPECT_EQ(64, runs);
    EXPECT_STREQ("again", entry.Text.Bytes());
}

TEST_F(TeskTextEntryTest, AScriptMayDeleteTheEntryWhoseTextIsSet)
{
    Host.Scripts["change"] = [&](TeskElement& self) { Parent.DeleteChild(&self); };
    MakeEntry().SetText("a");
    EXPECT_TRUE(IsGone());
}

// --- Lengths that scripts set

TEST_F(TeskTextEntryTest, ALengthRaisedLaterGivesNoMoreRoom)
{
    TeskTextEntry& entry = MakeEntry("<MaxLength>4</MaxLength>");
    entry.MaxLength = 4000000000;
    Type(entry, "abcdefgh");
    EXPECT_STREQ("abcd", entry.Text.Bytes());
    entry.Text.CaretPos = 1;
    Type(entry, "X");
    EXPECT_STREQ("aXbc", entry.Text.Bytes());
    entry.SetText(std::string(10000, 'y').c_str());
    EXPECT_STREQ("yyy", entry.Text.Bytes());
    EXPECT_EQ(4000000000, entry.MaxLength);
}

TEST_F(TeskTextEntryTest, ALoweredLengthLeavesTheTextAndStopsTheCaret)
{
    TeskTextEntry& entry = MakeEntry();
    Type(entry, "abcdef");
    entry.MaxLength = 3;
    Parent.Heard.clear();
    Type(entry, "X");
    EXPECT_EQ((Heard{}), Parent.Heard);
    entry.Text.CaretPos = 1;
    Type(entry, "XYZ");
    EXPECT_STREQ("aXYbcd", entry.Text.Bytes());
    EXPECT_EQ(3u, entry.Text.CaretPos);
    entry.HandleBackspace();
    EXPECT_STREQ("aXbcd", entry.Text.Bytes());
    entry.SetText("12345");
    EXPECT_STREQ("12", entry.Text.Bytes());
}

TEST_F(TeskTextEntryTest, ALengthOfZeroTakesNoText)
{
    TeskTextEntry& entry = MakeEntry();
    Type(entry, "ab");
    entry.MaxLength = 0;
    entry.Text.MoveToStart();
    Type(entry, "X");
    EXPECT_STREQ("ab", entry.Text.Bytes());
    entry.HandleDelete();
    EXPECT_STREQ("b", entry.Text.Bytes());
    entry.SetText("c");
    EXPECT_STREQ("", entry.Text.Bytes());
    Focus(entry);
    Frame();
}

// --- Changes

TEST_F(TeskTextEntryTest, TheParentHearsOfAChangeBeforeTheScriptRuns)
{
    Host.Scripts["change"] = [&](TeskElement&) { Parent.Heard.push_back("script"); };
    TeskTextEntry& entry = MakeEntry();
    const std::string change = "3:" + std::to_string(reinterpret_cast<std::uintptr_t>(entry.Text.Bytes()));
    entry.InsertCharacter('a');
    entry.HandleBackspace();
    entry.HandleBackspace(); // changes nothing
    entry.HandleDelete(); // nor does this
    EXPECT_EQ((Heard{change, "script", change, "script"}), Parent.Heard);
}

TEST_F(TeskTextEntryTest, DeletedByItsParentItRunsNoScript)
{
    bool ran = false;
    Host.Scripts["change"] = [&](TeskElement&) { ran = true; };
    Parent.Act = [&](TeskElement& source) { Parent.DeleteChild(&source); };
    MakeEntry().InsertCharacter('a');
    EXPECT_TRUE(IsGone());
    EXPECT_FALSE(ran);
}

TEST_F(TeskTextEntryTest, TheParentMaySetTheTextThatItIsHanded)
{
    TeskTextEntry& entry = MakeEntry();
    Parent.Act = [&](TeskElement&) {
        Parent.Act = nullptr;
        entry.SetText(entry.Text.From(1));
    };
    entry.SetText("ab");
    entry.Text.MoveToEnd();
    entry.InsertCharacter('c');
    EXPECT_STREQ("bc", entry.Text.Bytes());
    EXPECT_EQ(2u, entry.Text.CaretPos);
}

TEST_F(TeskTextEntryTest, AtTheEndOfTheRoomNothingIsTypedOrTold)
{
    TeskTextEntry& entry = MakeEntry("<MaxLength>2</MaxLength>");
    for (const bool inserts : {true, false}) {
        entry.Text.InsertMode = inserts;
        Type(entry, "abc");
        EXPECT_STREQ("ab", entry.Text.Bytes());
        Parent.Heard.clear();
        entry.InsertCharacter('d');
        EXPECT_EQ((Heard{}), Parent.Heard);
    }
}

// --- The mouse

TEST_F(TeskTextEntryTest, APressTakesTheFocusAndSetsTheCaret)
{
    std::string seen;
    Host.Scripts["press"] = [&](TeskElement& self) {
        seen = std::to_string(dynamic_cast<TeskTextEntry&>(self).Text.CaretPos) + (self.IsFocus() ? " focus" : "");
    };
    TeskTextEntry& entry = LoadEntry("<OnLeftDown>press</OnLeftDown>");
    g_UIManager.SetFocusElement(nullptr);
    entry.SetText("abcdef");
    _Point2i point = At(entry.AbsoluteX + 13);
    EXPECT_TRUE(entry.OnLMouseDown(point));
    EXPECT_EQ("2 focus", seen);
    point = At(entry.AbsoluteX + 500);
    entry.OnLMouseDown(point);
    EXPECT_EQ(6u, entry.Text.CaretPos);
}

TEST_F(TeskTextEntryTest, APressCountsFromTheStartOfTheTextAndAddsTheBorder)
{
    TeskTextEntry& entry = LoadEntry();
    entry.SetText("abcdef");
    entry.FirstVisible = 3;
    entry.PasswordCharacter = '*';
    Host.Widths['*'] = 60;
    entry.Border = 5;
    _Point2i point = At(entry.AbsoluteX + 13);
    EXPECT_EQ(3u, entry.GetPositionFromPoint(point));
    point = At(entry.AbsoluteX - 5);
    EXPECT_EQ(0u, entry.GetPositionFromPoint(point));
    point = At(entry.AbsoluteX - 6); // as far to the right as it gets
    EXPECT_EQ(6u, entry.GetPositionFromPoint(point));
}

TEST_F(TeskTextEntryTest, TheFocusMayTakeTheEntryAway)
{
    Host.Scripts["enter"] = [&](TeskElement& self) { g_UIManager.Screen->DeleteChild(&self); };
    TeskTextEntry& entry = Unfocused("<OnKeyboardEnter>enter</OnKeyboardEnter>");
    _Point2i point = At(13);
    EXPECT_TRUE(entry.OnLMouseDown(point));
    EXPECT_EQ(nullptr, g_UIManager.FindElement("E"));
}

TEST_F(TeskTextEntryTest, TheFontSizeHasBounds)
{
    TeskTextEntry& entry = MakeEntry();
    entry.SetFontSize(7);
    EXPECT_EQ(8u, entry.Font->Size);
    entry.SetFontSize(20);
    EXPECT_EQ(20u, entry.Font->Size);
    entry.SetFontSize(4000000000);
    EXPECT_EQ(96u, entry.Font->Size);
}
