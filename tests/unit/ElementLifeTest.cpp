#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/markup/XMLHelper.h"
#include "tests/unit/ToolkitTest.h"

#include <memory>
#include <string>
#include <utility>

namespace {

std::string g_Diary;

void Write(const std::string& what, const TeskElement& element)
{
    g_Diary += what + " " + element.Name + "\n";
}

// Writes down what happens to it. Its markup is refused if it says so.
class Diarist : public TeskElement
{
public:
    Diarist(const char* type, TeskElement* parent, const char* name) : TeskElement(type, parent, name)
    {
        Write("made", *this);
    }

    ~Diarist() override { Write("ended", *this); }

    bool FromXML(XMLNode* node, XMLNode* templateNode) override
    {
        Write("read", *this);
        return TeskElement::FromXML(node, templateNode) && !XMLHelper::GetChild(node, "Refuse");
    }

    void SizeRecalculated(bool changed) override { Write(changed ? "sized" : "not sized", *this); }
    void OnCreate() override { Write("created", *this); }
    void OnDestroy() override { Write("destroyed", *this); }

    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override
    {
        Write(std::to_string(code) + " of " + source->Name + " to", *this);
        TeskElement::OnNotify(source, code, value);
    }
};

// Writes down who leaves the kind.
class DiaristFactory : public TeskFactory<Diarist>
{
public:
    using TeskFactory::TeskFactory;

    void RemoveInstance(TeskElement* element) override
    {
        Write("left", *element);
        TeskFactory::RemoveInstance(element);
    }
};

class ElementLifeTest : public ToolkitTest
{
protected:
    ElementLifeTest()
    {
        g_Diary.clear();
        for (const char* event : {"load", "unload"})
            Host.Scripts[event] = [event](TeskElement& self) { Write(event, self); };
        Host.KeepPosition = [](TeskElement& element) { Write("stored", element); };
    }

    static std::string TakeDiary() { return std::exchange(g_Diary, {}); }

    static std::string Markup(const char* name, const std::string& inside = {})
    {
        return std::string("<diarist name='") + name
            + "'><Width>100%</Width><StorePosition>1</StorePosition><OnLoad>load</OnLoad><OnUnload>unload</OnUnload>"
            + inside + "</diarist>";
    }

    std::unique_ptr<TeskFactory<Diarist>> Factory = std::make_unique<TeskFactory<Diarist>>("diarist");
};

} // namespace

TEST_F(ElementLifeTest, ChildrenAreCompleteBeforeTheirParentIsSizedAndCreated)
{
    Load(Markup("P", "<Children>" + Markup("C") + "</Children>"));
    EXPECT_EQ("made p\nread p\nmade c\nread c\nnot sized c\ncreated c\nload c\nsized p\nsized c\ncreated p\nload p\n",
        TakeDiary());
}

TEST_F(ElementLifeTest, AnElementWithoutMarkupIsSizedAndCreatedAndReadsNothing)
{
    g_UIManager.LoadElement(g_UIManager.Screen, "diarist", "A");
    EXPECT_EQ("made a\nnot sized a\ncreated a\n", TakeDiary());
}

TEST_F(ElementLifeTest, WithoutParentKindNameOrMarkupNothingIsMadeAndNothingSaid)
{
    TeskElement* screen = g_UIManager.Screen;
    XMLNode* node = g_UIManager.AddTemplate("t", "<Template/>");
    EXPECT_EQ(nullptr, g_UIManager.LoadElement(nullptr, "diarist", "A"));
    EXPECT_EQ(nullptr, g_UIManager.LoadElement(screen, nullptr, "A"));
    EXPECT_EQ(nullptr, g_UIManager.LoadElement(screen, "diarist", nullptr));
    EXPECT_EQ(nullptr, g_UIManager.LoadElement(nullptr, "diarist", "A", node, nullptr));
    EXPECT_EQ(nullptr, g_UIManager.LoadElement(screen, nullptr, "A", node, nullptr));
    EXPECT_EQ(nullptr, g_UIManager.LoadElement(screen, "diarist", nullptr, node, nullptr));
    EXPECT_EQ(nullptr, g_UIManager.LoadElement(screen, "diarist", "A", nullptr, nullptr));
    EXPECT_EQ("", TakeDiary());
    EXPECT_EQ("", Host.TakeCalls());
}

TEST_F(ElementLifeTest, AParentGoesAheadOfItsChildren)
{
    Load(Markup("P", "<Children>" + Markup("C") + Markup("D") + "</Children>"));
    TakeDiary();
    Element("P").Delete();
    EXPECT_EQ("unload p\nstored p\ndestroyed p\nended p\n"
              "unload c\nstored c\ndestroyed c\nended c\nunload d\nstored d\ndestroyed d\nended d\n",
        TakeDiary());
}

TEST_F(ElementLifeTest, TheKindIsLeftWhenTheChildrenHaveEnded)
{
    Factory.reset();
    const DiaristFactory factory("diarist");
    Load(Markup("P", "<Children>" + Markup("C") + "</Children>"));
    TakeDiary();
    Element("P").Delete();
    EXPECT_EQ("unload p\nstored p\ndestroyed p\nended p\n"
              "unload c\nstored c\ndestroyed c\nended c\nleft c\nleft p\n",
        TakeDiary());
}

