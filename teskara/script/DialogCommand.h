#pragma once

#include "teskara/core/Limits.h"
#include "teskara/markup/SkinScope.h"

class Arguments;
class HostScript;

// The flags with which the commands of dialogs begin.
class DialogFlags
{
public:
    explicit DialogFlags(const Arguments& arguments);

    // Name of the template to take in place of the dialog's own; null for none.
    const char* TemplateName() const { return m_TemplateName; }

    // The first argument behind the flags. It may not be there.
    int Next() const { return m_Next; }

private:
    SkinScope m_Skin; // the skin that is named is in force until the command ends
    const char* m_TemplateName = nullptr;
    int m_Next = 1;
};

// The element name of a script's dialog: the script's name, cut to 511 bytes, and what kind of dialog it is.
class DialogName
{
public:
    DialogName(const HostScript& script, const char* dialog);

    const char* Text() const { return m_Text; }

private:
    char m_Text[Limits::TextBuffer512 + 32];
};

// Makes the element of a dialog under the screen. False, with a line: it was not made.
bool MakeDialog(const Arguments& arguments, const char* kind, const char* name);
