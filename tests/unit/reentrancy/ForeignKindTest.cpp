// What a kind that is not the toolkit's may do as the toolkit asks it something: anything, as a script may.

#include "host/probe/TreeChecker.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <functional>
#include <string>

namespace {

// Does something, once, as it is asked or told one thing.
class AskedElement : public TeskElement
{
public:
    using TeskElement::TeskElement;

    bool IsTypeOf(const char* word) override { return Asked("IsTypeOf") && TeskElement::IsTypeOf(word); }
    MvTypeDefinition* GetMvType() override { return Asked("GetMvType") ? TeskElement::GetMvType() : nullptr; }
    TeskElement* FindChild(const char* name) override
    {
        return Asked("FindChild") ? TeskElement::FindChild(name) : nullptr;
    }
    TeskElement* FindMouseOver(_Point2i& point, TeskElement* skip) override
    {
        return Asked("FindMouseOver") ? TeskElement::FindMouseOver(point, skip) : nullptr;
    }
    void MoveZTop(bool includeParents) override
    {
        if (Asked("MoveZTop"))
            TeskElement::MoveZTop(includeParents);
    }

    static inline std::string Question;
    static inline std::function<void()> Answer;

private:
    // False: the element has died of it.
    bool Asked(const char* question) const
    {
        const ElementWatch self(*this);
        if (question == Question) {
            Question.clear();
            Answer();
        }
        return self.Exists();
    }
};

class ForeignKind : public ToolkitTest
{
protected:
    ~ForeignKind() override { AskedElement::Question.clear(); }

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
        AskedElement::Question = question;
        AskedElement::Answer = [name] {
            if (TeskElement* element = g_UIManager.FindElement(name))
                element->Parent->DeleteChild(element);
        };
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
