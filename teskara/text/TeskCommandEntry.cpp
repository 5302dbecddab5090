#include "teskara/text/TeskCommandEntry.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/HostCalls.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/element/TeskConsoleSelector.h"
#include "teskara/text/TeskConsole.h"
#include "teskara/text/TextKeys.h"

#include <string>

namespace {

constexpr char Kind[] = "commandentry";

// The name of the console beside the entry.
constexpr char OutputName[] = "output";

// Runs a line of the history again.
constexpr std::string_view Again = "!";

// clang-format off
constexpr MarkupValue<TeskCommandEntry> CommandEntryValues[] = {
    {"Console",        Markup::Text<&TeskCommandEntry::Console>,           ""},
    {"OnCommand",      Markup::Script<&TeskCommandEntry::OnCommandScript>, "string Text"},
    {"CommandHistory", Markup::Integer<&TeskCommandEntry::CommandHistory>, 0},
};
// clang-format on

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "textentry",
    .Tables = {&RowsOf<CommandEntryValues>},
});

} // namespace

// The blank line is the bottom row of the walk, until the ring comes round to it.
bool TeskCommandEntry::FromXML(XMLNode* node, XMLNode* templateNode)
try {
    templateNode = TemplateFor(node, templateNode, Kind);
    if (!TeskTextEntry::FromXML(node, templateNode) || !ReadMarkup<CommandEntryValues>(*this, {node, templateNode}))
        return false;

    History.Reset(CommandHistory);
    History.Add("");
    return true;
} catch (...) {
    return false;
}

bool TeskCommandEntry::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskTextEntry::IsTypeOf(word);
}

bool TeskCommandEntry::OnKeyDown(unsigned int key)
{
    const ElementWatch self(*this);
    if (!ActOnCommandKey(key))
        return TeskTextEntry::OnKeyDown(key);

    if (self.Exists())
        FinishKeyDown(key);
    return true;
}

// False: the key does here what it does in every entry.
bool TeskCommandEntry::ActOnCommandKey(u32 key)
{
    const bool shift = g_UIManager.ShiftDown;
    switch (key) {
    case KeyTab:
        Complete();
        return true;
    case KeyEnter:
        HandleEnter();
        return true;
    case KeyEscape:
        if (Text.Caret() != 0)
            ClearLine();
        return true;
    case KeyPageUp:
        ScrollConsole(&TeskConsole::HandlePageUp);
        return true;
    case KeyPageDown:
        ScrollConsole(&TeskConsole::HandlePageDown);
        return true;
    case KeyUp:
        shift ? ScrollConsole(&TeskConsole::HandleUp) : Recall(History.Previous());
        return true;
    case KeyDown:
        shift ? ScrollConsole(&TeskConsole::HandleDown) : Recall(History.Next());
        return true;
    default:
        return false;
    }
}

// The host gets a copy, since it may change the entry or delete it.
void TeskCommandEntry::Complete()
{
    if (Text.Caret() == 0)
        return;

    const ElementWatch self(*this);
    const std::string line = Text.From(0);
    const char* completed = Host::CompleteCommandLine(line.c_str(), g_UIManager.ShiftDown);
    if (completed && self.Exists())
        ShowLine(completed);
}

void TeskCommandEntry::Recall(const utf8string* line)
{
    if (line)
        ShowLine(*line);
}

// Nobody hears of a line that was not typed.
void TeskCommandEntry::ShowLine(std::string_view line)
{
    Text.Fill(line, MaxLength);
    Text.MoveToEnd();
}

void TeskCommandEntry::ClearLine()
{
    Text.Clear();
    FirstVisible = 0;
}

void TeskCommandEntry::ScrollConsole(void (TeskConsole::*scroll)())
{
    TeskElement* output = Parent ? Parent->FindChild(OutputName) : nullptr;
    auto* console = dynamic_cast<TeskConsole*>(output);
    const ElementWatch watch(console);
    if (console && console->IsTypeOf("console") && watch.Exists())
        (console->*scroll)();
}

void TeskCommandEntry::HandleEnter()
try {
    if (Text.TextLength == 0 || !TakeLine())
        return;

    const ElementWatch self(*this);
    std::string line = Text.From(0);
    if (Console.empty()) {
        OnCommand(line.data());
    } else {
        const TeskConsoleSelector selected(utf8string(Console).c_str());
        if (self.Exists())
            OnCommand(line.data());
    }
    if (self.Exists())
        ClearLine();
} catch (...) {
    return;
}

// Takes the line into the history, or one from there in its place. False: there is none to take.
bool TeskCommandEntry::TakeLine()
{
    if (Text.From(0) != Again) {
        History.Add(Text.From(0));
        return true;
    }

    const utf8string* line = History.Last();
    if (line)
        Text.Fill(*line, MaxLength);
    return line != nullptr;
}

void TeskCommandEntry::OnCommand(char* text)
{
    if (OnCommandScript)
        RunScript(OnCommandScript, text);
    else
        Host::ExecuteCommand(text);
}

void TeskCommandEntry::PasteClipboard()
{
    PasteLines(&TeskTextEntry::HandleEnter);
}
