// How the host's mouse and key events find their element. A handler that takes an event may have deleted anything, so
// elements are remembered by id from one call to the next. Nothing is thrown to the host: an event whose handler throws
// was not taken.

#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/OwnThread.h"
#include "teskara/core/platform/PlatformCalls.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"

namespace {

// Two presses closer than this belong together; squared pixels.
constexpr double DoubleClickDistanceSquared = 125.0;

constexpr u32 KeyShift = 16;
constexpr u32 KeyControl = 17;
constexpr u32 KeyAlt = 18;
constexpr u32 KeyCapsLock = 20;
constexpr u32 KeyNumLock = 144;
constexpr u32 KeyStateCount = 256;

// Keys that fold into one modifier.
struct Modifier {
    u32 Generic;
    u32 Left;
    u32 Right;
    bool CUIManager::*Down;
};

constexpr Modifier Modifiers[] = {
    {KeyShift, 160, 161, &CUIManager::ShiftDown},
    {KeyAlt, 164, 165, &CUIManager::AltDown},
    {KeyControl, 162, 163, &CUIManager::CtrlDown},
};

double DistanceSquared(const _Point2i& from, const _Point2i& to)
{
    const double dx = static_cast<double>(from.x) - to.x;
    const double dy = static_cast<double>(from.y) - to.y;
    return dx * dx + dy * dy;
}

} // namespace

// What differs between the two buttons.
struct CUIManager::MouseButton {
    u8 CUIManager::*State;
    u32 CUIManager::*PressElementID;
    u32 CUIManager::*LastClickTick;
    u32 CUIManager::*LastClickElementID;
    bool TeskElement::*ClickThru;
    bool (TeskElement::*OnDown)(_Point2i&);
    bool (TeskElement::*OnUp)(_Point2i&);
    bool (TeskElement::*OnDoubleClick)(_Point2i&);
    bool StartsAction; // forgets earlier changes of order, and tells the focus element of a press elsewhere
};

CUIManager::MouseButton CUIManager::LeftButton()
{
    return {&CUIManager::LeftButtonState, &CUIManager::LeftPressElementID, &CUIManager::LastLeftClickTick,
        &CUIManager::LastLeftClickElementID, &TeskElement::LeftClickThru, &TeskElement::OnLMouseDown,
        &TeskElement::OnLMouseUp, &TeskElement::OnLMouseDoubleClick, true};
}

CUIManager::MouseButton CUIManager::RightButton()
{
    return {&CUIManager::RightButtonState, &CUIManager::RightPressElementID, &CUIManager::LastRightClickTick,
        &CUIManager::LastRightClickElementID, &TeskElement::RightClickThru, &TeskElement::OnRMouseDown,
        &TeskElement::OnRMouseUp, &TeskElement::OnRMouseDoubleClick, false};
}

// What lies under a candidate that refused an event.
TeskElement* CUIManager::ElementBelow(TeskElement& candidate)
{
    _Point2i point = MousePosition;
    return candidate.Parent ? candidate.Parent->FindMouseOver(point, &candidate) : nullptr;
}

// Offers an event to the element under the mouse and then to what lies below it, until one takes it. offer gets the
// candidate and answers whether it took the event. An event that never finds its end, because candidates keep changing
// their order, stops after as many steps as there are elements.
template <class Offer> bool CUIManager::OfferDown(TeskElement* candidate, Offer&& offer)
{
    for (std::size_t steps = ElementsByID.size(); candidate && steps > 0; --steps) {
        const ElementWatch watch(*candidate);
        if (offer(*candidate))
            return true;
        candidate = watch.Exists() ? ElementBelow(*candidate) : nullptr;
    }
    return false;
}

bool CUIManager::OnMouseMove(_Point2i& position)
try {
    OwnThread::Expect("OnMouseMove");
    if (Host::IsAnswering() || (position.x == MousePosition.x && position.y == MousePosition.y))
        return false;

    LastInputTick = System::GetTickCount();
    MousePosition = position;
    const bool buttonDown = LeftButtonState != ButtonUp || RightButtonState != ButtonUp;
    TeskElement* candidate = buttonDown ? GetMouseOverElement() : SetMouseOverElement();
    return OfferDown(candidate, [position](TeskElement& element) {
        _Point2i point = position;
        return element.OnMouseMove(point);
    });
} catch (...) {
    return false;
}

bool CUIManager::OnMouseWheel(int offset)
try {
    OwnThread::Expect("OnMouseWheel");
    if (Host::IsAnswering())
        return false;

    LastInputTick = System::GetTickCount();
    return OfferDown(GetMouseOverElement(), [offset](TeskElement& element) { return element.OnMouseWheel(offset); });
} catch (...) {
    return false;
}

bool CUIManager::OnLMouseDown()
try {
    OwnThread::Expect("OnLMouseDown");
    return PressButton(LeftButton());
} catch (...) {
    return false;
}

bool CUIManager::OnLMouseUp()
try {
    OwnThread::Expect("OnLMouseUp");
    return ReleaseButton(LeftButton());
} catch (...) {
    return false;
}

bool CUIManager::OnRMouseDown()
try {
    OwnThread::Expect("OnRMouseDown");
    return PressButton(RightButton());
} catch (...) {
    return false;
}

bool CUIManager::OnRMouseUp()
try {
    OwnThread::Expect("OnRMouseUp");
    return ReleaseButton(RightButton());
} catch (...) {
    return false;
}

bool CUIManager::IsDoubleClick(const MouseButton& button, u32 id) const
{
    return id == this->*button.LastClickElementID && this->*button.LastClickTick + DoubleClickTime > LastInputTick
        && DistanceSquared(LastClickPosition, MousePosition) < DoubleClickDistanceSquared;
}

