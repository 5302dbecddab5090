#include "tests/unit/Allocations.h"
#include "tests/unit/TextEditTest.h"

namespace {

class TeskTextEditTest : public TextEditTest
{
};

} // namespace

TEST_F(TeskTextEditTest, MarkupGivesItsFields)
{
    const TeskTextEdit& edit = Show("",
        "<Border>2</Border><CaretTexture Filename='#caret'/><CaretOverwriteTexture Filename='#over'/>"
        "<BackgroundColor>ff102030</BackgroundColor>");
    EXPECT_EQ(0xff0000ccu, edit.SelectionColor);
    EXPECT_EQ(0xff0000aau, edit.CaretOuterColor);
    EXPECT_EQ(0xff0000bbu, edit.CaretInnerColor);
    EXPECT_EQ(2u, edit.Border);
    EXPECT_EQ(0xff102030u, edit.BackgroundColor);
    EXPECT_TRUE(edit.CaretTexture);
    EXPECT_TRUE(edit.CaretOverwriteTexture);
    ASSERT_TRUE(edit.Font);
    EXPECT_EQ(10, edit.Font->Size);
    EXPECT_TRUE(edit.InsertMode);
}

TEST_F(TeskTextEditTest, WithoutMarkupColoursAreClearAndTheFontIsTheUsualOne)
{
    const auto& edit = Make<TeskTextEdit>("textedit", "<VerticalScrollBar>bar</VerticalScrollBar>");
    EXPECT_EQ(0u, edit.SelectionColor | edit.CaretOuterColor | edit.CaretInnerColor | edit.Border);
    EXPECT_FALSE(edit.CaretTexture || edit.CaretOverwriteTexture);
    EXPECT_EQ(12, edit.Font->Size);
    EXPECT_TRUE(edit.Font->Fixed);
}

TEST_F(TeskTextEditTest, TheTemplateOfItsKindGivesWhatItDoesNotSay)
{
    g_UIManager.AddTemplate("textedit",
        "<Template><SelectionColor>ff000001</SelectionColor><CaretInnerColor>ff000002</CaretInnerColor>"
        "<VerticalScrollBar>bar</VerticalScrollBar></Template>");
    const auto& edit = Make<TeskTextEdit>("textedit", "<CaretInnerColor>ff000003</CaretInnerColor>");
    EXPECT_EQ(0xff000001u, edit.SelectionColor);
    EXPECT_EQ(0xff000003u, edit.CaretInnerColor);
    EXPECT_TRUE(edit.ScrollBar);
}

TEST_F(TeskTextEditTest, ItIsATextEditAndAFrame)
{
    TeskTextEdit& edit = Show();
    for (const char* word : {"textedit", "TextEdit", "frame"})
        EXPECT_TRUE(edit.IsTypeOf(word)) << word;
    for (const char* word : {"textentry", "listbox", ""})
        EXPECT_FALSE(edit.IsTypeOf(word)) << word;
}

TEST_F(TeskTextEditTest, ANameOfATemplateMakesAScrollBarAtTheRightEdge)
{
    const TeskTextEdit& edit = Show();
    ASSERT_TRUE(edit.ScrollBar);
    EXPECT_EQ("vertical", edit.ScrollBar->Name);
    EXPECT_EQ(16u, edit.ScrollBar->Width);
    EXPECT_EQ(63, edit.ScrollBar->X);
    EXPECT_EQ(52u, edit.ScrollBar->Height);
    EXPECT_TRUE(edit.ScrollBar->Visible);
    EXPECT_TRUE(edit.ScrollBar->Vertical);
}

TEST_F(TeskTextEditTest, TheScrollBarMayBeAnElementOfItsOwn)
{
    const auto& edit = Make<TeskTextEdit>("textedit",
        "<VerticalScrollBar><X>5</X><Width>20</Width><Height>30</Height><Range>77</Range>"
        "<Slider><Width>20</Width><Height>30</Height><Range>50</Range><Vertical/></Slider></VerticalScrollBar>");
    ASSERT_TRUE(edit.ScrollBar);
    EXPECT_EQ(20u, edit.ScrollBar->Width);
    EXPECT_EQ(5, edit.ScrollBar->X);
    EXPECT_EQ(1u, edit.ScrollBar->Range);
    EXPECT_EQ(1u, edit.ScrollBar->GetValue());
}

TEST_F(TeskTextEditTest, WithoutAScrollBarOrAFontItIsNotMade)
{
    EXPECT_EQ(
        nullptr, g_UIManager.LoadElement(&Parent, "textedit", "None", nullptr, nullptr) ? Parent.FirstChild : nullptr);
    XMLNode* node = g_UIManager.AddTemplate("no bar", "<Template><Font/></Template>");
    EXPECT_EQ(nullptr, g_UIManager.LoadElement(&Parent, "textedit", "None", node, nullptr));
    node = g_UIManager.AddTemplate("broken bar",
        "<Template><VerticalScrollBar><Slider><Handle/></Slider><UpButton/></VerticalScrollBar></Template>");
    EXPECT_NE(nullptr, g_UIManager.LoadElement(&Parent, "textedit", "Some", node, nullptr));
}

