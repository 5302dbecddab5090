#pragma once

#include "teskara/controls/TeskFrame.h"
#include "teskara/script/ElementType.h"

// teskframe: the background and the border of a frame.
class TeskFrameType : public ElementType<TeskFrame>
{
public:
    explicit TeskFrameType(const char* name);
};
