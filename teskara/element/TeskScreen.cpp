#include "teskara/element/TeskScreen.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Numbers.h"
#include "teskara/core/QuietFloats.h"

namespace {

// What the screen measures until the host says otherwise.
constexpr u32 InitialWidth = 800;
constexpr u32 InitialHeight = 600;

u32 Follow(int surface, const ElementPosition& position)
{
    const QuietFloats quiet;
    return TruncateToU32(static_cast<float>(surface < 0 ? 0 : surface) * position.Share());
}

} // namespace

TeskScreen::TeskScreen() : TeskElement(nullptr, nullptr, "Screen")
{
    Height = InitialHeight;
    Width = InitialWidth;
    PositionHeight.Type = PositionShare;
    PositionHeight.SetShare(1.0f);
    PositionWidth.Type = PositionShare;
    PositionWidth.SetShare(1.0f);
    Visible = true;
}

bool TeskScreen::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), "screen") || TeskElement::IsTypeOf(word);
}

// Follows the host's surface; called at the head of every frame.
void TeskScreen::RecalculateSize(bool)
{
    int width = 0;
    int height = 0;
    if (!Host::GetDisplaySize(width, height))
        return;

    const u32 oldWidth = Width;
    const u32 oldHeight = Height;
    Width = Follow(width, PositionWidth);
    Height = Follow(height, PositionHeight);
    if (Width != oldWidth || Height != oldHeight)
        RecalculateChildrenSize();
}

bool TeskScreen::OnLMouseDown(_Point2i&)
{
    g_UIManager.SetFocusElement(g_UIManager.GetMouseOverElement());
    return false;
}

void TeskScreen::MoveZUp() { }

void TeskScreen::MoveZDown() { }

void TeskScreen::MoveZTop(bool) { }

void TeskScreen::MoveZBottom() { }
