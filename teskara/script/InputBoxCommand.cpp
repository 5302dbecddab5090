#include "teskara/script/InputBoxCommand.h"

#include "teskara/core/HostCalls.h"
#include "teskara/script/Arguments.h"
#include "teskara/script/DialogCommand.h"

namespace {

constexpr int NoWaitingScript = 1;

void PrintSyntax(const Arguments& arguments)
{
    Host::PrintLine("Syntax: %s [-skin <name>] [-template <name>] <text> [default]", arguments.Text(0));
}

} // namespace

int RunInputBoxCommand(const Arguments& arguments)
{
    const HostScript* script = Host::GetCurrentScript();
    if (!script) {
        Host::PrintLine("You don't look like a script, or talk like a script...dont try to be one :)");
        return NoWaitingScript;
    }
    if (Host::IsInsideAtom(*script)) {
        Host::PrintLine("'%s' is not available in atoms", arguments.Text(0));
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

    MakeDialog(arguments, "scriptinputbox", DialogName(*script, "InputBox").Text());
    return 0;
}
