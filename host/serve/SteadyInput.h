#pragma once

#include "teskara/core/Types.h"

#include <string_view>
#include <vector>

namespace host {

class InterfaceSession;

enum class MouseButton { Left, Right };

// Input as somebody at a mouse and an American keyboard gives it, in steps of a frame, for a session whose clock stands
// still: the same steps always give the same.
class SteadyInput
{
public:
    static constexpr u32 FrameMilliseconds = 16;

    // The session is borrowed.
    explicit SteadyInput(InterfaceSession& session) : m_Session(session) { }

    // Lets frames pass, each with its time; the last one may be shorter.
    void PassFrames(u32 count);
    void PassTime(u32 milliseconds);

    // Lets a frame pass in no time, so that everything has its place.
    void Settle();

    u32 Frames() const { return m_Frames; }
    u32 Milliseconds() const { return m_Milliseconds; }

    void MoveMouse(_Point2i place);
    void Press(MouseButton button);
    void Release(MouseButton button);
    void TurnWheel(int units);

    // Types a text in UTF-8, key by key; characters that are on no key come as a text.
    void Type(std::string_view text);

    // Presses keys one after the other, lets a frame pass, and releases them.
    void PressTogether(const std::vector<u32>& keys);

private:
    void PressCharacter(u32 key, char character);
    void TypeCharacter(std::string_view character);

    InterfaceSession& m_Session;
    u32 m_Frames = 0;
    u32 m_Milliseconds = 0;
};

// The keys of a chord such as Ctrl+Shift+Left, by their names for scripts, in any case. Empty if one is unknown; unknown
// then names it.
std::vector<u32> FindKeys(std::string_view chord, std::string_view& unknown);

} // namespace host
