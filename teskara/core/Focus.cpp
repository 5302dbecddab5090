// Which element has the keyboard, and which the mouse.

#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/platform/PlatformCalls.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"

namespace {

// Sets an id for the length of a scope.
class IDScope
{
public:
    IDScope(u32& id, u32 value) : m_ID(id), m_Outer(id) { m_ID = value; }
    ~IDScope() { m_ID = m_Outer; }
    IDScope(const IDScope&) = delete;
    IDScope& operator=(const IDScope&) = delete;

private:
    u32& m_ID;
    u32 m_Outer;
};

} // namespace

// The elements that are just told that they get the keyboard, the innermost first.
struct CUIManager::FocusEntry {
    FocusEntry(FocusEntry*& entries, u32 id) : ID(id), Entries(entries), Outer(entries) { Entries = this; }
    ~FocusEntry() { Entries = Outer; }
    FocusEntry(const FocusEntry&) = delete;
    FocusEntry& operator=(const FocusEntry&) = delete;

    u32 ID;
    FocusEntry*& Entries;
    FocusEntry* Outer;
};

bool CUIManager::IsEnteringFocus(u32 id) const
{
    const FocusEntry* entry = m_FocusEntries;
    while (entry && entry->ID != id)
        entry = entry->Outer;
    return entry != nullptr;
}

// Tells the focus element that it loses the keyboard, unless it is just being told. True: the focus has not been moved
// by its script, so the caller goes on.
bool CUIManager::ExitFocus(TeskElement& element, TeskElement* next)
{
    const u32 id = element.ID;
    if (m_ExitingFocusID == id)
        return true;

    const IDScope exiting(m_ExitingFocusID, id);
    element.OnKeyboardExit(next);
    return FocusElementID == id || FocusElementID == 0;
}

TeskElement* CUIManager::GetFocusElement()
try {
    const u32 id = FocusElementID;
    if (id == 0 || id == m_ExitingFocusID)
        return nullptr;

    TeskElement* element = FindElementByID(id);
    if (element && (Host::IsAnswering() || element->IsReallyVisible()))
        return element;

    if (!element || ExitFocus(*element, nullptr))
        FocusElementID = 0;
    return nullptr;
} catch (...) {
    return nullptr;
}

void CUIManager::SetFocusElement(TeskElement* element)
try {
    if (Host::IsAnswering())
        return;

    TeskElement* present = FindElementByID(FocusElementID);
    if (!element) {
        if (!present || ExitFocus(*present, nullptr))
            FocusElementID = 0;
        return;
    }
    if (element == present || IsEnteringFocus(element->ID) || element->IsGoing() || !element->IsReallyVisible())
        return;

    const ElementWatch watch(*element);
    if (present && !ExitFocus(*present, element))
        return;

    const u32 old = FocusElementID;
    if (watch.Exists()) {
        const FocusEntry entering(m_FocusEntries, element->ID);
        element->OnKeyboardEnter();
    }
    if (FocusElementID == old || FocusElementID == 0) // else the handler moved the focus on
        FocusElementID = watch.Exists() ? watch.GetID() : 0;
} catch (...) {
    return;
}

TeskElement* CUIManager::SetFocusElement()
try {
    if (Host::IsAnswering())
        return nullptr;

    // A focus element that was hidden hears of it twice: once by the question, and once here.
    const ElementWatch element(FindElementByID(FocusElementID));
    if (!GetFocusElement() && element.Exists())
        ExitFocus(*element.Get(), nullptr);
    return nullptr;
} catch (...) {
    return nullptr;
}

TeskElement* CUIManager::GetMouseOverElement()
{
    for (u32* press : {&LeftPressElementID, &RightPressElementID}) {
        if (*press == 0)
            continue;
        if (TeskElement* element = FindElementByID(*press))
            return element;
        *press = 0;
    }
    if (MouseOverElementID == 0)
        return nullptr;

    TeskElement* element = LastMouseOver();
    return element && element->Visible ? element : SetMouseOverElement();
}

void CUIManager::PutMouseOver(TeskElement& element)
{
    MouseOverElementID = element.ID;
    m_MouseOver = &element;
    m_MouseOverDeaths = m_ElementDeaths;
}

// The element of MouseOverElementID, hidden or not. The index is asked only after a death, or where the id was set by
// somebody else.
TeskElement* CUIManager::LastMouseOver() const
{
    const bool isStillThere = m_MouseOver && m_MouseOverDeaths == m_ElementDeaths;
    if (isStillThere && m_MouseOver->ID == MouseOverElementID)
        return m_MouseOver;

    return FindElementByID(MouseOverElementID);
}

TeskElement* CUIManager::SetMouseOverElement()
try {
    if (Host::IsAnswering())
        return LastMouseOver();

    // The capturing control relies on being entered again at each search.
    if (TeskElement* capture = FindElementByID(MouseCaptureElementID)) {
        if (TeskElement* found = capture->FindMouseOver(MousePosition, nullptr)) {
            PutMouseOver(*found);
            return EnterMouseOver(ElementWatch(*found));
        }
    }

    TeskElement* found = Screen ? Screen->FindMouseOver(MousePosition, nullptr) : nullptr;
    TeskElement* old = LastMouseOver(); // which a kind that is not ours may have ended as it was searched
    if (!found) {
        const u32 oldID = MouseOverElementID;
        if (old)
            old->OnMouseExit(nullptr);
        if (MouseOverElementID == oldID)
            MouseOverElementID = 0;
        return nullptr;
    }

    PutMouseOver(*found);
    if (found == old)
        return found;

    const ElementWatch watch(*found);
    if (old)
        old->OnMouseExit(found);
    return EnterMouseOver(watch);
} catch (...) {
    return nullptr;
}

// Null: the element died, by this or before.
TeskElement* CUIManager::EnterMouseOver(const ElementWatch& watch)
{
    MouseEnterTick = System::GetTickCount();
    TooltipElementID = 0;
    if (TeskElement* element = watch.Get()) {
        _Point2i point = MousePosition;
        element->OnMouseEnter(point);
    }
    return watch.Get();
}
