#pragma once

#include "teskara/core/Types.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

// What a tree is, written down as plainly as possible: nodes that hold their children, counted by walking.
class TreeModel
{
public:
    struct Node {
        u32 Handle;
        std::string Text;
        Node* Parent;
        bool Expanded = true;
        std::vector<std::unique_ptr<Node>> Children;
    };

    // A row that shows.
    struct Row {
        Node* Shown;
        i64 Depth;
    };

    static constexpr i64 ItemHeight = 10;
    static constexpr i64 IndentPerDepth = 6;
    static constexpr i64 ImageSize = 8;
    static constexpr i64 TextMargin = 2;

    TreeModel(u32 rootHandle, i64 height) : Root{rootHandle, "", nullptr, true, {}}, m_Height(height) { }

    // The node of that place among all, the root the first; places begin anew behind the last.
    Node& At(std::size_t place);

    // A new node at a place among the children.
    void Insert(Node& parent, std::size_t place, u32 handle, const std::string& text);
    void Remove(Node& node);
    void RemoveChildren(Node& node);
    void Press(i64 x, i64 y);
    void TurnWheel(i64 offset);

    // What a frame does before it draws.
    void Draw();

    static std::size_t PlaceOf(const Node& node);
    std::vector<Row> Rows();
    void ForEach(const std::function<void(Node& node)>& visit) { Visit(Root, visit); }

    Node Root;
    u32 Selected = 0; // handle
    std::vector<u32> Removed; // handles
    i64 TopRow = 0;
    i64 Range = 1; // of the scroll bar
    i64 Value = 1;
    bool ShowsBar = true;

private:
    static void Visit(Node& node, const std::function<void(Node& node)>& visit);
    static void AddRows(Node& parent, i64 depth, std::vector<Row>& rows);
    std::pair<Node*, bool> Hit(i64 x, i64 y);
    void Forget(Node& node);

    i64 m_Height;
};
