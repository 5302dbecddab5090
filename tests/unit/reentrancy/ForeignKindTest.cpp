// What a kind that is not the toolkit's may do as the toolkit asks it something: anything, as a script may.

#include "host/probe/TreeChecker.h"
#include "teskara/collections/TeskTabControl.h"
#include "teskara/controls/TeskGauge.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/controls/TeskVariableGauge.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <functional>
#include <string>

namespace {

// What an element does, once, as it is asked or told one thing.
struct Asked {
    static inline std::string Question;
    static inline std::function<void()> Answer;

    // False: the element has died of it.
    static bool Survives(const TeskElement& element, const char* question)
    {
        const ElementWatch self(element);
        if (question == Question) {
            Question.clear();
            Answer();
        }
        return self.Exists();
    }
};

class AskedElement : public TeskElement
{
public:
    using TeskElement::TeskElement;

    bool IsTypeOf(const char* word) override { return Survives("IsTypeOf") && TeskElement::IsTypeOf(word); }
    MvTypeDefinition* GetMvType() override { return Survives("GetMvType") ? TeskElement::GetMvType() : nullptr; }
    TeskElement* FindChild(const char* name) override
    {
        return Survives("FindChild") ? TeskElement::FindChild(name) : nullptr;
    }
    TeskElement* FindMouseOver(_Point2i& point, TeskElement* skip) override
    {
        return Survives("FindMouseOver") ? TeskElement::FindMouseOver(point, skip) : nullptr;
    }
    void MoveZTop(bool includeParents) override
    {
        if (Survives("MoveZTop"))
            TeskElement::MoveZTop(includeParents);
    }

private:
    bool Survives(const char* question) const { return Asked::Survives(*this, question); }
};

// Of a control, which is asked for its kind as its parts are named.
template <class Control> class AskedControl : public Control
{
public:
    using Control::Control;

    bool IsTypeOf(const char* word) override { return Asked::Survives(*this, "IsTypeOf") && Control::IsTypeOf(word); }
};

class ForeignKind : public ToolkitTest
{
protected:
    ~ForeignKind() override { Asked::Question.clear(); }

    // An asked element in a frame, with a child of its own.
    void LoadAsked(const std::string& values = {})
    {
        Load("<frame name='Outer'><Width>100</Width><Height>100</Height><BackgroundColor>ff000000</BackgroundColor>"
             "<Children><asked name='Asked'><Width>50</Width><Height>50</Height>"
            + values + "<Children><frame name='Inner'/></Children></asked></Children></frame>");
    }

    // At the next question of that name an element is deleted.
    static void DeleteAt(const char* question, const char* name)
    {
        Asked::Question = question;
        Asked::Answer = [name] {
            if (TeskElement* element = g_UIManager.FindElement(name))
                element->Parent->DeleteChild(element);
        };
    }

    // A control in a frame, with values that make a part. It ends itself at the question for its kind.
    template <class Control> void EndAsItsPartIsMade(const std::string& values)
    {
        const TeskFactory<AskedControl<Control>> kind("askedcontrol");
        DeleteAt("IsTypeOf", "Control@Outer");
        Load("<frame name='Outer'><Children><askedcontrol name='Control'>" + values
            + "</askedcontrol></Children></frame>");
        EXPECT_EQ("", Asked::Question);
        EXPECT_FALSE(IsThere("Control@Outer"));
        EXPECT_EQ(2u, g_UIManager.ElementsByID.size()) << "only the screen and the frame are left";
        EXPECT_EQ(std::nullopt, FindTreeFault());
    }

    static bool IsThere(const char* name) { return g_UIManager.FindElement(name) != nullptr; }

    static void MoveMouse(i32 x, i32 y)
    {
        _Point2i point = {x, y};
        g_UIManager.OnMouseMove(point);
    }

    TeskFactory<AskedElement> m_Kind{"asked"};
};

} // namespace

TEST_F(ForeignKind, ASearchUnderTheMouseEndsWhereItsElementIsDeleted)
{
    LoadAsked();
    DeleteAt("FindMouseOver", "Outer");
    MoveMouse(10, 10);
    EXPECT_FALSE(IsThere("Outer"));
    EXPECT_EQ(std::nullopt, FindTreeFault());
}

TEST_F(ForeignKind, WhatTheMouseWasOverMayBeDeletedAsItsSuccessorIsSearched)
{
    LoadAsked();
    MoveMouse(80, 80);
    ASSERT_EQ(Element("Outer").ID, g_UIManager.MouseOverElementID);
    DeleteAt("FindMouseOver", "Outer");
    MoveMouse(10, 10);
    EXPECT_FALSE(IsThere("Outer"));
    g_UIManager.Render();
    EXPECT_EQ(std::nullopt, FindTreeFault());
}

