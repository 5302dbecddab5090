#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"
#include "teskara/core/utf8string.h"
#include "teskara/element/ScriptHold.h"

class TeskFrame;
class TeskTabControl;

// One tab of a tab control, which owns it and knows it by an id that stays the same while the tab lives. The frame with
// what the tab shows is a child of the control.
class TESKARA_EXPORT CTeskTab
{
public:
    // A null name is empty. Throws when there is no memory.
    CTeskTab(TeskTabControl* control, u32 id, const char* name, u32 width);

    // A null name is empty. The tab stays as wide as it was. Nothing changes if memory runs out.
    void Rename(const char* name) noexcept;

    utf8string Name; // caption; found in any case
    u32 Width; // in the strip
    u32 ID; // from 1
    u32 Order = 0; // from 0; TabStrip keeps it
    TeskFrame* Frame = nullptr; // null if a script deleted it
    TeskTabControl* pTabControl;
    u64 Serial; // of all tabs that there ever were; never used twice
    ScriptHold<CTeskTab> Hold;
};
