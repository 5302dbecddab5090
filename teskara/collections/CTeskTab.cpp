#include "teskara/collections/CTeskTab.h"

#include "teskara/core/BoundedText.h"

namespace {

u64 g_LastSerial = 0;

} // namespace

CTeskTab::CTeskTab(TeskTabControl* control, u32 id, const char* name, u32 width)
    : Name(TextOrEmpty(name)), Width(width), ID(id), pTabControl(control), Serial(++g_LastSerial)
{
}

void CTeskTab::Rename(const char* name) noexcept
{
    TryAssign(Name, name);
}
