#pragma once

#include "teskara/windows/TeskContextMenuNode.h"

// A row that parts others.
class TESKARA_EXPORT TeskContextMenuSeparator : public TeskContextMenuNode
{
public:
    TeskContextMenuSeparator(TeskContextMenu& menu, u32 id);

    u64 Render() override;
    void OnClick() override;
};
