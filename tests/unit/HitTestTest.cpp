#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <climits>

namespace {

class HitTestTest : public ToolkitTest
{
protected:
    // A frame at 100, 100, which has been through a frame.
    TeskElement& MakeElement(u32 width, u32 height)
    {
        Load("<frame name='F'><X>100</X><Y>100</Y></frame>");
        TeskElement& element = Element("F");
        element.Width = width;
        element.Height = height;
        Frame();
        return element;
    }

    static bool IsHit(TeskElement& element, i32 x, i32 y)
    {
        _Point2i point = {x, y};
        return element.HitTest(point);
    }

    static void SetShape(const TeskElement& element, const char* shape)
    {
        g_UIManager.SetElementMetadata(element.ID, "HitTest", shape);
    }

    static TeskElement* Found(TeskElement& element, i32 x, i32 y, TeskElement* skip)
    {
        _Point2i point = {x, y};
        return element.FindMouseOver(point, skip);
    }
};

} // namespace

TEST_F(HitTestTest, BothFarEdgesCount)
{
    TeskElement& element = MakeElement(10, 20);
    EXPECT_TRUE(IsHit(element, 100, 100));
    EXPECT_TRUE(IsHit(element, 110, 120));
    EXPECT_FALSE(IsHit(element, 111, 120));
    EXPECT_FALSE(IsHit(element, 110, 121));
    EXPECT_FALSE(IsHit(element, 99, 100));
    EXPECT_FALSE(IsHit(element, 100, 99));
}

TEST_F(HitTestTest, AFarEdgeBeyondTheRangeWrapsAndIsNeverReached)
{
    TeskElement& element = MakeElement(10, 10);
    element.AbsoluteX = INT_MAX - 5;
    EXPECT_FALSE(IsHit(element, INT_MAX, 100));
    element.AbsoluteX = INT_MIN;
    EXPECT_TRUE(IsHit(element, INT_MIN, 100));
    EXPECT_TRUE(IsHit(element, INT_MIN + 10, 100));
}

TEST_F(HitTestTest, ACircleHasTheWholeWidthAsItsRadius)
{
    TeskElement& element = MakeElement(100, 100);
    SetShape(element, "widthCircle");
    EXPECT_TRUE(IsHit(element, 100, 100));
    EXPECT_TRUE(IsHit(element, 200, 200));
    EXPECT_FALSE(IsHit(element, 201, 200)); // the rectangle still counts

    element.Height = 400;
    EXPECT_FALSE(IsHit(element, 150, 100)); // 200 above the centre
    EXPECT_TRUE(IsHit(element, 150, 200)); // exactly 100 above it
    EXPECT_FALSE(IsHit(element, 150, 199));
    EXPECT_FALSE(IsHit(element, 151, 200));
}

TEST_F(HitTestTest, ACircleMayHaveTheHeightAsItsRadius)
{
    TeskElement& element = MakeElement(400, 100);
    SetShape(element, "heightCircle");
    EXPECT_TRUE(IsHit(element, 200, 150));
    EXPECT_FALSE(IsHit(element, 199, 150));
    EXPECT_TRUE(IsHit(element, 400, 150));
    EXPECT_FALSE(IsHit(element, 401, 150));
}

TEST_F(HitTestTest, TheShapeIsReadInAnyCaseAndAnyOtherIsTheRectangle)
{
    TeskElement& element = MakeElement(100, 400);
    for (const char* circle : {"widthcircle", "WIDTHCIRCLE"}) {
        SetShape(element, circle);
        EXPECT_FALSE(IsHit(element, 150, 100)) << circle;
    }
    for (const char* rectangle : {"", "circle", "widthCircle ", "none"}) {
        SetShape(element, rectangle);
        EXPECT_TRUE(IsHit(element, 150, 100)) << rectangle;
    }
    SetShape(element, "widthCircle");
    g_UIManager.RemoveElementMetadata(element.ID, "hittest");
    EXPECT_TRUE(IsHit(element, 150, 100));
}

TEST_F(HitTestTest, TheCentreOfAnOddSizeIsCutDown)
{
    TeskElement& element = MakeElement(5, 41);
    SetShape(element, "widthCircle");
    EXPECT_TRUE(IsHit(element, 102, 115)); // the centre is 102, 120
    EXPECT_FALSE(IsHit(element, 102, 114));
    EXPECT_TRUE(IsHit(element, 102, 125));
    EXPECT_FALSE(IsHit(element, 102, 126));
}