TEST_F(TeskTextEditTest, AfterLoadingThereIsOneEmptyLineWithTheCaret)
{
    const auto& edit = Make<TeskTextEdit>("textedit", "<VerticalScrollBar>bar</VerticalScrollBar>");
    EXPECT_EQ((Strings{""}), Texts(edit));
    EXPECT_EQ("0:0", CaretOf(edit));
    EXPECT_EQ("0:0", At(edit.View.ViewTop));
    EXPECT_EQ("none-none", SelectionOf(edit));
    EXPECT_EQ(1u, edit.ScrollBar->Slider->Range);
    EXPECT_EQ(1u, edit.ScrollBar->GetValue());
}

TEST_F(TeskTextEditTest, ATextIsCutAtLineFeedsAndACarriageReturnBeforeOneGoes)
{
    TeskTextEdit& edit = Show("one\r\ntwo\n\nfo\rur\r\r\nfive\r");
    EXPECT_EQ((Strings{"one", "two", "", "fo\rur\r", "five\r"}), Texts(edit));
    edit.SetText("\r\n\n");
    EXPECT_EQ((Strings{"", "", ""}), Texts(edit));
}

TEST_F(TeskTextEditTest, ATextThatEndsInALineFeedHasAnEmptyLastLine)
{
    EXPECT_EQ((Strings{"a", ""}), Texts(Show("a\n")));
}

TEST_F(TeskTextEditTest, AnEmptyTextIsOneEmptyLine)
{
    TeskTextEdit& edit = Show("a\nb");
    edit.SetText("");
    EXPECT_EQ((Strings{""}), Texts(edit));
    edit.SetText(nullptr);
    EXPECT_EQ((Strings{""}), Texts(edit));
}

TEST_F(TeskTextEditTest, ANewTextPutsCaretAndViewOnItsFirstLine)
{
    TeskTextEdit& edit = Show("0\n1\n2\n3\n4\n5");
    PressControl(edit, KeyEnd);
    PressShift(edit, KeyLeft);
    edit.SetText("a\nb\nc\nd\ne");
    EXPECT_EQ("0:0", CaretOf(edit));
    EXPECT_EQ("0:0", At(edit.View.ViewTop));
    EXPECT_EQ("none-none", SelectionOf(edit));
    EXPECT_EQ(5u, edit.ScrollBar->Range);
    EXPECT_EQ(1u, edit.ScrollBar->GetValue()) << "the bar follows with the first move only";
    Press(edit, KeyDown);
    EXPECT_EQ(4u, edit.ScrollBar->GetValue());
    EXPECT_EQ("1:0", CaretOf(edit));
}

TEST_F(TeskTextEditTest, ATextMayBeThatOfALineWhichItReplaces)
{
    TeskTextEdit& edit = Show("a long first line\nsecond");
    edit.SetText(edit.Lines.First()->Text);
    EXPECT_EQ((Strings{"a long first line"}), Texts(edit));
    Type(edit, "x");
    edit.SetText(edit.Lines.First()->Text);
    EXPECT_EQ((Strings{"xa long first line"}), Texts(edit));
    edit.AddText(edit.Lines.First()->Text);
    edit.AddLine(edit.Lines.First()->Text);
    edit.Lines.First()->Cut(1);
    EXPECT_EQ((Strings{"x", "xa long first line", "xa long first line"}), Texts(edit));
}

TEST_F(TeskTextEditTest, AddedLinesFollowAndTheBarKeepsToTheCaret)
{
    TeskTextEdit& edit = Show("a\nb");
    Press(edit, KeyDown);
    edit.AddText("c\nd");
    edit.AddLine("e\nf");
    EXPECT_EQ((Strings{"a", "b", "c", "d", "e\nf"}), Texts(edit));
    EXPECT_EQ("1:0", CaretOf(edit));
    EXPECT_EQ(5u, edit.ScrollBar->Range);
    EXPECT_EQ(4u, edit.ScrollBar->GetValue());
}

