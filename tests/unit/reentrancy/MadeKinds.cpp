#include "tests/unit/reentrancy/MadeKinds.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/windows/TeskContextMenu.h"
#include "teskara/windows/TeskMap.h"
#include "teskara/windows/TeskMapView.h"
#include "teskara/windows/TeskScriptInputBox.h"
#include "teskara/windows/TeskScriptMessageBox.h"
#include "tests/unit/MenuTest.h"
#include "tests/unit/ScriptHost.h"
#include "tests/unit/reentrancy/Bomb.h"
#include "tests/unit/reentrancy/Scene.h"

namespace {

struct Event {
    ScriptPointer ElementEvents::*Script;
    const char* Name;
};

// clang-format off
constexpr Event Events[] = {
    {&ElementEvents::OnUnload,           "OnUnload"},
    {&ElementEvents::OnLeftClick,        "OnLeftClick"},
    {&ElementEvents::OnRightClick,       "OnRightClick"},
    {&ElementEvents::OnDoubleLeftClick,  "OnDoubleLeftClick"},
    {&ElementEvents::OnDoubleRightClick, "OnDoubleRightClick"},
    {&ElementEvents::OnMouseEnter,       "OnMouseEnter"},
    {&ElementEvents::OnMouseExit,        "OnMouseExit"},
    {&ElementEvents::OnMouseMove,        "OnMouseMove"},
    {&ElementEvents::OnMouseWheel,       "OnMouseWheel"},
    {&ElementEvents::OnKeyboardEnter,    "OnKeyboardEnter"},
    {&ElementEvents::OnKeyboardExit,     "OnKeyboardExit"},
    {&ElementEvents::OnKeyUp,            "OnKeyUp"},
    {&ElementEvents::OnKeyDown,          "OnKeyDown"},
    {&ElementEvents::OnLeftDown,         "OnLeftDown"},
    {&ElementEvents::OnRightDown,        "OnRightDown"},
    {&ElementEvents::OnRender,           "OnRender"},
};
// clang-format on

// Of a dialog: the parts lie away from where the mouse goes, and have scripts.
constexpr char DialogTemplate[] =
    "<Template><Border>1</Border><BackgroundColor>ff000000</BackgroundColor><Font/><TitleBar><Width>40</Width>"
    "<Height>40</Height><OnLoad>OnLoad of a part</OnLoad><OnUnload>OnUnload of a part</OnUnload>"
    "<OnRender>OnRender of a part</OnRender></TitleBar><Client><X>20</X><Y>20</Y><Width>r25</Width><Height>r25</Height>"
    "<OnLoad>OnLoad of a part</OnLoad><OnUnload>OnUnload of a part</OnUnload><OnRender>OnRender of a part</OnRender>"
    "</Client></Template>";

TeskElement* Make(const char* word)
{
    return g_UIManager.LoadElement(g_UIManager.FindElement("Parent@Grand"), word, "Self");
}

// All of it may find that what is made has ended in between.
void Furnish()
{
    for (const Event& event : Events) {
        if (TeskElement* self = Self())
            self->Events.*event.Script = ScriptPointer(TeskEmbeddedScript::New(self, event.Name, nullptr));
    }
    Tell(Self(), "AddChild",
        {"frame", "Child", "<frame><Width>3</Width><OnRender>OnRender of the child</OnRender></frame>"});
    Tell(Self(), "AddChild", {"foreign", "Inner", "<foreign><Y>20</Y><Width>3</Width><Height>r30</Height></foreign>"});
    if (TeskElement* self = Self()) {
        self->StorePosition = true;
        self->X = self->Y = 10;
        self->Width = self->Height = 50;
        self->MoveZDown();
    }
    if (Self())
        Self()->RecalculateChildrenSize();
}

// Who opened the menu and the dialogs. Both last, so that a menu may tell its handler at any time.
TestMenu& Handler()
{
    static auto& handler = *new TestMenu;
    return handler;
}

TestScript& Script()
{
    static auto& script = *new TestScript;
    return script;
}

template <class Box> void OpenForScript(TeskElement* made)
{
    if (auto* box = dynamic_cast<Box*>(made))
        box->pScript.Open(Script(), box->ID);
}

// Where the mouse goes is the title bar otherwise.
void FinishDialog()
{
    if (Self() && Self()->FirstChild)
        Self()->FirstChild->Show(false);
    Furnish();
}

} // namespace

void MakeFiller(const char* word)
{
    Make(word);
    Furnish();
}

// The blip is one of a map that is hidden.
void MakeBlipView(const char* word)
{
    const ElementWatch watch(g_UIManager.FindElement("Parent@Grand"));
    auto* map = dynamic_cast<TeskMap*>(g_UIManager.LoadElement(g_UIManager.Screen, "map", "Other"));
    const u32 id = map ? map->AddBlip("Self", {10, 10, 0}, 8, "A label", "Blip", nullptr) : 0;
    auto* blip = dynamic_cast<TeskMapBlip*>(g_UIManager.FindElementByID(id));
    auto* view = dynamic_cast<TeskMapView*>(watch.Get());
    if (view && blip && std::string_view(word) == "mapblipview")
        view->AddBlipView(blip);
    else
        Make(word);
    g_UIManager.ShowElement("Other", false);
    Furnish();
}

void MakeMenu(const char* word)
{
    if (auto* menu = dynamic_cast<TeskContextMenu*>(Make(word)))
        menu->Load(Handler(), g_UIManager.FindTemplate("Look"));
    if (auto* menu = dynamic_cast<TeskContextMenu*>(Self())) {
        Handler().Menu = menu;
        Handler().Pick = [](unsigned int) { g_Bomb.Reach("pick"); };
        Handler().Destroyed = [] { g_Bomb.Reach("destroyed"); };
        Handler().AddItem("${words}", 1);
        Handler().AddSeparator();
        Handler().AddItem("words", 2);
    }
    Furnish();
}

void MakeMessageBox(const char* word)
{
    g_UIManager.AddTemplate("Dialog", DialogTemplate);
    TeskElement* made = Make(word);
    OpenForScript<TeskScriptMessageBox>(made);
    if (auto* box = dynamic_cast<TeskMessageBox*>(made))
        box->Create("title", "${words}", MessageBoxYesNo, g_UIManager.FindTemplate("Dialog"));
    FinishDialog();
}

void MakeInputBox(const char* word)
{
    g_UIManager.AddTemplate("Dialog", DialogTemplate);
    TeskElement* made = Make(word);
    OpenForScript<TeskScriptInputBox>(made);
    if (auto* box = dynamic_cast<TeskScriptInputBox*>(made))
        box->Create("title", "${words}", "words", g_UIManager.FindTemplate("Dialog"));
    FinishDialog();
}
