#include "teskara/windows/TeskContextMenu.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/MarkupReading.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/windows/CContextMenuHandler.h"
#include "teskara/windows/MenuHandlerWatch.h"

#include <algorithm>
#include <utility>

namespace {

constexpr char Kind[] = "contextmenu";

constexpr u32 LeastWidth = 80;
constexpr u32 TextMargin = 20;
constexpr u32 RowGap = 2;

// The height of a row's text where there is no font.
constexpr u32 UnknownHeight = 12;

// clang-format off
constexpr MarkupValue<TeskContextMenu> MenuValues[] = {
    {"Font",                    Markup::Font<&TeskContextMenu::Font>,                       {}},
    {"HighlightColor",          Markup::Hex<&TeskContextMenu::HighlightColor>,              0},
    {"ItemTexture",             Markup::Texture<&TeskContextMenu::ItemTexture>,             {}},
    {"ItemCheckTexture",        Markup::Texture<&TeskContextMenu::ItemCheckTexture>,        {}},
    {"HighlightItemTexture",    Markup::Texture<&TeskContextMenu::HighlightItemTexture>,    {}},
    {"SeparatorTexture",        Markup::Texture<&TeskContextMenu::SeparatorTexture>,        {}},
    {"SubmenuTexture",          Markup::Texture<&TeskContextMenu::SubmenuTexture>,          {}},
    {"HighlightSubmenuTexture", Markup::Texture<&TeskContextMenu::HighlightSubmenuTexture>, {}},
};
// clang-format on

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "frame",
    .Use = MarkupUse::Made,
    .Tables = {&RowsOf<MenuValues>},
});

// The handler must not know the menu any longer, even if its own operation forgets to see to that or fails.
void TellMenuDestroyed(CContextMenuHandler& handler, const TeskContextMenu* menu)
{
    const MenuHandlerWatch watch(&handler);
    try {
        handler.OnMenuDestroyed();
    } catch (...) {
    }
    if (watch.Exists() && handler.Menu == menu)
        handler.Menu = nullptr;
}

} // namespace

// What is the host's is given back in the order that hosts expect.
TeskContextMenu::~TeskContextMenu()
{
    if (pHandler)
        TellMenuDestroyed(*std::exchange(pHandler, nullptr), this);
    Font.reset();
    for (auto* texture : {&ItemTexture, &SubmenuTexture, &SeparatorTexture, &HighlightItemTexture, &ItemCheckTexture,
             &HighlightSubmenuTexture})
        texture->reset();
    for (TeskContextMenuNode* node = Nodes; node;) {
        const std::unique_ptr<TeskContextMenuNode> ended(node);
        node = node->Next;
    }
}

bool TeskContextMenu::FromXML(XMLNode*, XMLNode*)
{
    return false;
}

bool TeskContextMenu::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskFrame::IsTypeOf(word);
}

bool TeskContextMenu::Load(CContextMenuHandler& handler, XMLNode* templateNode)
try {
    pHandler = &handler;
    if (!templateNode)
        templateNode = g_UIManager.FindTemplate(Kind);
    if (!templateNode)
        return false;

    const MarkupReading reading;
    return TeskFrame::FromXML(templateNode, nullptr) && ReadMarkup<MenuValues>(*this, {templateNode, nullptr});
} catch (...) {
    return false; // no memory
}

void TeskContextMenu::Append(std::unique_ptr<TeskContextMenuNode> node)
{
    node->Previous = m_LastNode;
    (m_LastNode ? m_LastNode->Next : Nodes) = node.get();
    m_LastNode = node.release();
    ++NodeCount;
}

void TeskContextMenu::Remove(TeskContextMenuNode& node)
{
    if (Highlighted == &node)
        Highlighted = nullptr;
    if (Nodes != &node && !node.Previous)
        return;

    (node.Previous ? node.Previous->Next : Nodes) = node.Next;
    (node.Next ? node.Next->Previous : m_LastNode) = node.Previous;
    --NodeCount;
}

u32 TeskContextMenu::RowPitch() const
{
    return (Font ? Font->Size : UnknownHeight) + RowGap;
}

u32 TeskContextMenu::HeightOfRows() const
{
    return NodeCount * RowPitch() + 2 * Border;
}

void TeskContextMenu::Render()
{
    const ElementWatch self(*this);
    Height = HeightOfRows();
    Width = std::max(Width, LeastWidth);
    TeskFrame::Render();
    if (self.Exists())
        RenderRows();
}

// The width that the texts ask for counts from the next frame on.
void TeskContextMenu::RenderRows()
{
    const u32 pitch = RowPitch();
    const i32 top = WrapAdd(Y, Border);
    tagRECT row = {WrapAdd(X, Border), top, WrapSub(WrapAdd(X, Width), Border), WrapAdd(top, pitch)};
    u64 width = LeastWidth;
    for (TeskContextMenuNode* node = Nodes; node; node = node->Next) {
        node->Rect = row;
        width = std::max(width, node->Render() + TextMargin);
        row.top = row.bottom;
        row.bottom = WrapAdd(row.bottom, pitch);
    }
    Width = static_cast<u32>(width);
}

// Rows are hit one border lower than they are drawn.
TeskContextMenuNode* TeskContextMenu::RowAt(i32 y) const
{
    const i32 offset = WrapSub(WrapSub(y, Y), 2 * Border);
    if (offset < 0)
        return nullptr;

    TeskContextMenuNode* node = Nodes;
    for (u32 rows = static_cast<u32>(offset) / RowPitch(); node && rows > 0; --rows)
        node = node->Next;
    return node;
}

bool TeskContextMenu::OnMouseMove(_Point2i& point)
{
    if (!IsMouseOver())
        return false;

    if (Nodes)
        Height = HeightOfRows();
    Highlighted = RowAt(point.y);
    return true;
}

bool TeskContextMenu::OnLMouseDown(_Point2i&)
{
    return IsMouseOver();
}

bool TeskContextMenu::OnLMouseUp(_Point2i&)
{
    if (!IsMouseOver())
        return false;

    if (Highlighted)
        Highlighted->OnClick();
    return true;
}

void TeskContextMenu::OnKeyboardExit(TeskElement* next)
{
    CloseUnlessFor(next);
}

void TeskContextMenu::OnLMouseDownOther(TeskElement* taker)
{
    CloseUnlessFor(taker);
}

// Between a menu and its submenus the keyboard may move.
void TeskContextMenu::CloseUnlessFor(TeskElement* other)
{
    const ElementWatch self(*this);
    const bool isMenu = other && other->IsTypeOf(Kind);
    if (!isMenu && self.Exists() && pHandler)
        pHandler->DestroyMenu(false);
}
