#include "tests/fuzz/TreeModel.h"

#include <algorithm>

namespace {

constexpr i64 Margin = 2; // around the rows

} // namespace

void TreeModel::Visit(Node& node, const std::function<void(Node& node)>& visit)
{
    visit(node);
    for (const auto& child : node.Children)
        Visit(*child, visit);
}

TreeModel::Node& TreeModel::At(std::size_t place)
{
    std::vector<Node*> nodes;
    ForEach([&](Node& node) { nodes.push_back(&node); });
    return *nodes[place % nodes.size()];
}

std::size_t TreeModel::PlaceOf(const Node& node)
{
    const auto& siblings = node.Parent->Children;
    const auto isNode = [&](const auto& sibling) { return sibling.get() == &node; };
    return static_cast<std::size_t>(std::find_if(siblings.begin(), siblings.end(), isNode) - siblings.begin());
}

void TreeModel::Insert(Node& parent, std::size_t place, u32 handle, const std::string& text)
{
    auto node = std::make_unique<Node>(Node{handle, text, &parent, true, {}});
    parent.Children.insert(parent.Children.begin() + static_cast<std::ptrdiff_t>(place), std::move(node));
}

void TreeModel::Forget(Node& node)
{
    Visit(node, [this](Node& gone) {
        Removed.push_back(gone.Handle);
        if (Selected == gone.Handle)
            Selected = 0;
    });
}

void TreeModel::Remove(Node& node)
{
    Forget(node);
    auto& siblings = node.Parent->Children;
    siblings.erase(siblings.begin() + static_cast<std::ptrdiff_t>(PlaceOf(node)));
}

void TreeModel::RemoveChildren(Node& node)
{
    for (const auto& child : node.Children)
        Forget(*child);
    node.Children.clear();
}

void TreeModel::AddRows(Node& parent, i64 depth, std::vector<Row>& rows)
{
    for (const auto& child : parent.Children) {
        rows.push_back({child.get(), depth});
        if (child->Expanded)
            AddRows(*child, depth + 1, rows);
    }
}

std::vector<TreeModel::Row> TreeModel::Rows()
{
    std::vector<Row> rows;
    AddRows(Root, 0, rows);
    return rows;
}

// The node there, and whether its image is.
std::pair<TreeModel::Node*, bool> TreeModel::Hit(i64 x, i64 y)
{
    i64 below = y - Margin;
    if (below > m_Height)
        return {};

    const std::vector<Row> rows = Rows();
    for (auto row = static_cast<std::size_t>(TopRow); row < rows.size(); ++row) {
        below -= ItemHeight;
        if (below >= 1)
            continue;
        const i64 beside = x - Margin - rows[row].Depth * IndentPerDepth;
        return {beside < 0 ? nullptr : rows[row].Shown, beside <= TextMargin + ImageSize};
    }
    return {};
}

void TreeModel::Press(i64 x, i64 y)
{
    const auto [node, onImage] = Hit(x, y);
    if (node && onImage)
        node->Expanded = !node->Expanded;
    else
        Selected = node ? node->Handle : 0;
}

void TreeModel::TurnWheel(i64 offset)
{
    if (!ShowsBar)
        return;
    Value = std::clamp<i64>(Value + offset / 40, 0, Range);
    TopRow = Range - Value;
}

void TreeModel::Draw()
{
    const i64 count = static_cast<i64>(Rows().size());
    const i64 fitting = (m_Height - Margin) / ItemHeight;
    const i64 range = std::max<i64>(count - (fitting - 1), 0);
    ShowsBar = range > 0;
    if (range != Range) {
        const bool isAtTop = Value == Range;
        Range = range;
        Value = isAtTop ? range : std::min(Value, range);
    }
    TopRow = Range - Value;
}
