#include "tests/fuzz/HostileActs.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/script/MvTypeDefinition.h"
#include "tests/fuzz/DialogActs.h"
#include "tests/fuzz/MapActs.h"
#include "tests/fuzz/TreeActs.h"

#include <array>
#include <climits>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

constexpr char Skin[] = "a";
constexpr char Scene[] = "f";
constexpr char Part[] = "part";
constexpr char Template[] = "all";

bool g_TemplatesChanged = false;

void DeleteElement(TeskElement* element)
{
    if (element && element->Parent)
        element->Parent->DeleteChild(element);
}

void NestInput(u8 argument)
{
    _Point2i point = PointFrom(argument);
    g_UIManager.OnMouseMove(point);
    g_UIManager.OnLMouseDown();
    g_UIManager.OnRMouseDown();
    g_UIManager.OnMouseWheel(NumberFrom(argument));
    g_UIManager.OnLMouseUp();
    g_UIManager.OnRMouseUp();
}

void ClickOwn(TeskElement& self, u8 argument)
{
    _Point2i point = PointFrom(argument);
    const ElementWatch watch(self);
    self.OnLMouseDown(point);
    if (watch.Exists())
        self.OnMouseMove(point);
    if (watch.Exists())
        self.OnLMouseUp(point);
}

// --- The script types

constexpr const char* MemberWords[] = {"Name", "Parent", "Children", "Next", "Previous", "FindChild", "FindUsableChild",
    "AddChild", "GetMetadata", "HitTest", "FadeState", "Font", "Texture", "TexturePressed", "TextureHover", "Text",
    "Checked", "Down", "Group", "Visible", "Nonsense", "NumLines", "Type", "AbsoluteAlpha", "Range", "Value",
    "Vertical", "HandleTexture", "Item", "OrderedItem", "ItemByText", "ItemByValue", "SelectedItem", "SelectedItems",
    "SortType", "Order", "Selection", "Title", "Minimized", "ClickFocus", "IsResizable", "ScrollbackTexture", "Root",
    "GetNode", "Handle", "Expanded", "IsSelected", "InsertSiblingBefore", "InsertSiblingAfter", "ImageCollapsed",
    "SelectedTab", "Tab", "Tabs", "TabTexture", "TabSelectedTexture", "Blip", "NextBlip", "Blips", "Location", "Label",
    "Origin", "ZClipping", "BlipTemplate"};

constexpr const char* MethodWords[] = {"Destroy", "AddChild", "SetZOrder", "SetStrata", "SetWidth", "SetHeight", "Hide",
    "ToggleVisible", "SetFocus", "LeftClick", "LeftMouseDown", "LeftMouseUp", "RightClick", "RightMouseDown",
    "RightMouseUp", "BeginFade", "SetMetadata", "UnsetMetadata", "SetText", "SetTexture", "SetTexturePressed",
    "SetTextureHover", "SetChecked", "UnsetChecked", "ToggleChecked", "SetUpdateInterval", "SetGroup", "AddLine",
    "Reset", "Nonsense", "SetBorder", "SetName", "SetHeight", "EnableBold", "Set", "SetRect", "SetAlpha", "SetRange",
    "SetValue", "RaiseValue", "LowerValue", "SetSortType", "SetSelectMultiple", "DeselectItem", "SelectItem",
    "ItemToggleSelect", "ClearSelection", "AddItem", "RemoveItem", "ClearItems", "SetItemText", "SetItemColor", "Sort",
    "Select", "Deselect", "Toggle", "Remove", "SetSelection", "SetTitle", "Minimize", "Unminimize", "ToggleMinimize",
    "SetClickFocus", "Echo", "Clear", "AddText", "AddTab", "Move", "Rename", "AddBlip", "SetOrigin", "SetRotation",
    "SetMapSize", "ToggleZClipping", "ToggleLabels", "SetLabel", "SetCustom", "RemoveChildren", "Expand", "Collapse",
    "ToggleExpand", "InsertSiblingBefore", "InsertSiblingAfter"};

constexpr const char* ArgumentWords[] = {"", "frame", "top", "Button", "-1", "4294967295", "1e30", "nan", "${x}",
    "HitTest", "widthCircle", "<frame><OnLoad>0</OnLoad></frame>", "<text><Text>${x}</Text></text>", "all", "#camera",
    "<broken", "1", "3", "c", "textreverse", "a\nb\n\nc"};

// Up to three arguments, chosen by the byte.
class Words
{
public:
    explicit Words(u8 byte) : m_Count(byte % 4)
    {
        for (std::size_t index = 0; index < m_Texts.size(); ++index) {
            m_Texts[index] = ArgumentWords[(byte / 4u + index * 5u) % std::size(ArgumentWords)];
            m_Arguments[index] = m_Texts[index].data();
        }
    }

