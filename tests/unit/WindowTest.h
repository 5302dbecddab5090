#pragma once

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/windows/TeskWindow.h"
#include "tests/unit/ToolkitTest.h"

#include <string>

// Tests of windows. Their template has a title bar of 200 by 20 that shows something, with all it can have, and below it
// a client.
class WindowTest : public ToolkitTest
{
protected:
    WindowTest()
    {
        g_UIManager.LeftPressElementID = 0;
        g_UIManager.RightPressElementID = 0;
        g_UIManager.LastLeftClickElementID = 0;
        g_UIManager.LastRightClickElementID = 0;
        UseTemplate(TitleBarMarkup() + ClientMarkup());
    }

    static void UseTemplate(const std::string& markup)
    {
        g_UIManager.AddTemplate("window", ("<Template>" + markup + "</Template>").c_str());
    }

    static std::string TitleBarMarkup(const std::string& look = "<BackgroundColor>ff808080</BackgroundColor>")
    {
        return "<TitleBar><Width>200</Width><Height>20</Height>" + look + "<Children><text name='Title'/>"
            + Button("Minimize", 140) + Button("Maximize", 160) + Button("Close", 180) + "</Children></TitleBar>";
    }

    static std::string Button(const std::string& name, int x)
    {
        return "<button name='" + name + "'><X>" + std::to_string(x)
            + "</X><Width>20</Width><Height>20</Height></button>";
    }

    static std::string ClientMarkup() { return "<Client><Y>20</Y><Width>100%</Width><Height>r20</Height></Client>"; }

    // Loads the window "W", whose inner area is 200 by 150 at 100, 100, and draws it once.
    TeskWindow& LoadWindow(const std::string& values = {})
    {
        Load("<window name='W'><X>100</X><Y>100</Y><Width>200</Width><Height>150</Height>" + values + "</window>");
        Frame();
        return As<TeskWindow>("W");
    }

    static bool MoveTo(i32 x, i32 y)
    {
        _Point2i point = {x, y};
        return g_UIManager.OnMouseMove(point);
    }

    static bool PressAt(i32 x, i32 y)
    {
        MoveTo(x, y);
        return g_UIManager.OnLMouseDown();
    }

    static bool Release() { return g_UIManager.OnLMouseUp(); }

    static void ClickAt(i32 x, i32 y)
    {
        PressAt(x, y);
        Release();
        g_UIManager.LastLeftClickElementID = 0;
    }

    // "X,Y WIDTHxHEIGHT"
    static std::string PlaceOf(const TeskElement& element)
    {
        return std::to_string(element.X) + "," + std::to_string(element.Y) + " " + std::to_string(element.Width) + "x"
            + std::to_string(element.Height);
    }
};
