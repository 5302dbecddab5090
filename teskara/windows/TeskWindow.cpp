#include "teskara/windows/TeskWindow.h"

#include "teskara/controls/TeskText.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/Numbers.h"
#include "teskara/core/QuietFloats.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/script/TypeGlobals.h"

#include <new>

namespace {

u32 Truncated(u32 parentSize, const ElementPosition& position)
{
    const QuietFloats quiet;
    return static_cast<u32>(TruncateToI32(static_cast<float>(parentSize) * position.Share()));
}

// The place or the size of a window that follows its parent's size. Shares of it are of the inner area, whose place is
// a border away from that of the window; for sizes there is none.
u32 Resolve(u32 value, const ElementPosition& position, u32 parentSize, u32 border)
{
    switch (position.Type) {
    case PositionShare:
        return Truncated(parentSize, position) - border;
    case PositionFarEdge:
        return parentSize - position.Factor;
    default:
        return value;
    }
}

} // namespace

bool TeskWindow::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), "window") || TeskFrame::IsTypeOf(word);
}

MvTypeDefinition* TeskWindow::GetMvType()
{
    return pTeskWindowType;
}

TeskElement* TeskWindow::FindChild(const char* name)
{
    return Client ? Client->FindChild(name) : TeskElement::FindChild(name);
}

void TeskWindow::OnCreate()
{
    OnResize();
}

void TeskWindow::SetTitle(const char* title)
try {
    Title = title ? std::make_unique<utf8string>(title) : nullptr;
    if (TitleText)
        TitleText->SetText(Title ? Title->c_str() : "");
} catch (const std::bad_alloc&) {
    return;
}

void TeskWindow::RecalculateSize(bool)
{
    const i32 x = X;
    const i32 y = Y;
    const u32 width = Width;
    const u32 height = Height;
    if (Parent) {
        X = static_cast<i32>(Resolve(static_cast<u32>(X), PositionX, Parent->Width, Border));
        Width = Resolve(Width, PositionWidth, Parent->Width, 0);
        Y = static_cast<i32>(Resolve(static_cast<u32>(Y), PositionY, Parent->Height, Border));
        Height = Resolve(Height, PositionHeight, Parent->Height, 0);
    }

    if (X != x || Y != y || Width != width || Height != height)
        OnResize();
    else
        SizeRecalculated(false);
}

// The children see the inner area for the window's size. A size that a script sets meanwhile stays.
void TeskWindow::OnResize()
{
    const ElementWatch self(*this);
    const u32 width = Width;
    const u32 height = Height;
    const u32 innerWidth = width - 2 * Border;
    const u32 innerHeight = height - 2 * Border;
    Width = innerWidth;
    Height = innerHeight;
    RecalculateChildrenSize();
    if (!self.Exists())
        return;

    if (Width == innerWidth)
        Width = width;
    if (Height == innerHeight)
        Height = height;
}

void TeskWindow::RenderChildren()
{
    RenderChildrenWithin(Border);
}

void TeskWindow::Render()
{
    if (ShowParts())
        TeskFrame::Render();
}

// A script may hide a part, but not for longer than until the next frame. What shows comes last, since one button may
// serve both ways. False: the window was deleted meanwhile.
bool TeskWindow::ShowParts()
{
    struct Part {
        TeskElement* TeskWindow::*Element;
        bool Shows;
    };
    const bool minimized = Minimized;
    const Part parts[] = {
        {&TeskWindow::Client, !minimized},
        {minimized ? &TeskWindow::MinimizeButton : &TeskWindow::MaximizeButton, false},
        {minimized ? &TeskWindow::MaximizeButton : &TeskWindow::MinimizeButton, true},
    };
    const ElementWatch self(*this);
    for (const Part& part : parts) {
        if (TeskElement* element = this->*part.Element)
            element->Show(part.Shows);
        if (!self.Exists())
            return false;
    }
    return true;
}

void TeskWindow::Show(bool show)
{
    Visible = show;
    if (Minimized)
        Restore();
}

void TeskWindow::Minimize(bool minimize)
{
    if (!TitleBar)
        return;
    if (!minimize) {
        Restore();
        return;
    }

    Minimized = true;
    RestoreTitleBarX = TitleBar->X;
    RestoreTitleBarY = TitleBar->Y;
    RestoreHeight = Height;
    RestoreWidth = Width;
    Height = TitleBar->Height + 2 * Border;
    Width = TitleBar->Width + 2 * Border;
    TitleBar->X = 0;
    TitleBar->Y = 0;
}

void TeskWindow::Restore()
{
    Minimized = false;
    Height = RestoreHeight;
    Width = RestoreWidth;
    if (!TitleBar)
        return;

    TitleBar->X = RestoreTitleBarX;
    TitleBar->Y = RestoreTitleBarY;
}

// The height of a title bar that was added to the window's is taken off again; its width is not, and what was stored
// before counts on it.
bool TeskWindow::GetStoragePosition(int& x, int& y, unsigned int& width, unsigned int& height)
{
    x = WrapAdd(X, Border);
    y = WrapAdd(Y, Border);
    width = (Minimized ? RestoreWidth : Width) - 2 * Border;
    height = (Minimized ? RestoreHeight : Height) - 2 * Border;
    if (TitleBar && (WindowFlags & WindowAddsTitleBarHeight))
        height -= TitleBar->Height;
    return true;
}
