// A sequence of lines that are typed, pasted, entered and recalled in a command entry. A plain model does the same, and
// both must agree after every step, as must the commands that are run. Each step is a byte and what the step reads after
// it; the first two bytes of all choose the room for a line and for lines.

#include "host/probe/TreeChecker.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/text/TeskCommandEntry.h"
#include "teskara/text/TextKeys.h"
#include "tests/fuzz/ChaosHost.h"
#include "tests/fuzz/HistoryModel.h"
#include "tests/fuzz/ModelCheck.h"

#include <cstring>
#include <iterator>
#include <string>
#include <vector>

namespace {

constexpr std::size_t MostSteps = 500;
constexpr u32 Width = 60;

// A host that does as it is asked, and keeps the commands that it is to run.
class CommandHost final : public ChaosHost
{
public:
    int ExecuteCommand(const char* text) override
    {
        Commands.emplace_back(text);
        return 0;
    }

    std::vector<std::string> Commands;

protected:
    bool Refuses() override { return false; }
    void CalledOut(CallOut, TeskElement*) override { }
};

QuietPlatform g_Platform;

CommandHost& Started()
{
    return StartedHost<CommandHost>(&g_Platform);
}

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
    g_Platform.Clipboard = text;
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
    Require(Started().Commands == model.Commands, "different commands were run");
}

void RunSteps(Scene& scene, Decisions& bytes)
{
    for (std::size_t step = 0; step < MostSteps && !bytes.IsUsedUp(); ++step) {
        Steps[bytes.Next() % std::size(Steps)].Run(scene, bytes);
        Compare(scene);
    }
    Require(!FindTreeFault(), "the tree is broken");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const u8* data, std::size_t size)
{
    Decisions bytes;
    bytes.Take(data, size);
    Started().Commands.clear();
    g_UIManager.ShiftDown = g_UIManager.CtrlDown = false;

    auto* entry = dynamic_cast<TeskCommandEntry*>(g_UIManager.LoadElement(g_UIManager.Screen, "commandentry", "e"));
    Require(entry, "the entry was not made");
    _CreateTextEntry record;
    record.MaxLength = bytes.Next() % 32u;
    record.Width = Width;
    record.Height = 20;
    entry->Create(record, nullptr);
    entry->CommandHistory = bytes.Next() % 8u;
    entry->History.Reset(entry->CommandHistory);
    entry->History.Add("");
    Scene scene = {*entry, HistoryModel(entry->MaxLength, Width, entry->CommandHistory)};
    RunSteps(scene, bytes);

    g_UIManager.Reset();
    Require(Started().Books.Imbalance().empty(), "the host is owed something");
    return 0;
}
