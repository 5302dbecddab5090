#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskFont.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/element/TeskTexture.h"
#include "teskara/script/ScriptTable.h"
#include "teskara/script/ToolkitType.h"
#include "tests/unit/Allocations.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

const char* const Arguments7[] = {"1", "2", "3", "4", "5", "6", "7"};

std::vector<const char*> FirstArguments(int count)
{
    return {Arguments7, Arguments7 + count};
}

std::vector<ScriptRow> MembersOf(const MvTypeDefinition& type)
{
    std::vector<ScriptRow> rows;
    dynamic_cast<const ToolkitType&>(type).VisitMembers([&](const ScriptRow& row) { rows.push_back(row); });
    return rows;
}

std::vector<ScriptRow> MethodsOf(const MvTypeDefinition& type)
{
    std::vector<ScriptRow> rows;
    dynamic_cast<const ToolkitType&>(type).VisitMethods([&](const ScriptRow& row) { rows.push_back(row); });
    return rows;
}

// The names of a type in the order of their numbers, which count up by one.
struct TypeNames {
    const char* Type;
    u32 FirstNumber;
    const char* Members;
    const char* Methods;
};

constexpr TypeNames AllNames[] = {
    {"teskara", 0, "Version APIVersion CurrentSkin MouseOverElement FocusedElement IsShiftDown IsAltDown IsCtrlDown",
        ""},
    {"teskelement", 0,
        "Name FullName ID X Y AbsoluteX AbsoluteY Width Height Visible ReallyVisible AlwaysOnTop Strata MouseOver "
        "Focus Type Alpha AbsoluteAlpha FadeAlpha FadeDelay FadeDuration FadeState LeftClickThru RightClickThru "
        "Parent Children Next Previous FindChild FindUsableChild AddChild GetMetadata HitTest",
        "LeftClick LeftMouseDown LeftMouseUp RightClick RightMouseDown RightMouseUp SetX SetY SetWidth SetHeight "
        "SetFocus SetZOrder SetAlpha Show Hide ToggleVisible Destroy AddChild SetLeftClickThru SetRightClickThru "
        "SetFadeAlpha SetFadeDelay SetFadeDuration BeginFade ResetFade InstantFade SetMetadata UnsetMetadata "
        "SetStrata"},
    {"teskfont", 1, "Height Name Color Bold GetTextWidth",
        "SetHeight SetName SetColor EnableBold DisableBold ToggleBold"},
    {"tesktexture", 0,
        "Filename ColorKey Alpha ColorMask Border Orientation Left Right Top Bottom HasRect HasAlpha HasColorMask",
        "Copy Set SetRect SetAlpha SetColorMask UnsetRect UnsetAlpha UnsetColorMask SetOrientation SetBorder"},
    {"teskframe", 0, "BackgroundColor Border BorderColor Texture",
        "SetBackgroundColor SetBorder SetBorderColor SetTexture"},
    {"tesktext", 0, "Text Font NumLines Wrap", "SetText SetHorizontalAlignment SetVerticalAlignment SetWrap"},
    {"teskbutton", 0, "Text Down Font BackgroundColor Texture TexturePressed TextureHover Border BorderColor",
        "SetText SetBackgroundColor SetBorderColor SetBorder SetTexture SetTexturePressed SetTextureHover"},
    {"teskcheckbox", 0,
        "Text Down Checked Font Texture TexturePressed TextureHover TextureChecked TextureCheckedPressed "
        "TextureCheckedHover",
        "SetText SetChecked UnsetChecked ToggleChecked"},
    {"tesklistbox", 0,
        "Font TextColor BackgroundColor Border BorderColor SelectionColor SortType SelectMultiple AutoSort Item Items "
        "OrderedItem ItemByText ItemByValue SelectedItem SelectedItems Texture",
        "SetTextColor SetBackgroundColor SetBorderColor SetSelectionColor SetSortType SetSelectMultiple SetAutoSort "
        "DeselectItem SelectItem ItemToggleSelect ClearSelection AddItem RemoveItem ClearItems SetItemText "
        "SetItemColor "
        "Sort"},
    {"tesklistboxitem", 0, "TextColor ID Value Order Text",
        "SetText SetTextColor SetValue Select Deselect Toggle Remove"},
    {"teskcombobox", 0, "Border Font Down Selection Texture ButtonTexture", "SetSelection"},
    {"teskconsole", 0,
        "Font Border BorderColor ScrollbackColor BackgroundColor SelectionColor Texture ScrollbackTexture",
        "SetBorderColor SetScrollbackColor SetBackgroundColor SetSelectionColor Echo Clear"},
    {"teskgauge", 0, "Border Vertical Range Value", "SetRange SetValue"},
    {"teskslider", 0, "Border Range Value Vertical Texture HandleTexture", "SetRange SetValue"},
    {"teskscrollbar", 0, "Value Range Vertical", "SetValue RaiseValue LowerValue SetRange"},
    {"teskhudelement", 0, "Text Group Font UpdateInterval", "SetText SetGroup SetUpdateInterval"},
    {"tesktabcontrol", 0, "Font SelectedTab Tab Tabs TabTexture TabSelectedTexture", "AddTab"},
    {"tesktab", 0, "Name ID Order", "Select Remove Move Rename"},
    {"teskmapblip", 0, "Location Custom Label Font", "SetType SetLabel SetCustom Remove"},
    {"teskmap", 0,
        "BlipFactory BlipTemplate Origin Rotation MapSizeX MapSizeY Radial ZClipping xShowLabels Blips Blip NextBlip",
        "AddBlip SetOrigin SetRotation SetMapSize ClipZ UnclipZ ToggleZClipping ClipText UnclipText ToggleTextClipping "
        "ShowLabels HideLabels ToggleLabels EnableRotation DisableRotation ToggleRotation"},
    {"tesktextentry", 0,
        "Text Font BackgroundColor BorderColor Border Texture TextureFocused TextureCaret TextureCaretOverwrite "
        "MaxLength",
        "SetText SetBackgroundColor SetBorderColor SetMaxLength"},
    {"tesktextedit", 0, "Font", "SetText Clear AddText AddLine"},
    {"tesktooltip", 0, "Font Lines Line", "Reset Print SetLine"},
    {"tesktree", 0, "Font Selection Root GetNode Image ImageCollapsible ImageCollapsed", ""},
    {"tesktreenode", 0,
        "Handle Text TextColor Image ImageCollapsible ImageCollapsed Parent Children Next Previous Expanded Tree "
        "GetMetadata IsSelected AddChild InsertSiblingBefore InsertSiblingAfter",
        "AddChild InsertSiblingBefore InsertSiblingAfter SetText SetTextColor Select Remove RemoveChildren Expand "
        "Collapse ToggleExpand SetMetadata UnsetMetadata"},
    {"teskwindow", 0,
        "Title Minimized ClickFocus IsClosable IsMinimizable IsWidthResizable IsHeightResizable IsResizable",
        "SetTitle Minimize Unminimize ToggleMinimize SetClickFocus Reset SetWidth SetHeight"},
};

