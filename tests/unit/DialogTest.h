#pragma once

#include "teskara/controls/TeskButton.h"
#include "teskara/controls/TeskText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/windows/TeskWindow.h"
#include "tests/unit/ScriptHost.h"
#include "tests/unit/ToolkitTest.h"

#include <string>

// Tests of dialogs, on a screen of 800 by 600; letters are 6 wide.
class DialogTest : public ToolkitTest
{
protected:
    // Values of the template of a dialog, beside a client that takes all of the inside.
    static void SetLook(const char* name, const std::string& values = {})
    {
        const std::string markup =
            "<Template><Client><Width>100%</Width><Height>100%</Height></Client>" + values + "</Template>";
        g_UIManager.AddTemplate(name, markup.c_str());
    }

    template <class Box> static Box& MakeBox(const char* kind, const char* name = "Box")
    {
        return dynamic_cast<Box&>(*g_UIManager.LoadElement(g_UIManager.Screen, kind, name));
    }

    static std::string PlaceOf(const TeskElement* element)
    {
        if (!element)
            return "none";
        return std::to_string(element->X) + ',' + std::to_string(element->Y) + ' ' + std::to_string(element->Width)
            + 'x' + std::to_string(element->Height);
    }

    static TeskText& TextOf(TeskElement& area) { return dynamic_cast<TeskText&>(*area.FindChild("Text")); }

    static void Click(TeskElement* button)
    {
        _Point2i point = {0, 0};
        const ElementWatch watch(button);
        button->OnLMouseDown(point);
        if (watch.Exists())
            button->OnLMouseUp(point);
    }

    // n lines of one letter.
    static std::string Lines(int n)
    {
        std::string text = "x";
        for (int line = 1; line < n; ++line)
            text += "\nx";
        return text;
    }
};
