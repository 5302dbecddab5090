#include "teskara/windows/TeskContextMenuSubmenu.h"

#include "teskara/core/Numbers.h"
#include "teskara/windows/CContextMenuHandler.h"
#include "teskara/windows/TeskContextMenu.h"

namespace {

// Where a submenu begins, from the right upper corner of the row that opens it.
constexpr i32 OffsetX = 2;
constexpr i32 OffsetY = -2;

} // namespace

TeskContextMenuSubmenu::TeskContextMenuSubmenu(
    TeskContextMenu& menu, u32 id, const char* text, CContextMenuHandler* handler)
    : TeskContextMenuNode(menu, ContextMenuSubmenu, id), Text(text), SubHandler(handler)
{
}

u64 TeskContextMenuSubmenu::Render()
{
    const u32 border = IsHighlighted() ? DrawHighlight(pMenu->HighlightSubmenuTexture.get())
                                       : DrawFace(Rect, pMenu->SubmenuTexture.get());
    return DrawLabel(Text, border);
}

void TeskContextMenuSubmenu::OnClick()
{
    if (pMenu->pHandler && SubHandler)
        SubHandler->CreateSubmenu(*pMenu->pHandler, ID, WrapAdd(Rect.right, OffsetX), WrapAdd(Rect.top, OffsetY));
}
