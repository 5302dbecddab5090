// A parent of many children is searched through an index, and must answer as its list would.

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/Allocations.h"
#include "tests/unit/ToolkitTest.h"

#include <ctime>
#include <string>

namespace {

constexpr int Children = 200;
constexpr int Size = 10;

// What loading many children may take, under whatever checks.
constexpr std::clock_t Patience = 30 * CLOCKS_PER_SEC;

// Found twenty pixels to the left of its rectangle, as only a class of its own can be.
class ShiftedElement : public TeskElement
{
public:
    using TeskElement::TeskElement;

    TeskElement* FindMouseOver(_Point2i& point, TeskElement* skip) override
    {
        _Point2i shifted = {point.x + 20, point.y};
        return TeskElement::FindMouseOver(shifted, skip);
    }
};

// What a search finds by walking the list alone.
TeskElement* FoundByWalking(TeskElement& element, _Point2i point)
{
    if (!element.Visible || !element.HitTest(point))
        return nullptr;

    for (TeskElement* child = element.LastChild; child; child = child->Previous) {
        if (TeskElement* found = FoundByWalking(*child, point))
            return found;
    }
    return &element;
}

class ManyChildrenTest : public ToolkitTest
{
protected:
    // A row of squares, each over half of the one before.
    void LoadRow()
    {
        std::string row = "<frame name='P'><Width>1100</Width><Height>10</Height><Children>";
        for (int child = 0; child < Children; ++child) {
            row += "<frame name='c" + std::to_string(child) + "'><X>" + std::to_string(child * Size / 2) + "</X><Width>"
                + std::to_string(Size) + "</Width><Height>10</Height></frame>";
        }
        Load(row + "</Children></frame>");
        Frame();
    }

    TeskElement& Child(int number) { return Element(("c" + std::to_string(number) + "@P").c_str()); }

    static TeskElement* Found(i32 x, TeskElement* skip = nullptr)
    {
        _Point2i point = {x, 5};
        return (skip ? skip->Parent : g_UIManager.Screen->FirstChild)->FindMouseOver(point, skip);
    }

    void ExpectAsTheListSays()
    {
        for (i32 x = -1; x <= 1101; ++x)
            ASSERT_EQ(FoundByWalking(Element("P"), {x, 5}), Found(x)) << x;
    }
};

} // namespace

TEST_F(ManyChildrenTest, TheTopmostIsFoundAndThenWhatLiesBelowIt)
{
    LoadRow();
    ExpectAsTheListSays();
    EXPECT_EQ(&Child(50), Found(250));
    EXPECT_EQ(&Child(49), Found(250, &Child(50)));
    EXPECT_EQ(&Child(48), Found(250, &Child(49))); // by its far edge
    EXPECT_EQ(&Element("P"), Found(250, &Child(48)));
    EXPECT_EQ(&Element("P"), Found(0, &Child(0)));
}

TEST_F(ManyChildrenTest, AChildThatMovesInOrderIsFoundAtItsNewPlace)
{
    LoadRow();
    EXPECT_EQ(&Child(50), Found(250));
    Child(49).MoveZUp();
    EXPECT_EQ(&Child(49), Found(250));
    Child(49).MoveZBottom();
    EXPECT_EQ(&Child(50), Found(250));
    EXPECT_EQ(&Child(48), Found(250, &Child(50)));
    Child(48).MoveZTop(false);
    EXPECT_EQ(&Child(48), Found(250));
    ExpectAsTheListSays();
}

TEST_F(ManyChildrenTest, AChildThatMovesOnTheScreenOrIsHiddenIsSearchedWhereItIs)
{
    LoadRow();
    EXPECT_EQ(&Child(50), Found(250));
    Child(50).Visible = false;
    EXPECT_EQ(&Child(49), Found(250));
    Child(49).AbsoluteX = 0;
    EXPECT_EQ(&Child(48), Found(250));
    Child(3).Width = 400;
    EXPECT_EQ(&Child(48), Found(250));
    EXPECT_EQ(&Child(3), Found(250, &Child(48)));
    ExpectAsTheListSays();
}

TEST_F(ManyChildrenTest, DeletedChildrenAreGoneAndNewOnesThere)
{
    LoadRow();
    EXPECT_EQ(&Child(50), Found(250));
    Element("P").DeleteChild(&Child(50));
    EXPECT_EQ(&Child(49), Found(250));
    TeskElement* added = g_UIManager.LoadElement(&Element("P"), "frame", "new");
    added->Width = 1100;
    added->Height = 10;
    EXPECT_EQ(added, Found(250));
    ExpectAsTheListSays();
    while (Element("P").FirstChild)
        Element("P").DeleteChild(Element("P").FirstChild);
    EXPECT_EQ(&Element("P"), Found(250));
}

