#include "tests/fuzz/EditSteps.h"

#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/CUIManager.h"
#include "teskara/text/TeskTextEdit.h"
#include "tests/fuzz/EditModel.h"
#include "tests/fuzz/ModelCheck.h"

#include <iterator>
#include <optional>
#include <string>

namespace {

constexpr std::size_t MostLines = 2000;

constexpr char Values[] =
    "<Template><Width>79</Width><Height>52</Height><Font><Size>10</Size></Font><VerticalScrollBar><Width>16</Width>"
    "<Slider><Width>16</Width><Height>50</Height><Vertical/></Slider></VerticalScrollBar></Template>";

// The edit under test and what it should be.
struct Scene {
    TeskTextEdit& Edit;
    EditModel Model;
};

struct Step {
    const char* Name;
    void (*Run)(Scene& scene, Decisions& bytes);
};

// Some lines of any bytes but zeros, many of them ends of lines, or many short lines.
std::string TextFrom(Decisions& bytes)
{
    const u8 size = bytes.Next();
    std::string text;
    for (u32 left = size % 24u; left > 0; --left) {
        const u8 byte = bytes.Next();
        text += byte < 64 ? '\n' : byte < 96 ? '\r' : static_cast<char>(byte);
    }
    for (u32 left = size < 0xf0 ? 0 : size % 16 * 40u; left > 0; --left)
        text += "x\n";
    return text;
}

CTextEditLine* LineAt(const Scene& scene, u64 number)
{
    CTextEditLine* line = scene.Edit.Lines.First();
    while (number-- > 0)
        line = line->Next;
    return line;
}

u64 LineFrom(const Scene& scene, Decisions& bytes)
{
    return bytes.Next() * 5u % scene.Model.Lines.size();
}

// A key that moves the caret or changes the text, and what it does.
struct Key {
    u32 Code;
    bool WithControl;
    void (*Act)(EditModel& model);
};

constexpr Key Keys[] = {
    {8, false, [](EditModel& model) { model.Backspace(); }},
    {13, false, [](EditModel& model) { model.Enter(); }},
    {27, false, [](EditModel&) {}},
    {33, false, [](EditModel& model) { model.Up(model.DrawnRows); }},
    {34, false, [](EditModel& model) { model.Down(model.DrawnRows); }},
    {35, false, [](EditModel& model) { model.End(); }},
    {35, true, [](EditModel& model) { model.Finish(); }},
    {36, false, [](EditModel& model) { model.Home(); }},
    {36, true, [](EditModel& model) { model.Start(); }},
    {37, false, [](EditModel& model) { model.Left(); }},
    {38, false, [](EditModel& model) { model.Up(1); }},
    {39, false, [](EditModel& model) { model.Right(); }},
    {40, false, [](EditModel& model) { model.Down(1); }},
    {45, false, [](EditModel&) {}},
    {46, false, [](EditModel& model) { model.Delete(); }},
    {65, true, [](EditModel& model) { model.SelectAll(); }},
    {67, true, [](EditModel&) {}},
    {86, true, [](EditModel&) {}},
};

void PressKey(Scene& scene, Decisions& bytes)
{
    const u8 byte = bytes.Next();
    const Key& key = Keys[byte % std::size(Keys)];
    g_UIManager.CtrlDown = key.WithControl;
    g_UIManager.ShiftDown = scene.Model.Shift = byte >= 128;
    key.Act(scene.Model);
    Require(scene.Edit.OnKeyDown(key.Code), "a key was refused");
}

void Insert(Scene& scene, Decisions& bytes)
{
    const char byte = static_cast<char>(bytes.Next());
    scene.Model.Insert(byte);
    scene.Edit.InsertCharacter(byte);
}

void SetText(Scene& scene, Decisions& bytes)
{
    const std::string text = TextFrom(bytes);
    scene.Model.SetText(text);
    scene.Edit.SetText(text.c_str());
}

void AddText(Scene& scene, Decisions& bytes)
{
    const std::string text = TextFrom(bytes);
    if (scene.Model.Lines.size() > MostLines)
        return;
    scene.Model.AddText(text);
    scene.Edit.AddText(text.c_str());
}

void AddLine(Scene& scene, Decisions& bytes)
{
    const std::string text = TextFrom(bytes);
    scene.Model.AddLine(text);
    scene.Edit.AddLine(text.c_str());
}

void InsertLine(Scene& scene, Decisions& bytes)
{
    const u64 line = bytes.Next() * 5u % (scene.Model.Lines.size() + 1);
    const std::string text = TextFrom(bytes);
    scene.Model.InsertLine(line, text);
    scene.Edit.InsertLineAfter(line == 0 ? nullptr : LineAt(scene, line - 1), text.c_str());
}

void RemoveLine(Scene& scene, Decisions& bytes)
{
    const u64 line = LineFrom(scene, bytes);
    const bool upward = bytes.Next() % 2 == 0;
    scene.Model.RemoveLine(line, upward);
    scene.Edit.RemoveLine(LineAt(scene, line), upward);
}

// Takes the text of one of the edit's own lines.
void SetOwnText(Scene& scene, Decisions& bytes)
{
    const CTextEditLine* line = LineAt(scene, LineFrom(scene, bytes));
    const std::string text = line->Text;
    scene.Model.SetText(text);
    scene.Edit.SetText(line->Text);
}

_Point2i PointFrom(Scene& scene, Decisions& bytes)
{
    const _Point2i point = {bytes.Next() - 40, bytes.Next() - 40};
    scene.Model.MouseX = point.x;
    scene.Model.MouseY = point.y;
    g_UIManager.MousePosition = point;
    return point;
}

void Press(Scene& scene, Decisions& bytes)
{
    _Point2i point = PointFrom(scene, bytes);
    scene.Model.Press(point.x, point.y);
    scene.Edit.OnLMouseDown(point);
}

void Move(Scene& scene, Decisions& bytes)
{
    _Point2i point = PointFrom(scene, bytes);
    scene.Model.Move(point.x, point.y);
    scene.Edit.OnMouseMove(point);
}

void Release(Scene& scene, Decisions&)
{
    _Point2i point = {0, 0};
    scene.Model.Release();
    scene.Edit.OnLMouseUp(point);
}

void Turn(Scene& scene, Decisions& bytes)
{
    const int offset = (bytes.Next() - 128) * 20;
    scene.Model.Wheel(offset);
    scene.Edit.OnMouseWheel(offset);
}

void SetBar(Scene& scene, Decisions& bytes)
{
    const u32 value = bytes.Next() * 3u;
    scene.Model.SetBar(value);
    scene.Edit.ScrollBar->SetValue(value);
}

void SetBarRange(Scene& scene, Decisions& bytes)
{
    const u32 range = bytes.Next();
    scene.Model.SetBarRange(range);
    scene.Edit.ScrollBar->SetRange(range);
}

void DrawFrame(Scene& scene, Decisions&)
{
    scene.Model.Frame();
    g_UIManager.Render();
}

void SetLook(Scene& scene, Decisions& bytes)
{
    scene.Edit.Border = scene.Model.Border = bytes.Next() % 16u;
    scene.Edit.Width = scene.Model.Width = bytes.Next();
    scene.Edit.Height = scene.Model.Height = bytes.Next();
}

// clang-format off
constexpr Step Steps[] = {
    {"key",         PressKey},
    {"insert",      Insert},
    {"set text",    SetText},
    {"add text",    AddText},
    {"add line",    AddLine},
    {"insert line", InsertLine},
    {"remove line", RemoveLine},
    {"own text",    SetOwnText},
    {"press",       Press},
    {"move",        Move},
    {"release",     Release},
    {"wheel",       Turn},
    {"bar",         SetBar},
    {"bar range",   SetBarRange},
    {"frame",       DrawFrame},
    {"look",        SetLook},
};
// clang-format on

bool IsSame(const TextEditPos& position, const std::optional<EditModel::Position>& model)
{
    if (!position.Line || !model)
        return !position.Line && !model;
    return position.Line->GetNumber() == model->Line && position.Column == model->Column;
}

void Compare(const Scene& scene)
{
    const TeskTextEdit& edit = scene.Edit;
    const EditModel& model = scene.Model;
    Require(edit.Lines.IsConsistent(), "lines or positions are broken");
    Require(edit.Lines.Count() == model.Lines.size(), "the numbers of lines differ");
    const CTextEditLine* line = edit.Lines.First();
    for (const std::string& text : model.Lines) {
        Require(line->Bytes() == text, "the lines differ");
        line = line->Next;
    }
    Require(IsSame(edit.View.Caret, model.Caret), "the carets differ");
    Require(IsSame(edit.View.ViewTop, EditModel::Position{model.Top, model.TopColumn}), "the views differ");
    Require(edit.View.ViewBottom.Line->GetNumber() == model.Bottom, "the views end elsewhere");
    Require(edit.View.DrawnRows == model.DrawnRows, "more or fewer rows were drawn");
    Require(IsSame(edit.Selection.SelectionStart, model.SelectionStart), "the selections begin elsewhere");
    Require(IsSame(edit.Selection.SelectionEnd, model.SelectionEnd), "the selections end elsewhere");
    Require(edit.Selection.Text() == model.Selected(), "the selected texts differ");
    Require(edit.ScrollBar->Range == model.BarRange, "the ranges of the bar differ");
    Require(edit.ScrollBar->GetValue() == model.BarValue, "the values of the bar differ");
}

} // namespace

// The lines themselves check that every position is on one of them.
void RunEditSteps(Decisions& bytes)
{
    auto& edit = MakeOnScreen<TeskTextEdit>("textedit", "e", KeptTemplate("edit", Values));
    g_UIManager.SetFocusElement(&edit);
    Scene scene = {edit, {}};
    scene.Model.Width = edit.Width;
    scene.Model.Height = edit.Height;
    scene.Model.SetText("");
    Compare(scene);
    DrawFrame(scene, bytes);
    for (std::size_t step = 0; step < MostModelSteps && !bytes.IsUsedUp(); ++step) {
        Steps[bytes.Next() % std::size(Steps)].Run(scene, bytes);
        Compare(scene);
    }
}
