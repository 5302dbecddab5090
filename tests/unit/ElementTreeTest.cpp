#include "teskara/core/CUIManager.h"
#include "teskara/core/Limits.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <algorithm>
#include <climits>
#include <memory>
#include <vector>

namespace {

class ElementTreeTest : public ToolkitTest
{
protected:
    TeskElement& Make(const char* name, TeskElement* parent = g_UIManager.Screen)
    {
        return *g_UIManager.LoadElement(parent, "frame", name);
    }
};

// Hears what its children tell, and is what a window has for its contents.
class ClientElement : public TeskElement
{
public:
    using TeskElement::TeskElement;

    bool IsTypeOf(const char* word) override
    {
        return std::string(word) == "windowclient" || TeskElement::IsTypeOf(word);
    }

    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override
    {
        Heard += std::to_string(code) + " " + (source ? source->Name : "nobody") + ";";
        TeskElement::OnNotify(source, code, value);
    }

    std::string Heard;
};

// Answers each notification by another one, up to the number that is wanted.
class EchoingElement : public TeskElement
{
public:
    using TeskElement::TeskElement;

    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override
    {
        if (code != 1)
            return; // of what ends

        if (++Heard < Wanted)
            source->NotifyParent(code, value);
    }

    u32 Wanted = 1;
    u32 Heard = 0;
};

} // namespace

TEST_F(ElementTreeTest, AChildIsFoundByItsNameInAnyCase)
{
    TeskElement& parent = Make("P");
    TeskElement& child = Make("Kid", &parent);
    EXPECT_EQ(&child, parent.FindChild("KID"));
    EXPECT_EQ(&child, parent.FindChild("kid"));
    EXPECT_EQ(nullptr, parent.FindChild("kid@p"));
    EXPECT_EQ(nullptr, parent.FindChild(""));
    EXPECT_EQ(nullptr, parent.FindChild(nullptr));
    EXPECT_EQ(nullptr, child.FindChild("kid"));
}

TEST_F(ElementTreeTest, AUsableChildIsLookedForAmongTheChildrenBeforeBelowThem)
{
    Load("<frame name='P'><Children><frame name='A'><Children><text name='X'/></Children></frame>"
         "<frame name='X'><Children><text name='X'/></Children></frame><frame name='B'><Children><text name='Y'/>"
         "<frame name='Z'><Children><text name='Z'/></Children></frame></Children></frame></Children></frame>");
    TeskElement& parent = Element("P");
    EXPECT_EQ(&Element("X@P"), parent.FindUsableChild("x", "frame"));
    EXPECT_EQ(&Element("X@P"), parent.FindUsableChild("X", "TeskElement"));
    EXPECT_EQ(&Element("X@A@P"), parent.FindUsableChild("X", "text")); // in the first child that has one
    EXPECT_EQ(&Element("Y@B@P"), parent.FindUsableChild("y", "TEXT"));
    EXPECT_EQ(&Element("Z@Z@B@P"), parent.FindUsableChild("z", "text"));
    EXPECT_EQ(nullptr, parent.FindUsableChild("y", "frame"));
    EXPECT_EQ(nullptr, parent.FindUsableChild("P", "frame")); // not the element itself
    EXPECT_EQ(nullptr, parent.FindUsableChild(nullptr, nullptr));
}

TEST_F(ElementTreeTest, WhatTheHostIsToKeepIsPositionAndSize)
{
    TeskElement& element = Make("E");
    element.X = -5;
    element.Y = INT_MAX;
    element.Width = 0xffffffffu;
    element.Height = 7;
    int x = 0;
    int y = 0;
    unsigned int width = 0;
    unsigned int height = 0;
    EXPECT_TRUE(element.GetStoragePosition(x, y, width, height));
    EXPECT_EQ(-5, x);
    EXPECT_EQ(INT_MAX, y);
    EXPECT_EQ(0xffffffffu, width);
    EXPECT_EQ(7u, height);
}

