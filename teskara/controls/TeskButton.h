#pragma once

#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskFont.h"
#include "teskara/element/TeskPreParse.h"
#include "teskara/element/TeskTexture.h"

#include <memory>

// Plain values from which a button is made without markup. A colour of 0 falls back to a template.
struct _CreateButton : _CreateElement {
    const char* Text = nullptr;
    _CreateFont Font;
    u32 BackgroundColor = 0;
    bool TexturesFromTemplate = false;
    u32 Border = 0;
    u32 BorderColor = 0;
};

// A push button with a centred text. It takes every press, also one that it has no script for, so that the release
// comes back to it wherever the mouse is then; that counts as a click.
class TESKARA_EXPORT TeskButton : public TeskElement
{
public:
    using TeskElement::TeskElement;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;
    bool OnLMouseUp(_Point2i& point) override;
    bool OnLMouseDown(_Point2i& point) override;
    MvTypeDefinition* GetMvType() override;

    // Fills a button that was made without markup. A null template means the one named "button".
    void Create(const _CreateButton& record, XMLNode* templateNode);

    TeskPreParse Text; // evaluated in every frame
    std::unique_ptr<TeskFont> Font;
    u32 BackgroundColor = 0;
    u32 Border = 0;
    u32 BorderColor = 0;
    std::unique_ptr<TeskTexture> Texture; // without it none of them is drawn
    std::unique_ptr<TeskTexture> TexturePressed;
    std::unique_ptr<TeskTexture> TextureHover;
    bool Pressed = false;

private:
    TeskTexture* TextureForState() const;
    bool DrawLabel();
};
