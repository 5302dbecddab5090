#include "teskara/collections/TeskTable.h"

#include "teskara/collections/TeskTableCell.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/Limits.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/MarkupTable.h"

#include <algorithm>

namespace {

constexpr char Kind[] = "table";
constexpr char CellKind[] = "tablecell";

// Room for the name of any cell.
constexpr u32 CellNameSize = 32;

// clang-format off
constexpr MarkupValue<TeskTable> TableValues[] = {
    {"Template", Markup::Text<&TeskTable::CellTemplate>, ""},
};
// clang-format on

constexpr MarkupPart RowPart = {"Row", "row"};
constexpr MarkupPart CellPart = {"Cell", CellKind};
constexpr MarkupPart TableParts[] = {RowPart};
constexpr MarkupPart RowParts[] = {CellPart};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "frame",
    .Tables = {&RowsOf<TableValues>},
    .Parts = {TableParts},
});

const MarkupShape g_RowShape({.Name = RowPart.Form, .Use = MarkupUse::Value, .Parts = {RowParts}});

// The first child element of that tag from a node on, its siblings included; null if there is none.
XMLNode* NextTagged(XMLNode* node, TagName tag)
{
    while (node && (node->Type != XMLElementNode || !node->HasName(tag.Text, tag.Hash)))
        node = node->Next;
    return node;
}

struct GridExtent {
    u64 Rows = 0;
    u64 Columns = 0;
};

XMLNode* FirstTagged(XMLNode* parent, TagName tag)
{
    return parent ? NextTagged(parent->FirstChild, tag) : nullptr;
}

// A row is as wide as its own cells: that a span from above pushes them aside is not reckoned with, and then the last of
// them find no room.
GridExtent ExtentOf(XMLNode* tableNode)
{
    GridExtent extent;
    u64 row = 0;
    for (XMLNode* node = FirstTagged(tableNode, RowPart.Name); node; node = NextTagged(node->Next, RowPart.Name)) {
        extent.Rows = std::max(extent.Rows, ++row);
        u64 columns = 0;
        for (XMLNode* cell = FirstTagged(node, CellPart.Name); cell; cell = NextTagged(cell->Next, CellPart.Name)) {
            columns += TeskTableCell::ColSpanOf(cell);
            extent.Rows = std::max(extent.Rows, row + TeskTableCell::RowSpanOf(cell) - 1);
        }
        extent.Columns = std::max(extent.Columns, columns);
    }
    return extent;
}

// Whether there are more slots than allowed, without multiplying what might not fit.
bool IsTooLarge(const GridExtent& extent)
{
    return extent.Columns != 0 && extent.Rows > Limits::TableSlots / extent.Columns;
}

// A layout that is running. Tables in the cells of tables are laid out inside one another, once for each slot of each cell
// around them, and that without end unless the outermost one counts.
class RunningLayout
{
public:
    RunningLayout() : m_Number(++s_LastNumber)
    {
        if (s_Depth++ == 0)
            s_Repeats = 0;
    }

    ~RunningLayout() { --s_Depth; }
    RunningLayout(const RunningLayout&) = delete;
    RunningLayout& operator=(const RunningLayout&) = delete;

    // False: the cell was placed already, and has to make do with that.
    bool Admit(TeskTableCell& cell) const
    {
        const bool isRepeat = cell.LayoutNumber == m_Number;
        cell.LayoutNumber = m_Number;
        return !isRepeat || ++s_Repeats <= Limits::RepeatedCells;
    }

private:
    static inline u32 s_LastNumber = 0;
    static inline u32 s_Depth = 0;
    static inline u32 s_Repeats = 0;
    u32 m_Number;
};

void PutInPlace(TeskTableCell& cell, const GridLines& rowLines, const GridLines& columnLines)
{
    const GridStretch across = columnLines.Spanned(cell.Column, cell.ColSpan);
    const GridStretch down = rowLines.Spanned(cell.Row, cell.RowSpan);
    cell.X = static_cast<i32>(across.Start);
    cell.Width = across.Length;
    cell.Y = static_cast<i32>(down.Start);
    cell.Height = down.Length;
}

} // namespace

