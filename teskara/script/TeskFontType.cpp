#include "teskara/script/TeskFontType.h"

#include "teskara/core/BoundedText.h"
#include "teskara/script/ScriptActions.h"
#include "teskara/script/ScriptResults.h"

namespace {

// Pixels beyond which a font does not grow.
constexpr u32 LargestHeight = 96;

u64 GetTextWidth(TeskFont& font, const Arguments& arguments)
{
    return font.GetTextWidth(arguments.Text(0));
}

// A negative height counts as too large.
bool SetHeight(TeskFont& font, const Arguments& arguments)
{
    const u32 height = static_cast<u32>(arguments.Integer(0));
    if (height <= LargestHeight)
        font.SetHeight(static_cast<u8>(height));
    return true;
}

// Unlike other colours, one that cannot be read becomes opaque white.
bool SetColor(TeskFont& font, const Arguments& arguments)
{
    u32 color = 0xffffffffu;
    arguments.Color(0, color);
    font.Color = color;
    return true;
}

template <bool Bold> void SetBold(TeskFont& font)
{
    font.SetBold(Bold);
}

void ToggleBold(TeskFont& font)
{
    font.SetBold(!font.Bold);
}

// clang-format off
constexpr ScriptMember<TeskFont> Members[] = {
    {1, "Height",       Script::Int<&TeskFont::Size>},
    {2, "Name",         Script::String<&TeskFont::Name>},
    {3, "Color",        Script::Int<&TeskFont::Color>},
    {4, "Bold",         Script::Bool<&TeskFont::Bold>},
    {5, "GetTextWidth", Script::Uint<GetTextWidth>, 1},
};

constexpr ScriptMethod<TeskFont> Methods[] = {
    {1, "SetHeight",   SetHeight, 1},
    {2, "SetName",     Script::SetText<&TeskFont::SetName, 1>},
    {3, "SetColor",    SetColor, 1},
    {4, "EnableBold",  Script::Call<SetBold<true>>},
    {5, "DisableBold", Script::Call<SetBold<false>>},
    {6, "ToggleBold",  Script::Call<ToggleBold>},
};
// clang-format on

} // namespace

TeskFontType::TeskFontType(const char* name) : TableType(name, Members, Methods) { }

bool TeskFontType::ToText(MvValue value, char* buffer, u32 size)
{
    const TeskFont* font = HeldObject<TeskFont>(value);
    if (!font || !buffer)
        return false;

    CopyBounded(buffer, size, font->Name);
    return true;
}
