#pragma once

#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskTexture.h"

#include <memory>

class TeskGauge;

// The bar in a gauge, which makes it from its own markup. A filler that is made by its kind from markup is refused; one
// that is made without markup, or outside of a gauge, is empty.
class TESKARA_EXPORT TeskGaugeFiller : public TeskElement
{
public:
    TeskGaugeFiller(const char* type, TeskElement* parent, const char* name);

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void RecalculateSize(bool recurse) override;
    void Render() override;

    // Takes the value over as it stands, and passes it on to the gauges in the filler.
    virtual void SetValue(float value);

    // Reads the filler for its gauge. Positions in pixels count from inside of the gauge's border. False: it was
    // deleted meanwhile, or memory ran out.
    bool FromXML(XMLNode* node);

    // The gauge that the filler lies in; null: it lies elsewhere, or the gauge is being destroyed.
    TeskGauge* Gauge() const;

    std::unique_ptr<TeskTexture> Texture;
    float Range = 1.0f;
    float Value = 0;
    bool Vertical = false;
    u32 Repeat = 1; // how many times the image is drawn side by side

private:
    void DrawBar();
    void DrawPieces(TeskTexture& texture, float fill);
};
