#include "tests/fuzz/HistorySteps.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/text/TeskCommandEntry.h"
#include "teskara/text/TextKeys.h"
#include "tests/fuzz/HistoryModel.h"
#include "tests/fuzz/ModelCheck.h"
#include "tests/fuzz/TextHost.h"

#include <cstring>
#include <iterator>
#include <string>
#include <vector>

namespace {

constexpr u32 Width = 60;

// The entry under test and what it should be.
struct Scene {
    TeskCommandEntry& Entry;
    HistoryModel Model;
};

struct Step {
    const char* Name;
    void (*Run)(Scene& scene, Decisions& bytes);
};

// Few different bytes, so that lines are alike now and then and "!" stands alone.
char ByteFrom(Decisions& bytes)
{
    constexpr char some[] = {'a', 'b', '!', ' ', '\xc3', '\xa4', '$', 'c'};
    return some[bytes.Next() % std::size(some)];
}

void Type(Scene& scene, Decisions& bytes)
{
    const char byte = ByteFrom(bytes);
    scene.Model.Field.Insert(byte);
    scene.Entry.InsertCharacter(byte);
}

void SetLine(Scene& scene, Decisions& bytes)
{
    const std::string line(bytes.Next() % 24u, ByteFrom(bytes));
    scene.Model.Field.SetText(line);
    scene.Entry.SetText(line.c_str());
}

void RepeatLast(Scene& scene, Decisions&)
{
    scene.Model.Field.SetText("!");
    scene.Model.Enter();
    scene.Entry.SetText("!");
    scene.Entry.OnKeyDown(KeyEnter);
}

void Paste(Scene& scene, Decisions& bytes)
{
    std::string text;
    for (u32 left = bytes.Next() % 16u; left > 0; --left)
        text += bytes.Next() % 4 == 0 ? '\n' : ByteFrom(bytes);
    StartedTextHost().Quiet.Clipboard = text;
    scene.Model.Paste(text);
    scene.Entry.PasteClipboard();
}

void SetMaxLength(Scene& scene, Decisions& bytes)
{
    scene.Entry.MaxLength = bytes.Next();
    scene.Model.Field.MaxLength = scene.Entry.MaxLength;
}

// clang-format off
constexpr Step Steps[] = {
    {"type",       Type},
    {"line",       SetLine},
    {"enter",      [](Scene& scene, Decisions&) { scene.Model.Enter(); scene.Entry.OnKeyDown(KeyEnter); }},
    {"repeat",     RepeatLast},
    {"up",         [](Scene& scene, Decisions&) { scene.Model.Up(); scene.Entry.OnKeyDown(KeyUp); }},
    {"down",       [](Scene& scene, Decisions&) { scene.Model.Down(); scene.Entry.OnKeyDown(KeyDown); }},
    {"escape",     [](Scene& scene, Decisions&) { scene.Model.Escape(); scene.Entry.OnKeyDown(KeyEscape); }},
    {"backspace",  [](Scene& scene, Decisions&) { scene.Model.Field.Backspace(); scene.Entry.HandleBackspace(); }},
    {"paste",      Paste},
    {"max length", SetMaxLength},
};
// clang-format on

void Compare(const Scene& scene)
{
    const CaretText& text = scene.Entry.Text;
    const HistoryModel& model = scene.Model;
    Require(text.TextLength == model.Field.Text.size(), "the lengths differ");
    Require(std::memcmp(text.Bytes(), model.Field.Text.c_str(), model.Field.Text.size() + 1) == 0, "the texts differ");
    Require(text.CaretPos == model.Field.Caret, "the carets differ");
    Require(scene.Entry.History.Count() == model.Count, "one remembers more lines");
    Require(scene.Entry.History.Write == model.Write, "the next lines go to different slots");
    Require(scene.Entry.History.Read == model.Read, "the walks stand at different slots");
    Require(StartedTextHost().Commands == model.Commands, "different commands were run");
}

} // namespace

void RunHistorySteps(Decisions& bytes)
{
    auto& entry = MakeOnScreen<TeskCommandEntry>("commandentry", "e", nullptr);
    _CreateTextEntry record;
    record.MaxLength = bytes.Next() % 32u;
    record.Width = Width;
    record.Height = 20;
    entry.Create(record, nullptr);
    entry.CommandHistory = bytes.Next() % 8u;
    entry.History.Reset(entry.CommandHistory);
    entry.History.Add("");
    Scene scene = {entry, HistoryModel(entry.MaxLength, Width, entry.CommandHistory)};
    for (std::size_t step = 0; step < MostModelSteps && !bytes.IsUsedUp(); ++step) {
        Steps[bytes.Next() % std::size(Steps)].Run(scene, bytes);
        Compare(scene);
    }
}
