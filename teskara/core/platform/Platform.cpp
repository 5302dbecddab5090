#include "teskara/core/platform/Platform.h"

namespace {

Platform* g_Platform = nullptr;

} // namespace

Platform& CurrentPlatform()
{
    return g_Platform ? *g_Platform : SystemPlatform();
}

void SetPlatform(Platform* platform)
{
    g_Platform = platform;
}