std::string NamesOf(const std::vector<ScriptRow>& rows, u32 firstNumber)
{
    std::string names;
    for (const ScriptRow& row : rows) {
        EXPECT_EQ(firstNumber++, row.ID) << row.Name;
        names += (names.empty() ? "" : " ") + std::string(row.Name);
    }
    return names;
}

} // namespace

// Hosts may keep the numbers.
TEST(TypeTablesDeathTest, NamesHaveTheirNumbers)
{
    WithToolkit([](ScriptHost& host) {
        for (const TypeNames& names : AllNames) {
            SCOPED_TRACE(names.Type);
            EXPECT_EQ(names.Members, NamesOf(MembersOf(host.Type(names.Type)), names.FirstNumber));
            EXPECT_EQ(names.Methods, NamesOf(MethodsOf(host.Type(names.Type)), names.FirstNumber));
        }
    });
}

TEST(TypeTablesDeathTest, EveryRowIsRegisteredUnderItsId)
{
    WithToolkit([](ScriptHost& host) {
        std::size_t rows = 0;
        for (const auto& [name, type] : host.Types) {
            for (const ScriptRow& row : MembersOf(*type)) {
                u32 id = 0;
                EXPECT_TRUE(type->GetMemberID(row.Name, id)) << name << '.' << row.Name;
                EXPECT_EQ(row.ID, id) << name << '.' << row.Name;
                ++rows;
            }
            for (const ScriptRow& row : MethodsOf(*type)) {
                u32 id = 0;
                EXPECT_TRUE(type->GetMethodID(row.Name, id)) << name << ':' << row.Name;
                EXPECT_EQ(row.ID, id) << name << ':' << row.Name;
                ++rows;
            }
        }
        EXPECT_GT(rows, 100u);
    });
}

