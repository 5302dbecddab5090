#pragma once

#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskTexture.h"

#include <memory>

// Plain values from which a frame is made without markup.
struct _CreateFrame : _CreateElement {
    u32 BackgroundColor = 0;
    u32 Border = 0;
    u32 BorderColor = 0;
};

// A plain panel: an image, or a colour, with a border. A frame that shows something takes the mouse and tells its parent
// of it; one that shows nothing lets the mouse pass, as does a click-through flag.
class TESKARA_EXPORT TeskFrame : public TeskElement
{
public:
    using TeskElement::TeskElement;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;
    bool OnLMouseUp(_Point2i& point) override;
    bool OnLMouseDown(_Point2i& point) override;
    bool OnRMouseUp(_Point2i& point) override;
    bool OnRMouseDown(_Point2i& point) override;
    bool OnLMouseDoubleClick(_Point2i& point) override;
    bool OnRMouseDoubleClick(_Point2i& point) override;
    bool OnMouseMove(_Point2i& point) override;
    bool OnMouseWheel(int offset) override;
    MvTypeDefinition* GetMvType() override;

    // Fills a frame that was made without markup and puts it on top.
    void Create(const _CreateFrame& record);

    std::unique_ptr<TeskTexture> Texture;
    u32 BackgroundColor = 0;
    u32 Border = 0;
    u32 BorderColor = 0;

protected:
    // Whether it shows something.
    bool IsSolid() const { return Texture || BackgroundColor != 0; }

private:
    template <class Event> bool Take(Event baseEvent, bool passes, u32 code, u64 value);
};
