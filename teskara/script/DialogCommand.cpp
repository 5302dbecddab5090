#include "teskara/script/DialogCommand.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/HostCalls.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/script/Arguments.h"

namespace {

TeskSkin* NamedSkin(const Arguments& arguments)
{
    return arguments.IsWord(1, "-skin") ? g_UIManager.FindSkin(arguments.Text(2)) : nullptr;
}

} // namespace

DialogFlags::DialogFlags(const Arguments& arguments) : m_Skin(NamedSkin(arguments))
{
    if (arguments.IsWord(m_Next, "-skin"))
        m_Next += 2;

    if (arguments.IsWord(m_Next, "-template")) {
        if (arguments.Has(m_Next + 1))
            m_TemplateName = arguments.Text(m_Next + 1);
        m_Next += 2;
    }
}

DialogName::DialogName(const HostScript& script, const char* dialog)
{
    char name[Limits::TextBuffer512];
    CopyBounded(name, sizeof(name), Host::GetScriptName(script));
    FormatBounded(m_Text, sizeof(m_Text), "%s %s", name, dialog);
}

bool MakeDialog(const Arguments& arguments, const char* kind, const char* name)
{
    // There are no classes of dialogs yet: what some other factory of that kind makes is none, and goes again.
    TeskElement* element = g_UIManager.LoadElement(g_UIManager.Screen, kind, name);
    if (element && element->Parent)
        element->Parent->DeleteChild(element);

    Host::PrintLine("%s failed", arguments.Text(0));
    return false;
}
