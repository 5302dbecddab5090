// What the matrix does for kinds of markup, for menus and dialogs, which only code makes: each act at each place where
// something of theirs calls out, while the user goes through all of them.

#include "host/probe/TreeChecker.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/EventNames.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/windows/TeskScriptInputBox.h"
#include "teskara/windows/TeskScriptMessageBox.h"
#include "tests/unit/MenuTest.h"
#include "tests/unit/ScriptHost.h"
#include "tests/unit/reentrancy/Bomb.h"
#include "tests/unit/reentrancy/CellWatch.h"
#include "tests/unit/reentrancy/MatrixHost.h"
#include "tests/unit/reentrancy/Scene.h"
#include "tests/unit/reentrancy/Selection.h"

#include <memory>
#include <string>

namespace {

constexpr char BoxName[] = "Box";

// Who takes part. Each may end before the others.
struct Stage {
    std::unique_ptr<TestMenu> Top;
    std::unique_ptr<TestMenu> Sub;
    std::unique_ptr<TestScript> Script;

    void Enter()
    {
        Top = std::make_unique<TestMenu>([this](TestMenu& self) {
            self.AddItem("${words}", 1);
            self.AddSubMenu("more", Sub.get(), 2);
            g_Bomb.Reach("fill");
        });
        Sub = std::make_unique<TestMenu>([](TestMenu& self) {
            self.AddItem("words", 3);
            g_Bomb.Reach("fill the submenu");
        });
        for (TestMenu* menu : {Top.get(), Sub.get()}) {
            menu->Pick = [](unsigned int) { g_Bomb.Reach("pick"); };
            menu->Destroyed = [] { g_Bomb.Reach("destroyed"); };
        }
        Script = std::make_unique<TestScript>();
    }

    // A menu that names another one may not outlive it.
    void EndMenus()
    {
        Top.reset();
        Sub.reset();
    }
};

Stage g_Stage;

void ClickAt(i32 x, i32 y)
{
    MoveTo(x, y);
    PressLeft();
}

void ClickRow(const std::unique_ptr<TestMenu>& menu, i32 row)
{
    if (menu && menu->Menu)
        ClickAt(menu->Menu->X + 5, menu->Menu->Y + 5 + row * 14);
}

void OpenTop()
{
    if (g_Stage.Top)
        g_Stage.Top->Create(50, 50);
    g_UIManager.Render();
}

void UseMenus()
{
    OpenTop();
    ClickRow(g_Stage.Top, 1);
    g_UIManager.Render();
    ClickRow(g_Stage.Sub, 0);
    OpenTop();
    ClickRow(g_Stage.Top, 1);
    ClickAt(700, 500);
    g_UIManager.SetFocusElement(nullptr);
    OpenTop();
    ClickRow(g_Stage.Top, 0);
}

template <class Box> Box* OpenBox(const char* kind)
{
    auto* box = dynamic_cast<Box*>(g_UIManager.LoadElement(g_UIManager.Screen, kind, BoxName));
    if (box && g_Stage.Script)
        box->pScript.Open(*g_Stage.Script, box->ID);
    return box;
}

void OpenMessageBox()
{
    if (auto* box = OpenBox<TeskScriptMessageBox>("scriptmessagebox"))
        box->Create("title", "${words}", MessageBoxYesNo, nullptr);
    g_UIManager.Render();
}

void OpenInputBox()
{
    if (auto* box = OpenBox<TeskScriptInputBox>("scriptinputbox"))
        box->Create("title", "${words}", "words", nullptr);
    g_UIManager.Render();
}

void ClickOn(const char* name)
{
    if (const TeskElement* element = g_UIManager.FindElement(name))
        ClickAt(element->AbsoluteX + 1, element->AbsoluteY + 1);
}

// Presses buttons, whatever there is of them, in the frame and out of it.
void PressAnyButton()
{
    for (const char* name : {"TitleBar@Box", "Text@Box", "Entry@Box", "No@Box", "OK@Box", "Cancel@Box"})
        ClickOn(name);
}

void UseMessageBox()
{
    OpenMessageBox();
    PressAnyButton();
    OpenMessageBox();
    Delete(BoxName);
}

void UseInputBox()
{
    OpenInputBox();
    ClickOn("Entry@Box");
    g_UIManager.OnKeyDown('A');
    g_UIManager.OnKeyDown(13);
    OpenInputBox();
    PressAnyButton();
}

struct Way {
    const char* Name;
    void (*Go)();
    std::initializer_list<const char*> Places;
};

const Way Ways[] = {
    {"menus", UseMenus,
        {"fill", "fill the submenu", "pick", "destroyed", "OnRender", "OnUnload", "OnMouseEnter", "OnMouseExit",
            "OnKeyboardEnter", "LoadElementPosition", "SaveElementPosition", "PrintLine of a script"}},
    {"message box", UseMessageBox,
        {"DataParse", "OnLoad", "OnRender", "OnUnload", "OnMouseEnter", "OnLeftDown", "OnLeftClick", "PrintLine"}},
    {"input box", UseInputBox,
        {"DataParse", "OnLoad", "OnRender", "OnUnload", "OnMouseEnter", "OnLeftDown", "OnLeftClick", "PrintLine"}},
};

void DeleteNewest()
{
    if (TeskElement* newest = g_UIManager.Screen ? g_UIManager.Screen->LastChild : nullptr)
        DeleteByID(newest->ID);
}

void HideAll()
{
    for (TeskElement* child = g_UIManager.Screen ? g_UIManager.Screen->FirstChild : nullptr; child; child = child->Next)
        child->Show(false);
    g_UIManager.SetFocusElement();
}

void CloseMenus()
{
    for (TestMenu* menu : {g_Stage.Sub.get(), g_Stage.Top.get()}) {
        if (menu)
            menu->DestroyMenu(true);
    }
}

void OpenSubmenu()
{
    if (g_Stage.Top && g_Stage.Sub)
        g_Stage.Sub->CreateSubmenu(*g_Stage.Top, 2, 200, 50);
}

void NestInput()
{
    ClickAt(700, 500);
    ClickAt(60, 60);
    ClickAt(400, 300);
    g_UIManager.OnKeyDown(13);
}

struct DialogAct {
    const char* Name;
    void (*Run)();
};

constexpr DialogAct DialogActs[] = {
    {"delete the newest", DeleteNewest},
    {"delete the box", [] { Delete(BoxName); }},
    {"delete its client", [] { Delete("Client@Box"); }},
    {"delete its title bar", [] { Delete("TitleBar@Box"); }},
    {"delete its parts",
        [] {
            Delete("OK@Box");
            Delete("Entry@Box");
            Delete("Text@Box");
            Delete("No@Box");
        }},
    {"press buttons", PressAnyButton},
    {"open a message box", OpenMessageBox},
    {"open an input box", OpenInputBox},
    {"end the script", [] { g_Stage.Script.reset(); }},
    {"end the menus", [] { g_Stage.EndMenus(); }},
    {"end the first menu", [] { g_Stage.Top.reset(); }},
    {"close the menus", CloseMenus},
    {"open the menu", OpenTop},
    {"open the submenu", OpenSubmenu},
    {"add a row",
        [] {
            if (g_Stage.Top)
                g_Stage.Top->AddItem("row", 0);
        }},
    {"reset", [] { g_UIManager.Reset(); }},
    {"remove templates", [] { g_UIManager.ClearTemplates(); }},
    {"hide all", HideAll},
    {"focus nobody", [] { g_UIManager.SetFocusElement(nullptr); }},
    {"nested input", NestInput},
    {"nested frame", [] { g_UIManager.Render(); }},
    {"size anew",
        [] {
            if (g_UIManager.Screen)
                g_UIManager.Screen->RecalculateChildrenSize();
        }},
};

std::string AllEvents()
{
    std::string events;
    for (const char* event : EventNames())
        events += std::string("<") + event + ">" + event + "</" + event + ">";
    return events;
}

class DialogMatrix : public ToolkitTest
{
protected:
    DialogMatrix()
    {
        F1(&m_Host);
        System.KeyTexts = {{'A', "a"}};
    }

