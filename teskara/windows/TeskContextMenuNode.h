#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"
#include "teskara/core/utf8string.h"

class TeskContextMenu;
class TeskTexture;

enum ContextMenuNodeType : u32 {
    ContextMenuItem = 1,
    ContextMenuSubmenu = 2,
    ContextMenuSeparator = 3,
};

// A row of a context menu, which owns it.
class TESKARA_EXPORT TeskContextMenuNode
{
public:
    TeskContextMenuNode(TeskContextMenu& menu, ContextMenuNodeType type, u32 id);

    // Takes the row out of its menu.
    virtual ~TeskContextMenuNode();
    TeskContextMenuNode(const TeskContextMenuNode&) = delete;
    TeskContextMenuNode& operator=(const TeskContextMenuNode&) = delete;

    // Draws the row. Returns the width of its text in pixels.
    virtual u64 Render() = 0;

    // The row was picked. Afterwards it may be gone, as may its menu and the handler.
    virtual void OnClick() = 0;

    tagRECT Rect; // on the screen, as it was drawn last
    TeskContextMenu* pMenu;
    TeskContextMenuNode* Previous = nullptr;
    TeskContextMenuNode* Next = nullptr;
    u32 Type; // a ContextMenuNodeType
    u32 ID;

protected:
    bool IsHighlighted() const;

    // Draws a texture, if there is one. Returns the width of its border.
    u32 DrawFace(const tagRECT& rect, TeskTexture* texture) const;

    // Draws the face of a row that is under the mouse: the texture, or else a plain colour.
    u32 DrawHighlight(TeskTexture* texture) const;

    // Draws a text, so far from the corner of the row. Returns its width.
    u64 DrawLabel(const utf8string& text, u32 inset) const;
};
