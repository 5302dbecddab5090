#include "tests/fuzz/TreeSteps.h"

#include "teskara/collections/TeskTree.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/CUIManager.h"
#include "tests/fuzz/ModelCheck.h"
#include "tests/fuzz/TreeModel.h"

#include <iterator>
#include <string>

namespace {

// Four rows and a bit show.
constexpr char Values[] =
    "<Template><Width>100</Width><Height>56</Height><Font><Size>8</Size></Font><ItemHeight>10</ItemHeight>"
    "<ImageSize>8</ImageSize><IndentPerDepth>6</IndentPerDepth><TextMargin>2</TextMargin><ImageTexture Filename='#a'/>"
    "<ScrollBar><X>r10</X><Width>10</Width><Height>50</Height><Slider><Width>10</Width><Height>50</Height><Vertical/>"
    "</Slider></ScrollBar></Template>";

struct Scene {
    TeskTree& Tree;
    TreeModel Model;

    // A node of the model, chosen by a byte or two, and the same one of the tree.
    TreeModel::Node& Choose(Decisions& bytes) { return Model.At(bytes.Next()); }
    TeskTreeNode& Real(const TreeModel::Node& node)
    {
        TeskTreeNode* found = Tree.FindNode(node.Handle);
        Require(found, "a node is not found by its handle");
        return *found;
    }
};

struct Step {
    const char* Name;
    void (*Run)(Scene& scene, Decisions& bytes);
};

// Also no text at all.
std::string TextFrom(u8 byte)
{
    return std::string(byte % 5u, static_cast<char>('a' + byte % 26));
}

void Add(Scene& scene, Decisions& bytes)
{
    TreeModel::Node& parent = scene.Choose(bytes);
    const std::string text = TextFrom(bytes.Next());
    const TeskTreeNode* added = scene.Real(parent).AddChild(text.c_str(), 0);
    Require(added, "a node was not added");
    scene.Model.Insert(parent, parent.Children.size(), added->Handle, text);
}

void Insert(Scene& scene, Decisions& bytes)
{
    TreeModel::Node& sibling = scene.Choose(bytes);
    const u8 byte = bytes.Next();
    const std::string text = TextFrom(byte);
    TeskTreeNode& real = scene.Real(sibling);
    const bool isBehind = byte >= 128;
    const TeskTreeNode* added =
        isBehind ? real.InsertSiblingAfter(text.c_str(), 0) : real.InsertSiblingBefore(text.c_str(), 0);
    Require((added != nullptr) == (sibling.Parent != nullptr), "the root has siblings, or another node has none");
    if (added)
        scene.Model.Insert(*sibling.Parent, TreeModel::PlaceOf(sibling) + (isBehind ? 1 : 0), added->Handle, text);
}

void Remove(Scene& scene, Decisions& bytes)
{
    TreeModel::Node& node = scene.Choose(bytes);
    if (!node.Parent)
        return;
    scene.Real(node).Remove();
    scene.Model.Remove(node);
}

void RemoveChildren(Scene& scene, Decisions& bytes)
{
    TreeModel::Node& node = scene.Choose(bytes);
    scene.Real(node).RemoveChildren();
    scene.Model.RemoveChildren(node);
}

void ToggleExpand(Scene& scene, Decisions& bytes)
{
    TreeModel::Node& node = scene.Choose(bytes);
    scene.Real(node).ToggleExpand();
    node.Expanded = !node.Expanded;
}

void Expand(Scene& scene, Decisions& bytes)
{
    TreeModel::Node& node = scene.Choose(bytes);
    scene.Real(node).Expand();
    node.Expanded = true;
}

void Select(Scene& scene, Decisions& bytes)
{
    const TreeModel::Node& node = scene.Choose(bytes);
    scene.Real(node).Select();
    scene.Model.Selected = node.Handle;
}

void SetText(Scene& scene, Decisions& bytes)
{
    TreeModel::Node& node = scene.Choose(bytes);
    node.Text = TextFrom(bytes.Next());
    scene.Real(node).SetText(node.Text.c_str());
}

// Left of the scroll bar.
void Press(Scene& scene, Decisions& bytes)
{
    const u8 byte = bytes.Next();
    const i32 x = byte / 4 + 1;
    const i32 y = bytes.Next() % 56;
    _Point2i point = {x, y};
    Require(byte % 2 == 0 ? scene.Tree.OnLMouseDown(point) : scene.Tree.OnRMouseDown(point), "a press was refused");
    scene.Model.Press(x, y);
}

void TurnWheel(Scene& scene, Decisions& bytes)
{
    const i32 offset = (bytes.Next() - 128) * 20;
    scene.Tree.OnMouseWheel(offset);
    scene.Model.TurnWheel(offset);
}

void Draw(Scene& scene, Decisions&)
{
    g_UIManager.Render();
    scene.Model.Draw();
    Require(scene.Tree.ScrollBar->Visible == scene.Model.ShowsBar, "the bar is wrong");
    Require(scene.Tree.ScrollBar->Range == scene.Model.Range, "the ranges differ");
}

// clang-format off
constexpr Step Steps[] = {
    {"add",             Add},
    {"insert",          Insert},
    {"remove",          Remove},
    {"remove children", RemoveChildren},
    {"toggle",          ToggleExpand},
    {"expand",          Expand},
    {"select",          Select},
    {"set text",        SetText},
    {"press",           Press},
    {"wheel",           TurnWheel},
    {"frame",           Draw},
};
// clang-format on

u32 HandleOf(const TeskTreeNode* node)
{
    return node ? node->Handle : 0;
}

u32 HandleAt(const TreeModel::Node& parent, std::size_t place)
{
    return place < parent.Children.size() ? parent.Children[place]->Handle : 0;
}

void CompareNode(Scene& scene, const TreeModel::Node& node)
{
    const TeskTreeNode& real = scene.Real(node);
    Require(real.Text == node.Text && real.IsExpanded() == node.Expanded, "two nodes differ");
    Require(HandleOf(real.FirstChild) == HandleAt(node, 0), "the first children differ");
    Require(HandleOf(real.LastChild) == HandleAt(node, node.Children.size() - 1), "the last children differ");
    if (!node.Parent)
        return;

    const std::size_t place = TreeModel::PlaceOf(node);
    Require(HandleOf(real.Parent) == node.Parent->Handle, "the parents differ");
    Require(HandleOf(real.Next) == HandleAt(*node.Parent, place + 1), "the next ones differ");
    Require(HandleOf(real.Previous) == HandleAt(*node.Parent, place - 1), "the previous ones differ");
}

// Those that can be pressed.
void CompareRows(Scene& scene)
{
    const std::vector<TreeModel::Row> rows = scene.Model.Rows();
    Require(scene.Tree.GetRowCount() == rows.size(), "the numbers of rows differ");
    for (i32 row = 0; row < 5; ++row) {
        bool onImage = false;
        const u32 handle = HandleOf(scene.Tree.GetNodeFromPoint({95, row * 10 + 7}, onImage));
        const auto place = static_cast<std::size_t>(scene.Model.TopRow + row);
        const bool isLeft = place < rows.size() && rows[place].Depth * TreeModel::IndentPerDepth <= 93;
        Require(handle == (isLeft ? rows[place].Shown->Handle : 0), "the rows differ");
    }
}

void Compare(Scene& scene)
{
    u32 count = 0;
    scene.Model.ForEach([&](TreeModel::Node& node) {
        CompareNode(scene, node);
        ++count;
    });
    Require(scene.Tree.GetNodeCount() == count, "the numbers of nodes differ");
    Require(HandleOf(scene.Tree.Selection) == scene.Model.Selected, "the selections differ");
    Require(scene.Tree.TopRow == scene.Model.TopRow, "the rows on top differ");
    for (const u32 handle : scene.Model.Removed)
        Require(!scene.Tree.FindNode(handle), "a node that was removed is found");
    CompareRows(scene);
}

} // namespace

void RunTreeSteps(Decisions& bytes)
{
    auto& tree = MakeOnScreen<TeskTree>("tree", "tree", KeptTemplate("tree", Values));
    Require(tree.Root && tree.ScrollBar, "a tree was made without its parts");
    g_UIManager.Render();
    Scene scene = {tree, {tree.Root->Handle, tree.Height}};
    scene.Model.Draw(); // as the frame before
    for (std::size_t step = 0; step < MostModelSteps && !bytes.IsUsedUp(); ++step) {
        Steps[bytes.Next() % std::size(Steps)].Run(scene, bytes);
        Compare(scene);
    }
}
