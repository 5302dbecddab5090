#include "teskara/script/DialogCommand.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Messages.h"
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
            m_Template = g_UIManager.FindTemplate(arguments.Text(m_Next + 1));
        m_Next += 2;
    }
}

DialogName::DialogName(const HostScript& script, const char* dialog)
{
    CopyBounded(m_Script, sizeof(m_Script), Host::GetScriptName(script));
    FormatBounded(m_Text, sizeof(m_Text), "%s %s", m_Script, dialog);
}

void RefuseDialog(const Arguments& arguments, TeskElement* element)
{
    if (element && element->Parent)
        element->Parent->DeleteChild(element);
    Host::PrintLine(Messages::DialogFailed, arguments.Text(0));
}
