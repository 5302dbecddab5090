#pragma once

#include "teskara/controls/TeskButton.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/controls/TeskSlider.h"
#include "teskara/text/TeskTextEdit.h"
#include "teskara/text/TextKeys.h"
#include "tests/unit/PressTest.h"

#include <string>
#include <vector>

// Tests of text edits. Rows are 12 high and columns 6 wide; three rows and ten columns show beside the scroll bar.
class TextEditTest : public PressTest
{
protected:
    using Strings = std::vector<std::string>;

    TextEditTest()
    {
        for (char letter = 'A'; letter <= 'Z'; ++letter)
            System.KeyTexts[static_cast<u32>(letter)] = std::string(1, static_cast<char>(letter - 'A' + 'a'));
        g_UIManager.AddTemplate("bar",
            "<Template><Slider><Width>16</Width><Height>100%</Height><Vertical/><OnChange>change</OnChange></Slider>"
            "</Template>");
    }

    ~TextEditTest() override
    {
        g_UIManager.ShiftDown = false;
        g_UIManager.CtrlDown = false;
    }

    // Loads the edit "E" under the screen at 10, 50 with a text and the keyboard, and draws it once.
    TeskTextEdit& Show(const char* text = "", const std::string& markup = {})
    {
        Load("<textedit name='E'><X>10</X><Y>50</Y><Width>79</Width><Height>52</Height>"
             "<Font><Size>10</Size><Color>ffffffff</Color></Font><SelectionColor>ff0000cc</SelectionColor>"
             "<CaretOuterColor>ff0000aa</CaretOuterColor><CaretInnerColor>ff0000bb</CaretInnerColor>"
             "<VerticalScrollBar>bar</VerticalScrollBar>"
            + markup + "</textedit>");
        TeskTextEdit& edit = As<TeskTextEdit>("E");
        edit.ScrollBar->DeleteChild(edit.ScrollBar->UpButton); // they would draw themselves
        edit.ScrollBar->DeleteChild(edit.ScrollBar->DownButton);
        edit.SetText(text);
        g_UIManager.SetFocusElement(&edit);
        Frame();
        return edit;
    }

    static Strings Texts(const TeskTextEdit& edit)
    {
        EXPECT_TRUE(edit.Lines.IsConsistent());
        Strings texts;
        for (const CTextEditLine* line = edit.Lines.First(); line; line = line->Next)
            texts.emplace_back(line->Bytes());
        return texts;
    }

    static std::string At(const TextEditPos& position)
    {
        return position.Line ? std::to_string(position.Line->GetNumber()) + ":" + std::to_string(position.Column)
                             : "none";
    }

    static std::string CaretOf(const TeskTextEdit& edit) { return At(edit.View.Caret); }

    static std::string SelectionOf(const TeskTextEdit& edit)
    {
        return At(edit.Selection.SelectionStart) + "-" + At(edit.Selection.SelectionEnd);
    }

    static void PutCaret(TeskTextEdit& edit, std::size_t line, u64 column)
    {
        edit.View.Caret = TextEditPos{edit.Lines.First(), column};
        while (line-- > 0)
            edit.View.Caret.Line = edit.View.Caret.Line->Next;
    }

    static bool Press(TeskTextEdit& edit, u32 key) { return edit.OnKeyDown(key); }

    static bool PressShift(TeskTextEdit& edit, u32 key)
    {
        g_UIManager.ShiftDown = true;
        const bool taken = edit.OnKeyDown(key);
        g_UIManager.ShiftDown = false;
        return taken;
    }

    static bool PressControl(TeskTextEdit& edit, u32 key)
    {
        g_UIManager.CtrlDown = true;
        const bool taken = edit.OnKeyDown(key);
        g_UIManager.CtrlDown = false;
        return taken;
    }

    static void Type(TeskTextEdit& edit, const char* text)
    {
        for (; *text; ++text)
            edit.InsertCharacter(*text);
    }

    // The middle of a place that shows.
    static _Point2i PointOn(int row, int column) { return {13 + column * 6 + 3, 53 + row * 12 + 6}; }
};
