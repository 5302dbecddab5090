#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Limits.h"
#include "teskara/element/ElementWatch.h"

// Evaluates a text of an element, a TeskPreParse or a TeskDataSequence, and hands what it has become, at most 2047 bytes, to use(const char*). Without a
// sequence, or if it has no value, use is not called. False: a script of the evaluation ended the element.
template <class Text, class Use> TESKARA_NOINLINE bool UseProcessedText(const TeskElement& element, Text& text, Use use)
{
    if (text.Sequence == 0)
        return true;

    char processed[Limits::TextBuffer2048];
    const ElementWatch watch(element);
    const bool hasValue = text.RetrieveProcessedText(processed, sizeof(processed));
    if (!watch.Exists())
        return false;

    if (hasValue)
        use(static_cast<const char*>(processed));
    return true;
}
