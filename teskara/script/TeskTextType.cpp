#include "teskara/script/TeskTextType.h"

#include "teskara/element/ElementWatch.h"

namespace {

bool SetHorizontalAlignment(TeskText& text, const Arguments& arguments)
{
    text.SetHorizontalAlignment(arguments.IsWord(0, "center") ? AlignCenter
            : arguments.IsWord(0, "right")                    ? AlignRight
                                                              : AlignLeft);
    return true;
}

// The vertical words are set as the horizontal alignment too, where each of them means the left.
bool SetVerticalAlignment(TeskText& text, const Arguments& arguments)
{
    text.SetHorizontalAlignment(arguments.IsWord(0, "center") ? AlignVerticalCenter
            : arguments.IsWord(0, "bottom")                   ? AlignBottom
                                                              : AlignTop);
    return true;
}

bool SetWrap(TeskText& text, const Arguments& arguments)
{
    const ElementWatch watch(text);
    const bool wrap = arguments.Calculated(0);
    if (watch.Exists())
        text.SetWrap(wrap);
    return true;
}

// clang-format off
constexpr ScriptMember<TeskText> Members[] = {
    {0, "Text",     Script::String<&TeskText::Text>},
    {1, "Font",     Script::Font<&TeskText::Font>},
    {2, "NumLines", Script::Uint<&TeskText::NumLines>},
    {3, "Wrap",     Script::Bool<&TeskText::Wrap>},
};

constexpr ScriptMethod<TeskText> Methods[] = {
    {0, "SetText",                Script::SetText<&TeskText::SetText>},
    {1, "SetHorizontalAlignment", SetHorizontalAlignment, 1},
    {2, "SetVerticalAlignment",   SetVerticalAlignment, 1},
    {3, "SetWrap",                SetWrap, 1},
};
// clang-format on

} // namespace

TeskTextType::TeskTextType(const char* name) : ElementType(name, Members, Methods) { }
