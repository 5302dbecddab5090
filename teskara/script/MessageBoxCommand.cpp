#include "teskara/script/MessageBoxCommand.h"

#include "teskara/core/HostCalls.h"
#include "teskara/script/Arguments.h"
#include "teskara/script/DialogCommand.h"

namespace {

void PrintSyntax(const Arguments& arguments)
{
    Host::PrintLine("Syntax: %s [-skin <name>] [-template <name>] [-ok|-okcancel|-yesno] <text>", arguments.Text(0));
}

bool IsBoxType(const Arguments& arguments, int index)
{
    return arguments.IsWord(index, "-ok") || arguments.IsWord(index, "-okcancel") || arguments.IsWord(index, "-yesno");
}

} // namespace

int RunMessageBoxCommand(const Arguments& arguments)
{
    if (!arguments.Has(1)) {
        PrintSyntax(arguments);
        return 0;
    }

    const DialogFlags flags(arguments);
    const int text = IsBoxType(arguments, flags.Next()) ? flags.Next() + 1 : flags.Next();
    if (!arguments.Has(text)) {
        PrintSyntax(arguments);
        return 0;
    }

    const HostScript* script = Host::GetCurrentScript();
    if (script && !Host::IsInsideAtom(*script))
        MakeDialog(arguments, "scriptmessagebox", DialogName(*script, "MessageBox").Text());
    else
        MakeDialog(arguments, "messagebox", "MessageBox");
    return 0;
}
