#include "teskara/controls/TeskFrame.h"

#include "teskara/controls/Panel.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/script/TypeGlobals.h"

namespace {

constexpr char Kind[] = "frame";

// clang-format off
constexpr MarkupValue<TeskFrame> FrameValues[] = {
    {"Border",          Markup::Integer<&TeskFrame::Border>,      0},
    {"BackgroundColor", Markup::Hex<&TeskFrame::BackgroundColor>, 0},
    {"BorderColor",     Markup::Hex<&TeskFrame::BorderColor>,     0},
    {"Texture",         Markup::Texture<&TeskFrame::Texture>,     {}},
};
// clang-format on

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "element",
    .ScriptType = &pTeskFrameType,
    .Tables = {&RowsOf<FrameValues>},
});

} // namespace

bool TeskFrame::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    if (!TeskElement::FromXML(node, templateNode))
        return false;

    return ReadMarkup<FrameValues>(*this, {node, templateNode});
}

bool TeskFrame::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskElement::IsTypeOf(word);
}

MvTypeDefinition* TeskFrame::GetMvType()
{
    return pTeskFrameType;
}

void TeskFrame::Create(const _CreateFrame& record)
{
    CreateFrom(record);
    BackgroundColor = record.BackgroundColor;
    Border = record.Border;
    BorderColor = record.BorderColor;
    MoveZTop(true);
}

void TeskFrame::Render()
{
    DrawPanel(*this, {Texture.get(), BackgroundColor, Border, BorderColor});
    TeskElement::Render();
}

// The base's answer comes first. What it did not take is taken by what can be seen, unless clicks pass through it.
template <class Event> bool TeskFrame::Take(Event baseEvent, bool passes, u32 code, u64 value)
{
    const ElementWatch self(*this);
    const bool taken = baseEvent();
    if (!self.Exists())
        return taken;
    if (!taken && (!IsSolid() || passes))
        return false;

    NotifyParent(code, value);
    return true;
}

bool TeskFrame::OnLMouseUp(_Point2i& point)
{
    return Take([&] { return TeskElement::OnLMouseUp(point); }, LeftClickThru, NotifyLeftReleased, 0);
}

bool TeskFrame::OnLMouseDown(_Point2i& point)
{
    return Take([&] { return TeskElement::OnLMouseDown(point); }, LeftClickThru, NotifyLeftPressed, 0);
}

bool TeskFrame::OnRMouseUp(_Point2i& point)
{
    return Take([&] { return TeskElement::OnRMouseUp(point); }, RightClickThru, NotifyRightReleased, 0);
}

bool TeskFrame::OnRMouseDown(_Point2i& point)
{
    return Take([&] { return TeskElement::OnRMouseDown(point); }, RightClickThru, NotifyRightPressed, 0);
}

bool TeskFrame::OnLMouseDoubleClick(_Point2i& point)
{
    return Take([&] { return TeskElement::OnLMouseDoubleClick(point); }, LeftClickThru, NotifyLeftDoubleClick, 0);
}

// A right double click passes through nothing that can be seen.
bool TeskFrame::OnRMouseDoubleClick(_Point2i& point)
{
    return Take([&] { return TeskElement::OnRMouseDoubleClick(point); }, false, NotifyRightDoubleClick, 0);
}

bool TeskFrame::OnMouseMove(_Point2i& point)
{
    return Take([&] { return TeskElement::OnMouseMove(point); }, LeftClickThru && RightClickThru, NotifyMouseMoved, 0);
}

bool TeskFrame::OnMouseWheel(int offset)
{
    return Take([&] { return TeskElement::OnMouseWheel(offset); }, LeftClickThru && RightClickThru, NotifyMouseWheel,
        static_cast<u64>(static_cast<i64>(offset)));
}
