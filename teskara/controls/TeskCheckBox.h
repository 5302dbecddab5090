#pragma once

#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskFont.h"
#include "teskara/element/TeskPreParse.h"
#include "teskara/element/TeskTexture.h"

#include <memory>

// A box that each release checks or unchecks, with a text to its right. It takes every press, and so every release of
// one.
class TESKARA_EXPORT TeskCheckBox : public TeskElement
{
public:
    using TeskElement::TeskElement;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;
    bool OnLMouseUp(_Point2i& point) override;
    bool OnLMouseDown(_Point2i& point) override;
    MvTypeDefinition* GetMvType() override;

    TeskPreParse Text; // evaluated in every frame
    std::unique_ptr<TeskFont> Font;
    std::unique_ptr<TeskTexture> Texture; // without it none of them is drawn
    std::unique_ptr<TeskTexture> TexturePressed;
    std::unique_ptr<TeskTexture> TextureHover;
    std::unique_ptr<TeskTexture> TextureChecked;
    std::unique_ptr<TeskTexture> TextureCheckedPressed;
    std::unique_ptr<TeskTexture> TextureCheckedHover;
    bool Pressed = false;
    bool Checked = false;

private:
    TeskTexture* TextureForState() const;
    tagRECT BoxRect(u32 side) const;
    bool DrawLabel(u32 boxSide);
};
