#include "teskara/windows/TeskContextMenuItem.h"

#include "teskara/core/Numbers.h"
#include "teskara/windows/CContextMenuHandler.h"
#include "teskara/windows/MenuHandlerWatch.h"
#include "teskara/windows/TeskContextMenu.h"

TeskContextMenuItem::TeskContextMenuItem(TeskContextMenu& menu, u32 id, const char* text)
    : TeskContextMenuNode(menu, ContextMenuItem, id), Text(text)
{
}

// A row that is nothing but its text shows no check mark.
u64 TeskContextMenuItem::Render()
{
    TeskTexture* texture = pMenu->ItemTexture.get();
    const bool isHighlighted = IsHighlighted();
    if (!isHighlighted && !texture)
        return DrawLabel(Text, 0);

    u32 border = isHighlighted ? DrawHighlight(pMenu->HighlightItemTexture.get()) : DrawFace(Rect, texture);
    if (Checked && pMenu->ItemCheckTexture)
        border = DrawCheckMark(border);
    return DrawLabel(Text, border);
}

// A square at the right end of the row, inside of its border. The text keeps as far from the edge as the mark's border
// is wide.
u32 TeskContextMenuItem::DrawCheckMark(u32 border) const
{
    tagRECT square = Rect;
    square.top = WrapAdd(square.top, border);
    square.right = WrapSub(square.right, border);
    square.bottom = WrapSub(square.bottom, border);
    square.left = WrapSub(square.right, WrapSub(square.bottom, square.top));
    return DrawFace(square, pMenu->ItemCheckTexture.get());
}

void TeskContextMenuItem::OnClick()
{
    CContextMenuHandler* handler = pMenu->pHandler;
    if (!handler)
        return;

    const MenuHandlerWatch watch(handler);
    handler->OnClick(ID);
    if (watch.Exists())
        handler->DestroyMenu(true);
}
