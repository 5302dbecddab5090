// How a text entry is drawn: its background, and the line with its caret, scrolled sideways.

#include "teskara/controls/Panel.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/Limits.h"
#include "teskara/core/platform/PlatformCalls.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/text/TeskTextEntry.h"

#include <algorithm>
#include <cstring>

namespace {

// Pixels between the edge and the text, whatever the border.
constexpr u32 TextInset = 3;
constexpr u32 TextTop = 1;

constexpr u32 CaretBorder = 1;

// Bytes that stay in sight to the left of the caret.
constexpr u64 CaretContext = 3;

} // namespace

void TeskTextEntry::Render()
{
    if (RenderCustom())
        TeskElement::Render();
}

bool TeskTextEntry::RenderCustom()
{
    if (!Repeat.Run(*this))
        return false;

    DrawBackground();
    if (Font)
        DrawLine();
    return true;
}

void TeskTextEntry::DrawBackground()
{
    TeskTexture* texture = Texture && TextureFocused && IsFocus() ? TextureFocused.get() : Texture.get();
    DrawPanel(*this, {texture, BackgroundColor, Border, BorderColor});
}

void TeskTextEntry::DrawLine()
{
    FirstVisible = std::min(FirstVisible, Text.TextLength);
    if (Text.TextLength == 0) {
        if (IsFocus())
            DrawCaret(WrapAdd(AbsoluteX, TextInset));
        return;
    }
    if (PasswordCharacter == 0) {
        DrawScrolled(Text.Bytes());
        return;
    }

    char mask[Limits::TextBuffer4096 + 1];
    const auto length = static_cast<std::size_t>(std::min<u64>(Text.TextLength, sizeof(mask) - 1));
    std::memset(mask, PasswordCharacter, length);
    mask[length] = 0;
    DrawScrolled(mask);
}

// line: what is seen of the text, as long as the text.
void TeskTextEntry::DrawScrolled(const char* line)
{
    ScrollToCaret(line);
    const char* visible = line + std::min(FirstVisible, Text.TextLength);
    const i32 left = WrapAdd(AbsoluteX, TextInset);
    const i32 top = WrapAdd(AbsoluteY, TextTop);
    if (!IsFocus()) {
        DrawTextClipped(Font.get(), visible, left, top);
        return;
    }

    const char* rest = line + Text.Caret();
    const std::string_view before(visible, rest > visible ? static_cast<std::size_t>(rest - visible) : 0);
    const i32 caret = WrapAdd(left, static_cast<u32>(DrawBeforeCaret(before, left, top)));
    DrawCaret(caret);
    if (*rest)
        DrawTextClipped(Font.get(), rest, caret, top);
}

// Where the caret stands too far right, the position is moved by what a whole field holds, from the wrong end: it falls
// behind zero, is cut to the length in the next frame, and comes to stand before the caret only then.
void TeskTextEntry::ScrollToCaret(const char* line)
{
    const u64 caret = Text.Caret();
    if (FirstVisible + CaretContext > caret) {
        FirstVisible = caret > CaretContext ? caret - CaretContext : 0;
        return;
    }
    const char* visible = line + FirstVisible;
    if (caret <= CaretContext || Font->GetTextWidth(visible) + Font->GetTextWidth(" ") < Width)
        return;

    const u64 fitting = Font->GetCharByOffset(visible, Width);
    if (FirstVisible < caret && caret - FirstVisible + 1 > fitting)
        FirstVisible += CaretContext + fitting - caret;
}

// Returns the width drawn. A part that is too long for its buffer is a fault that a platform may survive.
u64 TeskTextEntry::DrawBeforeCaret(std::string_view part, i32 x, i32 y)
{
    char text[Limits::TextBuffer1024];
    if (part.size() >= sizeof(text))
        System::RangeFailure();
    CopyBounded(text, sizeof(text), part);
    return DrawTextClipped(Font.get(), text, x, y);
}

// As wide as a space.
void TeskTextEntry::DrawCaret(i32 left)
{
    const u32 width = static_cast<u32>(Font->GetTextWidth(" "));
    const tagRECT rect = {
        left, WrapAdd(AbsoluteY, Border), WrapAdd(left, width), WrapSub(WrapAdd(AbsoluteY, Height), Border)};
    if (Text.InsertMode)
        FillRectBordered(rect, CaretInnerColor, CaretBorder, CaretOuterColor);
    else
        FillRectBordered(rect, CaretOuterColor, CaretBorder, CaretInnerColor);
}
