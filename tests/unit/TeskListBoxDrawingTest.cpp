#include "tests/unit/ListTest.h"

class TeskListBoxDrawingTest : public ToolkitTest
{
protected:
    // A list 100 by 40 at 100, 200 with these rows.
    TeskListBox& Place(const std::string& markup, std::initializer_list<const char*> texts)
    {
        Load("<listbox name='L'><X>100</X><Y>200</Y><Width>100</Width><Height>40</Height>"
             "<Font><Size>9</Size><Color>ffffffff</Color></Font><ScrollBar><Width>16</Width></ScrollBar>"
            + markup + "</listbox>");
        auto& list = As<TeskListBox>("L");
        for (const char* text : texts)
            list.AddItem(text, nullptr, 0);
        Host.TakeCalls();
        return list;
    }

    static std::string Row(const std::string& text, int left, int top, int right, const char* color = "ffffffff")
    {
        return "DrawText \"" + text + "\" (" + std::to_string(left) + "," + std::to_string(top) + ","
            + std::to_string(right) + ",600) " + color + " format=32 font 1\n";
    }
};

TEST_F(TeskListBoxDrawingTest, RowsAreDrawnBelowEachOtherAndCutBeforeTheEdge)
{
    Place("<BackgroundColor>ff000001</BackgroundColor>", {"a", "b"});
    EXPECT_EQ("DrawRect (100,200,200,240) ff000001\n" + Row("a", 103, 200, 197) + Row("b", 103, 210, 197), Frame());
}

TEST_F(TeskListBoxDrawingTest, ABorderInsetsTheRowsAndNotTheirNumber)
{
    TeskListBox& list = Place("<Border>2</Border><BorderColor>ff0000ff</BorderColor>", {"a", "b", "c", "d"});
    list.RetrieveItem(2)->Color = 0xff112233;
    list.SetItemText(3, nullptr);
    list.SelectionColor = 0xff00ff00;
    list.SelectItem(2);
    const std::string drawn = Frame();
    const std::string rows = Row("a", 105, 202, 193) + "DrawRect (102,212,198,221) ff00ff00\n"
        + Row("b", 105, 212, 193, "ff112233") + Row("d", 105, 232, 193);
    EXPECT_EQ(drawn.size() - rows.size(), drawn.find(rows)) << drawn;
}

TEST_F(TeskListBoxDrawingTest, TheScrollBarTakesItsWidthFromTheRows)
{
    TeskListBox& list = Place("", {"a", "b", "c", "d", "e"});
    list.TopOrder = 3;
    list.SelectionColor = 0xff00ff00;
    list.SelectItem(5);
    EXPECT_EQ("DrawRect (100,200,200,240) 00000000\n" + Row("d", 103, 200, 181)
            + "DrawRect (100,210,184,219) ff00ff00\n" + Row("e", 103, 210, 181),
        Frame());
}

TEST_F(TeskListBoxDrawingTest, ATopBeyondTheRowsDrawsNone)
{
    Place("", {"a"}).TopOrder = 0xffffffffu;
    EXPECT_EQ("DrawRect (100,200,200,240) 00000000\n", Frame());
}

TEST_F(TeskListBoxDrawingTest, ATextureReplacesTheBackground)
{
    TeskListBox& list = Place("<Texture Filename='#t'/><Border>1</Border>", {});
    const std::string plain = Frame();
    EXPECT_EQ(0u, plain.find("DrawTexturedRect")) << plain;
    EXPECT_NE(std::string::npos, plain.find("\nDrawRect")) << plain;
    list.Texture->Border = 3;
    EXPECT_EQ(std::string::npos, Frame().find("DrawRect"));
}