TEST(TypeTablesDeathTest, NoRowAnswersForNoObject)
{
    WithToolkit([](ScriptHost& host) {
        for (const auto& [name, type] : host.Types) {
            const ScriptObject nobody(*type, nullptr);
            for (const ScriptRow& row : MembersOf(*type))
                EXPECT_EQ("failed", nobody.Get(row.Name, FirstArguments(7))) << name << '.' << row.Name;
            for (const ScriptRow& row : MethodsOf(*type))
                EXPECT_FALSE(nobody.Do(row.Name, FirstArguments(7))) << name << ':' << row.Name;

            char text[16] = "as it was";
            EXPECT_FALSE(type->ToText(nobody.Value(), text, sizeof(text))) << name;
            EXPECT_STREQ("as it was", text) << name;
        }
    });
}

namespace {

// Every kind of which an element can be made here.
std::vector<std::string> Kinds()
{
    std::vector<std::string> kinds;
    for (const auto& [name, factory] : g_UIManager.Factories) {
        if (TeskElement* element = g_UIManager.LoadElement(g_UIManager.Screen, name.Text().c_str(), "Trial")) {
            kinds.push_back(name.Text());
            g_UIManager.Screen->DeleteChild(element);
        }
    }
    return kinds;
}

// Asks one element after another, with ever more arguments: what is asked may end each of them.
template <class Ask> void AskElements(const std::string& kind, Ask ask)
{
    for (int count = 0; count < 6; ++count) {
        const u32 id = MakeElement(kind.c_str(), "Asked").ID;
        ask(*g_UIManager.FindElementByID(id), FirstArguments(count));
        if (TeskElement* left = g_UIManager.FindElementByID(id))
            g_UIManager.Screen->DeleteChild(left);
    }
}

void AskEveryRow(const std::string& kind, MvTypeDefinition& type)
{
    for (const ScriptRow& row : MembersOf(type)) {
        AskElements(kind, [&](TeskElement& element, const std::vector<const char*>& arguments) {
            ScriptObject(type, &element).Get(row.Name, arguments);
        });
    }
    for (const ScriptRow& row : MethodsOf(type)) {
        AskElements(kind, [&](TeskElement& element, const std::vector<const char*>& arguments) {
            ScriptObject(type, &element).Do(row.Name, arguments);
        });
    }
}

bool IsForElements(const std::string& type)
{
    return type != "teskara" && type != "teskfont" && type != "tesktexture";
}

} // namespace

// Each element is asked as what it is and as what it is not: the types of other kinds must not touch it.
TEST(TypeTablesDeathTest, EveryTypeOfElementsMayBeAskedOfEveryElement)
{
    WithToolkit([](ScriptHost& host) {
        const std::vector<std::string> kinds = Kinds();
        EXPECT_GE(kinds.size(), 7u);
        for (const auto& [name, type] : host.Types) {
            for (const std::string& kind : kinds) {
                if (IsForElements(name))
                    AskEveryRow(kind, *type);
            }
        }
        EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
        EXPECT_GT(g_UIManager.NextElementID, 5000u);
    });
}

