#include "teskara/script/ScriptTypes.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/script/TeskButtonType.h"
#include "teskara/script/TeskCheckBoxType.h"
#include "teskara/script/TeskComboBoxType.h"
#include "teskara/script/TeskConsoleType.h"
#include "teskara/script/TeskElementType.h"
#include "teskara/script/TeskFontType.h"
#include "teskara/script/TeskFrameType.h"
#include "teskara/script/TeskGaugeType.h"
#include "teskara/script/TeskHudElementType.h"
#include "teskara/script/TeskListBoxItemType.h"
#include "teskara/script/TeskListBoxType.h"
#include "teskara/script/TeskMapBlipType.h"
#include "teskara/script/TeskMapType.h"
#include "teskara/script/TeskMessageBoxType.h"
#include "teskara/script/TeskScrollBarType.h"
#include "teskara/script/TeskSliderType.h"
#include "teskara/script/TeskTabControlType.h"
#include "teskara/script/TeskTabType.h"
#include "teskara/script/TeskTextEditType.h"
#include "teskara/script/TeskTextEntryType.h"
#include "teskara/script/TeskTextType.h"
#include "teskara/script/TeskTextureType.h"
#include "teskara/script/TeskTooltipType.h"
#include "teskara/script/TeskTreeNodeType.h"
#include "teskara/script/TeskTreeType.h"
#include "teskara/script/TeskWindowType.h"
#include "teskara/script/TeskaraType.h"
#include "teskara/script/TypeGlobals.h"

#include <iterator>
#include <memory>
#include <new>

MvTypeDefinition* pTeskaraType = nullptr;
MvTypeDefinition* pTeskElementType = nullptr;
MvTypeDefinition* pTeskFrameType = nullptr;
MvTypeDefinition* pTeskListBoxItemType = nullptr;
MvTypeDefinition* pTeskListBoxType = nullptr;
MvTypeDefinition* pTeskButtonType = nullptr;
MvTypeDefinition* pTeskCheckBoxType = nullptr;
MvTypeDefinition* pTeskComboBoxType = nullptr;
MvTypeDefinition* pTeskConsoleType = nullptr;
MvTypeDefinition* pTeskFontType = nullptr;
MvTypeDefinition* pTeskGaugeType = nullptr;
MvTypeDefinition* pTeskHudElementType = nullptr;
MvTypeDefinition* pTeskMapBlipType = nullptr;
MvTypeDefinition* pTeskMapType = nullptr;
MvTypeDefinition* pTeskMessageBoxType = nullptr;
MvTypeDefinition* pTeskScrollBarType = nullptr;
MvTypeDefinition* pTeskSliderType = nullptr;
MvTypeDefinition* pTeskTabType = nullptr;
MvTypeDefinition* pTeskTabControlType = nullptr;
MvTypeDefinition* pTeskTextType = nullptr;
MvTypeDefinition* pTeskTextEditType = nullptr;
MvTypeDefinition* pTeskTextEntryType = nullptr;
MvTypeDefinition* pTeskTextureType = nullptr;
MvTypeDefinition* pTeskTooltipType = nullptr;
MvTypeDefinition* pTeskTreeNodeType = nullptr;
MvTypeDefinition* pTeskTreeType = nullptr;
MvTypeDefinition* pTeskWindowType = nullptr;

MvTypeDefinition* pStringType = nullptr;
MvTypeDefinition* pIntType = nullptr;
MvTypeDefinition* pInt64Type = nullptr;
MvTypeDefinition* pBoolType = nullptr;
MvTypeDefinition* pFloatType = nullptr;
MvTypeDefinition* pPoint3fType = nullptr;
MvTypeDefinition* pFilePathType = nullptr;
MvTypeDefinition* pUintType = nullptr;

