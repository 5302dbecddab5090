#pragma once

#include "teskara/element/TeskElement.h"

// The root of the tree. It follows the size of the host's surface and belongs to the manager.
class TESKARA_EXPORT TeskScreen : public TeskElement
{
public:
    TeskScreen();

    bool IsTypeOf(const char* word) override;
    void RecalculateSize(bool recurse) override;
    bool OnLMouseDown(_Point2i& point) override;
    void MoveZUp() override;
    void MoveZDown() override;
    void MoveZTop(bool includeParents) override;
    void MoveZBottom() override;
};
