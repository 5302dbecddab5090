#pragma once

#include "teskara/script/ElementType.h"
#include "teskara/text/TeskTextEntry.h"

// tesktextentry: the text and the looks of a text entry, with or without commands.
class TeskTextEntryType : public ElementType<TeskTextEntry>
{
public:
    explicit TeskTextEntryType(const char* name);
};
