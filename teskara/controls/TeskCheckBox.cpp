#include "teskara/controls/TeskCheckBox.h"

#include "teskara/controls/Placement.h"
#include "teskara/controls/PressTaking.h"
#include "teskara/controls/PressTextures.h"
#include "teskara/controls/TextureMask.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/element/ProcessedText.h"
#include "teskara/script/TypeGlobals.h"

#include <algorithm>

namespace {

constexpr char Kind[] = "checkbox";

// Of the box, while the size of its image is not known.
constexpr u32 PlainBoxSide = 16;

// Between the box and the text.
constexpr u32 LabelGap = 4;

// clang-format off
constexpr MarkupValue<TeskCheckBox> CheckBoxValues[] = {
    {"Text",                  Markup::Sequence<&TeskCheckBox::Text>,                 ""},
    {"Font",                  Markup::Font<&TeskCheckBox::Font>,                     {}},
    {"Texture",               Markup::Texture<&TeskCheckBox::Texture>,               {}},
    {"TexturePressed",        Markup::Texture<&TeskCheckBox::TexturePressed>,        {}},
    {"TextureHover",          Markup::Texture<&TeskCheckBox::TextureHover>,          {}},
    {"TextureChecked",        Markup::Texture<&TeskCheckBox::TextureChecked>,        {}},
    {"TextureCheckedPressed", Markup::Texture<&TeskCheckBox::TextureCheckedPressed>, {}},
    {"TextureCheckedHover",   Markup::Texture<&TeskCheckBox::TextureCheckedHover>,   {}},
};
// clang-format on

constexpr MarkupPart CheckBoxParts[] = {MaskAttribute};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "element",
    .ScriptType = &pTeskCheckBoxType,
    .Tables = {&RowsOf<CheckBoxValues>},
    .Parts = {CheckBoxParts},
});

// How high and wide the box is with that image, which may be null.
u32 BoxSideOf(TeskTexture* texture)
{
    return texture && texture->GetSize() ? WrapSub<u32>(texture->Bottom, texture->Top) : PlainBoxSide;
}

} // namespace

bool TeskCheckBox::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    if (!TeskElement::FromXML(node, templateNode))
        return false;

    const MarkupSource source(node, templateNode);
    if (!ReadMarkup<CheckBoxValues>(*this, source))
        return false;

    MaskTextures(source,
        {Texture.get(), TexturePressed.get(), TextureHover.get(), TextureChecked.get(), TextureCheckedPressed.get(),
            TextureCheckedHover.get()});
    return true;
}

bool TeskCheckBox::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskElement::IsTypeOf(word);
}

MvTypeDefinition* TeskCheckBox::GetMvType()
{
    return pTeskCheckBoxType;
}

void TeskCheckBox::Render()
{
    TeskTexture* texture = TextureForState();
    const u32 side = BoxSideOf(texture);
    TexturedRect(BoxRect(side), texture);
    if (DrawLabel(side))
        TeskElement::Render();
}

TeskTexture* TeskCheckBox::TextureForState() const
{
    if (!Texture)
        return nullptr;

    const PressTextures open = {Texture.get(), TexturePressed.get(), TextureHover.get()};
    const PressTextures checked = {
        TextureChecked ? TextureChecked.get() : Texture.get(), TextureCheckedPressed.get(), TextureCheckedHover.get()};
    return (Checked ? checked : open).Choose(Pressed, IsMouseOver());
}

// A box that is too high for the element becomes as high as the element.
tagRECT TeskCheckBox::BoxRect(u32 side) const
{
    const u32 fitting = std::min(side, Height);
    const i32 top = Height < side ? AbsoluteY : MiddleOf(*this, side);
    return {AbsoluteX, top, WrapAdd(AbsoluteX, fitting), WrapAdd(top, fitting)};
}

// False: the check box has died of its text.
bool TeskCheckBox::DrawLabel(u32 boxSide)
{
    return UseProcessedText(*this, Text, [this, boxSide](const char* text) {
        const i32 x = WrapAdd(WrapAdd(AbsoluteX, LabelGap), std::min(boxSide, Height));
        if (Font)
            DrawTextA(Font.get(), text, x, MiddleOf(*this, Font->Size));
    });
}

bool TeskCheckBox::OnLMouseDown(_Point2i& point)
{
    Pressed = true;
    TakePress(*this, point);
    return true;
}

bool TeskCheckBox::OnLMouseUp(_Point2i& point)
{
    Pressed = false;
    Checked = !Checked;
    TakeRelease(*this, point);
    return true;
}