bool TeskTable::FromXML(XMLNode* node, XMLNode* templateNode)
try {
    templateNode = TemplateFor(node, templateNode, Kind);
    if (!TeskFrame::FromXML(node, templateNode) || !ReadMarkup<TableValues>(*this, {node, templateNode}))
        return false;

    return !MakeGrid(node) || LoadCells(node);
} catch (...) {
    return false; // no memory
}

bool TeskTable::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskFrame::IsTypeOf(word);
}

// False: the table gets none.
bool TeskTable::MakeGrid(XMLNode* node)
{
    GridExtent extent = ExtentOf(node);
    if (IsTooLarge(extent))
        extent = {};
    Rows = static_cast<u32>(extent.Rows);
    Columns = static_cast<u32>(extent.Columns);

    const bool hasSlots = Rows != 0 && Columns != 0;
    Cells.Assign(hasSlots ? Rows : 0, hasSlots ? Columns : 0);
    RowSizes.Assign(hasSlots ? Rows : 0, SizePixels);
    ColumnSizes.Assign(hasSlots ? Columns : 0, SizeShared);
    return hasSlots;
}

// False: the table was deleted meanwhile.
bool TeskTable::LoadCells(XMLNode* node)
{
    u32 row = 0;
    u32 number = 0;
    for (XMLNode* rowNode = FirstTagged(node, RowPart.Name); rowNode;
         rowNode = NextTagged(rowNode->Next, RowPart.Name)) {
        if (!LoadRow(rowNode, row++, number))
            return false;
    }
    while (row < Rows)
        RowSizes.Share(row++); // those that only a span reaches
    return true;
}

// Cells that find no free slot any more are dropped. number: of the next cell of the table.
bool TeskTable::LoadRow(XMLNode* rowNode, u32 row, u32& number)
{
    RowSizes.Share(row);
    const ElementWatch self(*this);
    u64 column = 0;
    for (XMLNode* node = FirstTagged(rowNode, CellPart.Name); node; node = NextTagged(node->Next, CellPart.Name)) {
        column = Cells.FreeColumn(row, column);
        if (column >= Columns)
            break;

        TeskTableCell* cell = LoadCell(node, number++);
        if (!self.Exists())
            return false;
        if (cell)
            Enter(*cell, row, static_cast<u32>(column));
        column += cell ? cell->ColSpan : 1;
    }
    return true;
}

// Null: it could not be loaded, or something else answers to the word of its kind.
TeskTableCell* TeskTable::LoadCell(XMLNode* node, u32 number)
{
    char name[CellNameSize];
    FormatBounded(name, sizeof(name), "Cell %d", static_cast<i32>(number));
    const utf8string cellTemplate = CellTemplate; // outlives the table
    return dynamic_cast<TeskTableCell*>(g_UIManager.LoadElement(this, CellKind, name, node, cellTemplate.c_str()));
}

// A cell that spans several rows or columns suits the first of them to itself.
void TeskTable::Enter(TeskTableCell& cell, u32 row, u32 column)
{
    cell.Row = row;
    cell.Column = column;
    Cells.Fill(cell, row, column, cell.RowSpan, cell.ColSpan);
    RowSizes.Merge(row, cell.HeightWish());
    ColumnSizes.Merge(column, cell.WidthWish());
}

void TeskTable::RemoveCell(const TeskTableCell& cell)
{
    Cells.Free(cell, cell.Row, cell.Column, cell.RowSpan, cell.ColSpan);
}

void TeskTable::RecalculateSize(bool)
{
    TeskElement::RecalculateSize(false);
}

// Each slot places its cell, so one that spans several is placed as often. What scripts do meanwhile to other cells is
// undone as their turn comes.
void TeskTable::SizeRecalculated(bool)
try {
    if (Cells.Count() == 0)
        return;

    const GridLines rowLines = RowSizes.ShareOut(Height);
    const GridLines columnLines = ColumnSizes.ShareOut(Width);
    const RunningLayout layout;
    const ElementWatch self(*this);
    for (std::size_t slot = 0; slot < Cells.Count(); ++slot) {
        TeskTableCell* cell = Cells[slot];
        if (!cell || !layout.Admit(*cell))
            continue;

        PutInPlace(*cell, rowLines, columnLines);
        cell->RecalculateChildrenSize();
        if (!self.Exists())
            return;
    }
} catch (...) {
    return; // without memory, or when a kind of the host throws, the rest stays where it is
}
