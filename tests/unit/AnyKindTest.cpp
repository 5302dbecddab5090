// What holds for an element of every kind, however it came to be and wherever it stands.

#include "host/probe/TreeChecker.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/EventNames.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/FreshProcess.h"
#include "tests/unit/ToolkitTest.h"
#include "tests/unit/reentrancy/MatrixHost.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace {

// What any kind may read; kinds pass over what is not theirs.
constexpr char Values[] =
    "<Width>100</Width><Height>100</Height><BackgroundColor>ff000000</BackgroundColor><Border>2</Border>"
    "<Texture Filename='#a'/><TexturePressed Filename='#b'/><TextureChecked Filename='#c'/><Text>${words}</Text><Font/>"
    "<Wrap>1</Wrap><AutoTooltip>${hint}</AutoTooltip><Command>run</Command><Console>Log</Console><Data>${number}</Data>"
    "<Range>50</Range><VariableRange>2</VariableRange><HandleTexture Filename='#d'/><TopTexture Filename='#e'/>"
    "<Filler><Width>60</Width><Height>50%</Height><Repeat>3</Repeat><Texture Filename='#f'><right>9</right></Texture>"
    "</Filler><Slider><Width>10</Width><Height>50</Height><Range>9</Range></Slider><UpButton><Width>9</Width></"
    "UpButton>"
    "<DownButton><Width>9</Width></DownButton><ScrollBar><Width>9</Width><Slider/></ScrollBar><ListBox><ScrollBar/>"
    "</ListBox><FullHeight>80</FullHeight><ButtonTexture Filename='#g'/><Items><item Default='1'>a</item><item>b</item>"
    "<item>c</item></Items><Resizable/><TitleBar><Width>50</Width><Height>20</Height><Children><text name='Title'/>"
    "<button name='Minimize'/></Children></TitleBar><Client><Y>20</Y><Width>100%</Width><Height>r20</Height></Client>"
    "<VerticalScrollBar><Width>9</Width><Slider/></VerticalScrollBar><TabHeight>12</TabHeight><TabTexture "
    "Filename='#h'/>"
    "<TabSelectedTexture Filename='#i'/><Tabs><Tab Name='a'><frame name='In'/></Tab><Tab Name='b'/></Tabs>"
    "<MapSizeX>100</MapSizeX><MapSizeY>80</MapSizeY><ItemHeight>10</ItemHeight><ImageTexture Filename='#j'/>"
    "<MaxLength>20</MaxLength><Row><Cell ColSpan='2'/><Cell/></Row><CommandHistory>3</CommandHistory>";

// Names by which kinds know parts of theirs.
constexpr const char* PartNames[] = {"Slider", "UpButton", "DownButton", "ScrollBar", "VerticalScrollBar", "List",
    "Filler", "TitleBar", "Title", "Minimize", "Close", "Client", "Tooltip", "Left", "Right", "Cell 0", "Text", "Entry",
    "OK", "Auto Tooltip"};

// Says that it is of every kind, and is of none.
class Pretender : public TeskElement
{
public:
    using TeskElement::TeskElement;

    bool IsTypeOf(const char*) override { return true; }
};

std::vector<std::string> Words()
{
    std::vector<std::string> words;
    for (const auto& [word, factory] : g_UIManager.Factories)
        words.push_back(word.Text());
    std::sort(words.begin(), words.end());
    return words;
}

std::string AllEvents()
{
    std::string events;
    for (const char* event : EventNames())
        events += std::string("<") + event + ">" + event + "</" + event + ">";
    return events;
}

std::string Markup(const std::string& word, const std::string& name, const std::string& inside = {})
{
    return "<" + word + " name='" + name + "'>" + Values + "<Children>" + inside + "</Children></" + word + ">";
}

class AnyKindTest : public ToolkitTest
{
protected:
    AnyKindTest()
    {
        F1(&m_Lender);
        System.KeyTexts = {{'A', "a"}};
    }

    ~AnyKindTest() override
    {
        g_UIManager.Reset();
        F1(&Host);
    }

    void LoadFile(const std::string& markup)
    {
        m_Lender.WriteFile("any.xml", markup);
        g_UIManager.LoadInterfaceXML("any.xml", true, nullptr);
    }

    // An element made by code, large enough to be hit.
    static TeskElement* MakeBare(TeskElement* parent, const std::string& word, const char* name)
    {
        TeskElement* element = parent ? g_UIManager.LoadElement(parent, word.c_str(), name) : nullptr;
        if (element) {
            element->Width = element->Height = 100;
            element->Show(true);
        }
        return element;
    }

    void PointAt(i32 x, i32 y)
    {
        _Point2i point = {x, y};
        g_UIManager.OnMouseMove(point);
        for (int press = 0; press < 2; ++press) {
            g_UIManager.OnLMouseDown();
            point = {x + 20, y + 20};
            g_UIManager.OnMouseMove(point);
            g_UIManager.OnLMouseUp();
            g_UIManager.OnRMouseDown();
            g_UIManager.OnRMouseUp();
        }
        g_UIManager.OnMouseWheel(120);
        g_UIManager.OnMouseWheel(-120);
    }

