#include "teskara/script/TeskTextType.h"

#include "teskara/element/ElementWatch.h"

namespace {

// A text that was set to nothing has been split; one that never was set is none.
const char* TextOf(const TeskText& text)
{
    const bool wasSet = text.SplitText || !text.Text.empty();
    return wasSet ? text.Text.c_str() : nullptr;
}

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
    {0, "Text",     Script::String<TextOf>},
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
