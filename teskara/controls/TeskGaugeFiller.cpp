#include "teskara/controls/TeskGaugeFiller.h"

#include "teskara/controls/FillerBar.h"
#include "teskara/controls/GaugeScale.h"
#include "teskara/controls/TeskGauge.h"
#include "teskara/controls/TextureMask.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/QuietFloats.h"
#include "teskara/element/MarkupTable.h"

#include <cmath>
#include <utility>

namespace {

constexpr char Kind[] = "gaugefiller";

// Below this nothing is to be seen of a bar.
constexpr float LeastFill = 0.001f;

constexpr MarkupForm<TeskGaugeFiller> AtLeastOnce = {
    "integer", [](TeskGaugeFiller& filler, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        const u32 repeat = source.Integer(tag, fallback.Number);
        filler.Repeat = repeat == 0 ? 1 : repeat;
    }};

// clang-format off
constexpr MarkupValue<TeskGaugeFiller> FillerValues[] = {
    {"Repeat",  AtLeastOnce,                                 0},
    {"Texture", Markup::Texture<&TeskGaugeFiller::Texture>, {}},
};
// clang-format on

constexpr MarkupPart FillerParts[] = {MaskAttribute};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "element",
    .Use = MarkupUse::Part,
    .Tables = {&RowsOf<FillerValues>},
    .Parts = {FillerParts},
});

// The memory of the last copy, so that a frame allocates nothing.
std::unique_ptr<TeskTexture> g_SpareCopy;

// A copy of a texture for the time of one drawing. It loads the image for itself and gives it back at the end.
class PassingCopy
{
public:
    explicit PassingCopy(const TeskTexture& source) : m_Copy(std::move(g_SpareCopy))
    {
        if (!m_Copy)
            m_Copy.reset(TeskTexture::New(""));
        if (m_Copy && !m_Copy->SetFrom(source))
            m_Copy.reset();
    }

    ~PassingCopy()
    {
        if (m_Copy)
            m_Copy->ReleaseImage();
        g_SpareCopy = std::move(m_Copy);
    }

    PassingCopy(const PassingCopy&) = delete;
    PassingCopy& operator=(const PassingCopy&) = delete;

    // Null: memory ran out.
    TeskTexture* Get() const { return m_Copy.get(); }

private:
    std::unique_ptr<TeskTexture> m_Copy;
};

// A share of what the gauge's border leaves of its width or height. Other positions stay as they are.
bool FollowCoordinate(i32& value, const ElementPosition& position, u32 dimension, u32 border)
{
    if (position.Type != PositionShare)
        return false;

    const QuietFloats quiet;
    const i32 share = TruncateToI32(static_cast<float>(dimension - border) * position.Share());
    return std::exchange(value, WrapAdd(share, border)) != value;
}

bool FollowDimension(u32& value, const ElementPosition& position, u32 dimension, u32 border)
{
    if (position.Type != PositionShare)
        return false;

    const QuietFloats quiet;
    const u32 inside = dimension - 2 * border;
    return std::exchange(value, TruncateToU32(static_cast<float>(inside) * position.Share())) != value;
}

i32 PartOf(i32 width, float share)
{
    const QuietFloats quiet;
    return TruncateToI32(static_cast<float>(width) * share);
}

tagRECT RectOf(const FillerBar::Piece& piece, tagRECT rect, bool isVertical)
{
    if (isVertical) {
        rect.bottom = WrapSub(rect.bottom, piece.Begin);
        rect.top = WrapSub(rect.bottom, piece.Length);
    } else {
        rect.left = WrapAdd(rect.left, piece.Begin);
        rect.right = WrapAdd(rect.left, piece.Length);
    }
    return rect;
}

} // namespace

TeskGaugeFiller::TeskGaugeFiller(const char* type, TeskElement* parent, const char* name)
    : TeskElement(type, parent, name)
{
    const TeskGauge* gauge = Gauge();
    if (!gauge)
        return;

    Range = gauge->Range;
    Vertical = gauge->Vertical;
    Value = gauge->Value;
}

TeskGauge* TeskGaugeFiller::Gauge() const
{
    return dynamic_cast<TeskGauge*>(Parent);
}

bool TeskGaugeFiller::FromXML(XMLNode*, XMLNode*)
{
    return false;
}

bool TeskGaugeFiller::FromXML(XMLNode* node)
{
    XMLNode* templateNode = TemplateFor(node, nullptr, Kind);
    if (!TeskElement::FromXML(node, templateNode))
        return false;

    const TeskGauge* gauge = Gauge();
    const u32 border = gauge ? gauge->Border : 0;
    if (PositionX.Type == PositionAbsolute)
        X = WrapAdd(X, border);
    if (PositionY.Type == PositionAbsolute)
        Y = WrapAdd(Y, border);

    const MarkupSource source(node, templateNode);
    if (!ReadMarkup<FillerValues>(*this, source))
        return false;

    MaskTextures(source, {Texture.get()});
    return true;
}

bool TeskGaugeFiller::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskElement::IsTypeOf(word);
}

void TeskGaugeFiller::RecalculateSize(bool)
{
    const TeskGauge* gauge = Gauge();
    if (!gauge)
        return;

    const u32 border = gauge->Border;
    bool changed = FollowCoordinate(X, PositionX, gauge->Width, border);
    changed |= FollowDimension(Width, PositionWidth, gauge->Width, border);
    changed |= FollowCoordinate(Y, PositionY, gauge->Height, border);
    changed |= FollowDimension(Height, PositionHeight, gauge->Height, border);
    if (changed)
        RecalculateChildrenSize();
}

void TeskGaugeFiller::SetValue(float value)
{
    Value = value;
    const ElementWatch self(*this);
    TeskElement* child = FirstChild;
    while (child) {
        const ElementWatch next(child->Next);
        if (auto* gauge = dynamic_cast<TeskGauge*>(child))
            gauge->SetValue(Value);
        if (!self.Exists())
            return;

        child = next.Get();
    }
}

void TeskGaugeFiller::Render()
{
    DrawBar();
    TeskElement::Render();
}

// The size of an image that is not loaded yet is not known, so a texture needs a rectangle in its markup.
void TeskGaugeFiller::DrawBar()
{
    if (!Texture)
        return;

    const PassingCopy copy(*Texture);
    const float fill = GaugeScale(Range).ShareOf(Value);
    if (copy.Get() && copy.Get()->GetSize() && std::isgreaterequal(fill, LeastFill))
        DrawPieces(*copy.Get(), fill);
}

// The image is cut at its right edge, in an upright bar too.
void TeskGaugeFiller::DrawPieces(TeskTexture& texture, float fill)
{
    const tagRECT rect = ScreenRect();
    const i32 fullWidth = WrapSub(texture.Right, texture.Left);
    const FillerBar bar(Vertical ? Height : Width, Repeat, fill);
    bar.ForEachPiece([&](const FillerBar::Piece& piece) {
        texture.Right = WrapAdd(texture.Left, PartOf(fullWidth, piece.Shown));
        TexturedRect(RectOf(piece, rect, Vertical), &texture);
    });
}
