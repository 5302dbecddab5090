#include "teskara/core/BoundedText.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Messages.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/element/TeskElement.h"
#include "teskara/markup/MarkupNames.h"
#include "teskara/script/TypeGlobals.h"

namespace {

constexpr char NoArguments[] = "";
constexpr char PointArguments[] = "int X, int Y";

// Without a value of its own an element fades to where it is.
constexpr MarkupForm<TeskElement> FadeAlphaAfterAlpha = {
    "float", [](TeskElement& element, const MarkupSource& source, TagName tag, MarkupDefault) {
        element.FadeAlpha = source.Float(tag, element.Alpha);
    }};

// Wins over the strata that was read before it.
constexpr MarkupForm<TeskElement> AlwaysOnTop = {
    "toggle", [](TeskElement& element, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        if (source.Toggle(tag, fallback.Number != 0))
            element.Strata = TopStrata;
    }};

constexpr MarkupForm<TeskElement> VisibleElseAsItIs = {
    "toggle", [](TeskElement& element, const MarkupSource& source, TagName tag, MarkupDefault) {
        element.Visible = source.Toggle(tag, element.Visible);
    }};

constexpr MarkupForm<TeskElement> TextUnlessEmpty = {
    "sequence", [](TeskElement& element, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        const char* text = source.Text(tag, fallback.Text);
        if (*text)
            element.AutoTooltip = std::make_unique<utf8string>(text);
    }};

// clang-format off
constexpr MarkupValue<TeskElement> ElementValues[] = {
    {"X",                  Markup::Place<&TeskElement::X, &TeskElement::PositionX>,           0},
    {"Y",                  Markup::Place<&TeskElement::Y, &TeskElement::PositionY>,           0},
    {"Height",             Markup::Place<&TeskElement::Height, &TeskElement::PositionHeight>, 0},
    {"Width",              Markup::Place<&TeskElement::Width, &TeskElement::PositionWidth>,   0},
    {"Alpha",              Markup::Float<&TeskElement::Alpha>,                                1.0f},
    {"FadeAlpha",          FadeAlphaAfterAlpha,                                               1.0f},
    {"FadeDelay",          Markup::Integer<&TeskElement::FadeDelay>,                          0},
    {"FadeDuration",       Markup::Integer<&TeskElement::FadeDuration>,                       0},
    {"StorePosition",      Markup::Toggle<&TeskElement::StorePosition>,                       false},
    {"Strata",             Markup::Integer<&TeskElement::Strata>,                             0},
    {"AlwaysOnTop",        AlwaysOnTop,                                                       false},
    {"Visible",            VisibleElseAsItIs,                                                 true},
    {"OnLoad",             Markup::Event<&ElementEvents::OnLoad>,                             NoArguments},
    {"OnUnload",           Markup::Event<&ElementEvents::OnUnload>,                           NoArguments},
    {"OnLeftClick",        Markup::Event<&ElementEvents::OnLeftClick>,                        PointArguments},
    {"OnRightClick",       Markup::Event<&ElementEvents::OnRightClick>,                       PointArguments},
    {"OnLeftDown",         Markup::Event<&ElementEvents::OnLeftDown>,                         PointArguments},
    {"OnRightDown",        Markup::Event<&ElementEvents::OnRightDown>,                        PointArguments},
    {"OnDoubleLeftClick",  Markup::Event<&ElementEvents::OnDoubleLeftClick>,                  PointArguments},
    {"OnDoubleRightClick", Markup::Event<&ElementEvents::OnDoubleRightClick>,                 PointArguments},
    {"OnMouseEnter",       Markup::Event<&ElementEvents::OnMouseEnter>,                       PointArguments},
    {"OnMouseExit",        Markup::Event<&ElementEvents::OnMouseExit>,                        NoArguments},
    {"OnMouseMove",        Markup::Event<&ElementEvents::OnMouseMove>,                        PointArguments},
    {"OnMouseWheel",       Markup::Event<&ElementEvents::OnMouseWheel>,                       "int Offset"},
    {"OnKeyboardEnter",    Markup::Event<&ElementEvents::OnKeyboardEnter>,                    NoArguments},
    {"OnKeyboardExit",     Markup::Event<&ElementEvents::OnKeyboardExit>,                     NoArguments},
    {"OnKeyUp",            Markup::Event<&ElementEvents::OnKeyUp>,                            "string Key"},
    {"OnKeyDown",          Markup::Event<&ElementEvents::OnKeyDown>,                          "string Key"},
    {"OnRender",           Markup::Event<&ElementEvents::OnRender>,                           NoArguments},
    {"AutoTooltip",        TextUnlessEmpty,                                                   ""},
};
// clang-format on

constexpr MarkupPart ElementParts[] = {
    {NameAttribute, "string", MarkupPlace::Attribute},
    {TemplateAttribute, "template", MarkupPlace::Attribute},
    {ChildrenTag, "children"},
};

const MarkupShape g_Shape({
    .Name = "element",
    .Use = MarkupUse::Base,
    .ScriptType = &pTeskElementType,
    .Tables = {&RowsOf<ElementValues>},
    .Parts = {ElementParts},
});

const MarkupShape g_ChildrenShape({.Name = "children", .Use = MarkupUse::Value, .Holds = "element"});

} // namespace

bool TeskElement::FromXML(XMLNode* node, XMLNode* templateNode)
{
    if (!ReadMarkup<ElementValues>(*this, {node, templateNode}))
        return false;

    KeepStart();
    const ElementWatch self(*this);
    if (StorePosition)
        Host::LoadElementPosition(this);
    if (!self.Exists())
        return false;

    MoveZTop(false);
    return self.Exists();
}

void TeskElement::KeepStart()
{
    StartX = X;
    StartPositionX = PositionX;
    StartY = Y;
    StartPositionY = PositionY;
    StartHeight = Height;
    StartPositionHeight = PositionHeight;
    StartWidth = Width;
    StartPositionWidth = PositionWidth;
}

TeskEmbeddedScript* TeskElement::EmbeddedScriptFromXML(
    XMLNode* node, const char* tag, XMLNode* templateNode, const char* arguments)
{
    const XMLNode* script = FindMarkup(node, tag, templateNode);
    if (!script || !script->FirstChild)
        return nullptr;

    TeskEmbeddedScript* compiled = TeskEmbeddedScript::New(this, script->FirstChild->Name, arguments);
    if (!compiled)
        Host::PrintLine(Messages::ScriptFailed, TextOrEmpty(tag));
    return compiled;
}