    int Count() const { return m_Count; }
    char** Arguments() { return m_Arguments.data(); }

private:
    int m_Count;
    std::array<std::string, 3> m_Texts;
    std::array<char*, 3> m_Arguments;
};

_MvTypeVar AsObject(TeskElement& element)
{
    _MvTypeVar object;
    object.Type = element.GetMvType();
    object.Value.Object = &element;
    return object;
}

void CallMethod(const _MvTypeVar& object, u8 argument)
{
    if (!object.Type)
        return;

    Words words(static_cast<u8>(argument * 7u));
    const char* method = MethodWords[argument % std::size(MethodWords)];
    object.Type->DispatchMethod(object.Value, method, words.Count(), words.Arguments());
}

// Reads a member, and its text, and calls a method of what came out.
void AskMember(const _MvTypeVar& object, u8 argument)
{
    if (!object.Type)
        return;

    Words words(static_cast<u8>(argument * 11u));
    const char* member = MemberWords[argument % std::size(MemberWords)];
    _MvTypeVar result;
    const int done = object.Type->DispatchMember(object.Value, member, words.Count(), words.Arguments(), result);
    if (done != DispatchDone || !result.Type)
        return;

    char text[64];
    result.Type->ToText(result.Value, text, sizeof(text));
    CallMethod(result, static_cast<u8>(argument / std::size(MemberWords) * 13u));
}

// --- The longer ones of the acts

void DeleteFocus(TeskElement&, u8)
{
    DeleteElement(g_UIManager.FindElementByID(g_UIManager.FocusElementID));
}

void DeleteMouseOver(TeskElement&, u8)
{
    DeleteElement(g_UIManager.FindElementByID(g_UIManager.MouseOverElementID));
}

void ToggleAnother(TeskElement&, u8 argument)
{
    if (TeskElement* other = FindByPlace(argument))
        other->Show(!other->Visible);
}

void MoveAnotherDown(TeskElement&, u8 argument)
{
    if (TeskElement* other = FindByPlace(argument))
        other->MoveZDown();
}

void ReplaceTemplate(TeskElement&, u8)
{
    g_TemplatesChanged = true;
    g_UIManager.AddTemplate(Template, "<Template><Width>7</Width></Template>");
}

void RemoveTemplates(TeskElement&, u8)
{
    g_TemplatesChanged = true;
    g_UIManager.ClearTemplates();
}

void RemoveSkin(TeskElement&, u8)
{
    g_TemplatesChanged = true;
    g_UIManager.RemoveSkin(Skin);
}

void Load(TeskElement&, u8 argument)
{
    g_UIManager.LoadInterfaceXML(argument & 2u ? Scene : Part, argument % 2 != 0, g_UIManager.FindSkin(Skin));
}

void Unload(TeskElement&, u8 argument)
{
    g_UIManager.UnloadInterfaceXML(argument & 2u ? Scene : Part);
}

void MoveMouse(TeskElement&, u8 argument)
{
    _Point2i point = PointFrom(argument);
    g_UIManager.OnMouseMove(point);
}

void NestedKey(TeskElement&, u8 argument)
{
    g_UIManager.OnKeyDown(argument);
    g_UIManager.OnKeyUp(argument);
}

void Size(TeskElement& self, u8 argument)
{
    self.Width = static_cast<u32>(NumberFrom(argument));
    self.RecalculateChildrenSize();
}

void Place(TeskElement& self, u8 argument)
{
    self.X = NumberFrom(argument);
    self.RecalculateSize(true);
}

void SetStrata(TeskElement& self, u8 argument)
{
    self.Strata = static_cast<i8>(argument);
    self.MoveZTop(false);
}

void ClickThrough(TeskElement& self, u8 argument)
{
    self.LeftClickThru = argument % 2 != 0;
    self.RightClickThru = argument % 3 != 0;
}

void CaptureTheMouse(TeskElement& self, u8 argument)
{
    g_UIManager.MouseCaptureElementID = argument % 2 ? self.ID : 0;
}

void Fade(TeskElement& self, u8 argument)
{
    self.FadeDelay = argument;
    self.FadeDuration = argument;
    self.FadeState = argument % 5;
}

