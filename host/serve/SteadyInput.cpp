#include "host/serve/SteadyInput.h"

#include "host/InterfaceSession.h"
#include "host/display/Characters.h"
#include "host/display/InputRouter.h"
#include "host/display/KeyCodes.h"
#include "host/probe/ValueText.h"
#include "host/record/ToolkitCalls.h"

#include <algorithm>
#include <cstring>

namespace host {

namespace {

constexpr u32 KeyCodeCount = 256;
constexpr u32 KeyLeftShift = 160;
constexpr u32 KeyEnter = 13;

struct KeyWord {
    std::string_view Word;
    u32 Key;
};

// Names that people use besides those of scripts. The keys that change others are the left ones.
constexpr KeyWord MoreKeys[] = {
    {"shift", KeyLeftShift},
    {"ctrl", 162},
    {"control", 162},
    {"alt", 164},
    {"return", KeyEnter},
    {"esc", 27},
    {"del", 46},
    {"pageup", 33},
    {"pagedown", 34},
};

// 0: there is none.
u32 FindKey(std::string_view name)
{
    for (const KeyWord& row : MoreKeys)
        if (SameWord(name, row.Word))
            return row.Key;
    for (u32 key = 1; key < KeyCodeCount; ++key) {
        const char* known = NameOfKey(key);
        if (known && SameWord(name, known))
            return key;
    }
    return 0;
}

} // namespace

std::vector<u32> FindKeys(std::string_view chord, std::string_view& unknown)
{
    std::vector<u32> keys;
    while (!chord.empty()) {
        // The key "+" has no name: "Num +" is one, and ends with it.
        std::size_t end = std::min(chord.find('+'), chord.size());
        if (SameWord(chord.substr(0, end), "num "))
            ++end;
        unknown = TrimBlanks(chord.substr(0, end));
        const u32 key = FindKey(unknown);
        if (key == 0)
            return {};
        keys.push_back(key);
        chord.remove_prefix(std::min(end + 1, chord.size()));
    }
    return keys;
}

void SteadyInput::PassFrames(u32 count)
{
    for (u32 frame = 0; frame < count; ++frame)
        PassTime(FrameMilliseconds);
}

void SteadyInput::PassTime(u32 milliseconds)
{
    for (u32 left = milliseconds; left > 0;) {
        const u32 step = std::min(left, FrameMilliseconds);
        m_Session.Clock().Advance(step);
        m_Milliseconds += step;
        left -= step;
        Settle();
    }
}

void SteadyInput::Settle()
{
    m_Session.SkipFrame();
    ++m_Frames;
}

void SteadyInput::MoveMouse(_Point2i place)
{
    Toolkit::OnMouseMove(place);
}

void SteadyInput::Press(MouseButton button)
{
    button == MouseButton::Left ? Toolkit::OnLMouseDown() : Toolkit::OnRMouseDown();
}

void SteadyInput::Release(MouseButton button)
{
    button == MouseButton::Left ? Toolkit::OnLMouseUp() : Toolkit::OnRMouseUp();
}

void SteadyInput::TurnWheel(int units)
{
    Toolkit::OnMouseWheel(units);
}

void SteadyInput::Type(std::string_view text)
{
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t start = at;
        DecodeCharacter(text, at);
        TypeCharacter(text.substr(start, at - start));
    }
}

void SteadyInput::TypeCharacter(std::string_view character)
{
    if (character == "\n")
        return PressCharacter(KeyEnter, '\r');
    for (u32 key = 1; key < KeyCodeCount && character.size() == 1; ++key) {
        const u8 plain = CharacterOfKey(key, false, false, false);
        const u8 shifted = CharacterOfKey(key, true, false, false);
        const auto wanted = static_cast<u8>(character[0]);
        if (NameOfKey(key) && (plain == wanted || shifted == wanted)) {
            if (plain != wanted)
                Toolkit::OnKeyDown(KeyLeftShift);
            PressCharacter(key, character[0]);
            if (plain != wanted)
                Toolkit::OnKeyUp(KeyLeftShift);
            return;
        }
    }
    SDL_Event event = {};
    event.type = SDL_TEXTINPUT;
    std::memcpy(event.text.text, character.data(), character.size());
    InputRouter(m_Session.System()).Handle(event);
}

void SteadyInput::PressCharacter(u32 key, char character)
{
    m_Session.System().SetTypedCharacter(key, static_cast<u8>(character));
    Toolkit::OnKeyDown(key);
    Toolkit::OnKeyUp(key);
    m_Session.System().ForgetTypedCharacter(key);
}

void SteadyInput::PressTogether(const std::vector<u32>& keys)
{
    for (const u32 key : keys)
        Toolkit::OnKeyDown(key);
    PassTime(FrameMilliseconds);
    for (auto key = keys.rbegin(); key != keys.rend(); ++key)
        Toolkit::OnKeyUp(*key);
}

} // namespace host