TEST(TypeTablesDeathTest, ARowDoesNotAnswerWithTooFewArguments)
{
    WithToolkit([](ScriptHost&) {
        for (const std::string& kind : Kinds()) {
            const ScriptObject object(MakeElement(kind.c_str(), kind.c_str()));
            for (const MvTypeDefinition* type = &object.Type(); type; type = type->GetBase()) {
                for (const ScriptRow& row : MembersOf(*type)) {
                    for (int count = 0; count < row.Needs; ++count)
                        EXPECT_EQ("failed", object.Get(row.Name, FirstArguments(count))) << kind << '.' << row.Name;
                }
                for (const ScriptRow& row : MethodsOf(*type)) {
                    for (int count = 0; count < row.Needs; ++count)
                        EXPECT_FALSE(object.Do(row.Name, FirstArguments(count))) << kind << ':' << row.Name;
                }
            }
        }
    });
}

TEST(TypeTablesDeathTest, AskingForAValueAllocatesNothing)
{
    WithToolkit([](ScriptHost&) {
        TeskElement& parent = MakeElement("frame", "Parent");
        const ScriptObject object(MakeElement("text", "Child", &parent));
        object.Do("SetText", {"words"});
        const auto ask = [&](const char* member) {
            _MvTypeVar result;
            EXPECT_EQ(DispatchDone, object.Type().DispatchMember(object.Value(), member, 0, nullptr, result)) << member;
        };
        const std::size_t before = Allocations::Count();
        for (const char* member : {"Width", "FullName", "Visible", "Alpha", "FadeState", "Parent", "Text", "NumLines"})
            ask(member);
        EXPECT_EQ(before, Allocations::Count());
    });
}

// Each allocation behind a row fails in turn. What a test needs itself is made before.
TEST(TypeTablesDeathTest, ARowWithoutMemoryThrowsNothing)
{
    char kind[] = "frame";
    char name[] = "Child";
    char markup[] = "<x><Width>10</Width><Texture Filename='#fill'/><OnLoad>script</OnLoad></x>";
    char skin[] = "Skin";
    char* argv[] = {kind, name, markup, skin};
    const auto ask = [&](const ScriptRow& row, bool isMember, std::size_t failure) {
        TeskElement& element = MakeElement("frame", "Asked");
        const ScriptObject object(element);
        const u32 id = element.ID;
        _MvTypeVar result;
        Allocations::FailAfter(failure, Allocations::Failing::Once);
        if (isMember)
            object.Type().DispatchMember(object.Value(), row.Name, 4, argv, result);
        else
            object.Type().DispatchMethod(object.Value(), row.Name, 4, argv);
        Allocations::Allow();
        if (TeskElement* left = g_UIManager.FindElementByID(id))
            g_UIManager.Screen->DeleteChild(left);
    };
    WithToolkit([&](ScriptHost& host) {
        g_UIManager.NewSkin(skin);
        for (std::size_t failure = 0; failure < 40; ++failure) {
            for (const char* type : {"teskelement", "teskframe"}) {
                for (const ScriptRow& row : MembersOf(host.Type(type)))
                    ask(row, true, failure);
                for (const ScriptRow& row : MethodsOf(host.Type(type)))
                    ask(row, false, failure);
            }
        }
        EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
        EXPECT_EQ(nullptr, g_UIManager.CurrentSkin);
    });
}

