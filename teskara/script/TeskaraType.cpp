#include "teskara/script/TeskaraType.h"

#include "teskara/markup/TeskSkin.h"
#include "teskara/script/ScriptResults.h"

namespace {

constexpr char VersionText[] = "0.73";

// The version that kinds must be built for, in hexadecimal.
constexpr char APIVersionText[] = "12";
static_assert(TeskaraVersion == 0x12);

const char* Version(CUIManager&)
{
    return VersionText;
}

const char* APIVersion(CUIManager&)
{
    return APIVersionText;
}

const char* CurrentSkin(CUIManager& manager)
{
    return manager.CurrentSkin ? manager.CurrentSkin->Name.c_str() : nullptr;
}

// clang-format off
constexpr ScriptMember<CUIManager> Members[] = {
    {0, "Version",          Script::String<Version>},
    {1, "APIVersion",       Script::String<APIVersion>},
    {2, "CurrentSkin",      Script::String<CurrentSkin>},
    {3, "MouseOverElement", Script::Element<&CUIManager::GetMouseOverElement>},
    {4, "FocusedElement",   Script::Element<&CUIManager::GetFocusElement>},
    {5, "IsShiftDown",      Script::Bool<&CUIManager::ShiftDown>},
    {6, "IsAltDown",        Script::Bool<&CUIManager::AltDown>},
    {7, "IsCtrlDown",       Script::Bool<&CUIManager::CtrlDown>},
};
// clang-format on

} // namespace

CUIManager* ManagerOf(MvValue value)
{
    return value.Object ? &g_UIManager : nullptr;
}

TeskaraType::TeskaraType(const char* name) : TableType(name, Members) { }
