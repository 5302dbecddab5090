// The input line of a console: what it runs, what it remembers, and what its keys do.

#include "teskara/text/TeskCommandEntry.h"

#include "teskara/element/TeskElementFactory.h"
#include "teskara/text/TeskConsole.h"
#include "teskara/text/TextKeys.h"
#include "tests/unit/PressTest.h"

#include <string>
#include <string_view>
#include <vector>

namespace {

using Heard = std::vector<std::string>;

class TeskCommandEntryTest : public PressTest
{
protected:
    TeskCommandEntryTest() { Host.Recorded = RecordCommands; }

    TeskCommandEntry& MakeEntry(const std::string& markup = "<CommandHistory>3</CommandHistory>")
    {
        return Make<TeskCommandEntry>("commandentry", "<MaxLength>20</MaxLength>" + markup);
    }

    // Types a line and enters it.
    static void Enter(TeskCommandEntry& entry, std::string_view line)
    {
        Type(entry, line);
        entry.OnKeyDown(KeyEnter);
    }

    static void Type(TeskCommandEntry& entry, std::string_view text)
    {
        for (const char byte : text)
            entry.InsertCharacter(byte);
    }

    // What the entry holds after a key.
    static std::string After(TeskCommandEntry& entry, u32 key)
    {
        EXPECT_TRUE(entry.OnKeyDown(key)) << key;
        return entry.Text.Bytes();
    }
};

} // namespace

TEST_F(TeskCommandEntryTest, MarkupGivesItsFields)
{
    const auto& entry =
        MakeEntry("<Console>Status</Console><OnCommand>run</OnCommand><CommandHistory>7</CommandHistory>"
                  "<Border>2</Border>");
    EXPECT_EQ("Status", entry.Console);
    EXPECT_EQ(7u, entry.CommandHistory);
    EXPECT_EQ(1u, entry.History.Count());
    EXPECT_TRUE(entry.OnCommandScript);
    EXPECT_EQ(2u, entry.Border);
    EXPECT_EQ(20u, entry.MaxLength);
}

TEST_F(TeskCommandEntryTest, ValuesFallBackToTheTemplateOfItsOwnKind)
{
    g_UIManager.AddTemplate("commandentry", "<Template><Console>Status</Console><Border>3</Border></Template>");
    g_UIManager.AddTemplate("textentry", "<Template><Border>4</Border></Template>");
    const auto& entry = Make<TeskCommandEntry>("commandentry");
    EXPECT_EQ("Status", entry.Console);
    EXPECT_EQ(3u, entry.Border);
    EXPECT_EQ(0u, entry.CommandHistory);
    EXPECT_EQ(0u, entry.History.Count());
}

TEST_F(TeskCommandEntryTest, IsACommandEntryAndATextEntry)
{
    TeskCommandEntry& entry = MakeEntry();
    EXPECT_TRUE(entry.IsTypeOf("CommandEntry"));
    EXPECT_TRUE(entry.IsTypeOf("textentry"));
    EXPECT_FALSE(entry.IsTypeOf("console"));
    EXPECT_FALSE(entry.IsTypeOf(nullptr));
}

TEST_F(TeskCommandEntryTest, EnterRunsTheLineAndEmptiesTheEntry)
{
    TeskCommandEntry& entry = MakeEntry("<OnChange>change</OnChange>");
    int changes = 0;
    Host.Scripts["change"] = [&](TeskElement&) { ++changes; };
    Enter(entry, "go");
    EXPECT_EQ("ExecuteCommand \"go\"\n", Host.TakeCalls());
    EXPECT_STREQ("", entry.Text.Bytes());
    EXPECT_EQ(0u, entry.Text.CaretPos);
    EXPECT_EQ(2, changes); // one for each byte
    EXPECT_EQ(2u, Parent.Heard.size()); // no word of the Enter
    EXPECT_EQ(0u, entry.Repeat.HeldKey);
}

TEST_F(TeskCommandEntryTest, BothEnterKeysRunTheLine)
{
    TeskCommandEntry& entry = MakeEntry();
    Type(entry, "go");
    EXPECT_EQ("", After(entry, KeySeparator));
    EXPECT_EQ("ExecuteCommand \"go\"\n", Host.TakeCalls());
    EXPECT_EQ(u32{KeySeparator}, entry.Repeat.HeldKey);
}

TEST_F(TeskCommandEntryTest, AnEmptyLineIsNeitherRunNorKept)
{
    TeskCommandEntry& entry = MakeEntry();
    Enter(entry, "");
    EXPECT_EQ("", Host.TakeCalls());
    EXPECT_EQ(1u, entry.History.Count());
}

TEST_F(TeskCommandEntryTest, TheOutputGoesToItsConsoleForAsLongAsTheCommandRuns)
{
    TeskCommandEntry& entry = MakeEntry("<Console>Status</Console>");
    Host.Console = "Before";
    std::string during;
    Host.Commands["go"] = [&] { during = Host.Console; };
    Enter(entry, "go");
    EXPECT_EQ("Status", during);
    EXPECT_EQ("Before", Host.Console);
}

