// What the mouse and the scroll bar do to a console.

#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Limits.h"
#include "teskara/core/Messages.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/text/ClipboardCopy.h"
#include "teskara/text/LineBlock.h"
#include "teskara/text/TeskConsole.h"

#include <string>

namespace {

// The child of the console's parent that takes the keyboard for it.
constexpr char InputName[] = "input";

constexpr char LineBreak[] = "\r\n";

// Adds the part of a line that lies in a block, without its colour codes.
void AppendPart(std::string& text, const LineBlock& block, const char* line)
{
    char plain[Limits::TextBuffer4096];
    CopyBounded(plain, sizeof(plain), line);
    TeskElement::StripColor(plain, plain);
    text += block.Cut(plain);
}

} // namespace

TextGrid TeskConsole::Grid()
{
    const i32 characterWidth = Font ? static_cast<i32>(Font->GetCharWidthA()) : 0;
    return {AbsoluteX, AbsoluteY, Width, Height, Border, characterWidth, Font ? Font->Size : 0};
}

void TeskConsole::SnapToGrid(_Point2i& point)
{
    Grid().Snap(point);
}

bool TeskConsole::OnLMouseDown(_Point2i& point)
{
    _Point2i corner = point;
    SnapToGrid(corner);
    Selecting = true;
    Selection = {corner.x, corner.y, corner.x, corner.y};

    const ElementWatch self(*this);
    TeskElement* input = Parent ? Parent->FindChild(InputName) : nullptr;
    if (input && self.Exists())
        g_UIManager.SetFocusElement(input);
    if (self.Exists())
        TeskElement::OnLMouseDown(point);
    return true;
}

bool TeskConsole::OnMouseMove(_Point2i& point)
{
    if (!Selecting)
        return false;

    ExtendSelection(point);
    TeskElement::OnMouseMove(point);
    return true;
}

bool TeskConsole::OnLMouseUp(_Point2i& point)
{
    if (!Selecting)
        return false;

    ExtendSelection(point);
    const ElementWatch self(*this);
    CopySelection();
    if (!self.Exists())
        return true;

    Selecting = false;
    TeskElement::OnLMouseUp(point);
    return true;
}

void TeskConsole::ExtendSelection(_Point2i point)
{
    const TextGrid grid = Grid();
    grid.Snap(point);
    grid.Clamp(point);
    Selection.right = point.x;
    Selection.bottom = point.y;
}

void TeskConsole::CopySelection()
try {
    const std::optional<TextBlock> characters = Grid().BlockUnder(Selection);
    if (!characters)
        return;

    const LineBlock block(*characters, LastLine(), VisibleLines, Lines.Size());
    if (block.IsEmpty())
        return;

    const ElementWatch self(*this);
    std::string text;
    block.VisitSlots(Lines, [&](i64 slot) {
        if (!text.empty())
            text += LineBreak;
        if (const char* line = Lines.At(slot))
            AppendPart(text, block, line);
        else
            Host::PrintLine(Messages::BadLine, static_cast<int>(slot));
        return self.Exists();
    });
    if (self.Exists())
        CopyToClipboard(text);
} catch (...) {
    return;
}

bool TeskConsole::OnMouseWheel(int offset)
{
    const ElementWatch self(*this);
    if (ScrollBar)
        ScrollBar->Turn(offset);
    if (self.Exists())
        TeskElement::OnMouseWheel(offset);
    return true;
}

void TeskConsole::HandlePageUp()
{
    if (ScrollBar)
        ScrollBar->RaiseValue(static_cast<u32>(VisibleLines));
}

void TeskConsole::HandlePageDown()
{
    if (ScrollBar && g_UIManager.CtrlDown)
        ScrollBar->SetValue(0);
    else if (ScrollBar)
        ScrollBar->LowerValue(static_cast<u32>(VisibleLines));
}

void TeskConsole::HandleUp()
{
    if (ScrollBar)
        ScrollBar->RaiseValue(1);
}

void TeskConsole::HandleDown()
{
    if (ScrollBar)
        ScrollBar->LowerValue(1);
}

void TeskConsole::OnNotify(TeskElement* source, unsigned int code, unsigned long long value)
{
    if (code == NotifyFontChanged) {
        SizeRecalculated(false);
        return;
    }
    if (!source || source != ScrollBar)
        return;

    if (code == NotifyChildGoing)
        ScrollBar = nullptr;
    else if (code == NotifyValueChanged)
        ScrollLine = value == 0 ? LineRing::NoSlot : Lines.Before(Lines.Newest(), static_cast<i64>(value));
}
