#include "teskara/text/KeyRepeat.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/platform/PlatformCalls.h"
#include "teskara/element/ElementWatch.h"

void KeyRepeat::Hold(u32 key)
{
    HeldKey = key;
    NextRepeatTick = System::GetTickCount() + g_UIManager.KeyRepeatDelay;
}

void KeyRepeat::Release(u32 key)
{
    if (key == HeldKey)
        HeldKey = 0;
}

bool KeyRepeat::Run(TeskElement& field)
{
    if (HeldKey == 0)
        return true;
    if (!field.IsFocus()) {
        HeldKey = 0;
        return true;
    }
    const u32 due = NextRepeatTick;
    if (System::GetTickCount() <= due)
        return true;

    const ElementWatch watch(field);
    field.OnKeyDown(HeldKey);
    if (!watch.Exists())
        return false;

    NextRepeatTick = due + g_UIManager.KeyRepeatRate; // the key itself has set it for a first repeat
    return true;
}
