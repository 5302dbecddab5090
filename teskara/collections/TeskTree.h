#pragma once

#include "teskara/collections/TeskTreeNode.h"
#include "teskara/collections/TreeLayout.h"
#include "teskara/controls/TeskFrame.h"
#include "teskara/element/TeskFont.h"

#include <map>
#include <memory>

class TeskScrollBar;

// A frame with a tree of nodes, a row for each that shows, of which one can be selected. The rows scroll by whole ones.
// Nodes come from scripts and are drawn over the frame's children. A tree that was made without markup has no root, and
// so never any node.
//
// Selecting a node and removing a selected one run scripts, which may remove any node, or end the tree.
class TESKARA_EXPORT TeskTree : public TeskFrame
{
public:
    using TeskFrame::TeskFrame;

    // Removes all nodes; if one is selected, its script runs.
    ~TeskTree() override;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;
    bool OnLMouseUp(_Point2i& point) override;
    bool OnLMouseDown(_Point2i& point) override;
    bool OnRMouseUp(_Point2i& point) override;
    bool OnRMouseDown(_Point2i& point) override;
    bool OnLMouseDoubleClick(_Point2i& point) override;
    bool OnMouseMove(_Point2i& point) override;
    bool OnMouseWheel(int offset) override;
    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override;
    MvTypeDefinition* GetMvType() override;

    // The node of that handle; null if this tree has none, or no longer.
    TeskTreeNode* FindNode(u32 handle) const;

    // The first node, in the order in which they were made, for which the host's query holds; null if there is none. The
    // query may run scripts; nodes that are made meanwhile are not asked.
    TeskTreeNode* FindNodeByQuery(const char* query);

    // The node whose row lies under a point of the screen; null if there is none. onImage: the point is left of its text.
    TeskTreeNode* GetNodeFromPoint(const _Point2i& point, bool& onImage) const;

    // Null for none. A node that goes meanwhile is none.
    void Select(TeskTreeNode* node);

    // How many rows show, of those that can be scrolled off as well.
    u32 GetRowCount() const { return m_Rows.Count(); }
    u32 GetNodeCount() const { return static_cast<u32>(m_Nodes.size()); } // with the root

    std::unique_ptr<TeskFont> Font; // takes the colour of each row while it is drawn
    std::unique_ptr<TeskTexture> ImageTexture; // of these, new nodes take copies
    std::unique_ptr<TeskTexture> ImageTextureCollapsible;
    std::unique_ptr<TeskTexture> ImageTextureCollapsed;
    u32 TopRow = 0; // how many rows are scrolled off
    u32 IndentPerDepth = 0;
    u32 ImageSize = 16;
    u32 ImageBorder = 0;
    u32 TextMargin = 5;
    u32 DefaultTextColor = 0xffffffffu; // of nodes added without a colour; markup makes it the font's
    u32 ItemHeight = 0; // from row to row; with 0 there are no rows
    u32 SelectionBackgroundColor = 0;
    u32 SelectionTextColor = 0;
    TeskTreeNode* Root = nullptr; // hidden
    TeskScrollBar* ScrollBar = nullptr; // a child; its high end is the top of the tree
    ScriptPointer OnSelect;
    ScriptPointer OnDeSelect;
    TeskTreeNode* Selection = nullptr;

private:
    friend class TeskTreeNode;

    // --- Nodes

    u32 AskNodes(u32 query);
    TeskTreeNode* AddNode(TeskTreeNode* parent, const char* text, u32 color) noexcept;
    void RemoveNode(TeskTreeNode& node);
    void RemoveChildren(TeskTreeNode& node);
    void Destroy(TeskTreeNode& top);
    bool Dismiss(TeskTreeNode& node, u32 top);
    void Discard(TeskTreeNode& node);

    // --- Rows

    TreeLayout Layout() const { return {ItemHeight, IndentPerDepth, ImageSize, TextMargin}; }
    i32 RowsLeft() const { return WrapAdd(WrapAdd(AbsoluteX, Border), InnerMargin); }
    i32 RowsTop() const { return WrapAdd(WrapAdd(AbsoluteY, Border), InnerMargin); }
    u32 RowsHeight() const { return Height - Border - InnerMargin; }
    u32 FirstPlace() const { return static_cast<i32>(TopRow) < 0 ? 0 : TopRow; }
    TreeRows::Shown RowAtPlace(u32 place) const { return m_Rows.At(FirstPlace() + place); }
    void FitScrollBar();
    void DrawRows();
    void DrawImage(const TeskTreeNode& node, tagRECT box);
    void DrawNodeText(const TeskTreeNode& node, tagRECT box);

    // --- Mouse

    bool IsOnScrollBar(_Point2i& point) const;
    template <class Press> bool TakePress(_Point2i& point, Press basePress);
    void PressRow(const _Point2i& point);

    static constexpr u32 InnerMargin = 2; // around the rows, inside of the border

    std::map<u32, std::unique_ptr<TeskTreeNode>> m_Nodes; // by handle
    TreeRows m_Rows; // of all nodes but the root
    u32 m_Leaving = 0; // handle of the node that is deselected since it is being removed
};