    ~DialogMatrix() override
    {
        End();
        F1(&Host);
    }

    static void SetTemplate(const char* name, const std::string& values)
    {
        g_UIManager.AddTemplate(name, ("<Template>" + values + "</Template>").c_str());
    }

    static void Begin()
    {
        const std::string events = AllEvents();
        const std::string broken = std::string("<OnKeyUp>") + BrokenScript + "</OnKeyUp>";
        const std::string solid = "<BackgroundColor>ff000000</BackgroundColor>";
        const std::string dialog = "<Border>2</Border>" + solid + "<TitleBar><Width>100%</Width><Height>9</Height>"
            + solid + events + "</TitleBar><Client><Y>9</Y><Width>100%</Width><Height>80</Height>" + events
            + "<Children><unknown name='Nobody'/></Children></Client>";
        SetTemplate("contextmenu", broken + "<StorePosition>1</StorePosition><Border>2</Border>" + solid + events);
        SetTemplate("messagebox", dialog);
        SetTemplate("scriptinputbox", dialog);
        SetTemplate("textentry", "<MaxLength>20</MaxLength>");
        g_Stage.Enter();
    }

    static void End()
    {
        g_Bomb.Disarm();
        g_Stage.EndMenus();
        g_Stage.Script.reset();
        g_UIManager.Reset();
        g_UIManager.ClearTemplates();
        g_UIManager.ResetMouseState();
        g_UIManager.LeftPressElementID = 0;
        g_UIManager.MousePosition = {-1, -1};
    }

    // Whether the place was reached, unless another cell is wanted.
    bool TryCell(const Way& way, const char* place, Bomb::Fuse fuse, const DialogAct& act)
    {
        const std::string name =
            std::string(way.Name) + ", " + place + ", " + act.Name + (fuse == Bomb::Fuse::Once ? "" : ", each time");
        if (!Selection::Runs(name))
            return true;

        const CellWatch watch(name, "DialogMatrix.EveryActIsSurvivedAtEveryPlace");
        const testing::ScopedTrace trace(__FILE__, __LINE__, CellWatch::Again());
        Begin();
        g_Bomb.Arm(place, fuse, [&act] {
            act.Run();
            return true;
        });
        way.Go();
        const bool reached = g_Bomb.WentOff();
        EXPECT_EQ(std::nullopt, FindTreeFault());
        way.Go();
        for (int frame = 0; frame < 3; ++frame)
            g_UIManager.Render();
        EXPECT_EQ(std::nullopt, FindTreeFault());
        End();
        EXPECT_EQ(1u, g_UIManager.ElementsByID.size()) << "only the screen is left";
        EXPECT_EQ("", m_Host.Books.Imbalance());
        return reached;
    }

    MatrixHost m_Host;
};

} // namespace

TEST_F(DialogMatrix, EveryActIsSurvivedAtEveryPlace)
{
    for (const Way& way : Ways) {
        for (const char* place : way.Places) {
            for (const DialogAct& act : DialogActs) {
                ASSERT_TRUE(TryCell(way, place, Bomb::Fuse::Once, act)) << way.Name << ", " << place;
                ASSERT_TRUE(TryCell(way, place, Bomb::Fuse::EachTime, act)) << way.Name << ", " << place;
            }
        }
    }
}
