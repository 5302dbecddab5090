// Whatever calls out to the host may find, when it comes back, that anything has been deleted, moved or loaded. Here
// each act of a script is tried at each place where the toolkit calls out, on each kind.

#include "host/probe/TreeChecker.h"
#include "teskara/controls/TeskText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/markup/TeskSkin.h"
#include "tests/unit/FreshProcess.h"
#include "tests/unit/ToolkitTest.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <unistd.h>

namespace {

constexpr char SelfName[] = "Self@Parent@Grand";

TeskElement* Self()
{
    return g_UIManager.FindElement(SelfName);
}

void Delete(const char* name)
{
    TeskElement* element = g_UIManager.FindElement(name);
    if (element && element->Parent)
        element->Parent->DeleteChild(element);
}

void DeleteByID(u32 id)
{
    TeskElement* element = g_UIManager.FindElementByID(id);
    if (element && element->Parent)
        element->Parent->DeleteChild(element);
}

void MoveTo(i32 x, i32 y)
{
    _Point2i point = {x, y};
    g_UIManager.OnMouseMove(point);
}

void Press()
{
    g_UIManager.OnLMouseDown();
    g_UIManager.OnLMouseUp();
    g_UIManager.OnRMouseDown();
    g_UIManager.OnRMouseUp();
}

// --- What a script does

struct Act {
    const char* Name;
    void (*Run)();
};

// clang-format off
constexpr Act Acts[] = {
    {"delete self", [] { Delete(SelfName); }},
    {"delete parent", [] { Delete("Parent@Grand"); }},
    {"delete grandparent", [] { Delete("Grand"); }},
    {"delete elder sibling", [] { Delete("Elder@Parent@Grand"); }},
    {"delete younger sibling", [] { Delete("Younger@Parent@Grand"); }},
    {"delete both siblings", [] { Delete("Elder@Parent@Grand"); Delete("Younger@Parent@Grand"); }},
    {"delete first child", [] { Delete("Child@Self@Parent@Grand"); }},
    {"delete focus", [] { DeleteByID(g_UIManager.FocusElementID); }},
    {"delete mouse over", [] { DeleteByID(g_UIManager.MouseOverElementID); }},
    {"delete what holds the press", [] { DeleteByID(g_UIManager.LeftPressElementID); }},
    {"reset", [] { g_UIManager.Reset(); }},
    {"unload own file", [] { g_UIManager.UnloadInterfaceXML("scene.xml"); }},
    {"reload own file", [] { g_UIManager.LoadInterfaceXML("scene.xml", true, nullptr); }},
    {"load into self", [] { g_UIManager.LoadInterfaceXML(Self(), "part.xml", false, nullptr); }},
    {"reset and load", [] { g_UIManager.Reset(); g_UIManager.LoadInterfaceXML("scene.xml", true, nullptr); }},
    {"hide self", [] { g_UIManager.ShowElement(SelfName, false); }},
    {"hide grandparent", [] { g_UIManager.ShowElement("Grand", false); }},
    {"move to top", [] { if (Self()) Self()->MoveZTop(true); }},
    {"move to bottom", [] { if (Self()) Self()->MoveZBottom(); }},
    {"replace own template", [] { g_UIManager.AddTemplate("Look", "<Template><Width>7</Width></Template>"); }},
    {"remove templates", [] { g_UIManager.ClearTemplates(); }},
    {"remove skin", [] { g_UIManager.RemoveSkin("Dark"); }},
    {"set own text", [] { if (auto* text = dynamic_cast<TeskText*>(Self())) text->SetText("other words"); }},
    {"drop own font", [] { if (auto* text = dynamic_cast<TeskText*>(Self())) text->Font.reset(); }},
    {"set own live text", [] { if (auto* text = dynamic_cast<TeskText*>(Self())) text->SetText("${other}"); }},
    {"focus elsewhere", [] { g_UIManager.SetFocusElement(g_UIManager.FindElement("Elder@Parent@Grand")); }},
    {"focus nobody", [] { g_UIManager.SetFocusElement(nullptr); }},
    {"ask for focus and mouse", [] { g_UIManager.GetFocusElement(); g_UIManager.GetMouseOverElement(); }},
    {"nested input", [] { MoveTo(700, 500); Press(); MoveTo(15, 15); Press(); g_UIManager.OnKeyDown('B'); }},
    {"nested frame", [] { g_UIManager.Render(); }},
    {"size anew", [] { if (g_UIManager.Screen) g_UIManager.Screen->RecalculateChildrenSize(); }},
    {"notify", [] { if (Self()) Self()->NotifyParent(NotifyEnter, 0); }},
    {"forget the mouse", [] { g_UIManager.ResetMouseState(); }},
};
// clang-format on

// The act under test: it runs once, where the place under test is reached for the first time.
class Bomb
{
public:
    void Arm(const char* place, std::function<void()> act)
    {
        m_Place = place;
        m_Act = std::move(act);
        m_WentOff = false;
    }

