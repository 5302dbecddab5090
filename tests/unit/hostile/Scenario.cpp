#include "tests/unit/hostile/Scenario.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/TeskDataSequence.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/script/MvIndex.h"
#include "teskara/script/MvIterator.h"
#include "teskara/script/MvTypeDefinition.h"
#include "teskara/text/TextKeys.h"
#include "teskara/windows/CContextMenuHandler.h"
#include "teskara/windows/TeskContextMenu.h"
#include "tests/unit/hostile/ScriptActs.h"
#include "tests/unit/hostile/User.h"

#include <algorithm>
#include <cstdio>
#include <initializer_list>

namespace {

constexpr u32 FrameTime = 20;
constexpr u32 LongTime = 1500; // in which tooltips come and what fades has faded

// The scenario itself allocates nothing, so that all that is allocated meanwhile is the toolkit's or spared.
TeskElement* Find(const char* name)
{
    return g_UIManager.FindElement(name);
}

// --- Steps; each begins with the mouse on the frame, and after each all is drawn

void LoadScene(Scenario&)
{
    g_UIManager.AddTemplate("messagebox",
        "<Template><Border>2</Border><Client><Width>100%</Width><Height>90</Height>"
        "</Client></Template>");
    g_UIManager.AddTemplate("contextmenu", "<Template><Font><Size>12</Size></Font><Border>3</Border></Template>");
    g_UIManager.NewSkin("dark");
    g_UIManager.LoadInterfaceXML(ScenarioFile, true, g_UIManager.FindSkin("dark"));
}

void MakeAllKinds(Scenario&)
{
    TeskElement* holder = g_UIManager.LoadElement(g_UIManager.Screen, "frame", Script::MadeHolder);
    if (!holder)
        return;

    const u32 id = holder->ID;
    holder->Width = 800;
    holder->Height = 140;
    holder->Y = 460;
    i32 x = 0;
    for (const char* kind : ScenarioKinds()) {
        char name[32];
        std::snprintf(name, sizeof(name), "made %s", kind);
        TeskElement* made = g_UIManager.LoadElement(g_UIManager.FindElementByID(id), kind, name);
        if (!made)
            continue;
        made->X = x;
        made->Width = 23;
        made->Height = 100;
        x += 23;
    }
    Script::Tell(
        g_UIManager.FindElementByID(id), "AddChild", {"button", "scripted", "<button><Text>${x}</Text></button>"});
}

void UseMouseOnKinds(std::size_t begin, std::size_t end)
{
    for (std::size_t index = begin; index < end && index < ScenarioKinds().size(); ++index) {
        User::UseMouseOn(Find(ScenarioKinds()[index]));
        User::UseMouseOn(Script::FindMade(ScenarioKinds()[index]));
    }
}

void UseMouseOnFirst(Scenario&)
{
    UseMouseOnKinds(0, 12);
}

void UseMouseOnMore(Scenario&)
{
    UseMouseOnKinds(12, 24);
}

void UseMouseOnRest(Scenario&)
{
    UseMouseOnKinds(24, ScenarioKinds().size());
}

void UseKeyboard(Scenario&)
{
    for (const char* kind : {"textentry", "commandentry", "textedit", "listbox", "frame"}) {
        User::FocusOn(Find(kind));
        User::TypeEverything();
        User::FocusOn(Script::FindMade(kind));
        User::TypeEverything();
    }
}

// A text that is longer than what is drawn of it at once, with the caret at its end.
void TypeLongText(Scenario& scenario)
{
    char text[1500] = {};
    std::fill_n(text, sizeof(text) - 1, '.'); // without a width

    Script::TellBoth("textentry", "SetText", {text});
    User::FocusOn(Find("textentry"));
    User::Type(KeyEnd);
    g_UIManager.Render();
    scenario.System.Give("two\nlines", 500);
    User::TypeWithControl({KeyV});
    User::FocusOn(Find("textedit"));
    User::TypeWithControl({KeyV, KeyA, KeyC});
    User::FocusOn(Find("commandentry"));
    User::TypeWithControl({KeyV});
}

void UseConsole(Scenario&)
{
    for (const char* line : {"a", "two\nlines", "\a-rred", "some more"})
        Script::TellBoth("console", "Echo", {line});
    g_UIManager.Render();
    if (const TeskElement* console = Find("console")) {
        const i32 x = console->AbsoluteX;
        const i32 y = console->AbsoluteY;
        User::MoveTo(x, y, 8, 70);
        g_UIManager.OnLMouseDown();
        User::MoveTo(x, y, 60, 20);
        g_UIManager.OnLMouseUp();
    }
    User::FocusOn(Find("commandentry"));
    for (const char letter : {'U', 'I', 'E', 'l'})
        User::Type(static_cast<u32>(letter));
    User::Type(KeyTab);
    User::Type(KeyEnter);
    Script::TellBoth("console", "Clear");
}

void ChangeRows(Scenario&)
{
    for (const char* kind : {"listbox", "combobox"}) {
        Script::TellBoth(kind, "AddItem", {"${more}", "7"});
        Script::TellBoth(kind, "SelectItem", {"2"});
        Script::TellBoth(kind, "SetItemText", {"1", "text"});
        Script::TellBoth(kind, "Sort", {"Compare"});
        Script::TellBoth(kind, "RemoveItem", {"1"});
        User::ClickOn(kind);
        g_UIManager.Render();
    }
    Script::TellBoth("combobox", "ClearItems");
    for (const auto find : {Find, Script::FindMade}) {
        for (const char* text : {"a", "b", "c"})
            Script::TellPart(Script::Ask(find("tree"), "Root"), "AddChild", text);
        Script::TellPart(Script::Ask(find("tree"), "GetNode", {"what ever"}), "AddChild", "d");
        Script::TellPart(Script::Ask(find("tree"), "GetNode", {"what ever"}), "Select", "");
    }
}

void ChangePlaces(Scenario&)
{
    Script::TellBoth("tabcontrol", "AddTab", {"more"});
    Script::TellPart(Script::Ask(Find("tabcontrol"), "SelectedTab"), "Rename", "other");
    Script::TellPart(Script::Ask(Find("tabcontrol"), "SelectedTab"), "Remove", "");
    Script::TellBoth("map", "AddBlip", {"Town", "10", "10", "0", "8", "A label", "blip"});
    Script::TellBoth("map", "AddBlip", {"Hill", "12", "12", "0", "8", "A label", "blip"});
    User::UseMouseOn(Find("map"));
    Script::TellBoth("map", "AddBlip", {"Town", "20", "20"});
    Script::TellBoth("window", "SetTitle", {"${more}"});
    Script::TellBoth("window", "ToggleMinimize");
    Script::TellBoth("window", "Reset");
    for (const char* kind : ScenarioKinds()) {
        Script::TellBoth(kind, "SetWidth", {"70"});
        Script::TellBoth(kind, "SetZOrder", {"top"});
        Script::TellBoth(kind, "SetMetadata", {"HitTest", "Circle"});
    }
}

void ChangeTexts(Scenario&)
{
    for (const char* kind : ScenarioKinds()) {
        Script::TellBoth(kind, "SetText", {"${other} words"});
        Script::TellBoth(kind, "SetValue", {"9"});
        Script::TellBoth(kind, "SetTexture", {"<T Filename='#other'/>"});
        Script::TellPart(Script::Ask(Find(kind), "Font"), "SetHeight", "30");
        Script::TellPart(Script::Ask(Find(kind), "Texture"), "Copy", "UIElement[frame].Texture");
    }
    Script::TellBoth("tooltip", "Print", {"${words}\n${words}"});
    const _MvTypeVar texture = Script::Ask(Find("frame"), "Texture");
    _MvTypeVar name;
    if (texture.Type && texture.Value.Object)
        texture.Type->DispatchMember(texture.Value, "Filename", 0, nullptr, name);
}

void GiveCommands(Scenario& scenario)
{
    HostileHost& host = scenario.Host;
    host.TryCommand({"UI"});
    host.TryCommand({"UI", "-load", ScenarioPart});
    host.TryCommand({"UI", "-reload", "-skin", "dark", ScenarioPart});
    host.TryCommand({"UI", "-load", "-parent", "frame", ScenarioPart, "part", "new"});
    host.TryCommand({"UI", "-load", "nowhere.xml"});
    host.TryCommand({"UIElement", "-list"});
    host.TryCommand({"UIElement", "-hide", "part"});
    host.TryCommand({"UIElement", "-toggle", "part"});
    host.TryCommand({"UIElement", "-kill", "part"});
    host.TryCommand({"UIElement", "-show", "nobody"});
    host.TryCommand({"UI", "-unload", ScenarioPart});
    for (const char* object : {"UIElement", "UserInput", "Teskara"})
        host.TryObject(object, "frame");
}

void OpenDialogs(Scenario& scenario)
{
    scenario.Host.TryCommand({"MessageBox", "-okcancel", "Are you ${sure}?"});
    scenario.Host.TryCommand({"InputBox", "Your ${name}?", "nobody"});
}

void AnswerDialogs(Scenario& scenario)
{
    User::Type('x');
    User::Type(KeyEnter);
    g_UIManager.Render();
    for (const char* name : {"OK@WorkerMessageBox", "OK@WorkerInputBox", "Cancel@WorkerInputBox"})
        User::ClickOn(name);
    scenario.Host.Running.InsideAtom = true;
    scenario.Host.TryCommand({"MessageBox", "Plain"});
    scenario.Host.Running.InsideAtom = false;
    User::ClickOn("OK@MessageBox");
    scenario.Host.TryObject("UserInput", "");
    scenario.Host.TryCommand({"MessageBox", "-yesno", "One that is answered by nobody"});
}

class WordMenu final : public CContextMenuHandler
{
public:
    explicit WordMenu(WordMenu* below = nullptr) : m_Below(below) { }

