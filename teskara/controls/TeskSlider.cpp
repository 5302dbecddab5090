#include "teskara/controls/TeskSlider.h"

#include "teskara/controls/SliderTrack.h"
#include "teskara/controls/TextureMask.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/script/TypeGlobals.h"

#include <algorithm>
#include <limits>

namespace {

constexpr char Kind[] = "slider";

constexpr u32 HeightWithoutMarkup = 16;

// Of the handle, along the track.
constexpr u32 HandleLength = 5;

// clang-format off
// All that a slider without markup may take from a template.
constexpr MarkupValue<TeskSlider> SliderTextures[] = {
    {"Texture",       Markup::Texture<&TeskSlider::Texture>,       {}},
    {"HandleTexture", Markup::Texture<&TeskSlider::HandleTexture>, {}},
};

constexpr MarkupValue<TeskSlider> SliderValues[] = {
    {"Vertical", Markup::Toggle<&TeskSlider::Vertical>, false},
    {"Range",    Markup::Integer<&TeskSlider::Range>,   0},
    {"Border",   Markup::Integer<&TeskSlider::Border>,  0},
};

constexpr MarkupValue<TeskSlider> SliderScripts[] = {
    {"OnChange", Markup::Script<&TeskSlider::OnChange>, ""},
};
// clang-format on

constexpr MarkupPart SliderParts[] = {MaskAttribute};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "element",
    .ScriptType = &pTeskSliderType,
    .Tables = {&RowsOf<SliderValues>, &RowsOf<SliderTextures>, &RowsOf<SliderScripts>},
    .Parts = {SliderParts},
});

} // namespace

TeskSlider::TeskSlider(const char* type, TeskElement* parent, const char* name) : TeskElement(type, parent, name)
{
    Height = HeightWithoutMarkup;
}

bool TeskSlider::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    if (!TeskElement::FromXML(node, templateNode))
        return false;

    const MarkupSource source(node, templateNode);
    if (!ReadMarkup<SliderValues>(*this, source) || !ReadMarkup<SliderTextures>(*this, source)
        || !ReadMarkup<SliderScripts>(*this, source))
        return false;

    MaskTextures(source, {Texture.get(), HandleTexture.get()});
    return true;
}

bool TeskSlider::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskElement::IsTypeOf(word);
}

MvTypeDefinition* TeskSlider::GetMvType()
{
    return pTeskSliderType;
}

void TeskSlider::Create(const _CreateSlider& record, XMLNode* templateNode)
{
    if (!templateNode)
        templateNode = g_UIManager.FindTemplate(Kind);
    CreateFrom(record);
    Border = record.Border;
    Range = record.Range;
    Vertical = record.Vertical;
    if (record.TexturesFromTemplate)
        ReadMarkup<SliderTextures>(*this, {nullptr, templateNode});
    MoveZTop(true);
}

// Across the track the handle is as wide as the slider, also a horizontal one until it is drawn.
void TeskSlider::RecalculateSize(bool recurse)
{
    const ElementWatch self(*this);
    TeskElement::RecalculateSize(recurse);
    if (!self.Exists())
        return;

    SizeHandle(Width - 2 * Border);
    SetValue(Value);
}

void TeskSlider::SizeHandle(u32 acrossTrack)
{
    HandleWidth = Vertical ? acrossTrack : HandleLength;
    HandleHeight = Vertical ? HandleLength : acrossTrack;
}

SliderTrack TeskSlider::Track() const
{
    using enum SliderTrack::Direction;
    const u32 borders = 2 * Border;
    return Vertical ? SliderTrack(Height, HandleHeight + borders, Range, Backward)
                    : SliderTrack(Width, HandleWidth + borders, Range, Onward);
}

void TeskSlider::SetValue(unsigned int value)
{
    const u32 old = Value;
    Value = std::min(value, Range);
    const SliderTrack track = Track();
    Position = track.IsTooShort() ? 0 : track.PositionOf(Value);
    if (track.IsTooShort() || Value == old)
        return;

    const ElementWatch self(*this);
    NotifyParent(NotifyValueChanged, Value);
    if (self.Exists())
        RunScript(OnChange);
}

void TeskSlider::SetPosition(unsigned int position)
{
    const SliderTrack track = Track();
    if (track.IsTooShort())
        Position = 0;
    if (track.Travel() != 0)
        SetValue(track.ValueAt(position));
}

void TeskSlider::Render()
{
    if (Border != 0)
        TexturedRectBordered(ScreenRect(), Texture.get(), Border);
    else
        TexturedRect(ScreenRect(), Texture.get());
    SizeHandle((Vertical ? Width : Height) - 2 * Border);
    TexturedRect(HandleRect(), HandleTexture.get());
    TeskElement::Render();
}

tagRECT TeskSlider::HandleRect() const
{
    const i32 left = WrapAdd(AbsoluteX, Border + (Vertical ? 0 : Position));
    const i32 top = WrapAdd(AbsoluteY, Border + (Vertical ? Position : 0));
    return {left, top, WrapAdd(left, HandleWidth), WrapAdd(top, HandleHeight)};
}

// Where the handle begins if its middle lies under the point.
u32 TeskSlider::PositionUnder(const _Point2i& point) const
{
    const i64 pointer = Vertical ? point.y : point.x;
    const i64 track = Vertical ? AbsoluteY : AbsoluteX;
    const u32 handle = Vertical ? HandleHeight : HandleWidth;
    const i64 position = pointer - handle / 2 - Border - track;
    return static_cast<u32>(std::clamp<i64>(position, 0, std::numeric_limits<u32>::max()));
}

bool TeskSlider::OnLMouseDown(_Point2i& point)
{
    const ElementWatch self(*this);
    SetPosition(PositionUnder(point));
    if (!self.Exists())
        return true;

    Dragging = true;
    TeskElement::OnLMouseDown(point);
    return true;
}

bool TeskSlider::OnMouseMove(_Point2i& point)
{
    const ElementWatch self(*this);
    if (Dragging)
        SetPosition(PositionUnder(point));
    if (self.Exists())
        TeskElement::OnMouseMove(point);
    return true;
}

bool TeskSlider::OnLMouseUp(_Point2i& point)
{
    Dragging = false;
    TeskElement::OnLMouseUp(point);
    return true;
}
