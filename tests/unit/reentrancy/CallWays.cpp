#include "tests/unit/reentrancy/Ways.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "tests/unit/reentrancy/Scene.h"

namespace Ways {

void CallDestroy()
{
    Tell(Self(), "Destroy");
}

void CallLeftClick()
{
    Tell(Self(), "LeftClick");
}

void CallRightClick()
{
    Tell(Self(), "RightClick");
}

void CallSetFocus()
{
    Tell(Self(), "SetFocus");
}

void CallAddChild()
{
    Tell(Self(), "AddChild", {"frame", "New", "<frame><OnLoad>OnLoad</OnLoad></frame>"});
}

void CallSetHeightOfParent()
{
    Tell(g_UIManager.FindElement("Parent@Grand"), "SetHeight", {"300"});
}

void CallSetWidth()
{
    Tell(Self(), "SetWidth", {"77"});
}

// What a window lays out anew has a size that it is not to have.
void CallReset()
{
    if (TeskElement* client = g_UIManager.FindElement("Client@Self@Parent@Grand"))
        client->Width = 7;
    Tell(Self(), "Reset");
}

void CallSetText()
{
    Tell(Self(), "SetText", {"words"});
}

void CallSetWrap()
{
    Tell(Self(), "SetWrap", {"1 + 1"});
}

void ChangeFont()
{
    TellPart(Self(), "Font", "SetHeight", {"20"});
}

void CallCopyTexture()
{
    TellPart(Self(), "Texture", "Copy", {"UIElement[Self@Parent@Grand].Texture"});
}

void CallSetValue()
{
    Tell(Self(), "SetValue", {"50"});
}

void CallSetRangeBelowTheValue()
{
    CallSetValue();
    Tell(Self(), "SetRange", {"20"});
}

void CallAddText()
{
    Tell(Self(), "AddText", {"more\nlines"});
}

void CallAddLine()
{
    Tell(Self(), "AddLine", {"more"});
}

} // namespace Ways