TEST_F(ElementTreeTest, WhatStandsInAWindowsClientTakesTheNameOfTheWindow)
{
    const TeskFactory<ClientElement> factory("testclient");
    TeskElement& window = Make("Window");
    TeskElement* client = g_UIManager.LoadElement(&window, "testclient", "Client");
    TeskElement* inner = g_UIManager.LoadElement(client, "testclient", "Inner");
    EXPECT_EQ("Client@Window", client->FullName);
    EXPECT_EQ("Kid@Window", Make("Kid", client).FullName);
    EXPECT_EQ("Kid@Window", Make("Kid", inner).FullName); // over any number of clients
    EXPECT_EQ(inner->FirstChild, g_UIManager.FindElement("KID@window"));
    TeskElement* top = g_UIManager.LoadElement(g_UIManager.Screen, "testclient", "Top");
    EXPECT_EQ("Kid", Make("Kid", top).FullName);
}

TEST_F(ElementTreeTest, ANotificationClimbsWhateverItsSource)
{
    const TeskFactory<ClientElement> factory("testclient");
    auto* top = dynamic_cast<ClientElement*>(g_UIManager.LoadElement(g_UIManager.Screen, "testclient", "Top"));
    TeskElement& middle = Make("Middle", top);
    TeskElement& low = Make("Low", &middle);
    middle.OnNotify(nullptr, NotifyFontChanged, 0);
    low.OnNotify(&low, 77, 5);
    low.NotifyParent(NotifyEnter, 0);
    middle.DeleteChild(&low);
    EXPECT_EQ("50 nobody;77 low;5 low;51 low;", top->Heard);
    g_UIManager.Screen->OnNotify(top, 1, 0); // nobody is above the screen
}

TEST_F(ElementTreeTest, APlainElementAgreesToFocusAndMouse)
{
    EXPECT_TRUE(Make("A").SetFocus());
    EXPECT_TRUE(Make("B").SetMouseOver());
}

TEST_F(ElementTreeTest, OnlyAnElementsOwnChildrenCanBeDeletedThroughIt)
{
    TeskElement& parent = Make("P");
    TeskElement& child = Make("C", &parent);
    TeskElement& other = Make("O");
    System.DebugOutput.clear();
    other.DeleteChild(&child);
    g_UIManager.Screen->DeleteChild(&child);
    parent.DeleteChild(nullptr);
    parent.DeleteChild(&parent);
    EXPECT_EQ(
        "DeleteChild failure\nDeleteChild failure\nDeleteChild failure\nDeleteChild failure\n", System.DebugOutput);
    EXPECT_EQ(&child, parent.FirstChild);
    parent.DeleteChild(&child);
    EXPECT_EQ(nullptr, parent.FirstChild);
    EXPECT_EQ(nullptr, parent.LastChild);
}

TEST_F(ElementTreeTest, AnElementIsReallyVisibleWithAllThatIsAboveIt)
{
    TeskElement& child = Make("C", &Make("P"));
    EXPECT_TRUE(child.IsReallyVisible());
    child.Parent->Visible = false;
    EXPECT_FALSE(child.IsReallyVisible());
    child.Parent->Visible = true;
    g_UIManager.Screen->Visible = false;
    EXPECT_FALSE(child.IsReallyVisible());
    g_UIManager.Screen->Visible = true;
    child.Show(false);
    EXPECT_FALSE(child.IsReallyVisible());
}

TEST_F(ElementTreeTest, AFullNameIsCutTo4095Bytes)
{
    const std::string name(3000, 'n');
    TeskElement& parent = Make(name.c_str());
    for (const std::size_t length : {4094u, 4095u, 4096u, 6001u}) {
        const std::string own(length - name.size() - 1, 'c');
        TeskElement& child = Make(own.c_str(), &parent);
        const std::string full = (own + "@" + name).substr(0, 4095);
        EXPECT_EQ(own, child.Name);
        EXPECT_EQ(full, child.FullName);
        EXPECT_EQ(&child, g_UIManager.FindElement(full.c_str()));
        parent.DeleteChild(&child);
        EXPECT_EQ(nullptr, g_UIManager.FindElement(full.c_str()));
    }
}