TEST_F(TeskCommandEntryTest, AScriptRunsTheLineInPlaceOfTheHost)
{
    TeskCommandEntry& entry = MakeEntry("<OnCommand>run</OnCommand>");
    std::string ran;
    Host.Scripts["run"] = [&](TeskElement& self) { ran = dynamic_cast<TeskCommandEntry&>(self).Text.Bytes(); };
    Enter(entry, "go on");
    EXPECT_EQ("go on", ran);
    EXPECT_EQ("", Host.TakeCalls());
}

TEST_F(TeskCommandEntryTest, ACommandMayDeleteTheEntry)
{
    TeskCommandEntry& entry = MakeEntry("<Console>Status</Console><OnKeyDown>key</OnKeyDown>");
    bool ran = false;
    Host.NamesKeys = true;
    Host.Scripts["key"] = [&](TeskElement&) { ran = true; };
    Host.Commands["go"] = [&] { Parent.DeleteChild(Parent.FirstChild); };
    Enter(entry, "go");
    EXPECT_TRUE(IsGone());
    EXPECT_FALSE(ran);
}

TEST_F(TeskCommandEntryTest, TheArrowsWalkAmongTheLinesEntered)
{
    TeskCommandEntry& entry = MakeEntry();
    for (const char* line : {"a", "b", "c", "d"})
        Enter(entry, line);
    EXPECT_EQ("d", After(entry, KeyUp));
    EXPECT_EQ(1u, entry.Text.CaretPos);
    EXPECT_EQ("c", After(entry, KeyUp));
    EXPECT_EQ("b", After(entry, KeyUp));
    EXPECT_EQ("d", After(entry, KeyUp));
    EXPECT_EQ("b", After(entry, KeyDown));
    EXPECT_EQ(u32{KeyDown}, entry.Repeat.HeldKey);
}

TEST_F(TeskCommandEntryTest, AFreshHistoryHasABlankLine)
{
    TeskCommandEntry& entry = MakeEntry();
    Type(entry, "abc");
    EXPECT_EQ("", After(entry, KeyUp));
    Type(entry, "abc");
    EXPECT_EQ("", After(entry, KeyDown));
    Enter(entry, "!");
    EXPECT_EQ("ExecuteCommand \"\"\n", Host.TakeCalls());
}

TEST_F(TeskCommandEntryTest, ALoneExclamationMarkRepeatsTheLineInTheLastSlot)
{
    TeskCommandEntry& entry = MakeEntry();
    Enter(entry, "a");
    Enter(entry, "b");
    Host.TakeCalls();
    Enter(entry, "!");
    EXPECT_EQ("ExecuteCommand \"b\"\n", Host.TakeCalls());
    Enter(entry, "c");
    Enter(entry, "d");
    Host.TakeCalls();
    Enter(entry, "!");
    EXPECT_EQ("ExecuteCommand \"b\"\n", Host.TakeCalls()); // the ring has come round
    EXPECT_EQ("d", After(entry, KeyUp)); // what is repeated is not kept anew
    Enter(entry, "!!");
    EXPECT_EQ("ExecuteCommand \"d!!\"\n", Host.TakeCalls());
}

TEST_F(TeskCommandEntryTest, WithoutAHistoryNothingIsRecalledOrRepeated)
{
    TeskCommandEntry& entry = MakeEntry("");
    Enter(entry, "a");
    Host.TakeCalls();
    Type(entry, "!");
    EXPECT_EQ("!", After(entry, KeyUp));
    EXPECT_EQ("!", After(entry, KeyDown));
    EXPECT_EQ("!", After(entry, KeyEnter));
    EXPECT_EQ("", Host.TakeCalls());
}

TEST_F(TeskCommandEntryTest, ARecalledLineIsCutToTheLengthAndToldToNobody)
{
    TeskCommandEntry& entry = MakeEntry("<CommandHistory>3</CommandHistory><OnChange>change</OnChange>");
    Enter(entry, "abcdef");
    int changes = 0;
    Host.Scripts["change"] = [&](TeskElement&) { ++changes; };
    Parent.Heard.clear();
    entry.MaxLength = 4;
    EXPECT_EQ("abcd", After(entry, KeyUp));
    EXPECT_EQ(4u, entry.Text.TextLength);
    EXPECT_EQ(0, changes);
    EXPECT_EQ((Heard{}), Parent.Heard);
}

TEST_F(TeskCommandEntryTest, EscapeEmptiesTheLineUnlessTheCaretIsAtItsStart)
{
    TeskCommandEntry& entry = MakeEntry();
    Type(entry, "abc");
    EXPECT_EQ("", After(entry, KeyEscape));
    Type(entry, "abc");
    entry.Text.MoveToStart();
    EXPECT_EQ("abc", After(entry, KeyEscape));
}

