#include "tests/fuzz/TableSteps.h"

#include "teskara/collections/TeskTable.h"
#include "teskara/collections/TeskTableCell.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/fuzz/EventHost.h"
#include "tests/fuzz/HostileActs.h"
#include "tests/fuzz/ModelCheck.h"
#include "tests/fuzz/TableModel.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace {

constexpr u32 MostRows = 8;
constexpr u32 MostCells = 8;

// Places of scripts that do not stand for an event here.
constexpr u8 EndsItself = EventHost::FirstEvent;
constexpr u8 EndsThePrevious = EventHost::FirstEvent + 1;

using Size = TableModel::Size;
using Wish = TableModel::Wish;

struct SpanWord {
    const char* Text;
    u32 Span;
};

struct SizeWord {
    const char* Text;
    Size Wish;
};

constexpr SpanWord Spans[] = {
    {"1", 1}, {"", 1}, {"0", 1}, {"2", 2}, {"2", 2}, {"3", 3}, {"4", 4}, {"9", 9}, {"x", 1}, {" 2 ", 2}, {"30", 30}};

// Each of them leaves no grid.
constexpr SpanWord HugeSpans[] = {{"1000001", 1000001}, {"-1", 4294967295}, {"2147483648", 2147483648}};

constexpr SizeWord Sizes[] = {{"0", {}}, {"0", {}}, {"10", {0, 10, 0}}, {"25", {0, 25, 0}}, {"-5", {0, 4294967291, 0}},
    {"25%", {2, 0, 0.25f}}, {"r50%", {2, 0, 0.5f}}, {"0.0", {2, 0, 0}}, {"3.5", {2, 0, 3.5f}}, {"r10", {3, 10, 0}},
    {"R20", {3, 20, 0}}, {"r0", {3, 0, 0}}, {"r-1", {3, 4294967295, 0}}};

u8 ActNumber(std::string_view name)
{
    const auto acts = AllHostileActs();
    const auto found = std::find_if(acts.begin(), acts.end(), [&](const HostileAct& act) { return act.Name == name; });
    Require(found != acts.end(), "there is no such act");
    return static_cast<u8>(found - acts.begin());
}

const SpanWord& SpanFrom(u8 byte)
{
    const u32 huge = 255u - byte;
    return huge < std::size(HugeSpans) ? HugeSpans[huge] : Spans[byte % std::size(Spans)];
}

std::string Attribute(const char* name, const char* value)
{
    return std::string(" ") + name + "='" + value + "'";
}

std::string Tag(const char* name, const std::string& value)
{
    return std::string("<") + name + ">" + value + "</" + name + ">";
}

TableModel::Fate FateFrom(u8 byte)
{
    using enum TableModel::Fate;
    if (byte % 16 == 15)
        return Ends;
    return byte % 16 == 14 ? EndsThePrevious : Stays;
}

// Appends the markup of a cell, and tells what the model is to make of it.
Wish AddCell(std::string& markup, Decisions& bytes)
{
    const SpanWord& rowSpan = SpanFrom(bytes.Next());
    const SpanWord& colSpan = SpanFrom(bytes.Next());
    const SizeWord& height = Sizes[bytes.Next() % std::size(Sizes)];
    const SizeWord& width = Sizes[bytes.Next() % std::size(Sizes)];
    const TableModel::Fate fate = FateFrom(bytes.Next());

    markup += "<Cell" + Attribute("RowSpan", rowSpan.Text) + Attribute("colspan", colSpan.Text) + ">"
        + Tag("Height", height.Text) + Tag("Width", width.Text);
    if (fate == TableModel::Fate::Ends)
        markup += Tag("OnLoad", std::to_string(EndsItself));
    if (fate == TableModel::Fate::EndsThePrevious)
        markup += Tag("OnLoad", std::to_string(EndsThePrevious));
    markup += "<Children><frame name='f'><Width>100%</Width><Height>r2</Height></frame></Children></Cell>";
    return {rowSpan.Span, colSpan.Span, height.Wish, width.Wish, fate};
}

std::vector<std::vector<Wish>> AddRows(std::string& markup, Decisions& bytes)
{
    std::vector<std::vector<Wish>> rows(bytes.Next() % MostRows);
    for (auto& row : rows) {
        markup += "<Row>";
        for (u32 left = bytes.Next() % MostCells; left > 0; --left)
            row.push_back(AddCell(markup, bytes));
        markup += "</Row>";
    }
    return rows;
}

TeskTableCell* CellOf(TeskTable& table, u32 number)
{
    return dynamic_cast<TeskTableCell*>(table.FindChild(("Cell " + std::to_string(number)).c_str()));
}

void CompareSlots(TeskTable& table, TableModel& model)
{
    Require(table.Rows == model.Rows && table.Columns == model.Columns, "the extents differ");
    std::size_t taken = 0;
    for (std::size_t slot = 0; slot < table.Cells.Count(); ++slot)
        taken += table.Cells[slot] != nullptr;
    Require(taken == model.Slots.size(), "the numbers of slots that are taken differ");
    for (const auto& [slot, number] : model.Slots) {
        const TeskTableCell* cell = table.Cells[slot.first * table.Columns + slot.second];
        Require(cell && cell == CellOf(table, number), "the slots differ");
    }
}

void ComparePlaces(TeskTable& table, TableModel& model)
{
    for (const auto& [number, place] : model.LayOut(table.Width, table.Height)) {
        const TeskTableCell& cell = *CellOf(table, number);
        Require(static_cast<u32>(cell.X) == place.X && cell.Width == place.Width, "the places differ in a row");
        Require(static_cast<u32>(cell.Y) == place.Y && cell.Height == place.Height, "the places differ in a column");
        Require(cell.FirstChild->Width == cell.Width || cell.Width >= 1u << 24, "what is in a cell is not laid out");
        Require(cell.FirstChild->Height == cell.Height - 2, "what is in a cell does not follow its height");
    }
}

void Compare(TeskTable& table, TableModel& model)
{
    CompareSlots(table, model);
    ComparePlaces(table, model);
    for (const auto& [number, cell] : model.Cells)
        Require(CellOf(table, number), "a cell is missing");
}

void DeleteCell(TeskTable& table, TableModel& model, u32 number)
{
    if (TeskTableCell* cell = CellOf(table, number))
        table.DeleteChild(cell);
    model.Remove(number);
}

void RunSteps(TeskTable& table, TableModel& model, Decisions& bytes)
{
    Compare(table, model);
    for (std::size_t step = 0; step < MostModelSteps && !bytes.IsUsedUp(); ++step) {
        const u8 byte = bytes.Next();
        if (byte % 4 == 3)
            DeleteCell(table, model, byte / 4u);
        table.Width = bytes.Next();
        table.Height = static_cast<u32>(bytes.Next()) << byte % 8;
        table.RecalculateSize(true);
        Compare(table, model);
    }
    g_UIManager.Render();
}

} // namespace

void RunTableSteps(Decisions& bytes)
{
    static const u8 deleteSelf = ActNumber("delete self");
    static const u8 deletePrevious = ActNumber("delete previous");
    auto& host = StartedHost<EventHost>();
    host.Arm(EndsItself, deleteSelf, 0, 255);
    host.Arm(EndsThePrevious, deletePrevious, 0, 255);

    std::string markup = "<Template><Width>100</Width><Height>70</Height>";
    TableModel model;
    model.Load(AddRows(markup, bytes));
    markup += "</Template>";
    XMLNode* values = g_UIManager.AddTemplate("table", markup.c_str());
    RunSteps(MakeOnScreen<TeskTable>("table", "t", values), model, bytes);
}