TEST_F(ElementLifeTest, AParentHearsOfAChildThatHasEnded)
{
    Load(Markup("P", "<Children>" + Markup("C") + "</Children>"));
    TakeDiary();
    Element("P").DeleteChild(&Element("C@P"));
    EXPECT_EQ("unload c\nstored c\ndestroyed c\nended c\n51 of c to p\n", TakeDiary());
}

TEST_F(ElementLifeTest, AnElementOnItsWayOutIsNotDeletedAgain)
{
    Host.Scripts["unload"] = [](TeskElement& self) {
        Write("unload", self);
        self.Delete();
        Write("still there", self);
    };
    Load(Markup("A"));
    TakeDiary();
    Element("A").Delete();
    EXPECT_EQ("unload a\nstill there a\nstored a\ndestroyed a\nended a\n", TakeDiary());
}

TEST_F(ElementLifeTest, TheEndOfAKindDestroysEachElementTwice)
{
    Load(Markup("A") + Markup("B"));
    TakeDiary();
    Factory.reset();
    EXPECT_EQ("destroyed a\nunload a\nstored a\ndestroyed a\nended a\n"
              "destroyed b\nunload b\nstored b\ndestroyed b\nended b\n",
        TakeDiary());
    EXPECT_EQ(nullptr, g_UIManager.FindFactory("diarist"));
}

TEST_F(ElementLifeTest, TheWordOfAKindIsKeptInLowerCase)
{
    const TeskFactory<Diarist> factory("LOUD");
    EXPECT_STREQ("loud", factory.GetName());
    EXPECT_EQ(&factory, g_UIManager.FindFactory("Loud"));
    TeskElement* element = g_UIManager.LoadElement(g_UIManager.Screen, "lOUD", "A");
    ASSERT_NE(nullptr, element);
    EXPECT_EQ("loud", element->Type);
}

TEST_F(ElementLifeTest, AKindThatWasReplacedLeavesTheLaterOneInItsPlace)
{
    const TeskFactory<Diarist> later("diarist");
    EXPECT_EQ(&later, g_UIManager.FindFactory("diarist"));
    Factory.reset();
    EXPECT_EQ(&later, g_UIManager.FindFactory("diarist"));
}

TEST_F(ElementLifeTest, AnElementThatDoesNotReadItsMarkupIsRemovedAndHasNoChildren)
{
    Load(Markup("P", "<Refuse/><Children>" + Markup("C") + "</Children>"));
    EXPECT_EQ("made p\nread p\nunload p\nstored p\ndestroyed p\nended p\n", TakeDiary());
    EXPECT_EQ("PrintLine \"CreateUIElement failed on 'P' under 'screen'\"\n", Host.TakeCalls());
}

TEST_F(ElementLifeTest, OneWithoutAParentIsRemovedAsWell)
{
    XMLNode* node = g_UIManager.AddTemplate("t", "<Template><Refuse/></Template>");
    EXPECT_EQ(nullptr, Factory->Create(nullptr, "A", node, nullptr));
    EXPECT_EQ("made a\nread a\ndestroyed a\nended a\n", TakeDiary());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("A"));
}

TEST_F(ElementLifeTest, TheEndOfAKindTakesElementsInsideOneAnotherOnce)
{
    const std::string inner = Markup("C", "<Children>" + Markup("D") + "</Children>");
    Load(Markup("A", "<Children>" + Markup("B", "<Children>" + inner + "</Children>") + "</Children>"));
    Factory.reset();
    const std::string diary = TakeDiary();
    for (const char* end : {"ended a\n", "ended b\n", "ended c\n", "ended d\n", "unload a\n", "unload d\n"}) {
        EXPECT_NE(std::string::npos, diary.find(end)) << end;
        EXPECT_EQ(diary.find(end), diary.rfind(end)) << end;
    }
    EXPECT_EQ(1u, g_UIManager.ElementsByID.size());
}

TEST_F(ElementLifeTest, TheEndOfAKindLeavesWhatCannotBeDeletedInsideOfIt)
{
    auto lasting = std::make_unique<TeskFactory<Diarist>>("lasting");
    Load("<diarist name='A'><Children><lasting name='B'><Children><diarist name='C'/></Children></lasting></Children>"
         "</diarist>");
    auto entry = g_UIManager.Factories.extract(utf8stringnocase("lasting"));
    Factory.reset();
    TeskElement* left = g_UIManager.FindElement("B@A");
    ASSERT_NE(nullptr, left);
    EXPECT_EQ(nullptr, left->Parent);
    EXPECT_EQ(nullptr, left->FirstChild);
    EXPECT_EQ(2u, g_UIManager.ElementsByID.size());
    g_UIManager.Factories.insert(std::move(entry));
    lasting.reset();
    EXPECT_EQ(1u, g_UIManager.ElementsByID.size());
}

TEST_F(ElementLifeTest, AKindThatMakesNothingIsReported)
{
    class EmptyFactory : public DiaristFactory
    {
    public:
        using DiaristFactory::DiaristFactory;
        TeskElement* Create(TeskElement*, const char*) override { return nullptr; }
        TeskElement* Create(TeskElement*, const char*, XMLNode*, const char*) override { return nullptr; }
    };

    const EmptyFactory factory("empty");
    Load("<empty name='A'/><diarist name='B'/>");
    EXPECT_EQ("PrintLine \"CreateUIElement failed on 'A' under 'screen'\"\n", Host.TakeCalls());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("A"));
    EXPECT_NE(nullptr, g_UIManager.FindElement("B"));
    EXPECT_EQ(nullptr, g_UIManager.LoadElement(g_UIManager.Screen, "empty", "C"));
}
