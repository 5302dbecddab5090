#pragma once

#include "teskara/controls/TeskCheckBox.h"

// A check box that runs a command of the host before it toggles, and that may follow a value of the host.
class TESKARA_EXPORT TeskCommandCheckBox : public TeskCheckBox
{
public:
    using TeskCheckBox::TeskCheckBox;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;
    bool OnLMouseUp(_Point2i& point) override;

    TeskPreParse Data; // the number that it becomes says in every frame whether the box is checked
    utf8string Command; // empty for none
    utf8string CommandChecked; // runs instead when a checked box is about to be unchecked; empty for the other one
    utf8string Console; // where the command's output goes; empty for where all output goes

private:
    bool FollowData();
};
