#include "tests/unit/reentrancy/Acts.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/markup/TeskSkin.h"
#include "tests/unit/reentrancy/Scene.h"

namespace {

void NestInput()
{
    MoveTo(700, 500);
    PressLeft();
    Aim();
    PressLeft();
    PressRight();
    g_UIManager.OnMouseWheel(-120);
    g_UIManager.OnKeyDown('B');
    g_UIManager.OnKeyUp('B');
}

void ResetAndLoad()
{
    g_UIManager.Reset();
    LoadScene();
}

void ClickSelf()
{
    _Point2i point = {15, 15};
    const u32 id = Self() ? Self()->ID : 0;
    if (TeskElement* self = g_UIManager.FindElementByID(id))
        self->OnLMouseDown(point);
    if (TeskElement* self = g_UIManager.FindElementByID(id))
        self->OnLMouseUp(point);
}

void LoadManyInto(TeskElement* parent)
{
    const u32 id = parent ? parent->ID : 0;
    for (int turn = 0; turn < 4; ++turn)
        g_UIManager.LoadInterfaceXML(g_UIManager.FindElementByID(id), PartFile, false, nullptr);
}

// clang-format off
constexpr Act Acts[] = {
    {"delete self",           [] { Delete(SelfName); }},
    {"delete parent",         [] { Delete("Parent@Grand"); }},
    {"delete grandparent",    [] { Delete("Grand"); }},
    {"delete elder sibling",  [] { Delete(ElderName); }},
    {"delete younger sibling", [] { Delete(YoungerName); }},
    {"delete both siblings",  [] { Delete(ElderName); Delete(YoungerName); }},
    {"delete own child",      [] { Delete("Child@Self@Parent@Grand"); }},
    {"delete focus",          [] { DeleteByID(g_UIManager.FocusElementID); }},
    {"delete mouse over",     [] { DeleteByID(g_UIManager.MouseOverElementID); }},
    {"delete what is pressed", [] { DeleteByID(g_UIManager.LeftPressElementID); }},
    {"reset",                 [] { g_UIManager.Reset(); }},
    {"reset and load",        ResetAndLoad},
    {"unload own file",       [] { g_UIManager.UnloadInterfaceXML(SceneFile); }},
    {"reload own file",       [] { LoadScene(); }},
    {"load own file again",   [] { g_UIManager.LoadInterfaceXML(SceneFile, false, nullptr); }},
    {"load into self",        [] { LoadManyInto(Self()); }},
    {"load into parent",      [] { LoadManyInto(g_UIManager.FindElement("Parent@Grand")); }},
    {"hide self",             [] { g_UIManager.ShowElement(SelfName, false); }},
    {"hide grandparent",      [] { g_UIManager.ShowElement("Grand", false); }},
    {"move to top",           [] { if (Self()) Self()->MoveZTop(true); }},
    {"move to bottom",        [] { if (Self()) Self()->MoveZBottom(); }},
    {"replace own template",  [] { g_UIManager.AddTemplate("Look", "<Template><Width>7</Width></Template>"); }},
    {"remove templates",      [] { g_UIManager.ClearTemplates(); }},
    {"remove skin",           [] { g_UIManager.RemoveSkin("Dark"); }},
    {"replace skin",          [] { g_UIManager.RemoveSkin("Dark"); g_UIManager.NewSkin("Dark"); }},
    {"focus self",            FocusSelf},
    {"focus elsewhere",       FocusYounger},
    {"focus nobody",          [] { g_UIManager.SetFocusElement(nullptr); }},
    {"ask for focus and mouse", [] { g_UIManager.GetFocusElement(); g_UIManager.GetMouseOverElement(); }},
    {"click self",            ClickSelf},
    {"nested input",          NestInput},
    {"nested frame",          [] { g_UIManager.Render(); }},
    {"size anew",             [] { if (g_UIManager.Screen) g_UIManager.Screen->RecalculateChildrenSize(); }},
    {"notify",                [] { if (Self()) Self()->NotifyParent(NotifyEnter, 0); }},
    {"forget the mouse",      [] { g_UIManager.ResetMouseState(); }},
};

constexpr char Markup[] = "<frame><OnLoad>OnLoad</OnLoad></frame>";

constexpr ScriptAct ScriptActs[] = {
    {ScriptAct::This,   "Destroy",         {}},
    {ScriptAct::Parent, "Destroy",         {}},
    {ScriptAct::Elder,  "Destroy",         {}},
    {ScriptAct::This,   "AddChild",        {"frame", "New", Markup}},
    {ScriptAct::Parent, "AddChild",        {"frame", "New", Markup}},
    {ScriptAct::This,   "SetZOrder",       {"top"}},
    {ScriptAct::This,   "SetZOrder",       {"movedown"}},
    {ScriptAct::Elder,  "SetZOrder",       {"alwaysontop"}},
    {ScriptAct::This,   "SetStrata",       {"5"}},
    {ScriptAct::Parent, "SetWidth",        {"300"}},
    {ScriptAct::This,   "Hide",            {}},
    {ScriptAct::Parent, "ToggleVisible",   {}},
    {ScriptAct::This,   "SetFocus",        {}},
    {ScriptAct::This,   "LeftClick",       {}},
    {ScriptAct::This,   "RightClick",      {}},
    {ScriptAct::This,   "BeginFade",       {}},
    {ScriptAct::This,   "SetMetadata",     {"HitTest", "widthCircle"}},
    {ScriptAct::This,   "SetText",         {"other words"}},
    {ScriptAct::This,   "SetText",         {"${other}"}},
};
// clang-format on

TeskElement* Find(ScriptAct::Object object)
{
    switch (object) {
    case ScriptAct::Parent:
        return g_UIManager.FindElement("Parent@Grand");
    case ScriptAct::Elder:
        return g_UIManager.FindElement(ElderName);
    default:
        return Self();
    }
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
    TeskElement* object = Find(act.On);
    if (third)
        return Tell(object, act.Method, {first, second, third});
    if (second)
        return Tell(object, act.Method, {first, second});
    if (first)
        return Tell(object, act.Method, {first});
    return Tell(object, act.Method);
}