TEST_F(TeskCommandEntryTest, TabHasTheHostCompleteTheLine)
{
    TeskCommandEntry& entry = MakeEntry();
    Host.Complete = [](const std::string& line, bool shift) { return line + (shift ? "-" : "+"); };
    EXPECT_EQ("", After(entry, KeyTab));
    Type(entry, "ab");
    EXPECT_EQ("ab+", After(entry, KeyTab));
    EXPECT_EQ(3u, entry.Text.CaretPos);
    g_UIManager.ShiftDown = true;
    EXPECT_EQ("ab+-", After(entry, KeyTab));
    g_UIManager.ShiftDown = false;
    Host.Complete = [](const std::string&, bool) { return std::string(5000, 'x'); };
    EXPECT_EQ(std::string(20, 'x'), After(entry, KeyTab));
    EXPECT_EQ(20u, entry.Text.CaretPos);
    Host.Complete = nullptr;
    EXPECT_EQ(std::string(20, 'x'), After(entry, KeyTab));
}

TEST_F(TeskCommandEntryTest, ACompletionMayDeleteTheEntry)
{
    TeskCommandEntry& entry = MakeEntry();
    Host.Complete = [&](const std::string& line, bool) {
        Parent.DeleteChild(Parent.FirstChild);
        return line;
    };
    Type(entry, "ab");
    EXPECT_TRUE(entry.OnKeyDown(KeyTab));
    EXPECT_TRUE(IsGone());
}

TEST_F(TeskCommandEntryTest, KeysScrollTheConsoleBesideIt)
{
    class Output : public TeskConsole
    {
    public:
        using TeskConsole::TeskConsole;
        bool IsTypeOf(const char* word) override { return IsConsole && TeskConsole::IsTypeOf(word); }
        void HandlePageUp() override { Calls += "PU "; }
        void HandlePageDown() override { Calls += "PD "; }
        void HandleUp() override { Calls += "U "; }
        void HandleDown() override { Calls += "D "; }

        bool IsConsole = true;
        std::string Calls;
    };

    TeskCommandEntry& entry = MakeEntry();
    const TeskFactory<Output> factory("output");
    EXPECT_EQ("", After(entry, KeyPageUp));
    auto& output = dynamic_cast<Output&>(*g_UIManager.LoadElement(&Parent, "output", "Output"));
    After(entry, KeyPageUp);
    After(entry, KeyPageDown);
    After(entry, KeyUp);
    g_UIManager.ShiftDown = true;
    After(entry, KeyUp);
    After(entry, KeyDown);
    g_UIManager.ShiftDown = false;
    EXPECT_EQ("PU PD U D ", output.Calls);
    EXPECT_EQ(u32{KeyDown}, entry.Repeat.HeldKey);
    output.IsConsole = false;
    After(entry, KeyPageUp);
    EXPECT_EQ("PU PD U D ", output.Calls);
}

TEST_F(TeskCommandEntryTest, AnotherKindNamedAsTheConsoleIsLeftAlone)
{
    class Pretender : public TeskElement
    {
    public:
        using TeskElement::TeskElement;
        bool IsTypeOf(const char*) override { return true; }
    };

    const TeskFactory<Pretender> factory("pretender");
    TeskCommandEntry& entry = MakeEntry();
    g_UIManager.LoadElement(&Parent, "pretender", "output");
    EXPECT_EQ("", After(entry, KeyPageDown));
}

TEST_F(TeskCommandEntryTest, EachPastedLineIsRun)
{
    TeskCommandEntry& entry = MakeEntry();
    System.Clipboard = "one\r\ntwo\n\nthr\bee";
    entry.PasteClipboard();
    EXPECT_EQ("ExecuteCommand \"one\"\nExecuteCommand \"two\"\n", Host.TakeCalls());
    EXPECT_STREQ("thee", entry.Text.Bytes());
}

TEST_F(TeskCommandEntryTest, APastedCommandMayDeleteTheEntry)
{
    System.Clipboard = "one\ntwo\n";
    Host.Commands["one"] = [&] { Parent.DeleteChild(Parent.FirstChild); };
    MakeEntry().PasteClipboard();
    EXPECT_EQ("ExecuteCommand \"one\"\n", Host.TakeCalls());
    EXPECT_TRUE(IsGone());
}

TEST_F(TeskCommandEntryTest, MadeWithoutMarkupItRunsNothing)
{
    auto& entry = dynamic_cast<TeskCommandEntry&>(*g_UIManager.LoadElement(&Parent, "commandentry", "C"));
    for (const u32 key : {u32{KeyTab}, u32{KeyEnter}, u32{KeyEscape}, u32{KeyPageUp}, u32{KeyUp}, u32{KeyDown}})
        EXPECT_TRUE(entry.OnKeyDown(key));
    EXPECT_EQ("", Host.TakeCalls());
}
