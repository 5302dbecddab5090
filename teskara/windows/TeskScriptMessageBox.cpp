#include "teskara/windows/TeskScriptMessageBox.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/MarkupShape.h"

namespace {

const MarkupShape g_Shape({
    .Name = "scriptmessagebox",
    .Base = "messagebox",
    .Use = MarkupUse::Made,
});

} // namespace

bool TeskScriptMessageBox::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), "scriptmessagebox") || TeskMessageBox::IsTypeOf(word);
}

void TeskScriptMessageBox::OnNotify(TeskElement* source, unsigned int code, unsigned long long value)
{
    const ElementWatch self(*this);
    const char* answer = code == NotifyLeftReleased ? AnswerOf(source) : nullptr;
    if (answer)
        pScript.Close(answer);
    if (self.Exists())
        TeskMessageBox::OnNotify(source, code, value);
}
