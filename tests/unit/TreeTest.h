#pragma once

#include "teskara/collections/TeskTree.h"
#include "teskara/collections/TreeWalk.h"
#include "teskara/controls/TeskScrollBar.h"
#include "tests/unit/PressTest.h"

#include <string>
#include <utility>
#include <vector>

// Tests of trees: rows are 10 high and indented by 10, images are 8 wide, texts have a font of size 8.
class TreeTest : public PressTest
{
protected:
    // The trees end after this, and their scripts write into it no more.
    ~TreeTest() override { Host.Scripts.clear(); }

    // A tree under the listener, 100 by 56, which has room for five rows, of which it counts on four.
    TeskTree& MakeTree(const std::string& markup = {})
    {
        auto& tree = Make<TeskTree>("tree", Markup + markup);
        tree.ScrollBar->AbsoluteX = tree.ScrollBar->X; // as a frame would place it
        return tree;
    }

    // The same under the screen, with the name "T", where frames draw it.
    TeskTree& LoadTree(const std::string& markup = {})
    {
        Load("<tree name='T'>" + (Markup + markup) + "</tree>");
        Host.TakeCalls();
        return As<TeskTree>("T");
    }

    // Adds nodes at the end of a tree, a letter each; what stands in brackets lies below the letter before: "ab(cd)e".
    static void Fill(TeskTree& tree, const char* letters)
    {
        TeskTreeNode* parent = tree.Root;
        for (; *letters; ++letters) {
            if (*letters == '(')
                parent = parent->LastChild;
            else if (*letters == ')')
                parent = parent->Parent;
            else
                parent->AddChild(std::string(1, *letters).c_str(), tree.DefaultTextColor);
        }
    }

    // The same text of a tree as it is now; all links must agree, and all handles be known.
    static std::string Shape(const TeskTree& tree)
    {
        u32 count = 0;
        std::string shape = tree.Root ? ShapeBelow(tree, *tree.Root, count) : "";
        EXPECT_EQ(tree.GetNodeCount(), tree.Root ? count + 1 : 0);
        return shape;
    }

    // The first node of that letter.
    static TeskTreeNode& Node(const TeskTree& tree, char letter)
    {
        TeskTreeNode* node = tree.Root;
        while (node && node->Text != std::string(1, letter))
            node = TreeWalk::Next(*node, true);
        EXPECT_NE(nullptr, node) << letter;
        return node ? *node : *tree.Root;
    }

    static bool Has(const TeskTree& tree, u32 handle) { return tree.FindNode(handle) != nullptr; }

    // The letters of the rows from the top one on, as presses find them.
    static std::string Rows(TeskTree& tree)
    {
        const u32 top = tree.TopRow;
        std::string rows;
        for (u32 row = 0; row < tree.GetRowCount(); ++row) {
            bool onImage = false;
            tree.TopRow = top + row;
            const TeskTreeNode* node = tree.GetNodeFromPoint(PointOn(tree, 0), onImage);
            rows += node ? node->Text : "?";
        }
        tree.TopRow = top;
        return rows;
    }

    // The middle of a row at the indentation of the first level, or further right.
    static _Point2i PointOn(const TeskTree& tree, u32 row, i32 right = 80)
    {
        const i32 edge = static_cast<i32>(tree.Border) + 2;
        return {tree.AbsoluteX + edge + right, tree.AbsoluteY + edge + static_cast<i32>(row * 10 + 5)};
    }

    static bool PressOn(TeskTree& tree, u32 row, i32 right = 80)
    {
        _Point2i point = PointOn(tree, row, right);
        return tree.OnLMouseDown(point);
    }

    // Scripts "on" and "off" write down what is selected as they run.
    void WriteEvents()
    {
        Host.Scripts["on"] = [this](TeskElement& self) { Heard += "+" + Selected(self); };
        Host.Scripts["off"] = [this](TeskElement& self) { Heard += "-" + Selected(self); };
    }

    std::string TakeHeardEvents() { return std::exchange(Heard, {}); }

    static std::string Selected(TeskElement& self)
    {
        const TeskTreeNode* node = dynamic_cast<TeskTree&>(self).Selection;
        return node ? node->Text : "none";
    }

    static constexpr const char* Events = "<OnSelect>on</OnSelect><OnDeSelect>off</OnDeSelect>";

    std::string Heard;

private:
    static std::string ShapeBelow(const TeskTree& tree, const TeskTreeNode& parent, u32& count)
    {
        std::string shape;
        const TeskTreeNode* previous = nullptr;
        for (const TeskTreeNode* node = parent.FirstChild; node; node = node->Next) {
            EXPECT_EQ(&parent, node->Parent);
            EXPECT_EQ(previous, node->Previous);
            EXPECT_EQ(node, tree.FindNode(node->Handle));
            EXPECT_EQ(LifeStage::Alive, node->Stage);
            ++count;
            shape += node->Text;
            if (node->FirstChild)
                shape += "(" + ShapeBelow(tree, *node, count) + ")";
            previous = node;
        }
        EXPECT_EQ(previous, parent.LastChild);
        return shape;
    }

    static inline const std::string Markup =
        "<Width>100</Width><Height>56</Height><Font><Size>8</Size></Font><ItemHeight>10</ItemHeight>"
        "<ImageSize>8</ImageSize><IndentPerDepth>10</IndentPerDepth><TextMargin>2</TextMargin><ScrollBar><X>r10</X>"
        "<Width>10</Width><Height>100%</Height><Slider><Width>10</Width><Height>100%</Height><Vertical/>"
        "<OnChange>change</OnChange></Slider></ScrollBar>";
};
