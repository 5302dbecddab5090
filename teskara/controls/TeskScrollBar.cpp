#include "teskara/controls/TeskScrollBar.h"

#include "teskara/controls/TeskButton.h"
#include "teskara/controls/TeskSlider.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/MarkupReading.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/script/TypeGlobals.h"

#include <algorithm>

namespace {

constexpr char Kind[] = "scrollbar";
constexpr char VerticalTemplate[] = "verticalscrollbar";
constexpr char ButtonKind[] = "button";
constexpr char SliderKind[] = "slider";

// Of the wheel.
constexpr u32 UnitsPerStep = 40;

// clang-format off
constexpr MarkupValue<TeskScrollBar> ScrollBarValues[] = {
    {"Vertical", Markup::Toggle<&TeskScrollBar::Vertical>, false},
    {"Range",    Markup::Integer<&TeskScrollBar::Range>,   0},
};
// clang-format on

// Where a template has a button of a scroll bar: as an element of its own, or as its images alone.
struct ButtonTags {
    const char* Name;
    TagName Element;
    TagName Texture;
    TagName TextureHover;
    TagName TexturePressed;
};

constexpr ButtonTags UpTags = {"up", "UpButton", "UpTexture", "UpTextureHover", "UpTexturePressed"};
constexpr ButtonTags DownTags = {"down", "DownButton", "DownTexture", "DownTextureHover", "DownTexturePressed"};

constexpr MarkupPart SliderPart = {"Slider", SliderKind};
constexpr MarkupPart SliderTexturePart = {"SliderTexture", "texture", MarkupPlace::TemplateChild};
constexpr MarkupPart SliderHandlePart = {"SliderHandleTexture", "texture", MarkupPlace::TemplateChild};

constexpr MarkupPart ScrollBarParts[] = {
    SliderPart,
    {UpTags.Element, ButtonKind, MarkupPlace::TemplateChild},
    {DownTags.Element, ButtonKind, MarkupPlace::TemplateChild},
    {UpTags.Texture, "texture", MarkupPlace::TemplateChild},
    {UpTags.TextureHover, "texture", MarkupPlace::TemplateChild},
    {UpTags.TexturePressed, "texture", MarkupPlace::TemplateChild},
    {DownTags.Texture, "texture", MarkupPlace::TemplateChild},
    {DownTags.TextureHover, "texture", MarkupPlace::TemplateChild},
    {DownTags.TexturePressed, "texture", MarkupPlace::TemplateChild},
    SliderTexturePart,
    SliderHandlePart,
};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "element",
    .ScriptType = &pTeskScrollBarType,
    .Tables = {&RowsOf<ScrollBarValues>},
    .Parts = {ScrollBarParts},
});

// Loads a part as an element of its kind. False: it failed, or the bar is gone. A part without markup is none.
template <class Part>
bool LoadPart(TeskScrollBar& bar, Part* TeskScrollBar::*field, const char* kind, const char* name, XMLNode* node)
{
    if (!node)
        return true;

    const ElementWatch watch(bar);
    auto* part = dynamic_cast<Part*>(g_UIManager.LoadElement(&bar, kind, name, node, nullptr));
    if (!part || !watch.Exists())
        return false;

    bar.*field = part;
    return true;
}

// Makes a part and has it filled. False: the bar is gone.
template <class Part, class Fill>
bool CreatePart(TeskScrollBar& bar, Part* TeskScrollBar::*field, const char* kind, const char* name, Fill fill)
{
    const ElementWatch watch(bar);
    Part* part = TeskElementFactory::New<Part>(kind, &bar, name);
    if (!part)
        return watch.Exists();

    bar.*field = part;
    fill(*part);
    return watch.Exists();
}

void FillButton(TeskButton& button, const ButtonTags& tags, XMLNode* templateNode)
{
    if (XMLNode* node = XMLHelper::GetChild(templateNode, tags.Element)) {
        button.FromXML(node, nullptr);
        return;
    }

    const ElementWatch watch(button);
    button.Create({}, nullptr);
    if (!watch.Exists())
        return;

    button.Texture.reset(button.TextureFromXML(nullptr, tags.Texture.Text, templateNode));
    button.TextureHover.reset(button.TextureFromXML(nullptr, tags.TextureHover.Text, templateNode));
    button.TexturePressed.reset(button.TextureFromXML(nullptr, tags.TexturePressed.Text, templateNode));
}

