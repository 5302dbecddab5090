#pragma once

#include "teskara/core/ScriptLink.h"
#include "teskara/windows/TeskMessageBox.h"

// A message box that tells its answer to the script that opened it: the text of the button.
class TESKARA_EXPORT TeskScriptMessageBox : public TeskMessageBox
{
public:
    using TeskMessageBox::TeskMessageBox;

    bool IsTypeOf(const char* word) override;
    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override;

    ScriptLink pScript{&HostScript::MessageBoxID};
};
