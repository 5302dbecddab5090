#include "teskara/core/CUIManager.h"
#include "teskara/core/Numbers.h"
#include "teskara/core/QuietFloats.h"
#include "teskara/element/ChildWalkBound.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/RenderedElement.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TooltipPanel.h"

#include <utility>

u32 TeskElement::s_Relinks = 0;

namespace {

constexpr char AutoTooltipName[] = "Auto Tooltip";

// How far from the mouse an automatic tooltip appears, to the left and above.
constexpr i32 TooltipDistance = 10;

// The element that shows the tooltips of others; null if there is none, or only a namesake.
TeskElement* FindAutoTooltip()
{
    TeskElement* element = g_UIManager.FindElement(AutoTooltipName);
    return dynamic_cast<TooltipPanel*>(element) ? element : nullptr;
}

u32 g_RenderedElementID = 0;

// While it lives an element draws; then the one that drew before goes on.
class RenderedScope
{
public:
    explicit RenderedScope(const TeskElement& element) : m_Before(std::exchange(g_RenderedElementID, element.ID)) { }
    ~RenderedScope() { g_RenderedElementID = m_Before; }
    RenderedScope(const RenderedScope&) = delete;
    RenderedScope& operator=(const RenderedScope&) = delete;

private:
    u32 m_Before;
};

float Product(float one, float other)
{
    const QuietFloats quiet;
    return one * other;
}

} // namespace

u32 GetRenderedElementID()
{
    return g_RenderedElementID;
}

void TeskElement::Render()
{
    const ElementWatch self(*this);
    if (AutoTooltip)
        UpdateAutoTooltip();
    if (self.Exists())
        RenderChildren();
}

void TeskElement::RenderChildren()
{
    RenderChildrenWithin(0);
}

// A child that moves among its siblings while it draws carries the walk with it. One that dies ends it.
void TeskElement::RenderChildrenWithin(u32 border)
{
    const ElementWatch self(*this);
    ChildWalkBound bound(*this, s_Relinks);
    for (TeskElement* child = FirstChild; child && bound.Step(); child = child->Next) {
        if (!RenderChild(*child, border) || !self.Exists())
            return;
    }
}

// False: the child died.
bool TeskElement::RenderChild(TeskElement& child, u32 border)
{
    const i32 x = WrapAdd(WrapAdd(AbsoluteX, child.X), border);
    const i32 y = WrapAdd(WrapAdd(AbsoluteY, child.Y), border);
    if (!child.Visible) {
        child.SpreadPosition(x, y);
        return true;
    }

    child.AbsoluteX = x;
    child.AbsoluteY = y;
    const float alpha = AbsoluteAlpha; // the script may end this element and not the child
    const ElementWatch watch(child);
    RunScript(child.Events.OnRender);
    if (!watch.Exists())
        return false;

    if (child.FadeDelay != 0)
        child.UpdateAutoFade();
    child.AbsoluteAlpha = Product(child.GetCurrentAlpha(), alpha);
    const RenderedScope rendered(child);
    child.Render();
    return watch.Exists();
}

// With a delay an element fades while the mouse is elsewhere and comes back at once.
void TeskElement::UpdateAutoFade()
{
    const bool isMouseInside = HitTest(g_UIManager.MousePosition);
    if (FadeState != FadeNormal) {
        if (isMouseInside)
            FadeState = FadeNormal;
    } else if (!isMouseInside) {
        FadeState = FadeDelaying;
        FadeStart = g_UIManager.FrameTick;
    }
}

float TeskElement::GetCurrentAlpha()
{
    const u32 now = g_UIManager.FrameTick;
    const u32 begin = FadeStart + FadeDelay;
    if (FadeState == FadeDelaying) {
        if (FadeDelay == 0)
            FadeState = FadeNormal;
        else if (begin < now)
            FadeState = FadeFading;
    }

    if (FadeState == FadeFading) {
        if (FadeDuration != 0 && begin + FadeDuration > now) {
            const QuietFloats quiet;
            const float part = static_cast<float>(now - begin) / static_cast<float>(FadeDuration);
            return Alpha - (Alpha - FadeAlpha) * part;
        }
        FadeState = FadeFaded;
    }
    return FadeState == FadeFaded ? FadeAlpha : Alpha;
}

// Shows the element's tooltip when the mouse has rested on it, and hides it when the mouse has gone.
void TeskElement::UpdateAutoTooltip()
{
    if (!IsMouseOver()) {
        if (g_UIManager.TooltipElementID != ID)
            return;
        const TeskElement* tooltip = FindAutoTooltip();
        if (tooltip && tooltip->Visible)
            HideAutoTooltip();
        return;
    }

    const u32 rested = g_UIManager.FrameTick - g_UIManager.LastInputTick;
    if (g_UIManager.TooltipElementID != 0 || rested < g_UIManager.TooltipDelay)
        return;

    TeskElement* tooltip = FindAutoTooltip();
    if (!tooltip || tooltip->Visible)
        return;

    g_UIManager.TooltipElementID = ID;
    tooltip->X = WrapSub(g_UIManager.MousePosition.x, TooltipDistance);
    tooltip->Y = WrapSub(g_UIManager.MousePosition.y, TooltipDistance);
    dynamic_cast<TooltipPanel*>(tooltip)->ShowOnly(AutoTooltip->c_str());
    tooltip->Show(true);
}

void TeskElement::HideAutoTooltip()
{
    TeskElement* tooltip = FindAutoTooltip();
    if (!tooltip)
        return;

    g_UIManager.TooltipElementID = 0;
    tooltip->Show(false);
}