TEST_F(ElementTreeTest, MissingTextsAreEmptyOnes)
{
    const TeskElement element(nullptr, nullptr, nullptr);
    EXPECT_EQ("", element.Type);
    EXPECT_EQ("", element.Name);
    EXPECT_EQ("", element.FullName);
}

TEST_F(ElementTreeTest, MetadataGoesWithItsElement)
{
    TeskElement& element = Make("E");
    const u32 id = element.ID;
    g_UIManager.SetElementMetadata(id, "Key", "value");
    EXPECT_STREQ("value", g_UIManager.GetElementMetadata(id, "KEY"));
    g_UIManager.Screen->DeleteChild(&element);
    EXPECT_EQ(nullptr, g_UIManager.GetElementMetadata(id, "Key"));
}

TEST_F(ElementTreeTest, TheSpreadOfAPositionReachesAllBelowAndWraps)
{
    TeskElement& parent = Make("P");
    TeskElement& child = Make("C", &parent);
    TeskElement& grandchild = Make("G", &child);
    child.X = INT_MAX;
    child.Y = -3;
    grandchild.X = 1;
    grandchild.Y = 1;
    parent.SpreadPosition(1, 2);
    EXPECT_EQ(1, parent.AbsoluteX);
    EXPECT_EQ(INT_MIN, child.AbsoluteX);
    EXPECT_EQ(-1, child.AbsoluteY);
    EXPECT_EQ(INT_MIN + 1, grandchild.AbsoluteX);
    EXPECT_EQ(0, grandchild.AbsoluteY);
}

// The code of a kind may go with its factory, and with it every element that was left.
TEST_F(ElementTreeTest, NotificationsNestTo256Levels)
{
    for (const u32 wanted : {Limits::NestedNotifications - 1, Limits::NestedNotifications,
             Limits::NestedNotifications + 1, Limits::NestedNotifications}) {
        EchoingElement parent("echo", g_UIManager.Screen, "P");
        TeskElement child("echo", &parent, "C");
        parent.Wanted = wanted;
        child.NotifyParent(1, 0);
        EXPECT_EQ(std::min(wanted, Limits::NestedNotifications), parent.Heard) << "the count begins anew";
    }
}

TEST_F(ElementTreeTest, ANotificationThatIsPassedUpIsNoNewOne)
{
    std::vector<std::unique_ptr<TeskElement>> chain;
    TeskElement* last = g_UIManager.Screen;
    for (u32 level = 0; level < Limits::NestedNotifications + 2; ++level) {
        chain.push_back(level ? std::make_unique<TeskElement>("echo", last, "C")
                              : std::make_unique<EchoingElement>("echo", last, "P"));
        last = chain.back().get();
    }
    last->NotifyParent(1, 0);
    EXPECT_EQ(1u, static_cast<EchoingElement&>(*chain.front()).Heard);
    while (!chain.empty())
        chain.pop_back();
}

TEST_F(ElementTreeTest, AKindThatEndsMakesNoNewElements)
{
    auto factory = std::make_unique<TeskFactory<ClientElement>>("testclient");
    Load(R"(<testclient name="Old"><OnUnload>remake</OnUnload></testclient>)");
    TeskElement* made = g_UIManager.Screen;
    Host.Scripts["remake"] = [&made](TeskElement&) {
        made = g_UIManager.LoadElement(g_UIManager.Screen, "testclient", "New");
    };
    Host.TakeCalls();
    factory.reset();
    EXPECT_EQ(nullptr, made);
    EXPECT_EQ("PrintLine \"CreateUIElement failed on 'New' under 'screen'\"\n", Host.TakeCalls());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("Old"));
    EXPECT_EQ(nullptr, g_UIManager.FindElement("New"));
}
