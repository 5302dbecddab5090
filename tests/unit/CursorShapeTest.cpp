#include "host/display/CursorShape.h"

#include "tests/unit/WindowTest.h"

#include <ostream>

namespace host {

static void PrintTo(CursorShape shape, std::ostream* stream)
{
    *stream << "shape " << static_cast<int>(shape);
}

} // namespace host

namespace {

using host::CursorShape;

class CursorShapeTest : public WindowTest
{
protected:
    // Where the mouse is after it went there.
    static CursorShape At(i32 x, i32 y)
    {
        MoveTo(x, y);
        return host::ShapeAtMouse(g_UIManager);
    }
};

} // namespace

TEST(CursorShape, OpposingCornersLookAlike)
{
    EXPECT_EQ(CursorShape::Arrow, host::ShapeForEdges(0));
    EXPECT_EQ(CursorShape::ResizeWidth, host::ShapeForEdges(LeftEdge));
    EXPECT_EQ(CursorShape::ResizeWidth, host::ShapeForEdges(RightEdge));
    EXPECT_EQ(CursorShape::ResizeHeight, host::ShapeForEdges(TopEdge));
    EXPECT_EQ(CursorShape::ResizeHeight, host::ShapeForEdges(BottomEdge));
    EXPECT_EQ(CursorShape::ResizeFalling, host::ShapeForEdges(LeftEdge | TopEdge));
    EXPECT_EQ(CursorShape::ResizeFalling, host::ShapeForEdges(RightEdge | BottomEdge));
    EXPECT_EQ(CursorShape::ResizeRising, host::ShapeForEdges(RightEdge | TopEdge));
    EXPECT_EQ(CursorShape::ResizeRising, host::ShapeForEdges(LeftEdge | BottomEdge));
    EXPECT_EQ(CursorShape::ResizeFalling, host::ShapeForEdges(15));
}

TEST_F(CursorShapeTest, AnEdgeThatCanBeDraggedShowsIt)
{
    TeskWindow& window = LoadWindow("<Resizable/>");
    EXPECT_EQ(CursorShape::ResizeWidth, At(98, 150));
    EXPECT_EQ(CursorShape::ResizeRising, At(302, 98));
    EXPECT_EQ(CursorShape::Arrow, At(150, 150));
    EXPECT_EQ(CursorShape::Arrow, At(50, 150));
    window.Locked = true;
    EXPECT_EQ(CursorShape::Arrow, At(98, 150));
}

TEST_F(CursorShapeTest, WhileAnEdgeIsDraggedTheShapeStays)
{
    LoadWindow("<Resizable/>");
    PressAt(302, 150);
    EXPECT_EQ(CursorShape::ResizeWidth, At(400, 500));
    Release();
    EXPECT_EQ(CursorShape::Arrow, At(600, 500));
}

TEST_F(CursorShapeTest, WhatIsDraggedOverAnEdgeChangesNothing)
{
    LoadWindow("<Resizable/>");
    Load("<button name='B'><Width>20</Width><Height>20</Height></button>");
    PressAt(10, 10);
    EXPECT_EQ(CursorShape::Arrow, At(302, 150));
    Release();
    EXPECT_EQ(CursorShape::ResizeWidth, At(302, 151));
}

TEST_F(CursorShapeTest, AnElementThatIsGoneHasNoShape)
{
    TeskWindow& window = LoadWindow("<Resizable/>");
    EXPECT_EQ(CursorShape::ResizeWidth, At(98, 150));
    g_UIManager.Screen->DeleteChild(&window);
    EXPECT_EQ(CursorShape::Arrow, host::ShapeAtMouse(g_UIManager));
}
