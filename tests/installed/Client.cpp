// Reaches the toolkit only through what an installed copy offers.

#include "teskara/core/CUIManager.h"
#include "teskara/core/platform/Platform.h"
#include "teskara/script/MvIndex.h"
#include "teskara/script/MvIndexIterator.h"

int main()
{
    SetPlatform(nullptr);
    MvIndex index(nullptr);
    MvIndexIterator walk(index);
    return F1(nullptr) == &g_UIManager && index.Resize(1) && !walk.First() ? 0 : 1;
}
