#include "teskara/collections/TeskTree.h"

#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/script/TypeGlobals.h"

#include <algorithm>

namespace {

constexpr char Kind[] = "tree";

// clang-format off
constexpr MarkupValue<TeskTree> TreeValues[] = {
    {"Font",                     Markup::Font<&TeskTree::Font>,                       {}},
    {"IndentPerDepth",           Markup::Integer<&TeskTree::IndentPerDepth>,          0},
    {"ImageSize",                Markup::Integer<&TeskTree::ImageSize>,               0},
    {"ImageBorder",              Markup::Integer<&TeskTree::ImageBorder>,             0},
    {"TextMargin",               Markup::Integer<&TeskTree::TextMargin>,              0},
    {"ItemHeight",               Markup::Integer<&TeskTree::ItemHeight>,              0},
    {"SelectionBackgroundColor", Markup::Hex<&TeskTree::SelectionBackgroundColor>,    0},
    {"SelectionTextColor",       Markup::Hex<&TeskTree::SelectionTextColor>,          0},
    {"OnSelect",                 Markup::Script<&TeskTree::OnSelect>,                 ""},
    {"OnDeSelect",               Markup::Script<&TeskTree::OnDeSelect>,               ""},
    {"ImageTexture",             Markup::Texture<&TeskTree::ImageTexture>,            {}},
    {"ImageTextureCollapsible",  Markup::Texture<&TeskTree::ImageTextureCollapsible>, {}},
    {"ImageTextureCollapsed",    Markup::Texture<&TeskTree::ImageTextureCollapsed>,   {}},
};
// clang-format on

constexpr MarkupPart BarPart = {"ScrollBar", "scrollbar"};
constexpr MarkupPart TreeParts[] = {BarPart};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "frame",
    .ScriptType = &pTeskTreeType,
    .Tables = {&RowsOf<TreeValues>},
    .Parts = {TreeParts},
});

// Null: there is none, it could not be loaded, or the tree is gone.
TeskScrollBar* LoadBar(TeskTree& tree, XMLNode* node)
{
    const ElementWatch watch(tree);
    TeskElement* bar = node ? g_UIManager.LoadElement(&tree, BarPart.Form, "vertical", node, nullptr) : nullptr;
    return watch.Exists() ? dynamic_cast<TeskScrollBar*>(bar) : nullptr;
}

} // namespace

// What is the host's is given back in the order that hosts expect.
TeskTree::~TeskTree()
{
    if (Root)
        Destroy(*Root);
    Font.reset();
    OnSelect.reset();
    OnDeSelect.reset();
    ImageTexture.reset();
    ImageTextureCollapsible.reset();
    ImageTextureCollapsed.reset();
}

bool TeskTree::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    const MarkupSource source(node, templateNode);
    if (!TeskFrame::FromXML(node, templateNode) || !ReadMarkup<TreeValues>(*this, source) || !Font)
        return false;

    if (Font->Color != 0)
        DefaultTextColor = Font->Color;
    const ElementWatch self(*this);
    TeskScrollBar* bar = LoadBar(*this, source.Child(BarPart.Name));
    if (!bar)
        return false;

    ScrollBar = bar;
    ScrollBar->SetRange(1);
    if (self.Exists() && ScrollBar)
        ScrollBar->SetValue(1);
    if (self.Exists() && ScrollBar)
        ScrollBar->RecalculateSize(true);
    if (!self.Exists())
        return false;

    if (!Root)
        Root = AddNode(nullptr, "", 0);
    return Root != nullptr;
}

bool TeskTree::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskFrame::IsTypeOf(word);
}

MvTypeDefinition* TeskTree::GetMvType()
{
    return pTeskTreeType;
}

void TeskTree::Render()
{
    const ElementWatch self(*this);
    FitScrollBar();
    if (self.Exists())
        TeskFrame::Render();
    if (self.Exists() && Font)
        DrawRows();
}

// Shows the scroll bar if it is needed. At its top it stays there when rows come or go. Its value is told to scripts.
void TeskTree::FitScrollBar()
{
    const u32 range = Layout().ScrollRange(GetRowCount(), RowsHeight());
    if (!ScrollBar) {
        TopRow = std::min(TopRow, range);
        return;
    }

    ScrollBar->Show(range != 0);
    if (range != ScrollBar->Range) {
        const ElementWatch self(*this);
        const bool isAtTop = ScrollBar->GetValue() == ScrollBar->Range;
        ScrollBar->SetRange(range);
        if (self.Exists() && ScrollBar && isAtTop)
            ScrollBar->SetValue(range);
        if (!self.Exists() || !ScrollBar)
            return;
    }
    TopRow = range != 0 ? range - ScrollBar->GetValue() : 0;
}

void TeskTree::DrawRows()
{
    const i32 bottom = WrapAdd(RowsTop(), RowsHeight());
    i32 right = WrapAdd(AbsoluteX, Width);
    if (ScrollBar && ScrollBar->Visible)
        right = WrapSub(right, ScrollBar->Width);

    const TreeLayout layout = Layout();
    const u32 fontColor = Font->Color;
    i32 top = RowsTop();
    for (u32 place = 0; layout.HasRoom(top, bottom); ++place) {
        const TreeRows::Shown row = RowAtPlace(place);
        if (!row.Row)
            break;

        const TeskTreeNode& node = *static_cast<const TeskTreeNode*>(row.Row); // no other rows are in there
        const i32 left = WrapAdd(RowsLeft(), layout.IndentOf(row.Depth));
        const i32 imageRight = WrapAdd(left, ImageSize);
        if (imageRight < right && node.Image)
            DrawImage(node, {left, top, imageRight, WrapAdd(top, ImageSize)});
        DrawNodeText(node, {imageRight, top, right, bottom});
        top = WrapAdd(top, ItemHeight);
    }
    Font->Color = fontColor;
}

// In a high row the image is cut from above rather than moved down.
void TeskTree::DrawImage(const TeskTreeNode& node, tagRECT box)
{
    TeskTexture* image = node.Image.get();
    TeskTexture* special = node.IsExpanded() ? node.ImageCollapsible.get() : node.ImageCollapsed.get();
    if (node.FirstChild && special)
        image = special;

    box.top = WrapAdd(box.top, Layout().Centered(ImageSize));
    TexturedRectBordered(box, image, ImageBorder);
}

// box: of the row, behind its image. Only what has a text is seen to be selected.
void TeskTree::DrawNodeText(const TeskTreeNode& node, tagRECT box)
{
    if (node.Text.empty())
        return;

    box.top = WrapAdd(box.top, Layout().Centered(Font->Size));
    Font->Color = node.IsSelected() ? SelectionTextColor : node.TextColor;
    if (node.IsSelected())
        FillRect(
            {box.left, box.top, WrapSub(box.right, 1), WrapAdd(box.top, u32{Font->Size})}, SelectionBackgroundColor);
    DrawTextClipped(Font.get(), node.Text.c_str(), WrapAdd(box.left, TextMargin), box.top, box.right);
}
