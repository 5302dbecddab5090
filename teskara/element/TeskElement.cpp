#include "teskara/element/TeskElement.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Limits.h"
#include "teskara/core/Messages.h"
#include "teskara/core/platform/PlatformCalls.h"
#include "teskara/element/ChildIndex.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/script/TypeGlobals.h"

#include <new>

namespace {

// Names of siblings mostly begin alike and differ at their end.
bool HasName(const TeskElement& element, const utf8string& name)
{
    if (element.Name.size() != name.size())
        return false;

    return name.empty() || (element.Name.back() == name.back() && element.Name == name);
}

// Null: there is none. A kind that is not ours may end its elements as it is asked; then there is nothing that a new
// element could stand in.
const TeskElement* FindNamer(TeskElement* parent)
{
    const ElementWatch watch(parent);
    for (TeskElement* ancestor = parent; ancestor; ancestor = ancestor->Parent) {
        const bool isScreen = ancestor->IsTypeOf("screen");
        const bool isPassed = !isScreen && watch.Exists() && ancestor->IsTypeOf("windowclient");
        if (!watch.Exists())
            throw std::bad_alloc();
        if (!isPassed)
            return isScreen ? nullptr : ancestor;
    }
    return nullptr;
}

} // namespace

TeskElement::TeskElement(const char* type, TeskElement* parent, const char* name)
    : Parent(parent), Type(TextOrEmpty(type)), Name(TextOrEmpty(name)), FadeStart(g_UIManager.FrameTick)
{
    BuildFullName();
    FoldAscii(Name);
    if (!g_UIManager.EnterElement(*this))
        throw std::bad_alloc();

    if (!Parent)
        return;

    Depth = static_cast<u16>(Parent->Depth + 1);
    Parent->AddChild(this);
}

TeskElement::~TeskElement()
{
    Stage = LifeStage::Gone;
    NotifyParent(NotifyChildGoing, reinterpret_cast<std::uintptr_t>(Name.c_str()));
    if (IsLinked())
        LeaveParent();
    if (g_UIManager.FocusElementID == ID)
        g_UIManager.FocusElementID = 0;
    if (g_UIManager.TooltipElementID == ID)
        HideAutoTooltip(); // nobody else would
    DeleteAllChildren();
    g_UIManager.ForgetParent(*this);
    Host::InvalidateObject(g_UIManager.ObjectClass, this);
    g_UIManager.LeaveElement(*this);
    g_UIManager.ClearElementMetadata(this);
    if (TeskElementFactory* factory = g_UIManager.FindFactory(Type.c_str()))
        factory->RemoveInstance(this);
    Events = {}; // scripts that are running live on until they return
}

// The nearest ancestor that is neither screen nor window client gives its full name to what is below it.
void TeskElement::BuildFullName()
{
    FullName = Name;
    if (const TeskElement* ancestor = FindNamer(Parent)) {
        FullName += '@';
        FullName += ancestor->FullName;
    }
    if (FullName.size() >= Limits::FullNameBytes)
        FullName.resize(Limits::FullNameBytes - 1);
}

void TeskElement::AddChild(TeskElement* child)
{
    child->Previous = LastChild;
    if (LastChild)
        LastChild->Next = child;
    else
        FirstChild = child;
    LastChild = child;
    ++m_ChildCount;
    if (m_ChildIndex)
        m_ChildIndex->Enter(*child);
}

void TeskElement::DeleteChild(TeskElement* child)
{
    if (!child || child->Parent != this || child->IsGoing() || Host::IsAnswering()) {
        System::WriteDebugOutput("DeleteChild failure\n");
        return;
    }

    if (child->IsLinked())
        child->Detach();
    child->Delete();
}

void TeskElement::Delete()
{
    if (IsGoing() || Host::IsAnswering())
        return;

    TeskElementFactory* factory = g_UIManager.FindFactory(Type.c_str());
    if (factory) {
        Stage = LifeStage::Going;
        RunScript(Events.OnUnload);
        if (StorePosition)
            Host::SaveElementPosition(this);
        factory = g_UIManager.FindFactory(Type.c_str()); // a script may have taken it away
    }
    if (!factory) {
        Stage = LifeStage::Alive;
        Host::PrintLine(Messages::NoFactoryToDelete, FullName.c_str(), Type.c_str());
        return;
    }
    factory->Deleter().Delete(this);
}

