#pragma once

#include "teskara/element/TeskElement.h"

class TeskButton;
class TeskSlider;

// Plain values from which a scroll bar is made without a node of its own.
struct _CreateScrollBar : _CreateElement {
    u32 Range = 0;
    bool Vertical = false;
};

// A slider with a button for each direction, and one voice: the parent hears of the value only. Upright, as lists use
// it, it counts from the bottom, so the upper button raises the value. Parts may be missing or go away.
class TESKARA_EXPORT TeskScrollBar : public TeskElement
{
public:
    using TeskElement::TeskElement;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override;
    MvTypeDefinition* GetMvType() override;

    // These run scripts when they change the value. Without a slider they do nothing, and the value is 0.
    virtual void SetRange(unsigned int range);
    virtual void SetValue(unsigned int value);
    virtual void RaiseValue(unsigned int amount);
    virtual void LowerValue(unsigned int amount);
    virtual unsigned int GetValue();

    // As the mouse wheel turns: a step for each 40 units, upwards if it is positive.
    void Turn(int offset);

    // Makes the parts of a scroll bar that a control has made for itself. A null template means the one named
    // "verticalscrollbar" or "scrollbar". The caller gives the sizes by RecalculateSize.
    void Create(const _CreateScrollBar& record, XMLNode* templateNode);

    u32 Range = 0;
    bool Vertical = false;
    TeskButton* UpButton = nullptr; // children, null for none
    TeskButton* DownButton = nullptr;
    TeskSlider* Slider = nullptr;

private:
    void ForgetPart(const TeskElement* part);
};
