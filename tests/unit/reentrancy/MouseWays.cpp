#include "tests/unit/reentrancy/Ways.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "tests/unit/reentrancy/Scene.h"

namespace Ways {

void FrameUnderTheMouse()
{
    g_UIManager.MousePosition = {15, 15};
    g_UIManager.Render();
}

// As if the mouse had not been moved for a while.
void RestMouse()
{
    Aim();
    g_UIManager.LastInputTick -= 5000;
    g_UIManager.Render();
}

void Enter()
{
    MoveTo(15, 15);
}

void LeaveForNothing()
{
    Aim();
    MoveTo(500, 500);
}

void LeaveForSibling()
{
    Aim();
    MoveTo(85, 15);
}

void HideUnderTheMouse()
{
    Aim();
    g_UIManager.ShowElement(SelfName, false);
    g_UIManager.Render();
}

void DragMouse()
{
    Aim();
    g_UIManager.OnLMouseDown();
    MoveTo(20, 20);
    g_UIManager.OnLMouseUp();
}

void TurnWheel()
{
    Aim();
    g_UIManager.OnMouseWheel(120);
}

void ClickLeft()
{
    Aim();
    PressLeft();
}

void ClickRight()
{
    Aim();
    PressRight();
}

void ReleaseElsewhere()
{
    Aim();
    g_UIManager.OnLMouseDown();
    MoveTo(500, 500);
    g_UIManager.OnLMouseUp();
}

void DoubleClickLeft()
{
    ClickLeft();
    PressLeft();
}

void DoubleClickRight()
{
    ClickRight();
    PressRight();
}

// Where scroll bars have a button.
void PressToTheRight()
{
    MoveTo(50, 15);
    PressLeft();
}

void DragTheLeftEdge()
{
    MoveTo(8, 30);
    g_UIManager.OnLMouseDown();
    MoveTo(4, 30);
    g_UIManager.OnLMouseUp();
}

void PressTheTitleBar()
{
    if (TeskElement* titleBar = g_UIManager.FindElement("TitleBar@Self@Parent@Grand"))
        titleBar->Show(true);
    Aim();
    PressLeft();
}

} // namespace Ways
