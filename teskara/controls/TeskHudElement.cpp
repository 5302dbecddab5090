#include "teskara/controls/TeskHudElement.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/DepthScope.h"
#include "teskara/core/Limits.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/script/TypeGlobals.h"

#include <new>
#include <utility>

namespace {

constexpr char Kind[] = "hudelement";

constexpr u32 WidthWithoutMarkup = 20;

// The value of a sequence that has none; it is not shown.
constexpr char NoValue[] = "NULL";

u32 g_UpdateDepth = 0;

constexpr MarkupForm<TeskHudElement> GroupWord = {
    "string", [](TeskHudElement& element, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        element.Group = std::make_unique<utf8string>(source.Text(tag, fallback.Text));
    }};

// clang-format off
constexpr MarkupValue<TeskHudElement> HudValues[] = {
    {"Text",           Markup::Sequence<&TeskHudElement::Text>,          ""},
    {"Group",          GroupWord,                                        ""},
    {"UpdateInterval", Markup::Integer<&TeskHudElement::UpdateInterval>, 0},
    {"Font",           Markup::Font<&TeskHudElement::Font>,              {}},
};
// clang-format on

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "element",
    .ScriptType = &pTeskHudElementType,
    .Tables = {&RowsOf<HudValues>},
});

} // namespace

bool TeskHudElement::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    if (!TeskElement::FromXML(node, templateNode) || !ReadMarkup<HudValues>(*this, {node, templateNode}))
        return false;

    if (Height == 0 && Font)
        Height = Font->Size;
    if (Width == 0)
        Width = WidthWithoutMarkup;
    return true;
}

bool TeskHudElement::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskElement::IsTypeOf(word);
}

MvTypeDefinition* TeskHudElement::GetMvType()
{
    return pTeskHudElementType;
}

void TeskHudElement::Render()
{
    if (!UpdateWhenDue())
        return;

    DrawCurrentText();
    TeskElement::Render();
}

// Counts this frame, if there is something to show for it. False: the element has died of its text.
bool TeskHudElement::UpdateWhenDue()
{
    if (Text.Sequence == 0 || (CurrentText && ++FramesSinceUpdate < UpdateInterval))
        return true;

    const ElementWatch self(*this);
    UpdateText();
    return self.Exists();
}

void TeskHudElement::DrawCurrentText()
{
    if (CurrentText && !CurrentText->empty() && !EqualsNoCase(*CurrentText, NoValue))
        DrawTextA(Font.get(), CurrentText->c_str(), AbsoluteX, AbsoluteY);
}

// The memory of the old value serves the new one, so that a text that changes all the time allocates nothing.
void TeskHudElement::UpdateText()
{
    const u32 update = ++m_Updates;
    std::unique_ptr<utf8string> value = std::move(CurrentText);
    FramesSinceUpdate = 0;

    const DepthScope depth(g_UpdateDepth, Limits::NestedTextUpdates);
    if (Text.Sequence == 0 || !depth.Entered())
        return;

    char text[Limits::TextBuffer8192];
    const ElementWatch self(*this);
    const bool evaluated = Text.RetrieveProcessedText(text, sizeof(text));
    if (!self.Exists() || update != m_Updates || !evaluated)
        return;

    if (!value)
        value.reset(new (std::nothrow) utf8string);
    if (value && TryAssign(*value, text))
        CurrentText = std::move(value);
}

void TeskHudElement::SetText(const char* text)
{
    Text.PreParse(text && *text ? text : nullptr);
    UpdateText();
}

bool TeskHudElement::OnLMouseDown(_Point2i& point)
{
    if (!g_UIManager.AltDown)
        return false;

    Dragging = true;
    DragPoint = point;
    TeskElement::OnLMouseDown(point);
    return true;
}

bool TeskHudElement::OnMouseMove(_Point2i& point)
{
    if (!Dragging)
        return false;

    X = WrapAdd(X, WrapSub(point.x, DragPoint.x));
    Y = WrapAdd(Y, WrapSub(point.y, DragPoint.y));
    DragPoint = point;
    TeskElement::OnMouseMove(point);
    return true;
}

bool TeskHudElement::OnLMouseUp(_Point2i& point)
{
    if (!Dragging)
        return false;

    Dragging = false;
    TeskElement::OnLMouseUp(point);
    return true;
}
