#include "teskara/script/TeskElementType.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/markup/SkinScope.h"
#include "teskara/markup/XMLDocument.h"

#include <iterator>
#include <memory>
#include <optional>

namespace {

// --- Members

bool IsAlwaysOnTop(const TeskElement& element)
{
    return element.Strata == TopStrata;
}

const char* FadeStateWord(const TeskElement& element)
{
    constexpr const char* words[] = {"NORMAL", "DELAYING", "FADING", "FADED"};
    return element.FadeState < std::size(words) ? words[element.FadeState] : "";
}

TeskElement* FindChild(TeskElement& element, const Arguments& arguments)
{
    return element.FindChild(arguments.Text(0));
}

TeskElement* FindUsableChild(TeskElement& element, const Arguments& arguments)
{
    return element.FindUsableChild(arguments.Text(0), arguments.Text(1));
}

// Kind, name, markup and, if given, the name of the skin that is in force meanwhile.
TeskElement* AddChild(TeskElement& parent, const Arguments& arguments)
{
    TeskSkin* skin = arguments.Has(3) ? g_UIManager.FindSkin(arguments.Text(3)) : nullptr;
    const auto document = std::make_unique<XMLDocument>();
    if (!document->ParseBuffer(arguments.Text(2)) || !document->Root)
        return nullptr;

    const SkinScope inForce(skin);
    return g_UIManager.LoadElement(&parent, arguments.Text(0), arguments.Text(1), document->Root->FirstChild, nullptr);
}

const char* GetMetadata(TeskElement& element, const Arguments& arguments)
{
    return g_UIManager.GetElementMetadata(element.ID, arguments.Text(0));
}

// Of the mouse, or of a point.
std::optional<bool> HitTest(TeskElement& element, const Arguments& arguments)
{
    _Point2i point = g_UIManager.MousePosition;
    if (arguments.Count() == 2)
        point = {arguments.Integer(0), arguments.Integer(1)};
    else if (arguments.Count() != 0)
        return std::nullopt;
    return element.HitTest(point);
}

// --- Clicks

// Lies off the element's middle by half of its X and half of its Y. Scripts rely on it.
_Point2i LeftPoint(const TeskElement& element)
{
    const u32 x = WrapAdd<u32>(element.Width, element.X) >> 1;
    const u32 y = WrapAdd<u32>(element.Height, element.Y) >> 1;
    return {WrapAdd(x, element.X), WrapAdd(y, element.Y)};
}

// Lies one and a half widths to the right of that.
_Point2i RightPoint(const TeskElement& element)
{
    const u32 farEdge = WrapAdd<u32>(element.Width, element.X);
    const u32 x = WrapAdd<u32>(farEdge, element.Width) >> 1;
    return {WrapAdd(x, farEdge), LeftPoint(element).y};
}

using MouseEvent = bool (TeskElement::*)(_Point2i& point);

template <MouseEvent Event, _Point2i (*PointOf)(const TeskElement&)> void Send(TeskElement& element)
{
    _Point2i point = PointOf(element);
    (element.*Event)(point);
}

template <MouseEvent Press, MouseEvent Release> void Click(TeskElement& element)
{
    const ElementWatch watch(element);
    _Point2i point = LeftPoint(element);
    (element.*Press)(point);
    if (watch.Exists())
        (element.*Release)(point);
}

// --- Other methods

// The children follow; the element itself hears nothing of its new size.
template <auto Dimension> bool SetDimension(TeskElement& element, const Arguments& arguments)
{
    element.*Dimension = static_cast<u32>(arguments.Integer(0));
    element.RecalculateChildrenSize();
    return true;
}

void SetFocus(TeskElement& element)
{
    g_UIManager.SetFocusElement(&element);
}

struct ZOrderWord {
    const char* Word;
    void (*Act)(TeskElement& element);
};

constexpr ZOrderWord ZOrderWords[] = {
    {"alwaysontop", [](TeskElement& element) { element.Strata = TopStrata; }},
    {"notalwaysontop", [](TeskElement& element) { element.Strata = 0; }},
    {"up", [](TeskElement& element) { element.MoveZUp(); }},
    {"moveup", [](TeskElement& element) { element.MoveZUp(); }},
    {"down", [](TeskElement& element) { element.MoveZDown(); }},
    {"movedown", [](TeskElement& element) { element.MoveZDown(); }},
    {"top", [](TeskElement& element) { element.MoveZTop(true); }},
    {"movetop", [](TeskElement& element) { element.MoveZTop(true); }},
    {"bottom", [](TeskElement& element) { element.MoveZBottom(); }},
    {"movebottom", [](TeskElement& element) { element.MoveZBottom(); }},
};

bool SetZOrder(TeskElement& element, const Arguments& arguments)
{
    for (const ZOrderWord& row : ZOrderWords) {
        if (arguments.IsWord(0, row.Word)) {
            row.Act(element);
            return true;
        }
    }
    return false;
}

template <bool Visible> void Show(TeskElement& element)
{
    element.Show(Visible);
}

void ToggleVisible(TeskElement& element)
{
    element.Show(!element.Visible);
}

// Tells no success even if the element is gone.
bool Destroy(TeskElement& element, const Arguments&)
{
    if (element.Parent)
        element.Parent->DeleteChild(&element);
    return false;
}

bool AddChildMethod(TeskElement& element, const Arguments& arguments)
{
    return AddChild(element, arguments) != nullptr;
}

void BeginFade(TeskElement& element)
{
    element.FadeState = FadeDelaying;
    element.FadeStart = g_UIManager.FrameTick;
}

bool SetMetadata(TeskElement& element, const Arguments& arguments)
{
    g_UIManager.SetElementMetadata(element.ID, arguments.Text(0), arguments.Text(1));
    return true;
}

bool UnsetMetadata(TeskElement& element, const Arguments& arguments)
{
    return g_UIManager.RemoveElementMetadata(element.ID, arguments.Text(0));
}

bool SetStrata(TeskElement& element, const Arguments& arguments)
{
    element.Strata = static_cast<i8>(arguments.Integer(0));
    element.MoveZTop(false);
    return true;
}

// clang-format off
constexpr ScriptMember<TeskElement> Members[] = {
    {0,  "Name",            Script::String<&TeskElement::Name>},
    {1,  "FullName",        Script::String<&TeskElement::FullName>},
    {2,  "ID",              Script::Int<&TeskElement::ID>},
    {3,  "X",               Script::Int<&TeskElement::X>},
    {4,  "Y",               Script::Int<&TeskElement::Y>},
    {5,  "AbsoluteX",       Script::Int<&TeskElement::AbsoluteX>},
    {6,  "AbsoluteY",       Script::Int<&TeskElement::AbsoluteY>},
    {7,  "Width",           Script::Int<&TeskElement::Width>},
    {8,  "Height",          Script::Int<&TeskElement::Height>},
    {9,  "Visible",         Script::Bool<&TeskElement::Visible>},
    {10, "ReallyVisible",   Script::Nothing},
    {11, "AlwaysOnTop",     Script::Bool<IsAlwaysOnTop>},
    {12, "Strata",          Script::Int<&TeskElement::Strata>},
    {13, "MouseOver",       Script::Bool<&TeskElement::IsMouseOver>},
    {14, "Focus",           Script::Bool<&TeskElement::IsFocus>},
    {15, "Type",            Script::String<&TeskElement::Type>},
    {16, "Alpha",           Script::Float<&TeskElement::Alpha>},
    {17, "AbsoluteAlpha",   Script::Float<&TeskElement::AbsoluteAlpha>},
    {18, "FadeAlpha",       Script::Float<&TeskElement::FadeAlpha>},
    {19, "FadeDelay",       Script::Uint<&TeskElement::FadeDelay>},
    {20, "FadeDuration",    Script::Uint<&TeskElement::FadeDuration>},
    {21, "FadeState",       Script::String<FadeStateWord>},
    {22, "LeftClickThru",   Script::Bool<&TeskElement::LeftClickThru>},
    {23, "RightClickThru",  Script::Bool<&TeskElement::RightClickThru>},
    {24, "Parent",          Script::Element<&TeskElement::Parent>},
    {25, "Children",        Script::Element<&TeskElement::FirstChild>},
    {26, "Next",            Script::Element<&TeskElement::Next>},
    {27, "Previous",        Script::Element<&TeskElement::Previous>},
    {28, "FindChild",       Script::Element<FindChild>, 1},
    {29, "FindUsableChild", Script::Element<FindUsableChild>, 2},
    {30, "AddChild",        Script::Element<AddChild>, 3},
    {31, "GetMetadata",     Script::String<GetMetadata>, 1},
    {32, "HitTest",         Script::Bool<HitTest>},
};

constexpr ScriptMethod<TeskElement> Methods[] = {
    {0,  "LeftClick",         Script::Call<Click<&TeskElement::OnLMouseDown, &TeskElement::OnLMouseUp>>},
    {1,  "LeftMouseDown",     Script::Call<Send<&TeskElement::OnLMouseDown, LeftPoint>>},
    {2,  "LeftMouseUp",       Script::Call<Send<&TeskElement::OnLMouseUp, LeftPoint>>},
    {3,  "RightClick",        Script::Call<Click<&TeskElement::OnRMouseDown, &TeskElement::OnRMouseUp>>},
    {4,  "RightMouseDown",    Script::Call<Send<&TeskElement::OnRMouseDown, RightPoint>>},
    {5,  "RightMouseUp",      Script::Call<Send<&TeskElement::OnRMouseUp, RightPoint>>},
    {6,  "SetX",              Script::SetInteger<&TeskElement::X>},
    {7,  "SetY",              Script::SetInteger<&TeskElement::Y>},
    {8,  "SetWidth",          SetDimension<&TeskElement::Width>, 1},
    {9,  "SetHeight",         SetDimension<&TeskElement::Height>, 1},
    {10, "SetFocus",          Script::Call<SetFocus>},
    {11, "SetZOrder",         SetZOrder, 1},
    {12, "SetAlpha",          Script::SetFloat<&TeskElement::Alpha>},
    {13, "Show",              Script::Call<Show<true>>},
    {14, "Hide",              Script::Call<Show<false>>},
    {15, "ToggleVisible",     Script::Call<ToggleVisible>},
    {16, "Destroy",           Destroy},
    {17, "AddChild",          AddChildMethod, 3},
    {18, "SetLeftClickThru",  Script::SetFlag<&TeskElement::LeftClickThru>},
    {19, "SetRightClickThru", Script::SetFlag<&TeskElement::RightClickThru>},
    {20, "SetFadeAlpha",      Script::SetFloat<&TeskElement::FadeAlpha>},
    {21, "SetFadeDelay",      Script::SetInteger<&TeskElement::FadeDelay>},
    {22, "SetFadeDuration",   Script::SetInteger<&TeskElement::FadeDuration>},
    {23, "BeginFade",         Script::Call<BeginFade>},
    {24, "ResetFade",         Script::SetTo<&TeskElement::FadeState, FadeNormal>},
    {25, "InstantFade",       Script::SetTo<&TeskElement::FadeState, FadeFaded>},
    {26, "SetMetadata",       SetMetadata, 2},
    {27, "UnsetMetadata",     UnsetMetadata, 1},
    {28, "SetStrata",         SetStrata, 1},
};
// clang-format on

} // namespace

TeskElementType::TeskElementType(const char* name) : ElementType(name, Members, Methods) { }