TEST_F(TeskTextEditTest, ALineIsInsertedBehindAnotherOrInFrontOfAll)
{
    TeskTextEdit& edit = Show("b\nd");
    PressControl(edit, KeyEnd);
    const CTextEditLine* line = edit.InsertLineAfter(edit.Lines.First(), "c");
    EXPECT_EQ(1u, line->GetNumber());
    EXPECT_EQ(0u, edit.InsertLineAfter(nullptr, "a")->GetNumber());
    EXPECT_EQ((Strings{"a", "b", "c", "d"}), Texts(edit));
    EXPECT_EQ("3:1", CaretOf(edit));
    EXPECT_EQ(4u, edit.ScrollBar->Range);
    EXPECT_EQ(1u, edit.ScrollBar->GetValue());
    PressControl(edit, KeyHome);
    edit.InsertLineAfter(edit.Lines.Last(), "e");
    EXPECT_EQ(5u, edit.ScrollBar->GetValue());
}

TEST_F(TeskTextEditTest, RemovingTheOnlyLineEmptiesIt)
{
    TeskTextEdit& edit = Show("words");
    Press(edit, KeyEnd);
    edit.RemoveLine(edit.Lines.First(), true);
    EXPECT_EQ((Strings{""}), Texts(edit));
    EXPECT_EQ("0:0", CaretOf(edit));
    edit.RemoveLine(nullptr, true);
    EXPECT_EQ((Strings{""}), Texts(edit));
}

TEST_F(TeskTextEditTest, ARemovedLineHandsItsPositionsOn)
{
    for (const bool upward : {false, true}) {
        TeskTextEdit& edit = Show("first\nsecond\nth");
        PutCaret(edit, 1, 4);
        edit.View.ViewTop = edit.View.Caret;
        edit.Selection.Collapse(edit.View.Caret);
        edit.RemoveLine(edit.View.Caret.Line, upward);
        EXPECT_EQ((Strings{"first", "th"}), Texts(edit));
        EXPECT_EQ(upward ? "0:4" : "1:2", CaretOf(edit));
        EXPECT_EQ(upward ? "0:4" : "1:4", At(edit.View.ViewTop));
        EXPECT_EQ(upward ? "0:4" : "1:4", At(edit.Selection.SelectionEnd));
        EXPECT_EQ(2u, edit.ScrollBar->Range);
        EXPECT_EQ(upward ? 2u : 1u, edit.ScrollBar->GetValue());
        g_UIManager.Screen->DeleteChild(&edit);
    }
}

TEST_F(TeskTextEditTest, AtTheEndsARemovedLineHasOneNeighbour)
{
    TeskTextEdit& edit = Show("a\nb\nc");
    edit.RemoveLine(edit.Lines.First(), true);
    EXPECT_EQ("0:0", CaretOf(edit));
    Press(edit, KeyDown);
    edit.RemoveLine(edit.Lines.Last(), false);
    EXPECT_EQ("0:0", CaretOf(edit));
    EXPECT_EQ((Strings{"b"}), Texts(edit));
}

TEST_F(TeskTextEditTest, InsertTextAndPasteClipboardDoNothing)
{
    TeskTextEdit& edit = Show("words");
    TextEditPos position = edit.View.Caret;
    edit.InsertText(position, "more");
    System.Clipboard = "clip";
    edit.PasteClipboard();
    EXPECT_EQ((Strings{"words"}), Texts(edit));
}

TEST_F(TeskTextEditTest, TheParentHearsOfNoChange)
{
    auto& edit = Make<TeskTextEdit>("textedit", "<VerticalScrollBar>bar</VerticalScrollBar>");
    Parent.Heard.clear();
    Type(edit, "ab");
    edit.HandleEnter();
    edit.HandleBackspace();
    edit.HandleUp(1);
    EXPECT_TRUE(Parent.Heard.empty());
}

TEST_F(TeskTextEditTest, ItLivesOnWithoutItsScrollBar)
{
    TeskTextEdit& edit = Show("a\nb\nc");
    edit.DeleteChild(edit.ScrollBar);
    EXPECT_EQ(nullptr, edit.ScrollBar);
    edit.HandleDown(1);
    edit.HandleEnter();
    edit.HandleBackspace();
    edit.OnMouseWheel(120);
    _Point2i point = PointOn(2, 0);
    edit.OnLMouseDown(point);
    edit.AddText("d");
    edit.SetText("new");
    Frame();
    EXPECT_EQ((Strings{"new"}), Texts(edit));
}

TEST_F(TeskTextEditTest, AnEditWithoutMarkupHasNoLinesUntilItGetsSome)
{
    auto& edit = dynamic_cast<TeskTextEdit&>(*g_UIManager.LoadElement(&Parent, "textedit", "Bare"));
    for (u32 key = 0; key < 300; ++key) {
        PressShift(edit, key);
        PressControl(edit, key);
    }
    _Point2i point = {5, 5};
    edit.OnLMouseDown(point);
    edit.OnMouseMove(point);
    edit.OnLMouseUp(point);
    edit.OnMouseWheel(-120);
    edit.Render();
    EXPECT_EQ(Strings(), Texts(edit));
    EXPECT_EQ("none", CaretOf(edit));
    edit.AddText("a\nb");
    edit.HandleDown(1);
    EXPECT_EQ("none", CaretOf(edit));
    edit.SetText("c\nd");
    edit.HandleDown(1);
    EXPECT_EQ("1:0", CaretOf(edit));
}

