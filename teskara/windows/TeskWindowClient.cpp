#include "teskara/windows/TeskWindowClient.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/element/MarkupShape.h"

namespace {

const MarkupShape g_Shape({
    .Name = "windowclient",
    .Base = "frame",
});

} // namespace

// It is no frame by this word, though it is one by its class.
bool TeskWindowClient::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), "windowclient") || TeskElement::IsTypeOf(word);
}

// With its content there, the parent lays out everything once more.
void TeskWindowClient::OnCreate()
{
    if (Parent)
        Parent->OnCreate();
}