// clang-format off
constexpr HostileAct Acts[] = {
    {"nothing",            [](TeskElement&, u8) { }},
    {"delete self",        [](TeskElement& self, u8) { DeleteElement(&self); }},
    {"delete parent",      [](TeskElement& self, u8) { DeleteElement(self.Parent); }},
    {"delete previous",    [](TeskElement& self, u8) { DeleteElement(self.Previous); }},
    {"delete next",        [](TeskElement& self, u8) { DeleteElement(self.Next); }},
    {"delete first child", [](TeskElement& self, u8) { DeleteElement(self.FirstChild); }},
    {"delete another",     [](TeskElement&, u8 argument) { DeleteElement(FindByPlace(argument)); }},
    {"delete focus",       DeleteFocus},
    {"delete mouse over",  DeleteMouseOver},
    {"reset",              [](TeskElement&, u8) { g_UIManager.Reset(); }},
    {"hide",               [](TeskElement& self, u8) { self.Show(false); g_UIManager.SetFocusElement(); }},
    {"toggle another",     ToggleAnother},
    {"move to top",        [](TeskElement& self, u8) { self.MoveZTop(true); }},
    {"move to bottom",     [](TeskElement& self, u8) { self.MoveZBottom(); }},
    {"move up",            [](TeskElement& self, u8) { self.MoveZUp(); }},
    {"move another down",  MoveAnotherDown},
    {"remove templates",   RemoveTemplates},
    {"replace template",   ReplaceTemplate},
    {"remove skin",        RemoveSkin},
    {"load",               Load},
    {"load into self",     [](TeskElement& self, u8) { g_UIManager.LoadInterfaceXML(&self, Part, false, nullptr); }},
    {"unload",             Unload},
    {"focus self",         [](TeskElement& self, u8) { g_UIManager.SetFocusElement(&self); }},
    {"focus another",      [](TeskElement&, u8 argument) { g_UIManager.SetFocusElement(FindByPlace(argument)); }},
    {"focus nobody",       [](TeskElement&, u8) { g_UIManager.SetFocusElement(nullptr); }},
    {"ask for focus",      [](TeskElement&, u8) { g_UIManager.GetFocusElement(); }},
    {"move mouse",         MoveMouse},
    {"nested input",       [](TeskElement&, u8 argument) { NestInput(argument); }},
    {"nested key",         NestedKey},
    {"nested frame",       [](TeskElement&, u8) { g_UIManager.Render(); }},
    {"click own",          ClickOwn},
    {"call own method",    [](TeskElement& self, u8 argument) { CallMethod(AsObject(self), argument); }},
    {"ask own member",     [](TeskElement& self, u8 argument) { AskMember(AsObject(self), argument); }},
    {"notify",             [](TeskElement& self, u8 argument) { self.NotifyParent(argument % 16u, argument); }},
    {"size",               Size},
    {"place",              Place},
    {"set strata",         SetStrata},
    {"click through",      ClickThrough},
    {"capture the mouse",  CaptureTheMouse},
    {"forget the mouse",   [](TeskElement&, u8) { g_UIManager.ResetMouseState(); }},
    {"fade",               Fade},
    {"throw",              [](TeskElement&, u8) { throw std::runtime_error("thrown by a script"); }},
    {"open a menu",        [](TeskElement&, u8 argument) { OpenFuzzMenu(argument); }},
    {"close a menu",       [](TeskElement&, u8 argument) { CloseFuzzMenu(argument); }},
    {"end the menus",      [](TeskElement&, u8) { EndFuzzMenus(); }},
    {"show a box",         [](TeskElement&, u8 argument) { ShowFuzzBox(argument); }},
    {"shake a tree",       ShakeFuzzTree},
    {"end the script",     [](TeskElement&, u8) { EndFuzzScript(); }},
    {"feed a map",         FeedFuzzMap},
};
// clang-format on
static_assert(std::size(Acts) <= HostileActMask + 1u);

} // namespace

std::span<const HostileAct> AllHostileActs()
{
    return Acts;
}

bool HaveTemplatesChanged()
{
    return std::exchange(g_TemplatesChanged, false);
}

void Perform(u8 act, TeskElement& self, u8 argument)
{
    act &= HostileActMask;
    if (act < std::size(Acts))
        Acts[act].Run(self, argument);
}

TeskElement* FindByPlace(u8 number)
{
    TeskElement* screen = g_UIManager.Screen;
    if (!screen)
        return nullptr;

    TeskElement* element = screen;
    for (; number > 0; --number) {
        if (element->FirstChild)
            element = element->FirstChild;
        else {
            while (element != screen && !element->Next)
                element = element->Parent;
            element = element == screen ? screen : element->Next;
        }
    }
    return element;
}

_Point2i PointFrom(u8 byte)
{
    constexpr i32 ends[] = {INT_MIN, -1, 0, 799, 800, 801, INT_MAX, INT_MIN + 1};
    if (byte >= 0xf0)
        return {ends[byte & 7u], ends[(byte >> 1) & 7u]};
    return {(byte & 15) * 50 + 5, (byte >> 4) * 40 + 5};
}

i32 NumberFrom(u8 byte)
{
    constexpr i32 ends[] = {INT_MIN, INT_MIN + 1, -65536, -1, 0, 65536, INT_MAX - 1, INT_MAX};
    return byte >= 0xf8 ? ends[byte & 7u] : byte - 100;
}