TEST(TypeTablesDeathTest, AValueIsOfTheTypeThatTheRowSays)
{
    WithToolkit([](ScriptHost& host) {
        std::size_t answers = 0;
        for (const std::string& kind : Kinds()) {
            TeskElement& element = MakeElement(kind.c_str(), kind.c_str());
            MakeElement("text", "Child", &element);
            const ScriptObject object(element);
            for (const MvTypeDefinition* type = &object.Type(); type; type = type->GetBase()) {
                for (const ScriptRow& row : MembersOf(*type)) {
                    _MvTypeVar result;
                    if (object.Type().DispatchMember(object.Value(), row.Name, 0, nullptr, result) != DispatchDone)
                        continue;
                    ++answers;
                    ASSERT_NE(nullptr, row.Result) << row.Name;
                    if (std::string(row.Result) == "element")
                        EXPECT_EQ(1u, host.Types.count(result.Type->GetName())) << row.Name;
                    else
                        EXPECT_STREQ(row.Result, result.Type->GetName()) << row.Name;
                }
            }
        }
        EXPECT_GT(answers, 150u);
    });
}

TEST(TypeTablesDeathTest, NothingIsAnsweredAtAHostWithoutTypes)
{
    WithHost([](ScriptHost& host) {
        host.HasTypes = false;
        g_UIManager.Initialize();
        const ScriptObject object(MakeElement("frame", "F"));
        EXPECT_EQ("failed", object.Get("Width"));
        EXPECT_EQ("failed", object.Get("Name"));
        EXPECT_EQ("failed", object.Get("Visible"));
        EXPECT_EQ("failed", object.Get("Alpha"));
        EXPECT_EQ("failed", object.Get("FadeDelay"));
        EXPECT_TRUE(object.Do("SetWidth", {"7"}));
        EXPECT_STREQ("teskelement", object.Follow("Parent").Type().GetName());
    });
}

TEST(TypeTablesDeathTest, ANameThatAHostAddsToATypeIsKnownAndFails)
{
    WithToolkit([](ScriptHost& host) {
        host.Type("teskframe").AddMember(77, "Extra", nullptr);
        host.Type("teskframe").AddMethod(77, "Extra", nullptr);
        const ScriptObject object(MakeElement("frame", "F"));
        EXPECT_EQ("failed", object.Get("Extra"));
        EXPECT_FALSE(object.Do("Extra"));
        EXPECT_EQ("unknown", object.Get("Extras"));
    });
}

TEST(TypeTablesDeathTest, AnElementAsTextIsItsNameCutToTheSize)
{
    WithToolkit([](ScriptHost& host) {
        TeskElement& inner = MakeElement("text", "Inner", &MakeElement("frame", "Outer"));
        char text[16] = "as it was";
        ScriptObject object(inner);
        EXPECT_TRUE(object.Type().ToText(object.Value(), text, sizeof(text)));
        EXPECT_STREQ("inner", text);
        EXPECT_TRUE(object.Type().ToText(object.Value(), text, 3));
        EXPECT_STREQ("in", text);
        EXPECT_TRUE(object.Type().ToText(object.Value(), text, 0));
        EXPECT_STREQ("in", text);
        EXPECT_FALSE(object.Type().ToText(object.Value(), nullptr, 16));
        EXPECT_TRUE(host.Type("teskelement").ToText(object.Value(), text, sizeof(text)));
        EXPECT_STREQ("inner", text);
    });
}

TEST(TypeTablesDeathTest, AHostThatThrowsWhenAskedForATypeGetsNothing)
{
    class Thrower : public TeskElement
    {
    public:
        using TeskElement::TeskElement;
        MvTypeDefinition* GetMvType() override { throw 1; }
        bool OnLMouseDown(_Point2i&) override { throw 2; }
    };

    WithToolkit([](ScriptHost& host) {
        const TeskFactory<Thrower> factory("thrower");
        TeskElement& thrower = MakeElement("thrower", "T");
        const ScriptObject screen(*g_UIManager.Screen);
        EXPECT_EQ("failed", screen.Get("Children"));
        EXPECT_FALSE(ScriptObject(host.Type("teskelement"), &thrower).Do("LeftClick"));
    });
}
