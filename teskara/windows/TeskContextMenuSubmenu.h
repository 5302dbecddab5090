#pragma once

#include "teskara/windows/TeskContextMenuNode.h"

class CContextMenuHandler;

// A row that opens another menu beside it.
class TESKARA_EXPORT TeskContextMenuSubmenu : public TeskContextMenuNode
{
public:
    // handler: of that menu, borrowed; may be null.
    TeskContextMenuSubmenu(TeskContextMenu& menu, u32 id, const char* text, CContextMenuHandler* handler);

    u64 Render() override;
    void OnClick() override;

    utf8string Text;
    CContextMenuHandler* SubHandler;
};
