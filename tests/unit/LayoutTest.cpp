#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <climits>
#include <functional>
#include <limits>

namespace {

// Tells when its size was computed.
class SizedElement : public TeskElement
{
public:
    using TeskElement::TeskElement;

    void SizeRecalculated(bool changed) override
    {
        ++Times;
        Changed = changed;
        if (Recalculated)
            Recalculated(*this);
    }

    int Times = 0;
    bool Changed = false;

    static std::function<void(TeskElement& self)> Recalculated;
};

std::function<void(TeskElement& self)> SizedElement::Recalculated;

class LayoutTest : public ToolkitTest
{
protected:
    ~LayoutTest() override { SizedElement::Recalculated = nullptr; }

    SizedElement& Make(const char* name, TeskElement* parent = g_UIManager.Screen)
    {
        return dynamic_cast<SizedElement&>(*g_UIManager.LoadElement(parent, "sized", name));
    }

private:
    TeskFactory<SizedElement> m_Factory{"sized"};
};

ElementPosition Share(float share)
{
    ElementPosition position;
    position.Type = PositionShare;
    position.SetShare(share);
    return position;
}

ElementPosition FarEdge(u32 offset)
{
    return {PositionFarEdge, offset};
}

} // namespace

TEST_F(LayoutTest, AFieldFollowsItsParentByItsType)
{
    struct Row {
        u32 ParentDimension;
        ElementPosition Position;
        i32 Coordinate; // from 7
        u32 Dimension; // from 7
    };
    const Row rows[] = {
        {100, {}, 7, 7}, {100, {1, 50}, 7, 7}, {100, {4, 50}, 7, 7}, {100, {0xffffffff, 50}, 7, 7},
        {101, Share(0.5f), 50, 50}, {100, Share(0.0f), 0, 0}, {100, Share(-0.015f), -1, 0xffffffffu},
        {3, Share(0.3333333f), 0, 0}, {100, Share(2.5f), 250, 250}, {100, FarEdge(10), 90, 90},
        {5, FarEdge(10), -5, 0xfffffffbu}, {5, FarEdge(0xfffffff6u), 15, 15}, // -10
        {0xffffffffu, FarEdge(0), -1, 0xffffffffu},
        {16777217, Share(1.0f), 16777216, 16777216}, // the parent's dimension as a float
    };
    for (const Row& row : rows) {
        g_UIManager.Reset();
        SizedElement& parent = Make("P");
        SizedElement& child = Make("C", &parent);
        parent.Width = row.ParentDimension;
        parent.Height = row.ParentDimension;
        child.X = child.Y = 7;
        child.Width = child.Height = 7;
        child.PositionX = child.PositionY = child.PositionWidth = child.PositionHeight = row.Position;
        child.RecalculateSize(false);
        EXPECT_EQ(row.Coordinate, child.X) << row.ParentDimension << " type " << row.Position.Type;
        EXPECT_EQ(row.Coordinate, child.Y);
        EXPECT_EQ(row.Dimension, child.Width);
        EXPECT_EQ(row.Dimension, child.Height);
    }
}

TEST_F(LayoutTest, SharesBeyondEveryRangeAreSurvived)
{
    SizedElement& child = Make("C", &Make("P"));
    child.Parent->Width = child.Parent->Height = 0xffffffffu;
    for (const float share : {1e30f, -1e30f, std::numeric_limits<float>::infinity(),
             std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::denorm_min()}) {
        child.PositionX = child.PositionY = child.PositionWidth = child.PositionHeight = Share(share);
        child.RecalculateSize(true);
        Frame();
    }
}

TEST_F(LayoutTest, XAndWidthFollowTheWidthAndYAndHeightTheHeight)
{
    SizedElement& child = Make("C", &Make("P"));
    child.Parent->Width = 100;
    child.Parent->Height = 10;
    child.PositionX = child.PositionY = child.PositionWidth = child.PositionHeight = Share(0.5f);
    child.RecalculateSize(false);
    EXPECT_EQ(50, child.X);
    EXPECT_EQ(5, child.Y);
    EXPECT_EQ(50u, child.Width);
    EXPECT_EQ(5u, child.Height);
}

TEST_F(LayoutTest, AnElementIsToldInEachCaseAndItsChildrenOnlyIfItChanged)
{
    SizedElement& parent = Make("P");
    SizedElement& child = Make("C", &parent);
    SizedElement& grandchild = Make("G", &child);
    parent.PositionWidth = Share(0.5f);
    grandchild.Times = child.Times = parent.Times = 0;

    parent.RecalculateSize(false);
    EXPECT_TRUE(parent.Changed);
    EXPECT_EQ(0, child.Times); // not asked for

    parent.RecalculateSize(true);
    EXPECT_FALSE(parent.Changed);
    EXPECT_EQ(2, parent.Times);
    EXPECT_EQ(0, child.Times);

    parent.PositionWidth = Share(0.25f);
    parent.RecalculateSize(true);
    EXPECT_EQ(1, child.Times);
    EXPECT_FALSE(child.Changed);
    EXPECT_EQ(0, grandchild.Times);
}

