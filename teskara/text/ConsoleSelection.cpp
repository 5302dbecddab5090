// The part of a selector that knows what a console is.

#include "teskara/core/BoundedText.h"
#include "teskara/element/TeskConsoleSelector.h"
#include "teskara/text/TeskConsole.h"

namespace {

// A console may go while the host turns to it.
struct NameCopy {
    explicit NameCopy(const TeskConsole* console)
    {
        CopyBounded(Text, sizeof(Text), console ? console->FullName.c_str() : "");
    }

    char Text[Limits::FullNameBytes];
};

} // namespace

TeskConsoleSelector::TeskConsoleSelector(TeskConsole* console) : TeskConsoleSelector(NameCopy(console).Text) { }