TEST_F(TeskTextEditTest, AScriptOfTheBarMayEndItAnywhere)
{
    const std::vector<std::function<void(TeskTextEdit&)>> acts = {
        [](TeskTextEdit& edit) { edit.SetText("x"); },
        [](TeskTextEdit& edit) { edit.AddText("x\ny\nz"); },
        [](TeskTextEdit& edit) { edit.AddLine("x"); },
        [](TeskTextEdit& edit) { edit.InsertLineAfter(edit.Lines.Last(), "x"); },
        [](TeskTextEdit& edit) { edit.RemoveLine(edit.Lines.Last(), false); },
        [](TeskTextEdit& edit) { edit.HandleUp(2); },
        [](TeskTextEdit& edit) { edit.HandleDown(1); },
        [](TeskTextEdit& edit) { edit.HandlePageUp(); },
        [](TeskTextEdit& edit) { edit.HandleCtrlHome(); },
        [](TeskTextEdit& edit) { edit.HandleCtrlEnd(); },
        [](TeskTextEdit& edit) { edit.SelectAll(); },
        [](TeskTextEdit& edit) { edit.HandleEnter(); },
        [](TeskTextEdit& edit) { edit.OnKeyDown(KeyEnter); },
        [](TeskTextEdit& edit) { edit.OnKeyDown(KeyDown); },
        [](TeskTextEdit& edit) { edit.OnMouseWheel(120); },
        [](TeskTextEdit& edit) {
            _Point2i point = PointOn(0, 0);
            edit.OnLMouseDown(point);
        },
    };
    for (std::size_t index = 0; index < acts.size(); ++index) {
        TeskTextEdit& edit = Show("first\nsecond\nthird\nfourth");
        PutCaret(edit, 2, 3);
        edit.ScrollBar->SetValue(2);
        bool ran = false;
        Host.Scripts["change"] = [&](TeskElement&) {
            ran = true;
            if (TeskElement* found = g_UIManager.FindElement("E"))
                g_UIManager.Screen->DeleteChild(found);
        };
        acts[index](edit);
        EXPECT_TRUE(ran) << index;
        EXPECT_EQ(nullptr, g_UIManager.FindElement("E")) << index;
        Host.Scripts.clear();
    }
}

TEST_F(TeskTextEditTest, AScriptOfTheBarMayReplaceTheTextMeanwhile)
{
    TeskTextEdit& edit = Show("first\nsecond\nthird\nfourth");
    int depth = 0;
    Host.Scripts["change"] = [&](TeskElement&) {
        if (++depth < 3)
            edit.SetText("other");
        --depth;
    };
    for (const u32 key : {u32{KeyDown}, u32{KeyEnter}, u32{KeyBackspace}, u32{KeyDelete}, u32{KeyUp}}) {
        edit.SetText("first\nsecond\n\nfourth");
        PutCaret(edit, 2, 0);
        Press(edit, key);
        EXPECT_TRUE(edit.Lines.IsConsistent()) << key;
    }
    edit.AddText("more\nlines\nhere");
    EXPECT_TRUE(edit.Lines.IsConsistent());
}

TEST_F(TeskTextEditTest, WithoutMemoryTheTextStays)
{
    TeskTextEdit& edit = Show("first\nsecond");
    PutCaret(edit, 0, 3);
    for (std::size_t allowed = 0; allowed < 12; ++allowed) {
        Allocations::FailAfter(allowed, Allocations::Failing::FromThenOn);
        edit.HandleEnter();
        edit.HandleBackspace();
        edit.InsertCharacter('x');
        edit.CopySelection();
        edit.AddText("a\nb");
        Allocations::Allow();
        EXPECT_TRUE(edit.Lines.IsConsistent()) << allowed;
    }
}

TEST_F(TeskTextEditTest, ALineOfMegabytesIsEdited)
{
    const std::string text(4'000'000, 'x');
    TeskTextEdit& edit = Show(text.c_str());
    for (int time = 0; time < 100; ++time)
        Type(edit, "y");
    Press(edit, KeyEnd);
    EXPECT_EQ("0:4000100", CaretOf(edit));
    Frame();
    PutCaret(edit, 0, 2'000'000);
    edit.HandleEnter();
    EXPECT_EQ(2u, edit.Lines.Count());
    Frame();
    edit.HandleBackspace();
    edit.SelectAll();
    EXPECT_EQ(4'000'100u, edit.Selection.Text().size());
    Frame();
}
