#pragma once

#include "teskara/element/TeskFont.h"

// A font in which every character is equally wide.
class TESKARA_EXPORT TeskFixedFont : public TeskFont
{
public:
    bool Prepare() override;

    // The caller owns the results; null if there is no memory.
    static TeskFixedFont* New(TeskElement* owner, const char* name, u8 size, bool bold);
    static TeskFixedFont* New(TeskElement* owner, const TeskFont& source);
    static TeskFixedFont* New(TeskElement* owner, const _CreateFont& record, XMLNode* templateNode);

    // Width of each character in pixels; 12 if it is not known.
    u64 GetCharWidthA();

private:
    TeskFixedFont(TeskElement* owner, const char* name, u8 size, bool bold);
};
