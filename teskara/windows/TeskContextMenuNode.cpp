#include "teskara/windows/TeskContextMenuNode.h"

#include "teskara/core/Numbers.h"
#include "teskara/windows/TeskContextMenu.h"

TeskContextMenuNode::TeskContextMenuNode(TeskContextMenu& menu, ContextMenuNodeType type, u32 id)
    : pMenu(&menu), Type(type), ID(id)
{
}

TeskContextMenuNode::~TeskContextMenuNode()
{
    pMenu->Remove(*this);
}

bool TeskContextMenuNode::IsHighlighted() const
{
    return pMenu->Highlighted == this;
}

u32 TeskContextMenuNode::DrawFace(const tagRECT& rect, TeskTexture* texture) const
{
    if (!texture)
        return 0;

    if (texture->Border != 0)
        pMenu->TexturedRectBordered(rect, texture, texture->Border);
    else
        pMenu->TexturedRect(rect, texture);
    return texture->Border;
}

u32 TeskContextMenuNode::DrawHighlight(TeskTexture* texture) const
{
    if (!texture)
        pMenu->FillRect(Rect, pMenu->HighlightColor);
    return DrawFace(Rect, texture);
}

u64 TeskContextMenuNode::DrawLabel(const utf8string& text, u32 inset) const
{
    return pMenu->DrawTextA(pMenu->Font.get(), text.c_str(), WrapAdd(Rect.left, inset), WrapAdd(Rect.top, inset));
}
