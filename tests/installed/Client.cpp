// Reaches the toolkit only through what an installed copy offers.

#include "teskara/core/CUIManager.h"
#include "teskara/core/platform/Platform.h"

int main()
{
    SetPlatform(nullptr);
    return F1(nullptr) == &g_UIManager ? 0 : 1;
}