    // A few frames, the whole of the mouse, and the keys that move and delete things.
    void Use(std::initializer_list<const char*> names)
    {
        for (const char* name : names) {
            g_UIManager.SetFocusElement(g_UIManager.FindElement(name));
            for (const u32 key : {65u, 8u, 9u, 13u, 27u, 33u, 34u, 35u, 36u, 37u, 38u, 39u, 40u, 45u, 46u}) {
                g_UIManager.OnKeyDown(key);
                g_UIManager.OnKeyUp(key);
            }
        }
        for (const i32 place : {3, 30, 60, 90, 500}) {
            System.Ticks += 1500;
            g_UIManager.Render();
            PointAt(place, place);
        }
        ASSERT_EQ(std::nullopt, FindTreeFault());
    }

    void ExpectNothingLeft()
    {
        g_UIManager.Reset();
        EXPECT_EQ(1u, g_UIManager.ElementsByID.size());
        EXPECT_EQ("", m_Lender.Books.Imbalance());
    }

    MatrixHost m_Lender;
};

// Its tests come before those that start the toolkit here.
class AnyKindDeathTest : public testing::Test
{
};

} // namespace

TEST_F(AnyKindTest, OneWithoutMarkupStandsEverything)
{
    for (const std::string& word : Words()) {
        SCOPED_TRACE(word);
        ASSERT_NE(nullptr, MakeBare(g_UIManager.Screen, word, "Q"));
        Use({"Q"});
        if (TeskElement* element = g_UIManager.FindElement("Q"))
            g_UIManager.Screen->DeleteChild(element);
        EXPECT_EQ(nullptr, g_UIManager.FindElement("Q"));
        ExpectNothingLeft();
    }
}

TEST_F(AnyKindTest, OneWithoutMarkupStandsInAnyOther)
{
    for (const std::string& outer : Words()) {
        for (const std::string& inner : Words()) {
            SCOPED_TRACE(inner + " in " + outer);
            MakeBare(MakeBare(g_UIManager.Screen, outer, "Outer"), inner, "Inner");
            Use({"Inner@Outer"});
            ExpectNothingLeft();
        }
    }
}

TEST_F(AnyKindTest, OneFromMarkupStandsInAnyOther)
{
    for (const std::string& outer : Words()) {
        std::string inside;
        for (const std::string& inner : Words())
            inside += Markup(inner, inner);
        SCOPED_TRACE(outer);
        LoadFile(Markup(outer, "Outer", inside));
        Use({"Outer", "textentry@Outer", "textedit@Outer", "tree@Outer"});
        ExpectNothingLeft();
    }
}

TEST_F(AnyKindTest, OneBearsThatNobodyElseTakesPart)
{
    for (const std::string& word : Words()) {
        SCOPED_TRACE(word);
        LoadFile(Markup(word, "Made"));
        MakeBare(g_UIManager.Screen, word, "Bare");
        for (const char* name : {"Made", "Bare"}) {
            // Dialogs and menus end by some of it, and no markup makes them.
            const auto tell = [name](auto&& news) {
                if (TeskElement* element = g_UIManager.FindElement(name))
                    news(*element);
            };
            tell([](TeskElement& element) { element.OnLMouseDownOther(nullptr); });
            tell([](TeskElement& element) { element.OnMouseExit(nullptr); });
            for (unsigned int code = 0; code < 64; ++code)
                tell([code](TeskElement& element) { element.OnNotify(nullptr, code, 0); });
            tell([](TeskElement& element) { element.OnKeyboardExit(nullptr); });
        }
        Use({"Made", "Bare"});
        ExpectNothingLeft();
    }
}

TEST_F(AnyKindTest, OneMayReadMarkupAgainAndNone)
{
    for (const std::string& word : Words()) {
        SCOPED_TRACE(word);
        XMLNode* node = g_UIManager.AddTemplate(
            "Again", ("<Template>" + std::string(Values) + AllEvents() + "</Template>").c_str());
        LoadFile(Markup(word, "Made"));
        MakeBare(g_UIManager.Screen, word, "Bare");
        for (const char* name : {"Made", "Bare"}) {
            for (XMLNode* again : {node, node, static_cast<XMLNode*>(nullptr)}) {
                if (TeskElement* element = g_UIManager.FindElement(name))
                    element->FromXML(again, nullptr);
            }
        }
        Use({"Made", "Bare"});
        ExpectNothingLeft();
    }
}

