#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

class TeskElement;

// The key that is held down on a text field. The field gets it again and again, by its own frames: the host's repeats
// play no part.
class TESKARA_EXPORT KeyRepeat
{
public:
    // The key was pressed: its first repeat comes after the manager's delay.
    void Hold(u32 key);

    // That key was released.
    void Release(u32 key);
    void Stop() { HeldKey = 0; }

    // Called in each frame of the field. Gives it the key if its time has come, or stops if it has lost the focus. At
    // most one repeat a frame. May run scripts. False: the field is gone.
    bool Run(TeskElement& field);

    u32 HeldKey = 0; // 0 for none
    u32 NextRepeatTick = 0; // the next repeat comes after this tick
};
