#pragma once

#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskTexture.h"

#include <memory>

class SliderTrack;

// Plain values from which a slider is made without markup.
struct _CreateSlider : _CreateElement {
    u32 Border = 0;
    u32 Range = 0;
    bool Vertical = false;
    bool TexturesFromTemplate = false;
};

// Holds a number between 0 and a range, which the user sets by dragging a handle. A vertical slider has its range at
// the top. The handle jumps to a press.
class TESKARA_EXPORT TeskSlider : public TeskElement
{
public:
    TeskSlider(const char* type, TeskElement* parent, const char* name);

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void RecalculateSize(bool recurse) override;
    void Render() override;
    bool OnLMouseUp(_Point2i& point) override;
    bool OnLMouseDown(_Point2i& point) override;
    bool OnMouseMove(_Point2i& point) override;
    MvTypeDefinition* GetMvType() override;

    // Takes the value, or the range if that is less, and moves the handle. A change is told to the parent, unless the
    // slider is too small for its handle. May run scripts.
    virtual void SetValue(unsigned int value);

    // Takes the value for which the handle stands so many pixels from the start of its track. May run scripts.
    virtual void SetPosition(unsigned int position);

    // Fills a slider that was made without markup. A null template means the one named "slider".
    void Create(const _CreateSlider& record, XMLNode* templateNode);

    std::unique_ptr<TeskTexture> Texture;
    std::unique_ptr<TeskTexture> HandleTexture;
    u32 Border = 0;
    bool Vertical = false;
    u32 Range = 100;
    ScriptPointer OnChange;
    u32 HandleWidth = 5;
    u32 HandleHeight = 16;
    u32 Value = 0;
    u32 Position = 0; // of the handle, from the start of its track
    bool Dragging = false;

private:
    SliderTrack Track() const;
    u32 PositionUnder(const _Point2i& point) const;
    void SizeHandle(u32 acrossTrack);
    tagRECT HandleRect() const;
};