TEST_F(AnyKindTest, OneTakesNobodyForAPartByNameAndWordAlone)
{
    const TeskFactory<Pretender> factory("pretender");
    for (const std::string& word : Words()) {
        SCOPED_TRACE(word);
        std::string inside;
        for (const char* name : PartNames)
            inside += std::string("<pretender name='") + name + "'><Width>50</Width><Height>50</Height></pretender>";
        LoadFile(Markup(word, "Q", inside) + "<pretender name='Auto Tooltip'/>");
        Use({"Q"});
        TeskElement* bare = MakeBare(g_UIManager.Screen, word, "Bare");
        for (const char* name : PartNames) {
            MakeBare(bare, "pretender", name);
            if (bare)
                bare->OnCreate();
        }
        Use({"Bare"});
        ExpectNothingLeft();
    }
}

TEST_F(AnyKindTest, OneTakesNobodyForItsParentByWordAlone)
{
    const TeskFactory<Pretender> factory("pretender");
    for (const std::string& word : Words()) {
        SCOPED_TRACE(word);
        LoadFile("<pretender name='Q'><Width>100</Width><Height>100</Height><Children>" + Markup(word, "Made")
            + "</Children></pretender>");
        MakeBare(g_UIManager.FindElement("Q"), word, "Bare");
        Use({"Made@Q", "Bare@Q"});
        ExpectNothingLeft();
    }
}

// A host may put its own kind in the place of one of the toolkit's, which others may make parts of.
TEST_F(AnyKindTest, OneThatWasReplacedIsNotTakenForWhatItWas)
{
    for (const std::string& replaced : Words()) {
        SCOPED_TRACE(replaced);
        TeskElementFactory* original = g_UIManager.FindFactory(replaced.c_str());
        {
            const TeskFactory<Pretender> factory(replaced.c_str());
            std::string all;
            for (const std::string& word : Words())
                all += Markup(word, word);
            LoadFile(all);
            for (const std::string& word : Words())
                MakeBare(g_UIManager.Screen, word, ("Bare " + word).c_str());
            Use({"textentry", "listbox", "tree", "Bare textedit"});
            g_UIManager.Reset();
        }
        EXPECT_EQ(nullptr, g_UIManager.FindFactory(replaced.c_str()));
        g_UIManager.Factories[utf8stringnocase(replaced)] = original;
        ExpectNothingLeft();
    }
}

TEST_F(AnyKindTest, OneThatCannotBeDeletedOutlivesItsParent)
{
    for (const std::string& word : Words()) {
        SCOPED_TRACE(word);
        TeskElement* parent = MakeBare(g_UIManager.Screen, "frame", "Parent");
        TeskElement* element = MakeBare(parent, word, "Q");
        ASSERT_NE(nullptr, element);
        const u32 id = element->ID;
        const auto factory = g_UIManager.Factories.extract(utf8stringnocase(word));
        TeskElementFactory* original = factory.mapped();
        for (int count = 0; count < 2; ++count)
            parent->DeleteChild(element);
        EXPECT_EQ(nullptr, parent->FirstChild);
        EXPECT_EQ(parent, element->Parent);

        g_UIManager.Factories[utf8stringnocase(word)] = original;
        g_UIManager.Screen->DeleteChild(parent); // a frame may be the kind itself
        ASSERT_EQ(element, g_UIManager.FindElementByID(id));
        EXPECT_EQ(nullptr, element->Parent);
        element->OnNotify(element, 1, 0);
        element->NotifyParent(1, 0);
        element->RecalculateSize(true);
        element->Render();
        EXPECT_TRUE(element->IsReallyVisible() || !element->Visible);
        Use({"Q@Parent"});
        if (TeskElement* left = g_UIManager.FindElementByID(id))
            left->Delete();
        EXPECT_EQ(nullptr, g_UIManager.FindElementByID(id));
        ExpectNothingLeft();
    }
}

TEST_F(AnyKindDeathTest, OneUnloadsInAShutdownThatHasTakenTheTypesAway)
{
    InFreshProcess([] {
        MatrixHost host;
        TestPlatform system;
        SetPlatform(&system);
        F1(&host)->Initialize();
        int loaded = 0;
        int unloaded = 0;
        host.Scripts["load"] = [&](TeskElement&) { ++loaded; };
        host.Scripts["unload"] = [&](TeskElement& self) {
            ++unloaded;
            EXPECT_EQ(nullptr, self.GetMvType());
        };
        std::string markup;
        for (const std::string& word : Words()) {
            markup += "<" + word + " name='" + word + "'>" + Values
                + "<OnLoad>load</OnLoad><OnUnload>unload</OnUnload></" + word + ">";
        }
        host.WriteFile("all.xml", markup);
        EXPECT_TRUE(g_UIManager.LoadInterfaceXML("all.xml", false, nullptr));
        EXPECT_LE(28, loaded);
        g_UIManager.Shutdown();
        EXPECT_EQ(loaded, unloaded);
        EXPECT_TRUE(g_UIManager.ElementsByID.empty());
        SetPlatform(nullptr);
    });
}
