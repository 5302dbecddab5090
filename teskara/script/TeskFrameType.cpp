#include "teskara/script/TeskFrameType.h"

namespace {

// clang-format off
constexpr ScriptMember<TeskFrame> Members[] = {
    {0, "BackgroundColor", Script::Int<&TeskFrame::BackgroundColor>},
    {1, "Border",          Script::Int<&TeskFrame::Border>},
    {2, "BorderColor",     Script::Int<&TeskFrame::BorderColor>},
    {3, "Texture",         Script::Texture<&TeskFrame::Texture>},
};

constexpr ScriptMethod<TeskFrame> Methods[] = {
    {0, "SetBackgroundColor", Script::SetColor<&TeskFrame::BackgroundColor>},
    {1, "SetBorder",          Script::SetInteger<&TeskFrame::Border>},
    {2, "SetBorderColor",     Script::SetColor<&TeskFrame::BorderColor>},
    {3, "SetTexture",         Script::SetTexture<&TeskFrame::Texture>},
};
// clang-format on

} // namespace

TeskFrameType::TeskFrameType(const char* name) : ElementType(name, Members, Methods) { }
