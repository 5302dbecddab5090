#include "teskara/controls/TeskButton.h"

#include "teskara/controls/Panel.h"
#include "teskara/controls/Placement.h"
#include "teskara/controls/PressTaking.h"
#include "teskara/controls/PressTextures.h"
#include "teskara/controls/TextureMask.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/element/ProcessedText.h"
#include "teskara/script/TypeGlobals.h"

namespace {

constexpr char Kind[] = "button";

// clang-format off
constexpr MarkupValue<TeskButton> ButtonValues[] = {
    {"BackgroundColor", Markup::Hex<&TeskButton::BackgroundColor>, 0},
    {"BorderColor",     Markup::Hex<&TeskButton::BorderColor>,     0},
    {"Border",          Markup::Integer<&TeskButton::Border>,      0},
    {"Font",            Markup::Font<&TeskButton::Font>,           {}},
    {"Text",            Markup::Sequence<&TeskButton::Text>,       ""},
};

constexpr MarkupValue<TeskButton> ButtonTextures[] = {
    {"Texture",        Markup::Texture<&TeskButton::Texture>,        {}},
    {"TexturePressed", Markup::Texture<&TeskButton::TexturePressed>, {}},
    {"TextureHover",   Markup::Texture<&TeskButton::TextureHover>,   {}},
};
// clang-format on

constexpr MarkupPart ButtonParts[] = {MaskAttribute};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "element",
    .ScriptType = &pTeskButtonType,
    .Tables = {&RowsOf<ButtonValues>, &RowsOf<ButtonTextures>},
    .Parts = {ButtonParts},
});

} // namespace

bool TeskButton::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    if (!TeskElement::FromXML(node, templateNode))
        return false;

    const MarkupSource source(node, templateNode);
    if (!ReadMarkup<ButtonValues>(*this, source) || !ReadMarkup<ButtonTextures>(*this, source))
        return false;

    MaskTextures(source, {Texture.get(), TexturePressed.get(), TextureHover.get()});
    return true;
}

bool TeskButton::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskElement::IsTypeOf(word);
}

MvTypeDefinition* TeskButton::GetMvType()
{
    return pTeskButtonType;
}

void TeskButton::Create(const _CreateButton& record, XMLNode* templateNode)
{
    if (!templateNode)
        templateNode = g_UIManager.FindTemplate(Kind);
    const MarkupSource source(nullptr, templateNode);
    if (record.Text)
        Text.PreParse(record.Text);
    CreateFrom(record);
    Border = record.Border;
    BorderColor = record.BorderColor ? record.BorderColor : source.Hex("BorderColor", 0);
    BackgroundColor = record.BackgroundColor ? record.BackgroundColor : source.Hex("BackgroundColor", 0);
    Font.reset(TeskFont::New(this, record.Font, templateNode));
    if (record.TexturesFromTemplate)
        ReadMarkup<ButtonTextures>(*this, source);
    MoveZTop(true);
}

void TeskButton::Render()
{
    DrawPanel(*this, {TextureForState(), BackgroundColor, Border, BorderColor});
    if (DrawLabel())
        TeskElement::Render();
}

TeskTexture* TeskButton::TextureForState() const
{
    if (!Texture)
        return nullptr;

    const PressTextures textures = {Texture.get(), TexturePressed.get(), TextureHover.get()};
    return textures.Choose(Pressed, IsMouseOver());
}

// False: the button has died of its text.
bool TeskButton::DrawLabel()
{
    return UseProcessedText(*this, Text, [this](const char* text) {
        if (Font)
            DrawTextCenter(Font.get(), text, AbsoluteX, MiddleOf(*this, Font->Size));
    });
}

bool TeskButton::OnLMouseDown(_Point2i& point)
{
    Pressed = true;
    TakePress(*this, point);
    return true;
}

bool TeskButton::OnLMouseUp(_Point2i& point)
{
    Pressed = false;
    TakeRelease(*this, point);
    return true;
}
