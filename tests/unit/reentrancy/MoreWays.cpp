#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/text/TextKeys.h"
#include "tests/unit/reentrancy/Places.h"
#include "tests/unit/reentrancy/Scene.h"

namespace {

void PrepareAnew()
{
    PrepareSubject();
}

void MakeAnew()
{
    Delete(SelfName);
    PrepareSubject();
}

// Presses whatever stands in the element, wherever that is.
void PressParts()
{
    ShowSelf();
    for (const u32 id : PartsOfSelf(false)) {
        if (const TeskElement* part = g_UIManager.FindElementByID(id)) {
            MoveTo(part->AbsoluteX + 1, part->AbsoluteY + 1);
            PressLeft();
            PressRight();
            g_UIManager.OnMouseWheel(-40);
        }
    }
}

void PressPartsOfParts()
{
    ShowSelf();
    for (const u32 id : PartsOfSelf(true)) {
        if (const TeskElement* part = g_UIManager.FindElementByID(id)) {
            MoveTo(part->AbsoluteX + 1, part->AbsoluteY + 1);
            PressLeft();
            PressLeft();
        }
    }
}

void TypeIntoParts()
{
    ShowSelf();
    std::vector<u32> parts = PartsOfSelf(true);
    for (const u32 id : PartsOfSelf(false))
        parts.push_back(id);
    for (const u32 id : parts) {
        if (TeskElement* part = g_UIManager.FindElementByID(id)) {
            g_UIManager.SetFocusElement(part);
            g_UIManager.OnKeyDown('A');
            g_UIManager.OnKeyUp('A');
            g_UIManager.OnKeyDown(KeyTab);
            g_UIManager.OnKeyDown(KeyEnter);
        }
    }
}

// What may be asked of any element from outside.
void MoveAndAsk()
{
    const u32 id = Self() ? Self()->ID : 0;
    using Operation = void (*)(TeskElement&);
    constexpr Operation operations[] = {
        [](TeskElement& self) { self.MoveZUp(); },
        [](TeskElement& self) { self.MoveZDown(); },
        [](TeskElement& self) { self.MoveZTop(true); },
        [](TeskElement& self) { self.MoveZBottom(); },
        [](TeskElement& self) { self.RaiseTopLevel(); },
        [](TeskElement& self) { self.Center(); },
        [](TeskElement& self) { self.FindUsableChild("nobody", "frame"); },
        [](TeskElement& self) { self.Walk(true, nullptr); },
        [](TeskElement& self) { self.WalkReverse(false, nullptr); },
        [](TeskElement& self) { self.IsReallyVisible(); },
        [](TeskElement& self) { self.RecalculateSize(true); },
        [](TeskElement& self) { self.Show(true); },
    };
    for (const Operation operation : operations) {
        if (TeskElement* self = g_UIManager.FindElementByID(id))
            operation(*self);
    }
}

void PressSiblingWithFocus()
{
    FocusSelf();
    MoveTo(85, 15);
    PressLeft();
}

void CallSetTexture()
{
    Tell(Self(), "SetTexture", {"<T Filename='#other'/>"});
}

void LoadPartIntoSelf()
{
    if (Self())
        g_UIManager.LoadInterfaceXML(Self(), PartFile, false, nullptr);
    if (Self())
        g_UIManager.LoadInterfaceXML(Self(), PartFile, true, nullptr);
}

// clang-format off
constexpr Way Ways[] = {
    {"prepare anew",           PrepareAnew},
    {"make anew",              MakeAnew},
    {"press parts",            PressParts},
    {"press parts of parts",   PressPartsOfParts},
    {"type into parts",        TypeIntoParts},
    {"move and ask",           MoveAndAsk},
    {"load a part into it",    LoadPartIntoSelf},
    {"press a sibling",        PressSiblingWithFocus},
    {"SetTexture",             CallSetTexture},
};
// clang-format on

} // namespace

std::span<const Way> MoreWays()
{
    return Ways;
}