bool CUIManager::PressButton(const MouseButton& button)
{
    if (Host::IsAnswering())
        return false;

    LastInputTick = System::GetTickCount();
    TeskElement* first = GetMouseOverElement();
    this->*button.State = ButtonIgnored;
    if (!first)
        return false;

    if (button.StartsAction)
        ZOrderChanged = false;
    return OfferDown(first, [this, &button](TeskElement& candidate) { return OfferPress(button, candidate); });
}

// A second press in time and place is offered as a double click first, also to an element that lets clicks through.
bool CUIManager::OfferPress(const MouseButton& button, TeskElement& candidate)
{
    const ElementWatch watch(candidate);
    const u32 id = candidate.ID;
    const bool doubleClick = IsDoubleClick(button, id);
    _Point2i point = MousePosition;
    if (doubleClick && (candidate.*button.OnDoubleClick)(point)) {
        this->*button.PressElementID = id;
        this->*button.State = ButtonTaken;
        this->*button.LastClickElementID = 0;
        return true;
    }
    if (!watch.Exists() || (!doubleClick && candidate.*button.ClickThru))
        return false;

    point = MousePosition;
    if (!(candidate.*button.OnDown)(point))
        return false;

    this->*button.LastClickElementID = doubleClick ? 0 : id; // a third press starts afresh
    AcceptPress(button, id);
    return true;
}

void CUIManager::AcceptPress(const MouseButton& button, u32 id)
{
    if (button.StartsAction) {
        TeskElement* focus = GetFocusElement();
        if (focus && focus->ID != id)
            focus->OnLMouseDownOther(FindElementByID(id));
    }
    LastClickPosition = MousePosition;
    this->*button.LastClickTick = LastInputTick;
    this->*button.PressElementID = id;
    this->*button.State = ButtonTaken;
    if (ZOrderChanged)
        return;

    if (TeskElement* element = FindElementByID(id))
        element->RaiseTopLevel();
}

// The element that took the press is asked first, wherever the pointer is, and the result is whether there was one.
bool CUIManager::ReleaseButton(const MouseButton& button)
{
    if (this->*button.State == ButtonUp || Host::IsAnswering())
        return false;

    LastInputTick = System::GetTickCount();
    TeskElement* first = GetMouseOverElement();
    const u8 was = this->*button.State;
    this->*button.PressElementID = 0;
    this->*button.State = ButtonUp;
    if (!first)
        return was != ButtonIgnored;

    const bool taken = OfferDown(first, [this, &button](TeskElement& candidate) {
        _Point2i point = MousePosition;
        return !(candidate.*button.ClickThru) && (candidate.*button.OnUp)(point);
    });
    return taken ? was != ButtonIgnored : was == ButtonTaken;
}

// Left and right keys fold into the generic code. The assignment drops the mark of a press that was taken.
void CUIManager::SetModifier(u32 key, bool down)
{
    for (const Modifier& modifier : Modifiers) {
        if (key != modifier.Generic && key != modifier.Left && key != modifier.Right)
            continue;

        const u8 flags = down ? KeyHeld : 0;
        this->*modifier.Down = down;
        KeyState[modifier.Generic] = flags;
        SetKeyFlags(modifier.Generic, flags);
    }
}

void CUIManager::SetKeyFlags(u32 key, u32 flags)
{
    if (flags == 0)
        KeyStates.erase(key);
    else
        KeyStates[key] = flags;
}

u32 CUIManager::GetKeyFlags(u32 key) const
{
    const auto entry = KeyStates.find(key);
    return entry == KeyStates.end() ? 0 : entry->second;
}

void CUIManager::AddKeyFlag(u32 key, u8 flag)
{
    if (key < KeyStateCount)
        KeyState[key] = static_cast<u8>(KeyState[key] | flag);
    SetKeyFlags(key, GetKeyFlags(key) | flag);
}

bool CUIManager::OnKeyDown(unsigned int key)
try {
    OwnThread::Expect("OnKeyDown");
    if (Host::IsAnswering())
        return false;

    LastInputTick = System::GetTickCount();
    SetModifier(key, true);
    AddKeyFlag(key, KeyHeld);
    KeyState[KeyCapsLock] = System::IsKeyToggled(KeyCapsLock);
    KeyState[KeyNumLock] = System::IsKeyToggled(KeyNumLock);
    if (!OfferKey(&TeskElement::OnKeyDown, key))
        return false;

    AddKeyFlag(key, KeyTaken);
    return true;
} catch (...) {
    return false;
}

bool CUIManager::OnKeyUp(unsigned int key)
try {
    OwnThread::Expect("OnKeyUp");
    if (Host::IsAnswering())
        return false;

    LastInputTick = System::GetTickCount();
    SetModifier(key, false);
    const u32 old = GetKeyFlags(key);
    if (key < KeyStateCount)
        KeyState[key] = static_cast<u8>(KeyState[key] & ~(KeyHeld | KeyTaken));
    SetKeyFlags(key, old & ~static_cast<u32>(KeyHeld | KeyTaken));
    OfferKey(&TeskElement::OnKeyUp, key);
    return (old & KeyTaken) != 0;
} catch (...) {
    return false;
}

// Offers a key to the focus element and then up its ancestors.
bool CUIManager::OfferKey(bool (TeskElement::*handler)(unsigned int), u32 key)
{
    TeskElement* element = GetFocusElement();
    while (element) {
        const ElementWatch watch(*element);
        if ((element->*handler)(key))
            return true;

        element = watch.Exists() ? element->Parent : nullptr;
    }
    return false;
}
