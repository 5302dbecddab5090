#include "teskara/script/TeskTabType.h"

#include "teskara/collections/TeskTabControl.h"
#include "teskara/controls/TeskFrame.h"
#include "teskara/core/BoundedText.h"
#include "teskara/script/HeldObject.h"
#include "teskara/script/ScriptActions.h"

namespace {

// One of the control's operations on the tab.
template <void (TeskTabControl::*Operation)(u32)> void OnControl(CTeskTab& tab)
{
    (tab.pTabControl->*Operation)(tab.ID);
}

// Places count from 1; what is below wraps, and means the last one.
bool Move(CTeskTab& tab, const Arguments& arguments)
{
    tab.pTabControl->MoveTab(&tab, static_cast<u32>(arguments.Integer(0)) - 1);
    return true;
}

// clang-format off
constexpr ScriptMember<CTeskTab> Members[] = {
    {0, "Name",  Script::String<&CTeskTab::Name>},
    {1, "ID",    Script::Int<&CTeskTab::ID>},
    {2, "Order", Script::Int<&CTeskTab::Order>},
};

constexpr ScriptMethod<CTeskTab> Methods[] = {
    {0, "Select", Script::Call<OnControl<&TeskTabControl::SelectTab>>},
    {1, "Remove", Script::Call<OnControl<&TeskTabControl::RemoveTab>>},
    {2, "Move",   Move, 1},
    {3, "Rename", Script::SetText<&CTeskTab::Rename, 1>},
};
// clang-format on

// The frame of the tab as an element; none if the tab has ended, or a script deleted its frame.
MvValue FrameOf(MvValue value)
{
    const CTeskTab* tab = TabOf(value);
    MvValue frame;
    frame.Object = tab ? static_cast<TeskElement*>(tab->Frame) : nullptr;
    return frame;
}

} // namespace

CTeskTab* TabOf(MvValue value)
{
    return NumberedObject<CTeskTab>(value);
}

MvTypeDefinition* TabValue::Put(MvValue& value, CTeskTab* tab)
{
    return PutNumbered(value, tab) ? pTeskTabType : nullptr;
}

TeskTabType::TeskTabType(const char* name) : TableType(name, Members, Methods) { }

int TeskTabType::UnknownIndex(MvValue value, int argc, char** argv, _MvTypeVar& result)
{
    return BaseIndex(FrameOf(value), argc, argv, result);
}

int TeskTabType::UnknownMember(MvValue value, const char* name, int argc, char** argv, _MvTypeVar& result)
{
    return TableType::UnknownMember(FrameOf(value), name, argc, argv, result);
}

int TeskTabType::UnknownMethod(MvValue value, const char* name, int argc, char** argv)
{
    return TableType::UnknownMethod(FrameOf(value), name, argc, argv);
}

bool TeskTabType::ToText(MvValue value, char* buffer, u32 size)
{
    const CTeskTab* tab = TabOf(value);
    if (!tab || !buffer)
        return false;

    CopyBounded(buffer, size, tab->Name);
    return true;
}