TEST_F(LayoutTest, WithoutAParentItIsToldThatNothingChanged)
{
    SizedElement orphan("sized", nullptr, "O");
    orphan.PositionX = orphan.PositionWidth = Share(0.5f);
    orphan.X = 7;
    orphan.Width = 8;
    orphan.RecalculateSize(true);
    EXPECT_EQ(1, orphan.Times);
    EXPECT_FALSE(orphan.Changed);
    EXPECT_EQ(7, orphan.X);
    EXPECT_EQ(8u, orphan.Width);
}

TEST_F(LayoutTest, TheScreenIsAllOfTheDisplay)
{
    const TeskScreen screen;
    EXPECT_STREQ("", screen.Type.c_str());
    EXPECT_EQ("screen", screen.Name);
    EXPECT_EQ("Screen", screen.FullName);
    EXPECT_EQ(nullptr, screen.Parent);
    EXPECT_TRUE(screen.Visible);
    EXPECT_EQ(800u, screen.Width);
    EXPECT_EQ(600u, screen.Height);
    for (const ElementPosition& position : {screen.PositionWidth, screen.PositionHeight}) {
        EXPECT_EQ(PositionShare, position.Type);
        EXPECT_EQ(1.0f, position.Share());
    }
}

TEST_F(LayoutTest, TheScreenTellsItsChildrenOnlyWhenItChangedAndNeverItself)
{
    SizedElement& child = Make("C");
    g_UIManager.Render();
    child.Times = 0;
    g_UIManager.Render();
    EXPECT_EQ(0, child.Times);
    g_UIManager.Screen->Height = 1;
    g_UIManager.Render();
    EXPECT_EQ(1, child.Times);
    EXPECT_EQ(600u, g_UIManager.Screen->Height);
}

TEST_F(LayoutTest, CenterHalvesTheRoomAsAnUnsignedNumber)
{
    SizedElement& child = Make("C", &Make("P"));
    child.Parent->Width = 101;
    child.Parent->Height = 50;
    child.Width = 20;
    child.Height = 60;
    child.Center();
    EXPECT_EQ(40, child.X);
    EXPECT_EQ(0x7ffffffb, child.Y);

    child.PositionX = Share(0.5f);
    child.Center();
    EXPECT_EQ(40, child.X);
    child.RecalculateSize(false);
    EXPECT_EQ(50, child.X); // the share is kept
}

TEST_F(LayoutTest, AChildMayDeleteAnythingWhileSizesAreComputed)
{
    struct Row {
        const char* Deleted;
        const char* Left;
    };
    for (const Row& row : {Row{"A@P", "BC"}, Row{"B@P", "AC"}, Row{"C@P", "AB"}, Row{"P", ""}}) {
        g_UIManager.Reset();
        SizedElement& parent = Make("P");
        for (const char* name : {"A", "B", "C"})
            Make(name, &parent);
        parent.PositionWidth = Share(0.5f);
        SizedElement::Recalculated = [&row](TeskElement& self) {
            TeskElement* deleted = g_UIManager.FindElement(row.Deleted);
            if (self.FullName == "B@P" && deleted)
                deleted->Parent->DeleteChild(deleted);
        };
        parent.RecalculateSize(true);
        SizedElement::Recalculated = nullptr;

        std::string left;
        for (const char* name : {"A", "B", "C"}) {
            if (auto* child =
                    dynamic_cast<SizedElement*>(g_UIManager.FindElement((std::string(name) + "@P").c_str()))) {
                left += name;
                EXPECT_EQ(2, child->Times) << name; // once when it was made
            }
        }
        EXPECT_EQ(row.Left, left);
    }
}

TEST_F(LayoutTest, ChildrenThatKeepMovingToTheBottomDoNotHoldUpTheirParent)
{
    for (const int count : {2, 3, 50}) {
        SizedElement::Recalculated = nullptr;
        g_UIManager.Reset();
        SizedElement& parent = Make("P");
        for (int index = 0; index < count; ++index)
            Make(("C" + std::to_string(index)).c_str(), &parent);
        int steps = 0;
        SizedElement::Recalculated = [&steps](TeskElement& self) {
            ++steps;
            self.MoveZBottom();
        };
        parent.RecalculateChildrenSize();
        EXPECT_EQ(4 * count + 64, steps);
    }
}
