#pragma once

#include "teskara/core/ScriptLink.h"
#include "teskara/element/TeskFont.h"
#include "teskara/windows/TeskWindow.h"

class DialogBuilder;
class TeskButton;
class TeskTextEntry;
struct DialogButton;

// A text, a field to type into, and buttons to say OK or to cancel, for the script that opened it. OK and Enter answer
// with what was typed, anything else with nothing; all of them close the box.
class TESKARA_EXPORT TeskScriptInputBox : public TeskWindow
{
public:
    using TeskWindow::TeskWindow;

    // Always false: no markup makes a dialog.
    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override;

    // Fills a box that was made without markup. text: what is asked; initial: what stands in the field at first. Texts
    // may be null, and must outlive the call. A null template means the one named "scriptinputbox". May run scripts,
    // which may end the box.
    void Create(const char* title, const char* text, const char* initial, XMLNode* templateNode);

    TeskButton* OKButton = nullptr; // these three are null where there is none
    TeskButton* CancelButton = nullptr;
    TeskTextEntry* Entry = nullptr;
    std::unique_ptr<TeskFont> Font;
    ScriptLink pScript{&HostScript::InputBoxID};

private:
    bool MakeParts(const DialogBuilder& dialog, const char* initial);
    void MakeText(const DialogBuilder& dialog);
    void MakeEntry(const DialogBuilder& dialog, const char* initial);
    TeskButton* MakeButton(const DialogBuilder& dialog, const DialogButton& look, u32 x, u32 width);
    void Released(const TeskElement* source);
    void AnswerEntry();
    void Close();
    void ForgetPart(const TeskElement* part);
};
