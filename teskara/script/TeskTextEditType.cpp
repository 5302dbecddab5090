#include "teskara/script/TeskTextEditType.h"

namespace {

// One empty line is left.
bool Clear(TeskTextEdit& edit, const Arguments&)
{
    edit.SetText("");
    return true;
}

// clang-format off
constexpr ScriptMember<TeskTextEdit> Members[] = {
    {0, "Font", Script::Font<&TeskTextEdit::Font>},
};

constexpr ScriptMethod<TeskTextEdit> Methods[] = {
    {0, "SetText", Script::SetText<&TeskTextEdit::SetText, 1>},
    {1, "Clear",   Clear},
    {2, "AddText", Script::SetText<&TeskTextEdit::AddText, 1>},
    {3, "AddLine", Script::SetText<&TeskTextEdit::AddLine, 1>},
};
// clang-format on

} // namespace

TeskTextEditType::TeskTextEditType(const char* name) : ElementType(name, Members, Methods) { }