    void Disarm() { m_Place.clear(); }

    void Reach(const std::string& place)
    {
        if (place != m_Place || m_WentOff)
            return;

        m_WentOff = true;
        m_Act();
    }

    bool WentOff() const { return m_WentOff; }

private:
    std::string m_Place;
    std::function<void()> m_Act;
    bool m_WentOff = false;
};

// Outlives the library's end, which runs scripts too.
Bomb& g_Bomb = *new Bomb;

// A kind that is not the toolkit's, which calls out from its own operations.
class OutsideElement : public TeskElement
{
public:
    using TeskElement::TeskElement;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override
    {
        const bool read = TeskElement::FromXML(node, templateNode);
        if (read)
            Reach("FromXML");
        return read;
    }

    void SizeRecalculated(bool) override { Reach("SizeRecalculated"); }
    void OnCreate() override { Reach("OnCreate"); }
    void OnDestroy() override { Reach("OnDestroy"); }
    void OnLMouseDownOther(TeskElement*) override { Reach("OnLMouseDownOther"); }

    void Render() override
    {
        const u32 id = ID;
        Reach("Render");
        if (g_UIManager.FindElementByID(id))
            TeskElement::Render();
    }

    bool OnLMouseDoubleClick(_Point2i&) override
    {
        Reach("refused double click");
        return false;
    }

private:
    void Reach(const char* place) const
    {
        if (Name == "self")
            g_Bomb.Reach(place);
    }
};

// The parent of the element under test: hears what it tells.
class ParentElement : public TeskElement
{
public:
    using TeskElement::TeskElement;

    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override
    {
        const u32 id = ID;
        if (Name == "parent")
            g_Bomb.Reach(code == NotifyChildGoing ? "notified of the end" : "notified");
        if (g_UIManager.FindElementByID(id))
            TeskElement::OnNotify(source, code, value);
    }
};

// --- Where the toolkit calls out, and what makes it do so

struct Place {
    const char* Name;
    void (*Drive)();
};

void LoadScene()
{
    g_UIManager.LoadInterfaceXML("scene.xml", true, g_UIManager.FindSkin("Dark"));
}

void Focus()
{
    if (Self())
        g_UIManager.SetFocusElement(Self());
}

void Unfocus()
{
    g_UIManager.SetFocusElement(g_UIManager.FindElement("Younger@Parent@Grand"));
}

// clang-format off
constexpr Place Places[] = {
    {"FromXML", LoadScene},
    {"LoadElementPosition", LoadScene},
    {"OnCreate", LoadScene},
    {"SizeRecalculated", LoadScene},
    {"OnLoad", LoadScene},
    {"OnUnload", [] { Delete(SelfName); }},
    {"OnUnload", [] { Delete("Grand"); }},
    {"OnUnload", [] { g_UIManager.Reset(); }},
    {"SaveElementPosition", [] { Delete(SelfName); }},
    {"SaveElementPosition", [] { Delete("Grand"); }},
    {"OnDestroy", [] { Delete(SelfName); }},
    {"OnDestroy", [] { Delete("Grand"); }},
    {"notified of the end", [] { Delete(SelfName); }},
    {"notified of the end", [] { Delete("Grand"); }},
    {"OnRender", [] { g_UIManager.Render(); }},
    {"Render", [] { g_UIManager.Render(); }},
    {"evaluated", [] { g_UIManager.Render(); }},
    {"OnMouseEnter", [] { MoveTo(15, 15); }},
    {"OnMouseEnter", [] { g_UIManager.MousePosition = {15, 15}; g_UIManager.Render(); }},
    {"OnMouseExit", [] { MoveTo(15, 15); MoveTo(500, 500); }},
    {"OnMouseExit", [] { MoveTo(15, 15); MoveTo(65, 15); }},
    {"OnMouseMove", [] { MoveTo(15, 15); }},
    {"OnMouseWheel", [] { MoveTo(15, 15); g_UIManager.OnMouseWheel(120); }},
    {"OnLeftDown", [] { MoveTo(15, 15); Press(); }},
    {"OnLeftClick", [] { MoveTo(15, 15); Press(); }},
    {"OnRightDown", [] { MoveTo(15, 15); Press(); }},
    {"OnRightClick", [] { MoveTo(15, 15); Press(); }},
    {"OnDoubleLeftClick", [] { MoveTo(15, 15); Press(); Press(); }},
    {"OnDoubleRightClick", [] { MoveTo(15, 15); Press(); Press(); }},
    {"refused double click", [] { MoveTo(15, 15); Press(); Press(); }},
    {"notified", [] { MoveTo(15, 15); Press(); }},
    {"OnLMouseDownOther", [] { Focus(); MoveTo(85, 15); Press(); }},
    {"OnKeyboardEnter", Focus},
    {"OnKeyboardExit", [] { Focus(); Unfocus(); }},
    {"OnKeyboardExit", [] { Focus(); g_UIManager.SetFocusElement(nullptr); }},
    {"OnKeyboardExit", [] { Focus(); g_UIManager.ShowElement("Grand", false); }},
    {"OnKeyboardExit", [] { Focus(); MoveTo(500, 500); Press(); }},
    {"OnKeyDown", [] { Focus(); g_UIManager.OnKeyDown('A'); }},
    {"OnKeyUp", [] { Focus(); g_UIManager.OnKeyDown('A'); g_UIManager.OnKeyUp('A'); }},
};
// clang-format on

constexpr const char* Scripts[] = {"OnLoad", "OnUnload", "OnLeftClick", "OnRightClick", "OnDoubleLeftClick",
    "OnDoubleRightClick", "OnMouseEnter", "OnMouseExit", "OnMouseMove", "OnMouseWheel", "OnKeyboardEnter",
    "OnKeyboardExit", "OnKeyUp", "OnKeyDown", "OnLeftDown", "OnRightDown", "OnRender"};

constexpr const char* Kinds[] = {"frame", "text", "outside"};

char g_Cell[256];

// A cell that does not end says which one it was.
void EndLongCell(int)
{
    const char message[] = "\ndoes not end: ";
    static_cast<void>(!write(STDERR_FILENO, message, sizeof(message) - 1));
    static_cast<void>(!write(STDERR_FILENO, g_Cell, strlen(g_Cell)));
    _exit(1);
}

class ReentrancyTest : public ToolkitTest
{
protected:
    ReentrancyTest()
    {
        Host.Recorded = 0;
        Host.NamesKeys = true;
        for (const char* script : Scripts)
            Host.Scripts[script] = [script](TeskElement&) { g_Bomb.Reach(script); };
        Host.RestorePosition = [](TeskElement&) { g_Bomb.Reach("LoadElementPosition"); };
        Host.KeepPosition = [](TeskElement&) { g_Bomb.Reach("SaveElementPosition"); };
        Host.Expand = [](const std::string&) {
            g_Bomb.Reach("evaluated");
            return std::string("words of several lines");
        };
        signal(SIGALRM, EndLongCell);
        WriteFile(
            "part.xml", "<frame name='Part'><Children><text name='Words'><Text>x</Text></text></Children></frame>");
    }