namespace {

// Makes a type with all its names. Throws when there is no memory.
using TypeMaker = std::unique_ptr<ToolkitType> (*)(const char* name);

template <class Type> std::unique_ptr<ToolkitType> Make(const char* name)
{
    return std::make_unique<Type>(name);
}

struct HostTypeRow {
    const char* Name;
    MvTypeDefinition** Type;
};

constexpr HostTypeRow HostTypes[] = {
    {"string", &pStringType},
    {"int", &pIntType},
    {"int64", &pInt64Type},
    {"bool", &pBoolType},
    {"float", &pFloatType},
    {"point3f", &pPoint3fType},
    {"filepath", &pFilePathType},
    {"uint", &pUintType},
};

struct TypeRow {
    const char* Name;
    MvTypeDefinition** Type;
    MvTypeDefinition** Base; // null for none
    TypeMaker Make;
};

// In the order in which hosts see them come and go. The bases are what scripts see; they are not those of the classes.
constexpr TypeRow Types[] = {
    {"teskara", &pTeskaraType, nullptr, Make<TeskaraType>},
    {"teskelement", &pTeskElementType, nullptr, Make<TeskElementType>},
    {"teskframe", &pTeskFrameType, &pTeskElementType, Make<TeskFrameType>},
    {"tesklistboxitem", &pTeskListBoxItemType, nullptr, Make<TeskListBoxItemType>},
    {"tesklistbox", &pTeskListBoxType, &pTeskElementType, Make<TeskListBoxType>},
    {"teskbutton", &pTeskButtonType, &pTeskElementType, Make<TeskButtonType>},
    {"teskcheckbox", &pTeskCheckBoxType, &pTeskElementType, Make<TeskCheckBoxType>},
    {"teskcombobox", &pTeskComboBoxType, &pTeskListBoxType, Make<TeskComboBoxType>},
    {"teskconsole", &pTeskConsoleType, &pTeskFrameType, Make<TeskConsoleType>},
    {"teskfont", &pTeskFontType, nullptr, Make<TeskFontType>},
    {"teskgauge", &pTeskGaugeType, &pTeskFrameType, Make<TeskGaugeType>},
    {"teskhudelement", &pTeskHudElementType, &pTeskElementType, Make<TeskHudElementType>},
    {"teskmapblip", &pTeskMapBlipType, &pTeskFrameType, Make<TeskMapBlipType>},
    {"teskmap", &pTeskMapType, &pTeskElementType, Make<TeskMapType>},
    {"teskmessagebox", &pTeskMessageBoxType, &pTeskElementType, Make<TeskMessageBoxType>},
    {"teskscrollbar", &pTeskScrollBarType, &pTeskElementType, Make<TeskScrollBarType>},
    {"teskslider", &pTeskSliderType, &pTeskElementType, Make<TeskSliderType>},
    {"tesktab", &pTeskTabType, &pTeskFrameType, Make<TeskTabType>},
    {"tesktabcontrol", &pTeskTabControlType, &pTeskFrameType, Make<TeskTabControlType>},
    {"tesktext", &pTeskTextType, &pTeskElementType, Make<TeskTextType>},
    {"tesktextedit", &pTeskTextEditType, &pTeskElementType, Make<TeskTextEditType>},
    {"tesktextentry", &pTeskTextEntryType, &pTeskElementType, Make<TeskTextEntryType>},
    {"tesktexture", &pTeskTextureType, nullptr, Make<TeskTextureType>},
    {"tesktooltip", &pTeskTooltipType, &pTeskFrameType, Make<TeskTooltipType>},
    {"tesktreenode", &pTeskTreeNodeType, nullptr, Make<TeskTreeNodeType>},
    {"tesktree", &pTeskTreeType, &pTeskFrameType, Make<TeskTreeType>},
    {"teskwindow", &pTeskWindowType, &pTeskFrameType, Make<TeskWindowType>},
};
static_assert(std::size(Types) == 27);

// Set before the host is asked anything, so that a host that starts the toolkit again meanwhile gets no second types.
bool g_Registered = false;

void RegisterType(const TypeRow& row)
{
    try {
        *row.Type = row.Make(row.Name).release();
    } catch (const std::bad_alloc&) {
        return;
    }

    MvTypeDefinition* type = *row.Type;
    type->SetBase(row.Base ? *row.Base : nullptr);
    Host::AddType(type);
    if (*row.Type == type) // the host may have shut the toolkit down
        Host::SetTypeObjectClass(type, g_UIManager.ObjectClass);
}

void RemoveType(const TypeRow& row)
{
    if (!*row.Type)
        return;

    Host::RemoveType(*row.Type);
    const std::unique_ptr<MvTypeDefinition> owned(*row.Type);
    *row.Type = nullptr;

    // Bases go before the types that inherit from them, which the host may still ask until it is their turn.
    for (const TypeRow& other : Types) {
        if (*other.Type && other.Base == row.Type)
            (*other.Type)->SetBase(nullptr);
    }
}

} // namespace

void RegisterScriptTypes()
{
    if (g_Registered || !Host::g_Host)
        return;

    g_Registered = true;
    for (const HostTypeRow& row : HostTypes)
        *row.Type = Host::FindType(row.Name);

    g_UIManager.ObjectClass = Host::RegisterObjectClass("Teskara");
    for (const TypeRow& row : Types) {
        if (g_Registered)
            RegisterType(row);
    }
}

void RemoveScriptTypes()
{
    for (const TypeRow& row : Types)
        RemoveType(row);
    for (const HostTypeRow& row : HostTypes)
        *row.Type = nullptr;
    g_Registered = false;
}

void VisitScriptTypes(const ScriptTypeVisitor& visit)
{
    for (const TypeRow& row : Types)
        visit(*row.Make(row.Name), NameOfScriptType(row.Base));
}

const char* NameOfScriptType(MvTypeDefinition* const* type)
{
    for (const TypeRow& row : Types) {
        if (row.Type == type)
            return row.Name;
    }
    return nullptr;
}
