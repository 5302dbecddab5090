#include "teskara/script/MessageBoxCommand.h"

#include "teskara/core/HostCalls.h"
#include "teskara/core/Messages.h"
#include "teskara/script/Arguments.h"
#include "teskara/script/DialogCommand.h"
#include "teskara/windows/TeskScriptMessageBox.h"

namespace {

struct TypeFlag {
    const char* Word;
    eMessageBoxType Type;
};

constexpr TypeFlag TypeFlags[] = {
    {"-ok", MessageBoxOK},
    {"-okcancel", MessageBoxOKCancel},
    {"-yesno", MessageBoxYesNo},
};

// Null: there is none at that place.
const TypeFlag* FindTypeFlag(const Arguments& arguments, int index)
{
    for (const TypeFlag& flag : TypeFlags) {
        if (arguments.IsWord(index, flag.Word))
            return &flag;
    }
    return nullptr;
}

void PrintSyntax(const Arguments& arguments)
{
    Host::PrintLine(Messages::MessageBoxSyntax, arguments.Text(0));
}

} // namespace

int RunMessageBoxCommand(const Arguments& arguments)
{
    if (!arguments.Has(1)) {
        PrintSyntax(arguments);
        return 0;
    }

    const DialogFlags flags(arguments);
    const TypeFlag* typeFlag = FindTypeFlag(arguments, flags.Next());
    const eMessageBoxType type = typeFlag ? typeFlag->Type : MessageBoxOK;
    const int text = typeFlag ? flags.Next() + 1 : flags.Next();
    if (!arguments.Has(text)) {
        PrintSyntax(arguments);
        return 0;
    }

    HostScript* script = Host::GetCurrentScript();
    if (script && !Host::IsInsideAtom(*script)) {
        const DialogName name(*script, "MessageBox");
        if (auto* box = MakeDialog<TeskScriptMessageBox>(arguments, "scriptmessagebox", name.Text())) {
            box->pScript.Open(*script, box->ID);
            box->Create(name.Script(), arguments.Text(text), type, flags.Template());
        }
    } else if (auto* box = MakeDialog<TeskMessageBox>(arguments, "messagebox", "MessageBox")) {
        box->Create("Alert", arguments.Text(text), type, flags.Template());
    }
    return 0;
}