    ~ReentrancyTest() override
    {
        alarm(0);
        g_Bomb.Disarm();
        for (const auto& [name, path] : Host.Located)
            std::remove(path.c_str());
    }

    void WriteFile(const char* name, const std::string& markup)
    {
        std::string& path = Host.Located[name];
        if (path.empty()) {
            path = "/tmp/teskara-unit-XXXXXX";
            close(mkstemp(path.data()));
        }
        std::ofstream(path) << "<Tesk>" << markup << "</Tesk>";
    }

    // The element under test stands between two siblings, with a child, two levels below the screen.
    void WriteScene(const char* kind)
    {
        std::string events;
        for (const char* script : Scripts)
            events += std::string("<") + script + ">" + script + "</" + script + ">";
        const std::string solid = "<Y>0</Y><Width>20</Width><Height>90</Height>"
                                  "<BackgroundColor>ff000000</BackgroundColor>";
        WriteFile("scene.xml",
            "<Template name='Look'><Width>50</Width><StorePosition>1</StorePosition>" + events
                + "</Template><Template name='Deep'/>"
                  "<frame name='Grand'><Width>100%</Width><Height>100</Height><Children>"
                  "<parent name='Parent'><Width>100</Width><Height>100</Height><Children>"
                  "<frame name='Elder'><X>60</X>"
                + solid + "</frame><" + kind
                + " name='Self' Template='Look'><X>10</X><Y>10</Y><Height>r50</Height>"
                  "<BackgroundColor>ff000000</BackgroundColor><Wrap>1</Wrap><Text>${words}</Text><AutoTooltip>Hint"
                  "</AutoTooltip><FadeDelay>5</FadeDelay><Children><frame "
                  "name='Child'><Width>5</Width></frame></Children></"
                + kind + "><frame name='Younger'><X>80</X>" + solid
                + "</frame></Children></parent></Children></frame>");
    }