// A slider with markup of its own stands upright, whatever way the bar lies; some interfaces are drawn that way.
void FillSlider(TeskSlider& slider, const _CreateScrollBar& record, XMLNode* templateNode)
{
    const ElementWatch watch(slider);
    if (XMLNode* node = XMLHelper::GetChild(templateNode, SliderPart.Name)) {
        slider.FromXML(node, nullptr);
        if (!watch.Exists())
            return;

        slider.Vertical = true;
        slider.Range = record.Range;
        return;
    }
    _CreateSlider values;
    values.Range = record.Range;
    values.Vertical = record.Vertical;
    slider.Create(values, nullptr);
    if (!watch.Exists())
        return;

    slider.Texture.reset(slider.TextureFromXML(nullptr, SliderTexturePart.Name.Text, templateNode));
    slider.HandleTexture.reset(slider.TextureFromXML(nullptr, SliderHandlePart.Name.Text, templateNode));
}

} // namespace

bool TeskScrollBar::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    const MarkupSource source(node, templateNode);
    if (!TeskElement::FromXML(node, templateNode) || !ReadMarkup<ScrollBarValues>(*this, source))
        return false;

    XMLNode* up = XMLHelper::GetChild(templateNode, UpTags.Element);
    XMLNode* down = XMLHelper::GetChild(templateNode, DownTags.Element);
    return LoadPart(*this, &TeskScrollBar::Slider, SliderKind, "slider", source.Child(SliderPart.Name))
        && LoadPart(*this, &TeskScrollBar::UpButton, ButtonKind, "UpButton", up)
        && LoadPart(*this, &TeskScrollBar::DownButton, ButtonKind, "DownButton", down);
}

bool TeskScrollBar::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskElement::IsTypeOf(word);
}

MvTypeDefinition* TeskScrollBar::GetMvType()
{
    return pTeskScrollBarType;
}

void TeskScrollBar::Create(const _CreateScrollBar& record, XMLNode* templateNode)
{
    const MarkupReading reading;
    if (!templateNode)
        templateNode = g_UIManager.FindTemplate(record.Vertical ? VerticalTemplate : Kind);
    CreateFrom(record);
    Range = record.Range;
    Vertical = record.Vertical;

    const auto createButton = [&](TeskButton* TeskScrollBar::*field, const ButtonTags& tags) {
        return CreatePart(
            *this, field, ButtonKind, tags.Name, [&](TeskButton& button) { FillButton(button, tags, templateNode); });
    };
    const auto createSlider = [&] {
        return CreatePart(*this, &TeskScrollBar::Slider, SliderKind, "slider",
            [&](TeskSlider& slider) { FillSlider(slider, record, templateNode); });
    };
    if (createButton(&TeskScrollBar::UpButton, UpTags) && createButton(&TeskScrollBar::DownButton, DownTags)
        && createSlider())
        MoveZTop(true);
}

// What the parts have to say ends here, but for the value.
void TeskScrollBar::OnNotify(TeskElement* source, unsigned int code, unsigned long long)
{
    if (code == NotifyChildGoing)
        ForgetPart(source);
    else if (!Slider)
        return;
    else if (code == NotifyLeftPressed && source == UpButton)
        Slider->SetValue(Slider->Value + 1);
    else if (code == NotifyLeftPressed && source == DownButton && Slider->Value != 0)
        Slider->SetValue(Slider->Value - 1);
    else if (code == NotifyValueChanged && source == Slider)
        NotifyParent(NotifyValueChanged, Slider->Value);
}

void TeskScrollBar::ForgetPart(const TeskElement* part)
{
    if (part == UpButton)
        UpButton = nullptr;
    if (part == DownButton)
        DownButton = nullptr;
    if (part == Slider)
        Slider = nullptr;
}

void TeskScrollBar::SetRange(unsigned int range)
{
    if (!Slider)
        return;

    Range = range;
    Slider->Range = range;
    Slider->SetValue(Slider->Value);
}

void TeskScrollBar::SetValue(unsigned int value)
{
    if (Slider)
        Slider->SetValue(value);
}

void TeskScrollBar::RaiseValue(unsigned int amount)
{
    if (Slider)
        Slider->SetValue(Slider->Value + amount);
}

void TeskScrollBar::LowerValue(unsigned int amount)
{
    if (Slider)
        Slider->SetValue(Slider->Value - std::min(amount, Slider->Value));
}

void TeskScrollBar::Turn(int offset)
{
    if (offset > 0)
        RaiseValue(static_cast<u32>(offset) / UnitsPerStep);
    else if (offset < 0)
        LowerValue((0u - static_cast<u32>(offset)) / UnitsPerStep);
}

unsigned int TeskScrollBar::GetValue()
{
    return Slider ? Slider->Value : 0;
}
