#pragma once

#include "teskara/windows/TeskContextMenuNode.h"

// A row that can be picked, which closes all menus.
class TESKARA_EXPORT TeskContextMenuItem : public TeskContextMenuNode
{
public:
    TeskContextMenuItem(TeskContextMenu& menu, u32 id, const char* text);

    u64 Render() override;
    void OnClick() override;

    utf8string Text;
    bool Checked = false;

private:
    u32 DrawCheckMark(u32 border) const;
};
