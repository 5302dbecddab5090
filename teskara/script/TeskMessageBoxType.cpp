#include "teskara/script/TeskMessageBoxType.h"

namespace {

const char* WordOf(eMessageBoxType type)
{
    switch (type) {
    case MessageBoxOKCancel:
        return "okcancel";
    case MessageBoxYesNo:
        return "yesno";
    default:
        return "ok";
    }
}

// The word stands in the result, but the result has no type: hosts that look only at the answer see no value.
struct UntypedWord {
    static constexpr const char* Result = nullptr;

    static bool Answer(TeskMessageBox& box, const Arguments&, _MvTypeVar& result)
    {
        result.Value.Text = WordOf(box.Type);
        return false;
    }
};

constexpr ScriptMember<TeskMessageBox> Members[] = {
    {0, "Type", UntypedWord()},
};

} // namespace

TeskMessageBoxType::TeskMessageBoxType(const char* name) : ElementType(name, Members) { }
