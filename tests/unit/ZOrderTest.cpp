#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <memory>

namespace {

class ZOrderTest : public ToolkitTest
{
protected:
    // Siblings called A, B, C and so on in this order, with these strata, whatever order their strata asks for.
    void MakeSiblings(const std::vector<int>& strata)
    {
        g_UIManager.Reset();
        TeskElement* parent = g_UIManager.LoadElement(g_UIManager.Screen, "frame", "P");
        for (std::size_t index = 0; index < strata.size(); ++index) {
            const std::string name(1, static_cast<char>('A' + index));
            g_UIManager.LoadElement(parent, "frame", name.c_str())->Strata = static_cast<i8>(strata[index]);
        }
    }

    static std::string Order()
    {
        std::string names;
        for (const TeskElement* child = g_UIManager.FindElement("P")->FirstChild; child; child = child->Next)
            names += static_cast<char>(child->Name[0] - 'a' + 'A');
        return names;
    }

    TeskElement& Sibling(char name) { return Element((std::string(1, name) + "@P").c_str()); }
};

struct MoveRow {
    std::vector<int> Strata;
    char Moved;
    const char* Order;
};

} // namespace

TEST_F(ZOrderTest, UpSwapsWithTheNextUnlessThatOneIsOfAHigherStrata)
{
    const MoveRow rows[] = {
        {{0, 0, 0}, 'A', "BAC"},
        {{0, 0, 0}, 'C', "ABC"},
        {{0, 1, 0}, 'A', "ABC"},
        {{1, 0, 0}, 'A', "BAC"},
        {{-128, 127}, 'A', "AB"},
        {{-1, -1}, 'A', "BA"},
        {{0}, 'A', "A"},
    };
    for (const MoveRow& row : rows) {
        MakeSiblings(row.Strata);
        Sibling(row.Moved).MoveZUp();
        EXPECT_EQ(row.Order, Order());
    }
}

TEST_F(ZOrderTest, DownSwapsWithThePreviousWhateverItsStrata)
{
    const MoveRow rows[] = {
        {{0, 0, 0}, 'C', "ACB"},
        {{0, 0, 0}, 'A', "ABC"},
        {{0, 127}, 'B', "BA"},
        {{127, 0}, 'B', "BA"},
        {{0, 0, 0}, 'B', "BAC"},
    };
    for (const MoveRow& row : rows) {
        MakeSiblings(row.Strata);
        Sibling(row.Moved).MoveZDown();
        EXPECT_EQ(row.Order, Order());
    }
}

TEST_F(ZOrderTest, BottomGoesToTheHeadWhateverTheStrata)
{
    const MoveRow rows[] = {
        {{0, 0, 0}, 'C', "CAB"},
        {{-128, 0, 127}, 'C', "CAB"},
        {{0, 0, 0}, 'A', "ABC"},
        {{0, 0, 0}, 'B', "BAC"},
    };
    for (const MoveRow& row : rows) {
        MakeSiblings(row.Strata);
        Sibling(row.Moved).MoveZBottom();
        EXPECT_EQ(row.Order, Order());
    }
}

TEST_F(ZOrderTest, TopEndsAboveEqualsAndBelowTheFirstHigherStrataFromTheEnd)
{
    const MoveRow rows[] = {
        {{0}, 'A', "A"},
        {{0, 0, 0}, 'A', "BCA"},
        {{0, 0, 0}, 'C', "ABC"},
        {{0, 0, 127}, 'A', "BAC"},
        {{0, 0, 127}, 'B', "ABC"},
        {{0, 127, 0, 127}, 'A', "BCAD"}, // a low one behind a high one counts
        {{5, 0, 7, 9}, 'B', "BACD"}, // none below: to the head
        {{0, 5, 7}, 'A', "ABC"},
        {{9, 5, 7}, 'A', "BCA"},
        {{1, 5, 2}, 'B', "ACB"},
        {{1, 5, 2}, 'C', "ACB"}, // last, but above a higher one
        {{127, -128}, 'B', "BA"},
        {{0, 1, 0, 1}, 'C', "ACBD"},
    };
    for (const MoveRow& row : rows) {
        MakeSiblings(row.Strata);
        Sibling(row.Moved).MoveZTop(false);
        EXPECT_EQ(row.Order, Order()) << row.Moved;
    }
}

TEST_F(ZOrderTest, TopWithParentsRaisesTheWholeChain)
{
    Load("<frame name='P'><Children><frame name='A'/><frame name='B'/></Children></frame><frame name='Q'/>");
    Element("A@P").MoveZTop(false);
    EXPECT_EQ(&Element("Q"), g_UIManager.Screen->LastChild);
    EXPECT_EQ("BA", Order());
    Element("B@P").MoveZTop(true);
    EXPECT_EQ(&Element("P"), g_UIManager.Screen->LastChild);
    EXPECT_EQ("AB", Order());
}

TEST_F(ZOrderTest, RaisingTheTopLevelMovesTheAncestorBelowTheScreenOnly)
{
    Load("<frame name='P'><Children><frame name='A'><Children><frame name='X'/></Children></frame><frame name='B'/>"
         "</Children></frame><frame name='Q'/>");
    Element("X@A@P").RaiseTopLevel();
    EXPECT_EQ(&Element("P"), g_UIManager.Screen->LastChild);
    EXPECT_EQ("AB", Order());
    Element("Q").RaiseTopLevel();
    EXPECT_EQ(&Element("Q"), g_UIManager.Screen->LastChild);
    g_UIManager.Screen->RaiseTopLevel();
    EXPECT_EQ(&Element("Q"), g_UIManager.Screen->LastChild);
}

TEST_F(ZOrderTest, EachMoveOfAnElementIsRemembered)
{
    MakeSiblings({0, 0});
    const auto isRemembered = [this](auto move) {
        g_UIManager.ZOrderChanged = false;
        move(Sibling('A'));
        return g_UIManager.ZOrderChanged;
    };
    EXPECT_TRUE(isRemembered([](TeskElement& element) { element.MoveZUp(); }));
    EXPECT_TRUE(isRemembered([](TeskElement& element) { element.MoveZUp(); })); // though there is nowhere to go
    EXPECT_TRUE(isRemembered([](TeskElement& element) { element.MoveZDown(); }));
    EXPECT_TRUE(isRemembered([](TeskElement& element) { element.MoveZBottom(); }));
    EXPECT_TRUE(isRemembered([](TeskElement& element) { element.MoveZTop(false); }));
}

TEST_F(ZOrderTest, TheScreenIgnoresMoves)
{
    g_UIManager.ZOrderChanged = false;
    g_UIManager.Screen->MoveZUp();
    g_UIManager.Screen->MoveZDown();
    g_UIManager.Screen->MoveZBottom();
    g_UIManager.Screen->MoveZTop(true);
    EXPECT_FALSE(g_UIManager.ZOrderChanged);
}

TEST_F(ZOrderTest, AnElementWithoutAParentStaysWhereItIs)
{
    TeskElement element("frame", nullptr, "Alone");
    element.MoveZUp();
    element.MoveZDown();
    element.MoveZBottom();
    element.MoveZTop(true);
    element.RaiseTopLevel();
    EXPECT_EQ(nullptr, element.Next);
    EXPECT_EQ(nullptr, element.Previous);
}