    void BuildScene(const char* kind)
    {
        g_Bomb.Disarm();
        alarm(0);
        g_UIManager.Reset();
        g_UIManager.ClearTemplates();
        g_UIManager.ResetMouseState();
        g_UIManager.LeftPressElementID = g_UIManager.RightPressElementID = 0;
        g_UIManager.MousePosition = {-1, -1};
        if (!g_UIManager.FindSkin("Dark"))
            g_UIManager.NewSkin("Dark");
        WriteScene(kind);
        LoadScene();
        g_UIManager.Render();
        System.Ticks += 1000;
    }

    // What a host goes on to do, whatever happened.
    void GoOn()
    {
        for (int frame = 0; frame < 3; ++frame) {
            System.Ticks += 1500;
            g_UIManager.Render();
            MoveTo(15 + frame, 15);
            Press();
            g_UIManager.OnMouseWheel(-120);
            g_UIManager.OnKeyDown('C');
            g_UIManager.OnKeyUp('C');
        }
    }

    void RunCell(const char* kind, const Place& place, const Act& act)
    {
        std::snprintf(g_Cell, sizeof(g_Cell), "%s, %s, %s\n", kind, place.Name, act.Name);
        SCOPED_TRACE(g_Cell);
        BuildScene(kind);
        alarm(20);
        g_Bomb.Arm(place.Name, act.Run);
        place.Drive();
        m_Reached += g_Bomb.WentOff();
        EXPECT_EQ(std::nullopt, FindTreeFault());
        GoOn();
        EXPECT_EQ(std::nullopt, FindTreeFault());
    }

    // Tells which places were never reached with this kind.
    std::string RunKind(const char* kind)
    {
        std::string missed;
        for (const Place& place : Places) {
            m_Reached = 0;
            for (const Act& act : Acts)
                RunCell(kind, place, act);
            if (m_Reached == 0)
                missed += std::string(place.Name) + "; ";
        }
        return missed;
    }

private:
    TeskFactory<OutsideElement> m_Outside{"outside"};
    TeskFactory<ParentElement> m_Parents{"parent"};
    int m_Reached = 0;
};

} // namespace

TEST_F(ReentrancyTest, AFrameSurvivesEveryActAtEveryPlace)
{
    EXPECT_EQ("FromXML; OnCreate; SizeRecalculated; OnDestroy; OnDestroy; notified of the end; Render; evaluated; "
              "refused double click; OnLMouseDownOther; ",
        RunKind("frame"));
}

TEST_F(ReentrancyTest, ATextSurvivesEveryActAtEveryPlace)
{
    EXPECT_EQ("FromXML; OnCreate; SizeRecalculated; OnDestroy; OnDestroy; notified of the end; Render; "
              "refused double click; notified; OnLMouseDownOther; ",
        RunKind("text"));
}

TEST_F(ReentrancyTest, AKindOfTheHostSurvivesEveryActAtEveryPlace)
{
    EXPECT_EQ("notified of the end; evaluated; OnDoubleLeftClick; notified; ", RunKind("outside"));
}

TEST_F(ReentrancyTest, AShutdownIsSurvivedAtEveryPlace)
{
    for (const char* kind : Kinds) {
        for (const Place& place : Places) {
            SCOPED_TRACE(std::string(kind) + ", " + place.Name);
            std::snprintf(g_Cell, sizeof(g_Cell), "%s, %s, shutdown\n", kind, place.Name);
            InFreshProcess([&] {
                BuildScene(kind);
                alarm(20);
                g_Bomb.Arm(place.Name, [] { g_UIManager.Shutdown(); });
                place.Drive();
                GoOn();
                EXPECT_EQ(std::nullopt, FindTreeFault());
                if (g_Bomb.WentOff()) {
                    EXPECT_TRUE(g_UIManager.ElementsByID.empty());
                }
                g_Bomb.Disarm();
            });
        }
    }
}
