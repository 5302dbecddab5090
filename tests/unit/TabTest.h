#pragma once

#include "teskara/collections/TeskTabControl.h"
#include "teskara/controls/TeskButton.h"
#include "teskara/controls/TeskFrame.h"
#include "teskara/markup/XMLNode.h"
#include "tests/unit/PressTest.h"

#include <string>
#include <vector>

// Tests of tab controls: the strip is 16 high, and a tab is 6 pixels wide for each letter and 16 more.
class TabTest : public PressTest
{
protected:
    // A control under the listener, 200 by 100, whose tabs lie between 16 and 184.
    TeskTabControl& MakeControl(const std::string& markup = {}, const char* attributes = "")
    {
        return Make<TeskTabControl>("tabcontrol",
            "<Width>200</Width><Height>100</Height><TabHeight>16</TabHeight><Font><Size>10</Size></Font>"
            "<TabTexture Filename='#plain'/><TabSelectedTexture Filename='#selected'/>"
                + markup,
            attributes);
    }

    // The same with empty tabs of these names.
    TeskTabControl& MakeControlOf(const std::vector<const char*>& names, const std::string& markup = {})
    {
        TeskTabControl& control = MakeControl(markup);
        for (const char* name : names)
            AddTo(control, name);
        Parent.Heard.clear();
        return control;
    }

    static u32 AddTo(TeskTabControl& control, const char* name) { return control.AddTab(name, nullptr, name, nullptr); }

    // Adds a tab with elements: what stands inside of the template.
    static u32 AddFilled(TeskTabControl& control, const char* name, const std::string& elements)
    {
        XMLNode* markup = g_UIManager.AddTemplate("The elements", ("<Template>" + elements + "</Template>").c_str());
        return control.AddTab(name, markup->FirstChild, name, nullptr);
    }

    // The names from left to right with a blank behind each, "-" for a free place.
    static std::string Names(const TeskTabControl& control)
    {
        std::string names;
        for (u32 place = 0; place < control.OrderedTabs.Places(); ++place) {
            const CTeskTab* tab = control.OrderedTabs.At(place);
            EXPECT_TRUE(!tab || (tab->Order == place && control.RetrieveTab(tab->ID) == tab));
            names += tab ? tab->Name + " " : "- ";
        }
        return names.substr(0, names.find_last_not_of("- ") + 1);
    }

    static bool PressAt(TeskTabControl& control, i32 x, i32 y = 5)
    {
        _Point2i point = {x, y};
        return control.OnLMouseDown(point);
    }

    static bool DragTo(TeskTabControl& control, i32 x, i32 y = 5)
    {
        _Point2i point = {x, y};
        return control.OnMouseMove(point);
    }

    // As the manager draws a child.
    std::string Draw(TeskTabControl& control)
    {
        Host.TakeCalls();
        control.Render();
        return Host.TakeCalls();
    }
};
