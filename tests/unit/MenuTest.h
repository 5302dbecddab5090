#pragma once

#include "teskara/core/CUIManager.h"
#include "teskara/windows/CContextMenuHandler.h"
#include "teskara/windows/TeskContextMenu.h"
#include "tests/unit/ToolkitTest.h"

#include <functional>
#include <string>
#include <vector>

// A handler whose rows and clicks are a test's.
class TestMenu : public CContextMenuHandler
{
public:
    TestMenu() = default;
    explicit TestMenu(std::function<void(TestMenu&)> fill) : Rows(std::move(fill)) { }

    void OnCreate(unsigned int id) override
    {
        Log.push_back("create " + std::to_string(id));
        if (Rows)
            Rows(*this);
    }

    void OnClick(unsigned int id) override
    {
        Log.push_back("click " + std::to_string(id));
        if (Pick)
            Pick(id);
    }

    void OnMenuDestroyed() override
    {
        Log.push_back("destroyed");
        CContextMenuHandler::OnMenuDestroyed();
        if (Destroyed)
            Destroyed();
    }

    std::vector<std::string> Log;
    std::function<void(TestMenu&)> Rows;
    std::function<void(unsigned int id)> Pick;
    std::function<void()> Destroyed;
};

// Tests of menus under a template with a font of size 12, so that a row takes 14.
class MenuTest : public ToolkitTest
{
protected:
    using Log = std::vector<std::string>;

    MenuTest() { SetLook("<Font><Size>12</Size><Color>ffffffff</Color></Font><Border>3</Border>"); }

    static void SetLook(const std::string& values)
    {
        g_UIManager.AddTemplate("contextmenu", ("<Template>" + values + "</Template>").c_str());
    }

    // Puts the mouse on a row of a menu that was drawn, counted from 0.
    static void PointAt(const TestMenu& menu, i32 row)
    {
        _Point2i point = {menu.Menu->X + 5, menu.Menu->Y + 2 * static_cast<i32>(menu.Menu->Border) + row * 14 + 1};
        g_UIManager.OnMouseMove(point);
    }

    static void Click()
    {
        g_UIManager.OnLMouseDown();
        g_UIManager.OnLMouseUp();
    }

    static void ClickAt(i32 x, i32 y)
    {
        _Point2i point = {x, y};
        g_UIManager.OnMouseMove(point);
        Click();
    }

    static void ClickRow(const TestMenu& menu, i32 row)
    {
        PointAt(menu, row);
        Click();
    }
};
