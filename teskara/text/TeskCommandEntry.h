#pragma once

#include "teskara/core/utf8string.h"
#include "teskara/text/LineHistory.h"
#include "teskara/text/TeskTextEntry.h"

class TeskConsole;

// The input line of a console: Enter runs the line as a command, the arrows walk among earlier lines, Tab has the host
// complete the line, and some keys scroll the console "output" beside it. To scripts it is a text entry.
class TESKARA_EXPORT TeskCommandEntry : public TeskTextEntry
{
public:
    using TeskTextEntry::TeskTextEntry;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    bool OnKeyDown(unsigned int key) override;

    // Runs the line, keeps it for later and empties the entry. The parent is not told. A lone "!" runs a line from the
    // history again.
    void HandleEnter() override;

    // As if it were typed: each end of a line enters it.
    void PasteClipboard() override;

    // Runs a line by the script of that name, or without one as a command of the host. Afterwards the entry may be gone,
    // and the text must not be its own.
    void OnCommand(char* text);

    utf8string Console; // that the output of a command goes to; empty for the one in use
    u32 CommandHistory = 0; // how many lines are kept
    LineHistory History;
    ScriptPointer OnCommandScript; // OnCommand in markup

private:
    bool ActOnCommandKey(u32 key);
    void Complete();
    void Recall(const utf8string* line);
    void ShowLine(std::string_view line);
    void ClearLine();
    bool TakeLine();
    void ScrollConsole(void (TeskConsole::*scroll)());
};
