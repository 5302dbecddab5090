#pragma once

#include "teskara/collections/GridSizes.h"
#include "teskara/controls/TeskFrame.h"

// A frame in the grid of a table, which gives it its place and its size. What its markup asks for as height and width
// goes into the sizes of its row and column. It leaves the grid as it ends.
class TESKARA_EXPORT TeskTableCell : public TeskFrame
{
public:
    using TeskFrame::TeskFrame;
    ~TeskTableCell() override;

    // A template that its markup names comes before templateNode.
    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;

    // What the markup of a cell says of the rows and columns that it covers; at least 1.
    static u32 RowSpanOf(XMLNode* node);
    static u32 ColSpanOf(XMLNode* node);

    // What its markup asks for.
    SizeSpecification HeightWish() const { return {PositionHeight.Type, PositionHeight.Factor}; }
    SizeSpecification WidthWish() const { return {PositionWidth.Type, PositionWidth.Factor}; }

    u32 RowSpan = 1;
    u32 ColSpan = 1;
    u32 Row = 0; // the first that it covers; set by the table
    u32 Column = 0;
    u32 LayoutNumber = 0; // of the last layout that placed it
};
