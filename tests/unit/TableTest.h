#pragma once

#include "teskara/collections/TeskTable.h"
#include "teskara/collections/TeskTableCell.h"
#include "teskara/core/CUIManager.h"
#include "tests/unit/PressTest.h"

#include <string>

// Tests of tables, which are under the listener, 100 by 100 unless markup says otherwise.
class TableTest : public PressTest
{
protected:
    TeskTable& MakeTable(const std::string& rows, const char* attributes = "")
    {
        return Make<TeskTable>("table", "<Width>100</Width><Height>100</Height>" + rows, attributes);
    }

    static TeskTableCell& Cell(TeskTable& table, int number)
    {
        return dynamic_cast<TeskTableCell&>(*table.FindChild(("Cell " + std::to_string(number)).c_str()));
    }

    // Where a cell was put: "X,Y WxH".
    static std::string Place(TeskTable& table, int number)
    {
        const TeskTableCell& cell = Cell(table, number);
        return std::to_string(cell.X) + "," + std::to_string(cell.Y) + " " + std::to_string(cell.Width) + "x"
            + std::to_string(cell.Height);
    }

    // The numbers of the cells in the slots, row by row; "." for a free one.
    static std::string Slots(const TeskTable& table)
    {
        std::string slots;
        for (std::size_t slot = 0; slot < table.Cells.Count(); ++slot)
            slots += table.Cells[slot] ? table.Cells[slot]->Name.substr(5) : ".";
        return slots;
    }

    static int ChildrenOf(const TeskElement& element)
    {
        int count = 0;
        for (const TeskElement* child = element.FirstChild; child; child = child->Next)
            ++count;
        return count;
    }

    static void Lay(TeskTable& table) { table.RecalculateSize(true); }
};
