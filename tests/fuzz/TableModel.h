#pragma once

#include "teskara/core/Types.h"

#include <map>
#include <vector>

// What a table is, written down as plainly as possible: a map of slots, and sizes that are shared out by a stack.
class TableModel
{
public:
    // A row's or a column's size, or what a cell asks for.
    struct Size {
        u32 Mode = 0;
        u32 Pixels = 0;
        float Factor = 0;
    };

    // What a cell does as it has been loaded.
    enum class Fate { Stays, Ends, EndsThePrevious };

    struct Wish {
        u32 RowSpan;
        u32 ColSpan;
        Size Height;
        Size Width;
        Fate AtLoad;
    };

    struct Cell {
        u32 Row;
        u32 Column;
        Wish Wishes;
    };

    struct Place {
        u32 X;
        u32 Y;
        u32 Width;
        u32 Height;
    };

    void Load(const std::vector<std::vector<Wish>>& rows);
    void Remove(u32 number);

    // Where each cell is placed in a table of that size, by their numbers; those without a slot are not.
    std::map<u32, Place> LayOut(u32 width, u32 height);

    u64 Rows = 0;
    u64 Columns = 0;
    std::map<std::pair<u64, u64>, u32> Slots; // row and column of those that are taken, with the cells' numbers
    std::map<u32, Cell> Cells; // by their numbers

private:
    bool Count(const std::vector<std::vector<Wish>>& rows);
    void LoadRow(const std::vector<Wish>& wishes, u32 row);
    static void Merge(Size& size, const Size& wish);
    static std::vector<u32> Ends(std::vector<Size>& sizes, u32 whole);

    std::vector<Size> m_RowSizes;
    std::vector<Size> m_ColumnSizes;
    u32 m_NextNumber = 0;
};