// Scripts of a child see it linked until it is destroyed. What cannot be deleted is left without a parent.
void TeskElement::DeleteAllChildren()
{
    while (TeskElement* child = FirstChild) {
        child->Delete();
        if (FirstChild != child)
            continue;

        child->Detach();
        child->Parent = nullptr;
    }
}

bool TeskElement::IsLinked() const
{
    return Parent && (Previous || Next || Parent->FirstChild == this);
}

// Null if there are fewer children than that, or no memory.
ChildIndex* TeskElement::IndexOfChildren(u32 leastChildren)
{
    if (m_ChildCount < leastChildren)
        return nullptr;
    if (!m_ChildIndex)
        m_ChildIndex.reset(new (std::nothrow) ChildIndex);
    return m_ChildIndex.get();
}

void TeskElement::Unlink()
{
    (Previous ? Previous->Next : Parent->FirstChild) = Next;
    (Next ? Next->Previous : Parent->LastChild) = Previous;
    Previous = nullptr;
    Next = nullptr;
    if (Parent->m_ChildIndex)
        Parent->m_ChildIndex->ForgetOrder();
}

// Puts the element into its parent's list behind a sibling; null puts it at the head.
void TeskElement::LinkAfter(TeskElement* sibling)
{
    ++s_Relinks;
    Previous = sibling;
    Next = sibling ? sibling->Next : Parent->FirstChild;
    (Previous ? Previous->Next : Parent->FirstChild) = this;
    (Next ? Next->Previous : Parent->LastChild) = this;
}

void TeskElement::LeaveParent()
{
    --Parent->m_ChildCount;
    if (Parent->m_ChildIndex)
        Parent->m_ChildIndex->Leave(*this);
    Unlink();
}

// Takes the element out of the list while it lives on and still names its parent.
void TeskElement::Detach()
{
    LeaveParent();
    g_UIManager.EnterDetached(*this);
}

TeskElement* TeskElement::FindChild(const char* name)
{
    utf8string wanted;
    if (!TryAssign(wanted, name))
        return nullptr;

    FoldAscii(wanted); // as names are kept
    if (ChildIndex* index = IndexOfChildren(ChildIndex::LeastForNames)) {
        if (const auto found = index->Find(*this, wanted))
            return *found;
    }
    for (TeskElement* child = FirstChild; child; child = child->Next) {
        if (HasName(*child, wanted))
            return child;
    }
    return nullptr;
}

TeskElement* TeskElement::FindUsableChild(const char* name, const char* word)
{
    const std::string_view wanted = TextOrEmpty(name);
    const ElementWatch self(*this);
    for (TeskElement* child = FirstChild; child; child = child->Next) {
        if (!EqualsNoCase(child->Name, wanted))
            continue;

        const ElementWatch watch(*child);
        const bool isOfKind = child->IsTypeOf(word);
        if (!self.Exists() || !watch.Exists())
            return nullptr;
        if (isOfKind)
            return child;
    }
    for (TeskElement* child = FirstChild; child; child = child->Next) {
        const ElementWatch watch(*child);
        if (TeskElement* found = child->FindUsableChild(name, word))
            return found;
        if (!self.Exists() || !watch.Exists())
            return nullptr;
    }
    return nullptr;
}

bool TeskElement::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), "teskelement");
}

bool TeskElement::IsFocus() const
{
    return g_UIManager.FocusElementID == ID;
}

bool TeskElement::IsMouseOver() const
{
    return g_UIManager.MouseOverElementID == ID;
}

bool TeskElement::IsReallyVisible() const
{
    for (const TeskElement* element = this; element; element = element->Parent) {
        if (!element->Visible)
            return false;
    }
    return true;
}

void TeskElement::Show(bool show)
{
    Visible = show;
}

void TeskElement::OnCreate() { }

void TeskElement::OnDestroy() { }

MvTypeDefinition* TeskElement::GetMvType()
{
    return pTeskElementType;
}

bool TeskElement::GetStoragePosition(int& x, int& y, unsigned int& width, unsigned int& height)
{
    x = X;
    y = Y;
    width = Width;
    height = Height;
    return true;
}

bool TeskElement::SetFocus()
{
    return true;
}

bool TeskElement::SetMouseOver()
{
    return true;
}

void TeskElement::CreateFrom(const _CreateElement& record)
{
    X = record.X;
    Y = record.Y;
    Width = record.Width;
    Height = record.Height;
    PositionX = record.PositionX;
    PositionY = record.PositionY;
    PositionHeight = record.PositionHeight;
    PositionWidth = record.PositionWidth;
    Visible = record.Visible;
    Strata = record.Strata;
}
