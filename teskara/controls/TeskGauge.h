#pragma once

#include "teskara/controls/TeskFrame.h"

class TeskGaugeFiller;

// Shows a number between 0 and a range by a filler that grows inside of a frame. A gauge that lies in the filler of
// another one starts anew whenever its value reaches the range, so that both together show one number.
class TESKARA_EXPORT TeskGauge : public TeskFrame
{
public:
    TeskGauge(const char* type, TeskElement* parent, const char* name);

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;
    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override;
    MvTypeDefinition* GetMvType() override;

    // Keeps the value within the range and passes it on to the filler.
    virtual void SetValue(float value);

    std::unique_ptr<TeskTexture> TopTexture; // drawn over everything in the gauge
    bool Vertical = false; // for the filler that is made from markup
    float Range = 1.0f;
    bool InFiller = false; // the parent is a gauge filler
    TeskGaugeFiller* Filler = nullptr; // a child; null for none
    float Value = 0;

private:
    bool MakeFiller(XMLNode* node);
};
