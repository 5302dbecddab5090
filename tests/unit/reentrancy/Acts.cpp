#include "tests/unit/reentrancy/Acts.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/markup/TeskSkin.h"
#include "tests/unit/reentrancy/Collections.h"
#include "tests/unit/reentrancy/Kinds.h"
#include "tests/unit/reentrancy/Scene.h"

#include <vector>

namespace {

bool NestInput()
{
    MoveTo(700, 500);
    PressLeft();
    Aim();
    PressLeft();
    PressRight();
    g_UIManager.OnMouseWheel(-120);
    g_UIManager.OnKeyDown('B');
    g_UIManager.OnKeyUp('B');
    return true;
}

bool Reset()
{
    g_UIManager.Reset();
    return true;
}

bool ResetAndLoad()
{
    g_UIManager.Reset();
    LoadScene();
    return true;
}

// A click of each sort, as far as the element lives.
bool ClickSelf()
{
    using Handler = bool (TeskElement::*)(_Point2i&);
    constexpr Handler handlers[] = {&TeskElement::OnLMouseDown, &TeskElement::OnLMouseUp, &TeskElement::OnRMouseDown,
        &TeskElement::OnRMouseUp, &TeskElement::OnLMouseDoubleClick, &TeskElement::OnRMouseDoubleClick};
    _Point2i point = {15, 15};
    const u32 id = Self() ? Self()->ID : 0;
    bool clicked = false;
    for (const Handler handler : handlers) {
        if (TeskElement* self = g_UIManager.FindElementByID(id)) {
            (self->*handler)(point);
            clicked = true;
        }
    }
    return clicked;
}

// Of the direct children, or of what those hold.
bool DeleteParts(bool ofParts)
{
    const std::vector<u32> parts = PartsOfSelf(ofParts);
    for (const u32 id : parts)
        DeleteByID(id);
    return !parts.empty();
}

bool DeleteNamedParts()
{
    bool deleted = false;
    for (const char* name : {"filler", "slider", "UpButton", "DownButton", "vertical", "List", "Tooltip", "Town",
             "Cell 1", "Cell 0", "Cell 2", "left", "right", "a", "b"})
        deleted |= DeletePart(name);
    return deleted;
}

bool LoadManyInto(TeskElement* parent)
{
    const u32 id = parent ? parent->ID : 0;
    for (int turn = 0; turn < 4; ++turn)
        g_UIManager.LoadInterfaceXML(g_UIManager.FindElementByID(id), PartFile, false, nullptr);
    return true;
}

bool Show(const char* name, bool show)
{
    const bool isThere = g_UIManager.FindElement(name) != nullptr;
    g_UIManager.ShowElement(name, show);
    return isThere;
}

bool Move(bool top)
{
    TeskElement* self = Self();
    if (self && top)
        self->MoveZTop(true);
    else if (self)
        self->MoveZBottom();
    return self != nullptr;
}

bool DeleteSiblings()
{
    const bool deletesElder = Delete(ElderName);
    return Delete(YoungerName) || deletesElder;
}

bool SizeAnew()
{
    if (!g_UIManager.Screen)
        return false;
    g_UIManager.Screen->RecalculateChildrenSize();
    return true;
}

bool Focus(TeskElement* element)
{
    g_UIManager.SetFocusElement(element);
    return true;
}

bool ReplaceSkin()
{
    g_UIManager.RemoveSkin("Dark");
    g_UIManager.NewSkin("Dark");
    return true;
}

bool RemoveSkin()
{
    const bool isThere = g_UIManager.FindSkin("Dark") != nullptr;
    g_UIManager.RemoveSkin("Dark");
    return isThere;
}

bool RemoveOwnTemplate()
{
    const bool isThere = g_UIManager.FindTemplate("Look") != nullptr;
    g_UIManager.RemoveTemplate("Look");
    return isThere;
}

bool NotifyParentOfSelf()
{
    if (!Self())
        return false;
    Self()->NotifyParent(NotifyEnter, 0);
    return true;
}

constexpr u64 EveryKind = 0;

// clang-format off
constexpr Act Acts[] = {
    {"delete self",           [] { return Delete(SelfName); }},
    {"delete parent",         [] { return Delete("Parent@Grand"); }},
    {"delete grandparent",    [] { return Delete("Grand"); }},
    {"delete elder sibling",  [] { return Delete(ElderName); }},
    {"delete younger sibling", [] { return Delete(YoungerName); }},
    {"delete both siblings",  DeleteSiblings},
    {"delete tooltip",        [] { return Delete(TooltipName); }},
    {"delete own child",      [] { return DeletePart("Child"); }, EveryKind, Act::MayMiss},
    {"delete own children",   [] { return DeleteParts(false); }},
    {"delete what own children hold", [] { return DeleteParts(true); }, HoldsParts},
    {"delete own parts",      DeleteNamedParts, HasParts},
    {"delete own title bar",  [] { return DeletePart("TitleBar"); }, HasTitleBar},
    {"delete own client",     [] { return DeletePart("Client"); }, HasTitleBar},
    {"delete focus",          [] { return DeleteByID(g_UIManager.FocusElementID); }},
    {"delete mouse over",     [] { return DeleteByID(g_UIManager.MouseOverElementID); }},
    {"delete what is pressed", [] { return DeleteByID(g_UIManager.LeftPressElementID); }, EveryKind, Act::MayMiss},
    {"reset",                 Reset},
    {"reset and load",        ResetAndLoad},
    {"unload own file",       [] { return g_UIManager.UnloadInterfaceXML(SceneFile); }},
    {"reload own file",       LoadScene},
    {"load own file again",   [] { return g_UIManager.LoadInterfaceXML(SceneFile, false, nullptr); }},
    {"load into self",        [] { return Self() && LoadManyInto(Self()); }},
    {"load into parent",      [] { return LoadManyInto(g_UIManager.FindElement("Parent@Grand")); }},
    {"hide self",             [] { return Show(SelfName, false); }},
    {"hide grandparent",      [] { return Show("Grand", false); }},
    {"move to top",           [] { return Move(true); }},
    {"move to bottom",        [] { return Move(false); }},
    {"replace own template",  [] { return g_UIManager.AddTemplate("Look", "<Template><Width>7</Width></Template>") != nullptr; }},
    {"remove own template",   RemoveOwnTemplate},
    {"remove templates",      [] { g_UIManager.ClearTemplates(); return true; }},
    {"remove skin",           RemoveSkin},
    {"replace skin",          ReplaceSkin},
    {"focus self",            FocusSelf},
    {"focus elsewhere",       FocusYounger},
    {"focus nobody",          [] { return Focus(nullptr); }},
    {"ask for focus and mouse", [] { g_UIManager.GetFocusElement(); g_UIManager.GetMouseOverElement(); return true; }},
    {"click self",            ClickSelf},
    {"nested input",          NestInput},
    {"nested frame",          [] { g_UIManager.Render(); return true; }},
    {"size anew",             SizeAnew},
    {"notify",                NotifyParentOfSelf},
    {"forget the mouse",      [] { g_UIManager.ResetMouseState(); return true; }},
    {"empty own collection",  EmptyCollection, HasCollection},
    {"refill own collection", [] { EmptyCollection(); return FillCollection(); }, HasCollection},
};

constexpr char Markup[] = "<frame><OnLoad>OnLoad</OnLoad></frame>";

constexpr ScriptAct ScriptActs[] = {
    {ScriptAct::This,   nullptr,   "Destroy",       {},                           EveryKind},
    {ScriptAct::Parent, nullptr,   "Destroy",       {},                           EveryKind},
    {ScriptAct::Elder,  nullptr,   "Destroy",       {},                           EveryKind},
    {ScriptAct::This,   "Parent",  "Destroy",       {},                           EveryKind},
    {ScriptAct::This,   "Next",    "Destroy",       {},                           EveryKind},
    {ScriptAct::This,   nullptr,   "AddChild",      {"frame", "New", Markup},     EveryKind},
    {ScriptAct::Parent, nullptr,   "AddChild",      {"frame", "New", Markup},     EveryKind},
    {ScriptAct::This,   nullptr,   "SetZOrder",     {"top"},                      EveryKind},
    {ScriptAct::This,   nullptr,   "SetZOrder",     {"movedown"},                 EveryKind},
    {ScriptAct::Elder,  nullptr,   "SetZOrder",     {"alwaysontop"},              EveryKind},
    {ScriptAct::This,   nullptr,   "SetStrata",     {"5"},                        EveryKind},
    {ScriptAct::Parent, nullptr,   "SetWidth",      {"300"},                      EveryKind},
    {ScriptAct::This,   nullptr,   "Hide",          {},                           EveryKind},
    {ScriptAct::Parent, nullptr,   "ToggleVisible", {},                           EveryKind},
    {ScriptAct::This,   nullptr,   "SetFocus",      {},                           EveryKind},
    {ScriptAct::This,   nullptr,   "LeftClick",     {},                           EveryKind},
    {ScriptAct::This,   nullptr,   "RightClick",    {},                           EveryKind},
    {ScriptAct::This,   nullptr,   "BeginFade",     {},                           EveryKind},
    {ScriptAct::This,   nullptr,   "SetMetadata",   {"HitTest", "widthCircle"},   EveryKind},
    {ScriptAct::This,   nullptr,   "SetText",       {"other words"},              SetsText},
    {ScriptAct::This,   nullptr,   "SetText",       {"${other}"},                 SetsText},
    {ScriptAct::This,   nullptr,   "SetText",       {},                           SetsText},
    {ScriptAct::This,   nullptr,   "SetMaxLength",  {"0"},                        TakesKeys},
    {ScriptAct::This,   nullptr,   "SetMaxLength",  {"100000"},                   TakesKeys},
    {ScriptAct::This,   nullptr,   "AddText",       {"a\nb\nc"},                  EditsLines},
    {ScriptAct::This,   nullptr,   "AddLine",       {"more"},                     EditsLines},
    {ScriptAct::This,   "Font",    "SetHeight",     {"30"},                       HasFont},
    {ScriptAct::This,   "Font",    "SetName",       {"Other"},                    HasFont},
    {ScriptAct::This,   "Texture", "Set",           {"#other"},                   HasTexture},
    {ScriptAct::This,   nullptr,   "SetTexture",    {},                           SetsTexture},
    {ScriptAct::This,   nullptr,   "SetTexture",    {"<T Filename='#other'/>"},   SetsTexture},
    {ScriptAct::This,   nullptr,   "SetChecked",    {},                           SetsCheck},
    {ScriptAct::This,   nullptr,   "SetValue",      {"90"},                       HasValue},
    {ScriptAct::This,   nullptr,   "SetRange",      {"3"},                        HasValue},
    {ScriptAct::This,   nullptr,   "SetRange",      {"0"},                        HasValue},
    {ScriptAct::This,   nullptr,   "RaiseValue",    {"2"},                        HasButtons},
    {ScriptAct::This,   nullptr,   "ClearItems",    {},                           NamesRows},
    {ScriptAct::This,   nullptr,   "AddItem",       {"more"},                     NamesRows},
    {ScriptAct::This,   nullptr,   "RemoveItem",    {"1"},                        NamesRows},
    {ScriptAct::This,   nullptr,   "RemoveItem",    {"2"},                        NamesRows},
    {ScriptAct::This,   nullptr,   "SelectItem",    {"3"},                        NamesRows},
    {ScriptAct::This,   nullptr,   "ClearSelection", {},                          NamesRows},
    {ScriptAct::This,   nullptr,   "Sort",          {"Compare"},                  NamesRows},
    {ScriptAct::List,   nullptr,   "ClearItems",    {},                           DropsList},
    {ScriptAct::List,   nullptr,   "RemoveItem",    {"1"},                        DropsList},
    {ScriptAct::List,   nullptr,   "RemoveItem",    {"4"},                        DropsList},
    {ScriptAct::List,   nullptr,   "SelectItem",    {"3"},                        DropsList},
    {ScriptAct::List,   nullptr,   "Destroy",       {},                           DropsList},
    {ScriptAct::This,   "Root",    "RemoveChildren", {},                          HasNodes},
    {ScriptAct::This,   "Root",    "AddChild",      {"more"},                     HasNodes},
    {ScriptAct::This,   "Root",    "Select",        {},                           HasNodes},
    {ScriptAct::This,   "Selection", "Remove",      {},                           HasNodes},
    {ScriptAct::This,   "Selection", "AddChild",    {"more"},                     HasNodes},
    {ScriptAct::This,   "Selection", "Collapse",    {},                           HasNodes},
    {ScriptAct::This,   nullptr,   "SetSelection",  {"4"},                        DropsList},
    {ScriptAct::This,   nullptr,   "AddTab",        {"more"},                     HasTabs},
    {ScriptAct::This,   "SelectedTab", "Remove",    {},                           HasTabs},
    {ScriptAct::This,   "SelectedTab", "Move",      {"2"},                        HasTabs},
    {ScriptAct::This,   "SelectedTab", "Rename",    {"other"},                    HasTabs},
    {ScriptAct::This,   "SelectedTab", "Destroy",   {},                           HasTabs},
    {ScriptAct::This,   nullptr,   "AddBlip",       {"Town"},                     HasBlips},
    {ScriptAct::This,   nullptr,   "AddBlip",       {"c", "10", "10"},            HasBlips},
    {ScriptAct::This,   nullptr,   "SetMapSize",    {"0", "nan"},                 HasBlips},
    {ScriptAct::This,   nullptr,   "SetRotation",   {"1e30"},                     HasBlips},
    {ScriptAct::This,   nullptr,   "HideLabels",    {},                           HasBlips},
    {ScriptAct::Blip,   nullptr,   "Remove",        {},                           HasBlips},
    {ScriptAct::Blip,   nullptr,   "Destroy",       {},                           HoversBlips},
    {ScriptAct::Blip,   nullptr,   "SetLabel",      {"more"},                     HasBlips},
    {ScriptAct::This,   nullptr,   "Print",         {"${more}"},                  SetsLines},
    {ScriptAct::This,   nullptr,   "SetLine",       {"0", "${more}"},             SetsLines},
    {ScriptAct::This,   nullptr,   "Reset",         {},                           KnowsReset},
    {ScriptAct::This,   nullptr,   "SetTitle",      {"${more}"},                  HasTitleBar},
    {ScriptAct::This,   nullptr,   "SetClickFocus", {},                           HasTitleBar},
    {ScriptAct::This,   nullptr,   "ToggleMinimize", {},                          HasTitleBar},
    {ScriptAct::This,   nullptr,   "Unminimize",    {},                           HasTitleBar},
    {ScriptAct::This,   nullptr,   "Echo",          {"more\nand more"},           HasLines},
    {ScriptAct::This,   nullptr,   "Clear",         {},                           ClearsLines},
};
// clang-format on

TeskElement* Find(ScriptAct::Object object)
{
    switch (object) {
    case ScriptAct::Parent:
        return g_UIManager.FindElement("Parent@Grand");
    case ScriptAct::Elder:
        return g_UIManager.FindElement(ElderName);
    case ScriptAct::List:
        return g_UIManager.FindElement("List@Self@Parent@Grand");
    case ScriptAct::Blip:
        return g_UIManager.FindElement("Town@Self@Parent@Grand");
    default:
        return Self();
    }
}

bool Tell(const ScriptAct& act, std::initializer_list<const char*> arguments)
{
    TeskElement* object = Find(act.On);
    return act.Part ? TellPart(object, act.Part, act.Method, arguments) : Tell(object, act.Method, arguments);
}

} // namespace

std::span<const Act> AllActs()
{
    return Acts;
}

std::span<const ScriptAct> AllScriptActs()
{
    return ScriptActs;
}

bool Perform(const ScriptAct& act)
{
    const auto& [first, second, third] = act.Arguments;
    if (third)
        return Tell(act, {first, second, third});
    if (second)
        return Tell(act, {first, second});
    if (first)
        return Tell(act, {first});
    return Tell(act, {});
}
