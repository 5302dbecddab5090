#include "tests/fuzz/TabSteps.h"

#include "teskara/collections/TeskTabControl.h"
#include "teskara/controls/TeskButton.h"
#include "teskara/controls/TeskFrame.h"
#include "teskara/core/CUIManager.h"
#include "tests/fuzz/ModelCheck.h"
#include "tests/fuzz/TabModel.h"

#include <iterator>
#include <string>

namespace {

constexpr char Values[] = "<Template><Width>200</Width><Height>100</Height><TabHeight>16</TabHeight></Template>";

struct Scene {
    TeskTabControl& Control;
    TabModel Model;
};

struct Step {
    const char* Name;
    void (*Run)(Scene& scene, Decisions& bytes);
};

// Few names, so that many are there already; some are wide.
std::string NameFrom(u8 byte)
{
    return std::string(byte / 16u % 8u, static_cast<char>('a' + byte % 16)) + static_cast<char>('a' + byte % 16);
}

u32 IDFrom(Decisions& bytes)
{
    return bytes.Next() % 24u;
}

_Point2i PointFrom(Decisions& bytes)
{
    const i32 x = bytes.Next() - 20;
    const i32 y = bytes.Next() % 24 - 2;
    return {x, y};
}

void Add(Scene& scene, Decisions& bytes)
{
    const std::string name = NameFrom(bytes.Next());
    const u32 expected = scene.Model.NextID(name);
    const u32 id = scene.Control.AddTab(name.c_str(), nullptr, name.c_str(), nullptr);
    Require(id == expected, "a tab got another id");
    if (id != 0)
        scene.Model.Add(name, scene.Control.RetrieveTab(id)->Width);
}

void Remove(Scene& scene, Decisions& bytes)
{
    const u32 id = IDFrom(bytes);
    scene.Control.RemoveTab(id);
    scene.Model.Remove(id);
}

void Rename(Scene& scene, Decisions& bytes)
{
    const u32 id = IDFrom(bytes);
    const std::string name = NameFrom(bytes.Next());
    if (CTeskTab* tab = scene.Control.RetrieveTab(id))
        tab->Rename(name.c_str());
    scene.Model.Rename(id, name);
}

void Move(Scene& scene, Decisions& bytes)
{
    const u32 id = IDFrom(bytes);
    const u32 place = bytes.Next() - 4u;
    scene.Control.MoveTab(scene.Control.RetrieveTab(id), place);
    scene.Model.Move(id, place);
}

void Select(Scene& scene, Decisions& bytes)
{
    const u32 id = IDFrom(bytes);
    scene.Control.SelectTab(id);
    scene.Model.Select(id);
}

void Press(Scene& scene, Decisions& bytes)
{
    _Point2i point = PointFrom(bytes);
    Require(scene.Control.OnLMouseDown(point), "a press was refused");
    scene.Model.Press(point.x, point.y);
}

void Drag(Scene& scene, Decisions& bytes)
{
    _Point2i point = PointFrom(bytes);
    Require(scene.Control.OnMouseMove(point), "a move was refused");
    scene.Model.DragTo(point.x, point.y);
}

void Release(Scene& scene, Decisions&)
{
    _Point2i point = {0, 0};
    scene.Control.OnLMouseUp(point);
    scene.Model.Release();
}

void ScrollLeft(Scene& scene, Decisions&)
{
    scene.Control.OnNotify(scene.Control.LeftButton, NotifyLeftPressed, 0);
    scene.Model.ScrollLeft();
}

void ScrollRight(Scene& scene, Decisions&)
{
    scene.Control.OnNotify(scene.Control.RightButton, NotifyLeftPressed, 0);
    scene.Model.ScrollRight();
}

void Resize(Scene& scene, Decisions& bytes)
{
    scene.Control.Width = bytes.Next() + 32u;
    scene.Control.RecalculateSize(true);
    scene.Model.Width = scene.Control.Width;
}

// A script may delete what a tab shows.
void DeleteFrame(Scene& scene, Decisions& bytes)
{
    const CTeskTab* tab = scene.Control.RetrieveTab(IDFrom(bytes));
    if (tab && tab->Frame)
        scene.Control.DeleteChild(tab->Frame);
}

void Draw(Scene& scene, Decisions&)
{
    g_UIManager.Render();
    scene.Model.Draw();
    if (scene.Model.Count() == 0)
        return;
    Require(scene.Control.LeftButton->Visible == (scene.Model.FirstTab > 0), "the left button is wrong");
    Require(scene.Control.RightButton->Visible == scene.Model.IsCut, "the right button is wrong");
}

// clang-format off
constexpr Step Steps[] = {
    {"add",          Add},
    {"remove",       Remove},
    {"rename",       Rename},
    {"move",         Move},
    {"select",       Select},
    {"press",        Press},
    {"drag",         Drag},
    {"release",      Release},
    {"scroll left",  ScrollLeft},
    {"scroll right", ScrollRight},
    {"resize",       Resize},
    {"delete frame", DeleteFrame},
    {"frame",        Draw},
};
// clang-format on

void CompareFrames(const TeskTabControl& control)
{
    for (const auto& tab : control.Tabs) {
        const TeskFrame* frame = tab ? tab->Frame : nullptr;
        if (!frame)
            continue;
        Require(frame->Parent == &control, "a frame has another parent");
        Require(frame->Visible == (tab->ID == control.SelectedTab), "another frame shows");
        Require(frame->Width == control.Width && frame->Height == control.Height - control.TabHeight,
            "a frame has another size");
    }
}

void Compare(const Scene& scene)
{
    const TabModel& model = scene.Model;
    const TeskTabControl& control = scene.Control;
    Require(control.TabCount == model.Count(), "the numbers of tabs differ");
    Require(control.OrderedTabs.Places() == model.Places.size(), "the numbers of places differ");
    for (u32 place = 0; place < model.Places.size(); ++place) {
        const CTeskTab* tab = control.OrderedTabs.At(place);
        const auto& plain = model.Places[place];
        Require(plain.has_value() == (tab != nullptr), "another place is free");
        if (!tab)
            continue;
        Require(tab->ID == plain->ID && tab->Name == plain->Name && tab->Order == place, "the orders differ");
        Require(control.RetrieveTab(tab->ID) == tab, "a tab is not found by its id");
    }
    Require(control.SelectedTab == model.SelectedTab, "the selections differ");
    Require(control.DragTab == model.DragTab, "the drags differ");
    Require(control.FirstTab == model.FirstTab, "the strips are scrolled differently");
    CompareFrames(control);
}

void RunOn(bool isDraggable, Decisions& bytes)
{
    auto& control = MakeOnScreen<TeskTabControl>("tabcontrol", "tabs", KeptTemplate("tabs", Values));
    control.Draggable = isDraggable;
    g_UIManager.Render();
    Scene scene = {control, {}};
    scene.Model.Width = control.Width;
    scene.Model.Draggable = isDraggable;
    for (std::size_t step = 0; step < MostModelSteps && !bytes.IsUsedUp(); ++step) {
        Steps[bytes.Next() % std::size(Steps)].Run(scene, bytes);
        Compare(scene);
    }
}

} // namespace

void RunFixedTabSteps(Decisions& bytes)
{
    RunOn(false, bytes);
}

void RunDraggableTabSteps(Decisions& bytes)
{
    RunOn(true, bytes);
}
