#pragma once

#include "teskara/core/CUIManager.h"
#include "teskara/core/Limits.h"
#include "teskara/core/MarkupReading.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/markup/SkinScope.h"

class Arguments;
class HostScript;

// The flags with which the commands of dialogs begin.
class DialogFlags
{
public:
    explicit DialogFlags(const Arguments& arguments);

    // The template to take in place of the dialog's own; null for none. It lives as long as the flags.
    XMLNode* Template() const { return m_Template; }

    // The first argument behind the flags. It may not be there.
    int Next() const { return m_Next; }

private:
    const SkinScope m_Skin; // the skin that is named is in force until the command ends
    const MarkupReading m_Reading;
    XMLNode* m_Template = nullptr;
    int m_Next = 1;
};

// The element name of a script's dialog: the script's name, cut to 511 bytes, and what kind of dialog it is.
class DialogName
{
public:
    DialogName(const HostScript& script, const char* dialog);

    const char* Text() const { return m_Text; }
    const char* Script() const { return m_Script; }

private:
    char m_Script[Limits::TextBuffer512];
    char m_Text[Limits::TextBuffer512 + 32];
};

// Removes what a foreign factory made in place of a dialog, if anything, and says that the command has failed.
void RefuseDialog(const Arguments& arguments, TeskElement* element);

// Makes a dialog under the screen. Null, with a line: it was not made.
template <class Box> Box* MakeDialog(const Arguments& arguments, const char* kind, const char* name)
{
    TeskElement* element = g_UIManager.LoadElement(g_UIManager.Screen, kind, name);
    auto* box = dynamic_cast<Box*>(element);
    if (!box)
        RefuseDialog(arguments, element);
    return box;
}
