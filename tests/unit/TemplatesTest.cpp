#include "teskara/core/CUIManager.h"
#include "teskara/core/Limits.h"
#include "teskara/element/TeskElement.h"
#include "teskara/markup/TeskSkin.h"
#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLHelper.h"
#include "teskara/markup/XMLNode.h"
#include "tests/unit/ToolkitTest.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <string>

class TemplatesTest : public ToolkitTest
{
protected:
    ~TemplatesTest() override
    {
        g_UIManager.RemoveSkin("dark");
        g_UIManager.RemoveSkin("light");
    }

    // The children of a template: tags, and texts in quotes.
    static std::string Children(const char* name)
    {
        XMLNode* node = g_UIManager.FindTemplate(name);
        if (!node)
            return "none";

        std::string all;
        for (XMLNode* child = node->FirstChild; child; child = child->Next)
            all += (child->Type == XMLElementNode ? child->Name : "'" + std::string(child->Name) + "'") + " ";
        return all;
    }

    static std::size_t Count(const char* name)
    {
        std::size_t count = 0;
        for (XMLNode* child = g_UIManager.FindTemplate(name)->FirstChild; child; child = child->Next)
            ++count;
        return count;
    }
};

namespace {

// A template with so many children of different tags and so many attributes.
std::string Large(const std::string& name, const std::string& base, int children, int attributes = 0)
{
    std::string text = "<Template name=\"" + name + "\" Template=\"" + base + "\"";
    for (int index = 0; index < attributes; ++index)
        text += " " + name + std::to_string(index) + "=\"v\"";
    text += ">";
    for (int index = 0; index < children; ++index)
        text += "<" + name + std::to_string(index) + "/>";
    return text + "</Template>";
}

// Seconds that this machine, under whatever checks, may take for what a user must not wait for.
constexpr double Patience = 30;

double SecondsSince(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

TEST_F(TemplatesTest, TextsAddUpWhereElementsReplace)
{
    Load(R"(<Template name="base">x<Width>1</Width><!--c--></Template>
        <Template name="more" Template="base">y<WIDTH>2</WIDTH><Height/></Template>)");
    EXPECT_EQ("'x' 'c' 'y' WIDTH Height ", Children("more"));
}

TEST_F(TemplatesTest, TextsOfAListAddUpAsOftenAsItsTakenAndElementsStayOnce)
{
    Load(R"(<Template name="a">x<Width/></Template><Template name="b" Template="a,">y<Height/></Template>)");
    EXPECT_EQ("'x' 'y' 'x' Width 'y' Height ", Children("b"));
}

TEST_F(TemplatesTest, ATemplateMayBeStoredFromItself)
{
    Load(R"(<Template name="a"><Width>1</Width></Template>)");
    XMLNode* node = g_UIManager.FindTemplate("a");
    XMLNode* copy = g_UIManager.AddTemplate("a", node);
    ASSERT_NE(nullptr, copy);
    EXPECT_EQ(copy, g_UIManager.FindTemplate("a"));
    EXPECT_EQ("Width ", Children("a"));
}

TEST_F(TemplatesTest, ATemplateMayBeReplacedByTheNameItBears)
{
    Load(R"(<Template name="a name long enough to live in the template alone"><Width>1</Width></Template>)");
    XMLNode* node = g_UIManager.FindTemplate("a name long enough to live in the template alone");
    const char* name = XMLHelper::GetStringAttribute(node, "name", "");
    EXPECT_NE(nullptr, g_UIManager.AddTemplate(name, "<Template><Height/></Template>"));
    EXPECT_EQ("Height ", Children("a name long enough to live in the template alone"));

    node = g_UIManager.FindTemplate("a name long enough to live in the template alone");
    node->SetAttribute("name", "a name long enough to live in the template alone");
    g_UIManager.RemoveTemplate(XMLHelper::GetStringAttribute(node, "name", ""));
    EXPECT_EQ("none", Children("a name long enough to live in the template alone"));
}

TEST_F(TemplatesTest, OnlyAnElementNamedTemplateIsStored)
{
    Load(R"(<Template name="a"><Width>1</Width>text</Template>)");
    XMLNode* node = g_UIManager.FindTemplate("a");
    EXPECT_EQ(nullptr, g_UIManager.AddTemplate("b", node->FirstChild));
    EXPECT_EQ(nullptr, g_UIManager.AddTemplate("b", node->LastChild));
    EXPECT_EQ("none", Children("b"));
    EXPECT_EQ("Width 'text' ", Children("a"));
}

TEST_F(TemplatesTest, ACircleEndsAtTheLimitOfEntries)
{
    Load(R"(<Template name="A" Template="B">x<Width/></Template><Template name="B" Template="A">y<Height/></Template>
        <Template name="A" Template="B">z<Width/></Template><Template name="C" Template="A"/>)");
    EXPECT_LE(Count("C"), 4 * 4096u);
    EXPECT_NE(std::string::npos, Children("C").find("Width"));
}

TEST_F(TemplatesTest, ListsWithTextsThatDoubleAtEachLevelEndBeforeMemoryDoes)
{
    std::string markup = "<Template name=\"t0\"> x <Width>7</Width> y </Template>";
    for (int level = 1; level <= 25; ++level) {
        const std::string base = "t" + std::to_string(level - 1) + ",";
        markup +=
            "<Template name=\"t" + std::to_string(level) + "\" Template=\"" + base + base + "\"> <Height/> </Template>";
    }
    const auto start = std::chrono::steady_clock::now();
    Load(markup);
    EXPECT_LT(SecondsSince(start), Patience);
    EXPECT_NE(std::string::npos, Children("t25").find("Height"));
    EXPECT_LT(Count("t25"), 1000000u);
}

TEST_F(TemplatesTest, LargeTemplatesAreMergedInOneGo)
{
    const auto start = std::chrono::steady_clock::now();
    Load(Large("A", "", 30000) + Large("B", "A", 30000) + Large("A", "", 10));
    EXPECT_LT(SecondsSince(start), Patience);
    EXPECT_EQ(60000u, Count("B"));
}

TEST_F(TemplatesTest, ManyTemplatesEachBuiltOnTheOneBeforeAreReadInOneGo)
{
    constexpr int Last = 8000;
    std::string markup = "<Template name=\"t0\"><First/></Template>";
    for (int index = 1; index <= Last; ++index)
        markup += "<Template name=\"t" + std::to_string(index) + "\" Template=\"t" + std::to_string(index - 1) + "\"/>";
    const auto start = std::chrono::steady_clock::now();
    Load(markup);
    EXPECT_LT(SecondsSince(start), Patience);
    EXPECT_EQ("First ", Children(("t" + std::to_string(Last)).c_str()));
}

TEST_F(TemplatesTest, ManyTemplatesOfTextsThatDoubleEndBeforeMemoryDoes)
{
    constexpr int Last = 2000;
    std::string markup = "<Template name=\"t0\">x</Template>";
    for (int index = 1; index <= Last; ++index) {
        const std::string number = std::to_string(index);
        markup += "<Template name=\"t" + number + "\" Template=\"t" + std::to_string(index - 1) + "\">x</Template>";
    }
    Load(markup);
    EXPECT_EQ(1024u, Count("t10"));
    std::size_t all = 0;
    for (int index = 0; index <= Last; ++index)
        all += Count(("t" + std::to_string(index)).c_str());
    EXPECT_LE(all, (Limits::TemplateFirstBasesBytes + Limits::TemplateOtherBasesBytes) / sizeof(XMLNode) + Last);
}

TEST_F(TemplatesTest, TheTemplatesOfAFileMayBeBuiltOnSoMuch)
{
    // What each of the templates built on the large one brings in is its text and a little more.
    constexpr std::size_t Each = 256 * 1024;
    constexpr std::size_t Text = Each - 11 * sizeof(XMLNode) / 2;
    constexpr std::size_t Most = Limits::TemplateFirstBasesBytes / Each;
    std::string markup = "<Template name=\"large\">" + std::string(Text, 'x') + "</Template>";
    for (std::size_t index = 1; index <= Most + 1; ++index)
        markup += "<Template name=\"t" + std::to_string(index) + "\" Template=\"large\"/>";
    for (int file = 0; file < 2; ++file) {
        g_UIManager.ClearTemplates();
        Load(markup);
        EXPECT_EQ(1u, Count(("t" + std::to_string(Most)).c_str()));
        EXPECT_EQ(0u, Count(("t" + std::to_string(Most + 1)).c_str()));
    }
    XMLNode* const last = g_UIManager.FindTemplate(("t" + std::to_string(Most + 1)).c_str());
    EXPECT_NE(nullptr, g_UIManager.AddTemplate("more", last));
    EXPECT_EQ(1u, Count("more"));
}

TEST_F(TemplatesTest, ManyAttributesAreMergedInOneGo)
{
    std::string markup = Large("T0", "", 0, 9000);
    for (int level = 1; level < 20; ++level)
        markup += Large("T" + std::to_string(level), "T" + std::to_string(level - 1), 0, 9000);
    const auto start = std::chrono::steady_clock::now();
    Load(markup);
    EXPECT_LT(SecondsSince(start), Patience);
    XMLNode* merged = g_UIManager.FindTemplate("T19");
    EXPECT_STREQ("T19", XMLHelper::GetStringAttribute(merged, "name", ""));
    EXPECT_STREQ("v", XMLHelper::GetStringAttribute(merged, "T08999", ""));
    EXPECT_STREQ("v", XMLHelper::GetStringAttribute(merged, "T198999", ""));
}

TEST_F(TemplatesTest, AnAttributeKeepsItsPlaceAndSpellingAndGetsTheValueOfTheLastEntry)
{
    Load(R"(<Template name="a" Size="1" Color="red"/><Template name="b" Template="a" SIZE="2" More="3"/>)");
    std::string attributes;
    for (XMLAttribute* attribute = g_UIManager.FindTemplate("b")->Attributes; attribute; attribute = attribute->Next)
        attributes += std::string(attribute->Name) + "=" + attribute->Value + " ";
    EXPECT_EQ("name=b Size=2 Color=red Template=a More=3 ", attributes);
}

TEST_F(TemplatesTest, ManyOfOneTagAreReplacedFromTheFirstOn)
{
    std::string same;
    for (int index = 0; index < 20000; ++index)
        same += "<Same/>";
    const auto start = std::chrono::steady_clock::now();
    Load("<Template name=\"A\">" + same + "<Other/></Template><Template name=\"B\" Template=\"A\">" + same
        + "</Template>");
    EXPECT_LT(SecondsSince(start), Patience);
    EXPECT_EQ(20001u, Count("B"));
    EXPECT_STREQ("Other", g_UIManager.FindTemplate("B")->FirstChild->Name);
}

TEST_F(TemplatesTest, AChainHasSoManyEntries)
{
    // Each names a base that comes later, so that all stay as they are.
    std::string markup;
    for (u32 index = Limits::TemplateChainEntries; index > 0; --index) {
        const std::string number = std::to_string(index);
        markup += "<Template name=\"T" + number + "\" Template=\"T" + std::to_string(index - 1) + "\">x</Template>";
    }
    Load(markup + "<Template name=\"T0\">x</Template>");
    for (const u32 entries :
        {Limits::TemplateChainEntries - 1, Limits::TemplateChainEntries, Limits::TemplateChainEntries + 1}) {
        Load("<Template name=\"C\" Template=\"T" + std::to_string(entries - 2) + "\">x</Template>");
        EXPECT_EQ(std::min(entries, Limits::TemplateChainEntries), Count("C"));
    }
}

TEST_F(TemplatesTest, CirclesOfLargeTemplatesEndBeforeMemoryDoes)
{
    const auto start = std::chrono::steady_clock::now();
    Load(Large("A", "B", 5000) + Large("B", "A", 5000) + Large("A", "B", 5000)
        + "<Template name=\"C\" Template=\"A\"/>");
    Load("<Template name=\"D\" Template=\"E\">" + std::string(1000000, 'x') + "</Template>"
        + "<Template name=\"E\" Template=\"D\">" + std::string(1000000, 'y') + "</Template>"
        + "<Template name=\"D\" Template=\"E\">z</Template><Template name=\"F\" Template=\"D\"/>");
    EXPECT_LT(SecondsSince(start), Patience);
    EXPECT_EQ(10000u, Count("C"));
}

// --- Skins

TEST_F(TemplatesTest, ASkinRemovedWhileItsFileIsLocatedIsNotUsed)
{
    Load(R"(<Template name="a"><Width>10</Width></Template><Template name="b"><Width>20</Width></Template>
        <Skin name="dark"><SkinTemplate Base="a" Skin="b"/></Skin>)");
    Host.OnLocateFile = [] { g_UIManager.RemoveSkin("dark"); };
    Skin = g_UIManager.FindSkin("dark");
    Load(R"(<frame name="Panel" Template="a"/>)");
    Host.OnLocateFile = nullptr;
    EXPECT_EQ(10u, Element("Panel").Width);
    EXPECT_EQ(nullptr, g_UIManager.CurrentSkin);
}

TEST_F(TemplatesTest, ASkinOfTheHostsOwnServesALoadAndIsPutBack)
{
    Load(R"(<Template name="a"><Width>10</Width></Template><Template name="b"><Width>20</Width></Template>)");
    TeskSkin own("own");
    own.AddTemplate("A", "b");
    Skin = &own;
    Load(R"(<frame name="Panel" Template="a"/>)");
    EXPECT_EQ(20u, Element("Panel").Width);
    EXPECT_EQ(nullptr, g_UIManager.CurrentSkin);
}

TEST_F(TemplatesTest, LinesOfASkinCanBeChangedByHand)
{
    TeskSkin skin(nullptr);
    EXPECT_EQ("", skin.Name);
    skin.AddTemplate(nullptr, "x");
    skin.AddTemplate("", "x");
    EXPECT_TRUE(skin.Templates.empty());
    skin.AddTemplate("Button", "dark");
    EXPECT_STREQ("dark", skin.FindTemplate("bUTTON"));
    skin.AddTemplate("button", "light");
    EXPECT_STREQ("light", skin.FindTemplate("Button"));
    skin.AddTemplate("button", skin.FindTemplate("button"));
    EXPECT_STREQ("light", skin.FindTemplate("Button"));
    skin.RemoveTemplate(nullptr);
    skin.RemoveTemplate("");
    skin.RemoveTemplate("unknown");
    EXPECT_EQ(1u, skin.Templates.size());
    skin.RemoveTemplate("BUTTON");
    EXPECT_EQ(nullptr, skin.FindTemplate("button"));
    EXPECT_TRUE(skin.FromXML(nullptr, nullptr));
}

TEST_F(TemplatesTest, AnExistingSkinIsFreedAndMadeAnewUnderItsOwnName)
{
    g_UIManager.NewSkin("dark")->AddTemplate("a", "b");
    TeskSkin* skin = g_UIManager.FindSkin("DARK");
    skin = g_UIManager.NewSkin(skin->Name.c_str());
    EXPECT_TRUE(skin->Templates.empty());
    EXPECT_EQ(skin, g_UIManager.FindSkin("Dark"));
    g_UIManager.RemoveSkin(skin->Name.c_str());
    EXPECT_EQ(nullptr, g_UIManager.FindSkin("dark"));
}
