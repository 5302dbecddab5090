#pragma once

#include "teskara/controls/TeskFrame.h"

// The inside of a window, where its content goes. It is no name of its own in the full names of what it holds; and what
// it hears, as it does all its notifications, its parent hears.
class TESKARA_EXPORT TeskWindowClient : public TeskFrame
{
public:
    using TeskFrame::TeskFrame;

    bool IsTypeOf(const char* word) override;
    void OnCreate() override;
};
