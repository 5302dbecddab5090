#pragma once

#include "teskara/controls/TeskButton.h"

// A button that runs a command of the host once its click is over.
class TESKARA_EXPORT TeskCommandButton : public TeskButton
{
public:
    using TeskButton::TeskButton;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    bool OnLMouseUp(_Point2i& point) override;

    utf8string Command; // empty for none
    utf8string Console; // where the command's output goes; empty for where all output goes
};
