#pragma once

#include "teskara/collections/GridSizes.h"
#include "teskara/collections/GridSlots.h"
#include "teskara/controls/TeskFrame.h"
#include "teskara/core/utf8string.h"

class TeskTableCell;

// A frame that lays out cells on a grid of rows and columns, which stand in its markup and are fixed from then on. Other
// children are not laid out, and do not follow the size of the table by themselves.
//
// A table without rows, without columns, or with more than Limits::TableSlots slots has no grid and no cells.
class TESKARA_EXPORT TeskTable : public TeskFrame
{
public:
    using TeskFrame::TeskFrame;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void RecalculateSize(bool recurse) override;

    // Lays out the cells, whatever has changed, and what is in them. May run scripts.
    void SizeRecalculated(bool changed) override;

    // Frees the slots of a cell that is ending.
    void RemoveCell(const TeskTableCell& cell);

    utf8string CellTemplate; // of cells that name none
    GridSlots<TeskTableCell> Cells; // children
    GridSizes ColumnSizes;
    GridSizes RowSizes;
    u32 Rows = 0;
    u32 Columns = 0;

private:
    bool MakeGrid(XMLNode* node);
    bool LoadCells(XMLNode* node);
    bool LoadRow(XMLNode* rowNode, u32 row, u32& number);
    TeskTableCell* LoadCell(XMLNode* node, u32 number);
    void Enter(TeskTableCell& cell, u32 row, u32 column);
};
