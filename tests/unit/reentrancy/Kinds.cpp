#include "tests/unit/reentrancy/Kinds.h"

#include <ostream>

namespace {

constexpr u64 SendsAllOfTheMouse =
    Sends(1) | Sends(6) | Sends(7) | Sends(8) | Sends(10) | Sends(11) | Sends(14) | Sends(15);

constexpr char FrameMarkup[] = "<Texture Filename='#camera'/><Border>1</Border>";
constexpr char TextMarkup[] = "<Wrap>1</Wrap><Text>${words}</Text>";

// clang-format off
constexpr Kind Kinds[] = {
    {"frame",   SendsAllOfTheMouse | FollowsMouse | FollowsHeldMouse | HasTexture, FrameMarkup, nullptr},
    {"text",    FollowsMouse | FollowsHeldMouse | ExpandsText | HasFont,           TextMarkup,  nullptr},
    {"foreign", FollowsMouse | FollowsHeldMouse | IsForeign,                       "",          nullptr},
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
