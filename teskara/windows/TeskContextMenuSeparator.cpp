#include "teskara/windows/TeskContextMenuSeparator.h"

#include "teskara/windows/TeskContextMenu.h"

TeskContextMenuSeparator::TeskContextMenuSeparator(TeskContextMenu& menu, u32 id)
    : TeskContextMenuNode(menu, ContextMenuSeparator, id)
{
}

u64 TeskContextMenuSeparator::Render()
{
    DrawFace(Rect, pMenu->SeparatorTexture.get());
    return 0;
}

void TeskContextMenuSeparator::OnClick() { }