TEST_F(HitTestTest, AnElementOfNoWidthIsACircleOfOnePixel)
{
    TeskElement& element = MakeElement(0, 10);
    SetShape(element, "widthCircle");
    EXPECT_TRUE(IsHit(element, 100, 105));
    EXPECT_FALSE(IsHit(element, 100, 104));
}

TEST_F(HitTestTest, TheTopmostChildUnderThePointIsFound)
{
    Load("<frame name='P'><Width>100</Width><Height>100</Height><Children>"
         "<frame name='A'><Width>50</Width><Height>50</Height></frame>"
         "<frame name='B'><Width>50</Width><Height>50</Height></frame>"
         "<frame name='C'><Width>50</Width><Height>50</Height></frame></Children></frame>");
    Frame();
    TeskElement& parent = Element("P");
    EXPECT_EQ(&Element("C@P"), Found(parent, 10, 10, nullptr));
    EXPECT_EQ(&Element("B@P"), Found(parent, 10, 10, &Element("C@P")));
    EXPECT_EQ(&Element("A@P"), Found(parent, 10, 10, &Element("B@P")));
    EXPECT_EQ(&parent, Found(parent, 10, 10, &Element("A@P"))); // nothing lies below the first
    EXPECT_EQ(&parent, Found(parent, 60, 60, nullptr));
    EXPECT_EQ(nullptr, Found(parent, 101, 60, nullptr));
    EXPECT_EQ(nullptr, Found(parent, 10, 10, &parent));
    EXPECT_EQ(&parent, Found(*g_UIManager.Screen, 60, 60, nullptr));
}

TEST_F(HitTestTest, WhatIsHiddenIsPassedOver)
{
    Load("<frame name='P'><Width>100</Width><Height>100</Height><Children>"
         "<frame name='A'><Width>50</Width><Height>50</Height></frame></Children></frame>");
    Frame();
    Element("A@P").Visible = false;
    EXPECT_EQ(&Element("P"), Found(Element("P"), 10, 10, nullptr));
    Element("P").Visible = false;
    EXPECT_EQ(nullptr, Found(Element("P"), 10, 10, nullptr));
    EXPECT_EQ(g_UIManager.Screen, Found(*g_UIManager.Screen, 10, 10, nullptr));
}

TEST_F(HitTestTest, AChildOutsideOfAParentsCircleIsNotFound)
{
    Load("<frame name='P'><Width>100</Width><Height>400</Height><Children>"
         "<frame name='A'><Width>100</Width><Height>20</Height></frame></Children></frame>");
    Frame();
    EXPECT_EQ(&Element("A@P"), Found(Element("P"), 50, 10, nullptr));
    SetShape(Element("P"), "widthCircle");
    EXPECT_EQ(nullptr, Found(Element("P"), 50, 10, nullptr));
}

TEST_F(HitTestTest, ElementsThatLetClicksThroughAreFoundAllTheSame)
{
    TeskElement& element = MakeElement(50, 50);
    element.LeftClickThru = true;
    element.RightClickThru = true;
    EXPECT_EQ(&element, Found(*g_UIManager.Screen, 110, 110, nullptr));
    _Point2i point = {110, 110};
    g_UIManager.OnMouseMove(point);
    EXPECT_TRUE(element.IsMouseOver());
}

TEST_F(HitTestTest, APressPassesThroughAnElementThatIsToldSoButOnlyOfThatButton)
{
    Load("<frame name='Below'><Width>50</Width><Height>50</Height><BackgroundColor>ff000000</BackgroundColor></frame>"
         "<frame name='Above'><Width>50</Width><Height>50</Height><OnLeftDown>left</OnLeftDown>"
         "<OnRightDown>right</OnRightDown></frame>");
    std::string heard;
    Host.Scripts["left"] = [&](TeskElement&) { heard += "left "; };
    Host.Scripts["right"] = [&](TeskElement&) { heard += "right "; };
    Frame();
    _Point2i point = {10, 10};
    g_UIManager.OnMouseMove(point);
    Element("Above").LeftClickThru = true;
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_EQ(Element("Below").ID, g_UIManager.LeftPressElementID);
    g_UIManager.OnLMouseUp();
    EXPECT_EQ("", heard);
    EXPECT_TRUE(g_UIManager.OnRMouseDown());
    EXPECT_EQ("right ", heard);
    g_UIManager.OnRMouseUp();
}
