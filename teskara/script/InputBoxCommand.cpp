#include "teskara/script/InputBoxCommand.h"

#include "teskara/core/HostCalls.h"
#include "teskara/core/Messages.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/script/Arguments.h"
#include "teskara/script/DialogCommand.h"
#include "teskara/text/TeskTextEntry.h"
#include "teskara/windows/TeskScriptInputBox.h"

namespace {

constexpr int NoWaitingScript = 1;

void PrintSyntax(const Arguments& arguments)
{
    Host::PrintLine(Messages::InputBoxSyntax, arguments.Text(0));
}

void ShowInputBox(const Arguments& arguments, const DialogFlags& flags, HostScript& script)
{
    const DialogName name(script, "InputBox");
    auto* box = MakeDialog<TeskScriptInputBox>(arguments, "scriptinputbox", name.Text());
    if (!box)
        return;

    box->pScript.Open(script, box->ID);
    const ElementWatch watch(*box);
    const int text = flags.Next();
    box->Create(name.Script(), arguments.Text(text), arguments.Text(text + 1), flags.Template());
    if (watch.Exists() && box->Entry)
        g_UIManager.SetFocusElement(box->Entry);
}

} // namespace

int RunInputBoxCommand(const Arguments& arguments)
{
    HostScript* script = Host::GetCurrentScript();
    if (!script) {
        Host::PrintLine(Messages::NoScript);
        return NoWaitingScript;
    }
    if (Host::IsInsideAtom(*script)) {
        Host::PrintLine(Messages::NotInAtoms, arguments.Text(0));
        return NoWaitingScript;
    }
    if (!arguments.Has(1)) {
        PrintSyntax(arguments);
        return 0;
    }

    const DialogFlags flags(arguments);
    if (!arguments.Has(flags.Next())) {
        PrintSyntax(arguments);
        return 0;
    }

    ShowInputBox(arguments, flags, *script);
    return 0;
}