TEST_F(ForeignKind, AnElementThatIsDeletedAsItMovesToTheTopIsNotLoaded)
{
    DeleteAt("MoveZTop", "Asked@Outer");
    LoadAsked();
    EXPECT_TRUE(IsThere("Outer"));
    EXPECT_FALSE(IsThere("Asked@Outer"));
    EXPECT_FALSE(IsThere("Inner@Asked@Outer"));
}

TEST_F(ForeignKind, AChildMayBeDeletedAsItsParentIsMovedToTheTop)
{
    LoadAsked();
    DeleteAt("MoveZTop", "Asked@Outer");
    Element("Inner@Asked@Outer").MoveZTop(true);
    EXPECT_FALSE(IsThere("Asked@Outer"));
    EXPECT_EQ(std::nullopt, FindTreeFault());
}

TEST_F(ForeignKind, AScriptDoesNotRunForAnElementThatIsDeletedByTheQuestionForItsType)
{
    LoadAsked("<OnLeftDown>press</OnLeftDown>");
    bool ran = false;
    Host.Scripts["press"] = [&ran](TeskElement&) { ran = true; };
    MoveMouse(10, 10);
    DeleteAt("GetMvType", "Asked@Outer");
    g_UIManager.OnLMouseDown();
    EXPECT_FALSE(IsThere("Asked@Outer"));
    EXPECT_FALSE(ran);
}

TEST_F(ForeignKind, AChildIsNotMadeForAParentThatIsDeletedByTheQuestionForItsKind)
{
    LoadAsked();
    DeleteAt("IsTypeOf", "Outer");
    EXPECT_EQ(nullptr, g_UIManager.LoadElement(&Element("Asked@Outer"), "frame", "New"));
    EXPECT_FALSE(IsThere("Outer"));
    EXPECT_EQ(1u, g_UIManager.ElementsByID.size()) << "only the screen is left";
}

TEST_F(ForeignKind, AChildIsNotMadeForAParentThatIsDeletedByTheSearchForItsNamesake)
{
    LoadAsked();
    DeleteAt("FindChild", "Outer");
    EXPECT_EQ(nullptr, g_UIManager.LoadElement(&Element("Asked@Outer"), "frame", "New"));
    EXPECT_EQ(1u, g_UIManager.ElementsByID.size()) << "only the screen is left";
}

TEST_F(ForeignKind, ASearchForAChildOfAKindEndsWhereItsElementIsDeleted)
{
    LoadAsked();
    DeleteAt("IsTypeOf", "Outer");
    EXPECT_EQ(nullptr, g_UIManager.Screen->FindUsableChild("Asked", "frame"));
    EXPECT_FALSE(IsThere("Outer"));
    EXPECT_EQ(std::nullopt, FindTreeFault());
}

TEST_F(ForeignKind, AGaugeMayEndAsItsFillerIsMade)
{
    EndAsItsPartIsMade<TeskGauge>("<Filler/>");
}

TEST_F(ForeignKind, AVariableGaugeMayEndAsItsFillerIsMade)
{
    EndAsItsPartIsMade<TeskVariableGauge>("<Filler/>");
}

TEST_F(ForeignKind, AScrollBarMayEndAsItsButtonIsMade)
{
    const TeskFactory<AskedControl<TeskScrollBar>> kind("askedcontrol");
    Load("<askedcontrol name='Control'/>");
    Asked::Question = "IsTypeOf";
    Asked::Answer = [] { g_UIManager.Screen->DeleteChild(g_UIManager.FindElement("Control")); };
    static_cast<TeskScrollBar&>(Element("Control")).Create({}, nullptr);
    EXPECT_EQ("", Asked::Question);
    EXPECT_EQ(1u, g_UIManager.ElementsByID.size()) << "only the screen is left";
    EXPECT_EQ(std::nullopt, FindTreeFault());
}

TEST_F(ForeignKind, ATabControlMayEndAsTheFrameOfATabIsMade)
{
    EndAsItsPartIsMade<TeskTabControl>("<Tabs><Tab Name='One'/></Tabs>");
}

TEST_F(ForeignKind, ATabMayEndAsItsFrameIsMade)
{
    const TeskFactory<AskedControl<TeskTabControl>> kind("askedcontrol");
    Load("<askedcontrol name='Control'/>");
    auto& control = static_cast<TeskTabControl&>(Element("Control"));
    Asked::Question = "IsTypeOf";
    Asked::Answer = [&control] { control.RemoveTab(control.GetTabFromName("One")->ID); };
    EXPECT_EQ(0u, control.AddTab("One", nullptr, "One", nullptr));
    EXPECT_EQ("", Asked::Question);
    EXPECT_EQ(nullptr, control.GetTabFromName("One"));
    EXPECT_FALSE(IsThere("One@Control"));
    EXPECT_EQ(std::nullopt, FindTreeFault());
}