    void OnCreate(unsigned int) override
    {
        AddItem("${words}", 1);
        AddSeparator();
        AddSubMenu("more", m_Below, 2);
    }
    void OnClick(unsigned int) override { g_UIManager.Render(); }

private:
    WordMenu* m_Below;
};

void UseMenus(Scenario&)
{
    WordMenu below;
    WordMenu menu(&below);
    menu.Create(300, 300);
    g_UIManager.Render();
    if (menu.Menu)
        User::UseMouseAt(WrapAdd(menu.Menu->X, 8), WrapAdd(menu.Menu->Y, 45));
    g_UIManager.Render();
    menu.DestroyMenu(true);
    menu.Create(310, 310);
    if (menu.Menu)
        User::UseMouseAt(WrapAdd(menu.Menu->X, 8), WrapAdd(menu.Menu->Y, 10));
}

void UseValues(Scenario& scenario)
{
    TeskDataSequence sequence("${a} and ${b}");
    char text[64];
    _MvTypeVar value;
    sequence.RetrieveOriginalText(text, sizeof(text));
    sequence.RetrieveProcessedText(text, sizeof(text));
    sequence.RetrieveProcessedResult(value);
    MvIndex index(scenario.Host.TypeOf("teskframe"));
    index.Resize(3);
    const std::unique_ptr<MvIterator> iterator = index.NewIterator();
}

void DrawLines(Scenario&)
{
    TeskElement* frame = Find("frame");
    if (!frame)
        return;

    const _Line line = {1, 1, 50, 60};
    frame->DrawLine(line, 0xffffffff, 2);
    frame->DeleteChild(nullptr);
    frame->DeleteChild(g_UIManager.Screen);
}

void Wait(Scenario& scenario)
{
    User::MoveTo(45, 45);
    scenario.System.Ticks += LongTime;
    g_UIManager.Render();
    g_UIManager.ShowElement("frame", false);
    g_UIManager.ToggleElement("frame");
    if (TeskElement* button = Find("button"))
        button->Parent->DeleteChild(button);
    User::FocusOn(Find("textentry"));
}

void LoadAnew(Scenario&)
{
    g_UIManager.LoadInterfaceXML(ScenarioFile, true, nullptr);
    g_UIManager.LoadInterfaceXML(Find("frame"), ScenarioPart, true, nullptr);
    g_UIManager.UnloadInterfaceXML(ScenarioPart);
}

void StartAnew(Scenario& scenario)
{
    User::FocusOn(Find("textentry"));
    g_UIManager.Initialize(); // while all of it stands
    LoadScene(scenario);
}

void LoseEverything(Scenario& scenario)
{
    g_UIManager.RemoveSkin("dark");
    g_UIManager.ClearTemplates();
    g_UIManager.Reset();
    g_UIManager.ResetMouseState();
    LoadScene(scenario);
}

using Step = void (*)(Scenario& scenario);

constexpr Step Steps[] = {LoadScene, MakeAllKinds, UseMouseOnFirst, UseMouseOnMore, UseMouseOnRest, UseKeyboard,
    TypeLongText, UseConsole, ChangeRows, ChangePlaces, ChangeTexts, GiveCommands, OpenDialogs, AnswerDialogs, UseMenus,
    UseValues, DrawLines, Wait, LoadAnew, StartAnew, LoseEverything};

} // namespace

Scenario::Scenario(const ScenarioFiles& files)
{
    Host.Files = files.Paths;
    SetPlatform(&System);
}

Scenario::~Scenario()
{
    SetPlatform(nullptr);
}

void Scenario::Start() noexcept
{
    F1(&Host)->Initialize();
}

void Scenario::Play() noexcept
{
    for (const Step step : Steps) {
        User::PointAt("frame");
        step(*this);
        System.Ticks += FrameTime;
        g_UIManager.Render();
        if (EndsEarly)
            return;
    }
}

void Scenario::Clear() noexcept
{
    g_UIManager.Reset();
    g_UIManager.ClearTemplates();
}

bool Scenario::Recover() noexcept
{
    g_UIManager.Initialize();
    const bool loaded = g_UIManager.LoadInterfaceXML(ScenarioFile, false, nullptr);
    g_UIManager.Render();
    return loaded && Find("in@frame");
}

void Scenario::ShutDown() noexcept
{
    User::PointAt("frame");
    User::FocusOn(Find("textentry"));
    g_UIManager.Shutdown();
}
