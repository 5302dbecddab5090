#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/HostInterface.h"

// What a dialog keeps of the script that opened it, and the script of the dialog. Whichever ends first, the other forgets
// it.
class TESKARA_EXPORT ScriptLink
{
public:
    // dialog: the field of the script that holds the dialog's id.
    explicit ScriptLink(u32 HostScript::*dialog) : m_Dialog(dialog) { }
    ~ScriptLink();
    ScriptLink(const ScriptLink&) = delete;
    ScriptLink& operator=(const ScriptLink&) = delete;

    // The script; null if there is none, or none any more.
    HostScript* Get() const { return m_Script; }

    // Ties a script to a dialog and clears the answer that it had.
    void Open(HostScript& script, u32 dialogID);

    // Unties them. The script's user input is then the answer; null for none.
    void Close(const char* answer);

private:
    friend class HostScript;

    HostScript* Release();

    u32 HostScript::*m_Dialog;
    u32 m_DialogID = 0;
    HostScript* m_Script = nullptr;
    ScriptLink* m_Next = nullptr; // among all that have a script
};
