#pragma once

#include "teskara/collections/TeskListBox.h"
#include "teskara/controls/TeskScrollBar.h"
#include "tests/unit/PressTest.h"

#include <string>
#include <vector>

// Tests of lists: rows are 10 high, and scroll bars have a slider of their height.
class ListTest : public PressTest
{
protected:
    ListTest()
    {
        g_UIManager.AddTemplate("bar",
            "<Template><Slider><Width>16</Width><Height>100%</Height><Vertical>1</Vertical></Slider></Template>");
    }

    // A list under the listener, 100 by 40, which is four rows.
    TeskListBox& MakeList(const std::string& markup = {}, const char* attributes = "")
    {
        return Make<TeskListBox>("listbox",
            "<Width>100</Width><Height>40</Height><Font><Size>9</Size></Font><ScrollBar>bar</ScrollBar>" + markup,
            attributes);
    }

    // The same with rows of these texts.
    TeskListBox& MakeListOf(const std::vector<std::string>& texts, const std::string& markup = {})
    {
        TeskListBox& list = MakeList(markup);
        for (const std::string& text : texts)
            list.AddItem(text.c_str(), text.c_str(), 0);
        Parent.Heard.clear();
        return list;
    }

    // The texts from top to bottom.
    static std::vector<std::string> Texts(TeskListBox& list)
    {
        std::vector<std::string> texts;
        for (u32 row = 0; row < list.GetItemCount(); ++row) {
            EXPECT_EQ(row, list.OrderOf(*list.RetrieveOrdered(row)));
            texts.push_back(list.RetrieveOrdered(row)->Text.value_or("(none)"));
        }
        return texts;
    }

    // What the listener has heard since the last question.
    std::vector<std::string> TakeHeard() { return std::exchange(Parent.Heard, {}); }

    // The middle of a row that shows.
    static _Point2i PointOn(const TeskListBox& list, u32 row)
    {
        return {list.AbsoluteX + 5, list.AbsoluteY + static_cast<i32>(list.Border + row * 10 + 5)};
    }

    static bool PressOn(TeskListBox& list, u32 row)
    {
        _Point2i point = PointOn(list, row);
        return list.OnLMouseDown(point);
    }

    static bool DragTo(TeskListBox& list, u32 row)
    {
        _Point2i point = PointOn(list, row);
        return list.OnMouseMove(point);
    }

    using Strings = std::vector<std::string>;
};