TEST_F(ManyChildrenTest, AChildOfAClassThatSearchesDifferentlyIsAlwaysAsked)
{
    const TeskFactory<ShiftedElement> factory("shifted");
    LoadRow();
    TeskElement* shifted = g_UIManager.LoadElement(&Element("P"), "shifted", "s");
    shifted->AbsoluteX = 270;
    shifted->Width = 10;
    shifted->Height = 10;
    EXPECT_EQ(shifted, Found(255));
    EXPECT_NE(shifted, Found(275));
    EXPECT_FALSE(shifted->FoundInsideOnly);
    EXPECT_TRUE(Child(0).FoundInsideOnly);
}

TEST_F(ManyChildrenTest, WithoutMemoryTheListItselfIsWalked)
{
    LoadRow();
    Allocations::FailAfter(0, Allocations::Failing::FromThenOn);
    TeskElement* found = Found(250);
    TeskElement* below = Found(250, &Child(50));
    Allocations::Allow();
    EXPECT_EQ(&Child(50), found);
    EXPECT_EQ(&Child(49), below);
    ExpectAsTheListSays();
}

TEST_F(ManyChildrenTest, AChildIsFoundByItsNameInAnyCase)
{
    LoadRow();
    TeskElement& parent = Element("P");
    EXPECT_EQ(&Child(0), parent.FindChild("c0"));
    EXPECT_EQ(&Child(199), parent.FindChild("C199"));
    EXPECT_EQ(nullptr, parent.FindChild("c200"));
    EXPECT_EQ(nullptr, parent.FindChild(""));
    EXPECT_EQ(nullptr, parent.FindChild(nullptr));
}

TEST_F(ManyChildrenTest, NamesFollowTheChildrenThatComeAndGo)
{
    LoadRow();
    TeskElement& parent = Element("P");
    EXPECT_EQ(&Child(7), parent.FindChild("c7"));
    parent.DeleteChild(&Child(7));
    EXPECT_EQ(nullptr, parent.FindChild("c7"));
    TeskElement* added = g_UIManager.LoadElement(&parent, "frame", "New");
    EXPECT_EQ(added, parent.FindChild("new"));
    Child(8).MoveZTop(false);
    EXPECT_EQ(&Child(8), parent.FindChild("c8"));
}

TEST_F(ManyChildrenTest, OfNamesakesTheFirstInTheListIsFound)
{
    LoadRow();
    TeskElement& parent = Element("P");
    TeskElement* first = parent.FindChild("c9");
    TeskElement* second = g_UIManager.FindFactory("frame")->Create(&parent, "C9");
    EXPECT_EQ(first, parent.FindChild("c9"));
    first->MoveZTop(false);
    EXPECT_EQ(second, parent.FindChild("c9"));
    parent.DeleteChild(second);
    EXPECT_EQ(first, parent.FindChild("c9"));
    EXPECT_EQ(&Child(10), parent.FindChild("c10"));
}

TEST_F(ManyChildrenTest, WithoutMemoryForTheirNamesTheListIsWalked)
{
    LoadRow();
    TeskElement& parent = Element("P");
    Allocations::FailAfter(1, Allocations::Failing::FromThenOn);
    TeskElement* found = parent.FindChild("c150");
    TeskElement* missing = parent.FindChild("c200");
    Allocations::Allow();
    EXPECT_EQ(&Child(150), found);
    EXPECT_EQ(nullptr, missing);
}

TEST_F(ManyChildrenTest, ThirtyThousandSiblingsLoadWithoutAWalkForEach)
{
    std::string markup = "<frame name='P'><Children>";
    for (int child = 0; child < 30000; ++child)
        markup += "<frame name='A rather long name of child number " + std::to_string(child) + "'/>";
    const std::clock_t start = std::clock();
    Load(markup + "</Children></frame>");
    EXPECT_NE(nullptr, Element("P").FindChild("a rather long name of child number 29999"));
    EXPECT_LT(std::clock() - start, Patience);
}

TEST_F(ManyChildrenTest, SearchesAllocateOnceUntilTheListChanges)
{
    LoadRow();
    Found(250);
    const std::size_t before = Allocations::Count();
    ExpectAsTheListSays();
    Child(10).MoveZTop(false);
    EXPECT_EQ(&Child(10), Found(52));
    EXPECT_EQ(before, Allocations::Count());
}
