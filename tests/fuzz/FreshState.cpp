#include "tests/fuzz/FreshState.h"

#include "teskara/core/CUIManager.h"
#include "tests/fuzz/DialogActs.h"

#include <algorithm>
#include <iterator>
#include <string>

void ForgetInput()
{
    g_UIManager.ResetMouseState();
    g_UIManager.KeyStates.clear();
    std::fill(std::begin(g_UIManager.KeyState), std::end(g_UIManager.KeyState), u8{0});
    g_UIManager.ShiftDown = g_UIManager.AltDown = g_UIManager.CtrlDown = false;
    g_UIManager.LeftPressElementID = g_UIManager.RightPressElementID = g_UIManager.MouseCaptureElementID = 0;
    g_UIManager.LastLeftClickElementID = g_UIManager.LastRightClickElementID = g_UIManager.TooltipElementID = 0;
    g_UIManager.MousePosition = {-1, -1};
}

void ForgetEverything()
{
    EndFuzzMenus();
    EndFuzzScript();
    g_UIManager.Reset();
    g_UIManager.ClearTemplates();
    while (!g_UIManager.Skins.empty())
        g_UIManager.RemoveSkin(std::string(g_UIManager.Skins.begin()->first.Text()).c_str());
    ForgetInput();
}
