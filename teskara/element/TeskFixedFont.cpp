#include "teskara/element/TeskFixedFont.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/Numbers.h"

TeskFixedFont::TeskFixedFont(TeskElement* owner, const char* name, u8 size, bool bold)
    : TeskFont(owner, name, size, true, bold)
{
}

TeskFixedFont* TeskFixedFont::New(TeskElement* owner, const char* name, u8 size, bool bold)
{
    try {
        return new TeskFixedFont(owner, name, size, bold);
    } catch (...) {
        return nullptr;
    }
}

TeskFixedFont* TeskFixedFont::New(TeskElement* owner, const TeskFont& source)
{
    TeskFixedFont* font = New(owner, source.Name.c_str(), source.Size, source.Bold);
    if (font)
        font->Color = source.Color;
    return font;
}

TeskFixedFont* TeskFixedFont::New(TeskElement* owner, const _CreateFont& record, XMLNode* templateNode)
{
    const _CreateFont full = WithFallbacks(record, templateNode);
    TeskFixedFont* font = New(owner, full.Name, static_cast<u8>(full.Size), full.Bold);
    if (font)
        font->Color = full.Color;
    return font;
}

bool TeskFixedFont::Prepare()
{
    if (FontID == 0)
        FontID = g_UIManager.LoadFontResource(Name.c_str(), Size, true, Bold);
    return FontID != 0;
}

u64 TeskFixedFont::GetCharWidthA()
{
    if (!Prepare())
        return UnknownWidth;

    const i32 width = TruncateToI32(static_cast<double>(GetAdvance(' ')));
    return width > 0 ? static_cast<u64>(width) : UnknownWidth;
}
