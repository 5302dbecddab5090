#include "tests/unit/reentrancy/Kinds.h"

#include <ostream>

namespace {

constexpr u64 SendsAllOfTheMouse =
    Sends(1) | Sends(6) | Sends(7) | Sends(8) | Sends(10) | Sends(11) | Sends(14) | Sends(15);
constexpr u64 Follows = FollowsMouse | FollowsHeldMouse;
constexpr u64 IsPressed = Sends(1) | Sends(6) | Follows | EvaluatesText | HasFont;

constexpr char FrameMarkup[] = "<Texture Filename='#camera'/><Border>1</Border>";
constexpr char TextMarkup[] = "<Wrap>1</Wrap><Text>${words}</Text>";
constexpr char ButtonMarkup[] = "<Text>${words}</Text><Texture Filename='#a'/><TexturePressed Filename='#b'/>"
                                "<TextureHover Filename='#c'/><Border>1</Border>";
constexpr char CheckBoxMarkup[] = "<Text>${words}</Text><Texture Filename='#a'/><TextureChecked Filename='#b'/>"
                                  "<TextureCheckedHover Filename='#c'/>";
constexpr char CommandMarkup[] = "<Text>${words}</Text><Console>Status</Console><Command>check</Command>"
                                 "<CommandChecked>uncheck</CommandChecked><Data>${number}</Data>";

// clang-format off
constexpr Kind Kinds[] = {
    {"frame",           Follows | SendsAllOfTheMouse,         FrameMarkup,    nullptr},
    {"text",            Follows | ExpandsText | HasFont,      TextMarkup,     nullptr},
    {"button",          IsPressed,                            ButtonMarkup,   nullptr},
    {"checkbox",        IsPressed,                            CheckBoxMarkup, nullptr},
    {"commandbutton",   IsPressed | RunsCommand,              CommandMarkup,  nullptr},
    {"commandcheckbox", IsPressed | RunsCommand | Calculates, CommandMarkup,  nullptr},
    {"foreign",         Follows | IsForeign,                  "",             nullptr},
};
// clang-format on

} // namespace

std::span<const Kind> AllKinds()
{
    return Kinds;
}

void PrintTo(const Kind& kind, std::ostream* stream)
{
    *stream << kind.Name;
}
