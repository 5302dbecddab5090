#include "tests/fuzz/ListSteps.h"

#include "teskara/collections/TeskComboBox.h"
#include "teskara/collections/TeskListBox.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/CUIManager.h"
#include "tests/fuzz/ListModel.h"
#include "tests/fuzz/ModelCheck.h"

#include <iterator>
#include <string>

namespace {

constexpr i32 RowHeight = 10;

constexpr char ListValues[] = "<Template><Width>100</Width><Height>40</Height><Font><Size>9</Size></"
                              "Font><ScrollBar><Width>16</Width><Slider><Width>16</Width>"
                              "<Height>100%</Height><Vertical/></Slider></ScrollBar></Template>";
constexpr char ComboValues[] =
    "<Template><Width>100</Width><Height>20</Height><FullHeight>60</FullHeight><ListBox Template='list'/></Template>";

// The list under test, the box around it or null, and what they should be.
struct Scene {
    TeskListBox& List;
    TeskComboBox* Combo;
    ListModel Model;
};

struct Step {
    const char* Name;
    void (*Run)(Scene& scene, Decisions& bytes);
};

// Few different texts, so that many are equal; some are long, and some differ only behind their beginnings.
std::string TextFrom(u8 byte)
{
    return std::string(byte % 12, static_cast<char>('a' + byte / 12 % 3)) + std::string(byte / 64, 'b');
}

void Add(Scene& scene, Decisions& bytes)
{
    const std::string text = TextFrom(bytes.Next());
    const std::string value = TextFrom(bytes.Next());
    scene.Model.Add(text, value);
    Require(scene.List.AddItem(text.c_str(), value.c_str(), 0) != 0, "a row was not added");
}

template <void (TeskListBox::*Real)(u32), void (ListModel::*Plain)(u32)> void OnRow(Scene& scene, Decisions& bytes)
{
    const u32 id = bytes.Next() % 32u;
    (scene.List.*Real)(id);
    (scene.Model.*Plain)(id);
}

template <void (TeskListBox::*Real)(), void (ListModel::*Plain)()> void OnAll(Scene& scene, Decisions&)
{
    (scene.List.*Real)();
    (scene.Model.*Plain)();
}

void SetText(Scene& scene, Decisions& bytes)
{
    const u32 id = bytes.Next() % 32u;
    const u8 byte = bytes.Next();
    const std::string text = TextFrom(byte);
    scene.List.SetItemText(id, byte % 16 == 15 ? nullptr : text.c_str());
    scene.Model.SetText(id, byte % 16 == 15 ? std::nullopt : std::optional(text));
}

void SetSortType(Scene& scene, Decisions& bytes)
{
    scene.List.SortType = scene.Model.SortType = bytes.Next() % 8u;
}

// A point on one of the rows that show, left of the scroll bar.
_Point2i PointOn(const Scene& scene, u32 row)
{
    return {scene.List.AbsoluteX + 5, scene.List.AbsoluteY + static_cast<i32>(row) * RowHeight + 5};
}

void Press(Scene& scene, Decisions& bytes)
{
    const u8 byte = bytes.Next();
    const u32 row = byte % 4u;
    g_UIManager.CtrlDown = byte >= 128;
    _Point2i point = PointOn(scene, row);
    scene.Model.Press(scene.List.TopOrder + row, g_UIManager.CtrlDown);
    Require(scene.List.OnLMouseDown(point), "a press was refused");
}

void Drag(Scene& scene, Decisions& bytes)
{
    const u32 row = bytes.Next() % 4u;
    _Point2i point = PointOn(scene, row);
    scene.Model.DragTo(scene.List.TopOrder + row);
    scene.List.OnMouseMove(point);
}

void Release(Scene& scene, Decisions&)
{
    _Point2i point = PointOn(scene, 0);
    scene.Model.Release();
    scene.List.OnLMouseUp(point);
}

void ClickCombo(Scene& scene, Decisions&)
{
    _Point2i point = {5, 5};
    if (scene.Combo)
        scene.Combo->OnLMouseUp(point);
}

// clang-format off
constexpr Step Steps[] = {
    {"add",             Add},
    {"remove",          OnRow<&TeskListBox::RemoveItem, &ListModel::Remove>},
    {"select",          OnRow<&TeskListBox::SelectItem, &ListModel::Select>},
    {"deselect",        OnRow<&TeskListBox::DeselectItem, &ListModel::Deselect>},
    {"toggle",          OnRow<&TeskListBox::ItemToggleSelect, &ListModel::Toggle>},
    {"clear selection", OnAll<&TeskListBox::ClearSelection, &ListModel::ClearSelection>},
    {"clear",           OnAll<&TeskListBox::ClearItems, &ListModel::Clear>},
    {"sort",            OnAll<&TeskListBox::ApplySort, &ListModel::Sort>},
    {"set text",        SetText},
    {"set sort type",   SetSortType},
    {"press",           Press},
    {"drag",            Drag},
    {"release",         Release},
    {"click combo",     ClickCombo},
    {"wheel",           [](Scene& scene, Decisions& bytes) { scene.List.OnMouseWheel((bytes.Next() - 128) * 40); }},
    {"frame",           [](Scene&, Decisions&) { g_UIManager.Render(); }},
};
// clang-format on

void Compare(Scene& scene)
{
    const ListModel& model = scene.Model;
    Require(model.Rows.size() == scene.List.GetItemCount(), "the numbers of rows differ");
    for (u32 row = 0; row < model.Rows.size(); ++row) {
        const ListBoxItem* item = scene.List.RetrieveOrdered(row);
        Require(item && item->ID == model.Rows[row].ID && item->Order == row, "the orders differ");
        Require(item->Text == model.Rows[row].Text && item->GetValue() == model.Rows[row].Value, "the texts differ");
        Require(scene.List.RetrieveItem(item->ID) == item, "a row is not found by its id");
    }

    u32 place = 0;
    for (const u32 id : model.Selected)
        Require(scene.List.SelectedItems.At(place++) == id, "the selections differ");
    Require(scene.List.SelectedItems.Count() == place, "too much is selected");
    Require(scene.List.DragItem == model.DragItem && scene.List.Dragged == model.Dragged, "the drags differ");
    Require(!scene.Combo || scene.Combo->Selection == model.Shown, "the box shows another row");
}

void RunOn(TeskListBox& list, TeskComboBox* combo, Decisions& bytes)
{
    list.ScrollBar->X = 84; // beside the rows, from the first frame on
    g_UIManager.Render();
    Scene scene = {list, combo, {}};
    scene.Model.SelectMultiple = list.SelectMultiple;
    for (std::size_t step = 0; step < MostModelSteps && !bytes.IsUsedUp(); ++step) {
        Steps[bytes.Next() % std::size(Steps)].Run(scene, bytes);
        if (step % 4 != 3) // some sorts must wait for the next one
            Compare(scene);
    }
    Compare(scene);
    g_UIManager.CtrlDown = false;
    g_UIManager.MouseCaptureElementID = 0;
}

TeskListBox& MakeList()
{
    return MakeOnScreen<TeskListBox>("listbox", "list", KeptTemplate("list", ListValues));
}

} // namespace

void RunSingleListSteps(Decisions& bytes)
{
    RunOn(MakeList(), nullptr, bytes);
}

void RunMultipleListSteps(Decisions& bytes)
{
    TeskListBox& list = MakeList();
    list.SelectMultiple = true;
    RunOn(list, nullptr, bytes);
}

void RunComboSteps(Decisions& bytes)
{
    KeptTemplate("list", ListValues);
    auto& combo = MakeOnScreen<TeskComboBox>("combobox", "combo", KeptTemplate("combo", ComboValues));
    Require(combo.List, "the list was not made");
    RunOn(*combo.List, &combo, bytes);
}
