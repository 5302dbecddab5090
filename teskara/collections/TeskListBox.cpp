#include "teskara/collections/TeskListBox.h"

#include "teskara/controls/Panel.h"
#include "teskara/controls/ScrollBarMarkup.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/controls/TextureMask.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/script/TypeGlobals.h"

namespace {

constexpr char Kind[] = "listbox";

// Between a row's text and the edges.
constexpr u32 TextMargin = 3;

// An unknown word leaves the type as it was.
constexpr MarkupForm<TeskListBox> SortWord = {"word",
    [](TeskListBox& list, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        if (const auto type = FindRowSortType(source.Text(tag, fallback.Text)))
            list.SortType = *type;
    },
    nullptr, RowSortWords};

// clang-format off
constexpr MarkupValue<TeskListBox> ListValues[] = {
    {"BackgroundColor", Markup::Hex<&TeskListBox::BackgroundColor>,   0},
    {"SelectionColor",  Markup::Hex<&TeskListBox::SelectionColor>,    0},
    {"Font",            Markup::Font<&TeskListBox::Font>,             {}},
    {"BorderColor",     Markup::Hex<&TeskListBox::BorderColor>,       0},
    {"Border",          Markup::Integer<&TeskListBox::Border>,        0},
    {"SelectMultiple",  Markup::Toggle<&TeskListBox::SelectMultiple>, false},
    {"OnSelect",        Markup::Script<&TeskListBox::OnSelect>,       "int ID"},
    {"OnDeSelect",      Markup::Script<&TeskListBox::OnDeSelect>,     "int ID"},
    {"Sort",            SortWord,                                     ""},
};

constexpr MarkupValue<TeskListBox> ListTexture[] = {
    {"Texture", Markup::Texture<&TeskListBox::Texture>, {}},
};
// clang-format on

constexpr MarkupPart BarPart = {"ScrollBar", "scrollbar", MarkupPlace::NamedChild};
constexpr MarkupPart ItemsPart = {"Items", "items"};
constexpr MarkupPart ListParts[] = {BarPart, MaskAttribute, ItemsPart};

constexpr MarkupPart ItemPart = {"item", "item"};
constexpr MarkupPart ItemsParts[] = {ItemPart};

constexpr MarkupPart ItemValue = {"Value", "string", MarkupPlace::Attribute};
constexpr MarkupPart ItemColor = {"Color", "hex", MarkupPlace::Attribute};
constexpr MarkupPart ItemDefault = {"Default", "integer", MarkupPlace::Attribute};
constexpr MarkupPart ItemParts[] = {ItemValue, ItemColor, ItemDefault};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "element",
    .ScriptType = &pTeskListBoxType,
    .Tables = {&RowsOf<ListValues>, &RowsOf<ListTexture>},
    .Parts = {ListParts},
});

const MarkupShape g_ItemsShape({.Name = ItemsPart.Form, .Use = MarkupUse::Value, .Parts = {ItemsParts}});
const MarkupShape g_ItemShape(
    {.Name = ItemPart.Form, .Use = MarkupUse::Value, .Parts = {ItemParts}, .Holds = "string"});

} // namespace

// Rows that are read are sorted once, at the end.
// What is the host's is given back in the order that hosts expect.
TeskListBox::~TeskListBox()
{
    Font.reset();
    Texture.reset();
    OnSelect.reset();
    OnDeSelect.reset();
}

bool TeskListBox::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    const MarkupSource source(node, templateNode);
    if (!TeskElement::FromXML(node, templateNode) || !ReadMarkup<ListValues>(*this, source) || !Font)
        return false;

    TextColor = Font->Color;
    const ElementWatch self(*this);
    TeskScrollBar* bar = LoadScrollBar(*this, source, BarPart.Name);
    if (!bar || !self.Exists())
        return false;

    ScrollBar = bar;
    ScrollBar->Range = 1;
    ScrollBar->RecalculateSize(true);
    if (!self.Exists() || !ReadMarkup<ListTexture>(*this, source))
        return false;

    MaskTextures(source, {Texture.get()});
    AddItems(source.Child(ItemsPart.Name));
    if (!self.Exists())
        return false;

    AutoSort = true;
    ApplySort();
    return true;
}

void TeskListBox::AddItems(XMLNode* items)
{
    const ElementWatch self(*this);
    for (XMLNode* node = XMLHelper::GetFirstChild(items); node; node = node->Next) {
        const char* text = XMLHelper::GetText(node->FirstChild);
        if (node->Type != XMLElementNode || !EqualsNoCase(node->Name, ItemPart.Name.Text) || !*text)
            continue;

        const u32 id = AddItem(text, XMLHelper::GetStringAttribute(node, ItemValue.Name.Text, ""),
            XMLHelper::GetHexAttribute(node, ItemColor.Name.Text, 0));
        if (self.Exists() && XMLHelper::GetIntAttribute(node, ItemDefault.Name.Text, 0) != 0)
            SelectItem(id);
        if (!self.Exists())
            return;
    }
}

bool TeskListBox::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskElement::IsTypeOf(word);
}

MvTypeDefinition* TeskListBox::GetMvType()
{
    return pTeskListBoxType;
}

// A list that was made without markup has no font.
u32 TeskListBox::Pitch() const
{
    return (Font ? Font->Size : 0u) + 1;
}

void TeskListBox::RecalculateSize(bool recurse)
{
    const ElementWatch self(*this);
    TeskElement::RecalculateSize(recurse);
    if (self.Exists() && !FitScrollBar())
        TopOrder = 0;
}

// Shows the scroll bar if it is needed. False: all rows fit. The bar tells the list of its new value, and a script may
// hear of it too.
bool TeskListBox::FitScrollBar()
{
    const u32 rows = VisibleRows();
    if (GetItemCount() <= rows) {
        if (ScrollBar)
            ScrollBar->Show(false);
        return false;
    }
    const u32 range = GetItemCount() - rows;
    const ElementWatch self(*this);
    if (ScrollBar)
        ScrollBar->SetRange(range);
    if (self.Exists() && ScrollBar) {
        ScrollBar->Show(true);
        ScrollBar->X = WrapSub(Width - ScrollBar->Width, Border);
        ScrollBar->SetValue(range - TopOrder);
    }
    return true;
}

void TeskListBox::Render()
{
    DrawPanel(*this, {Texture.get(), BackgroundColor, Border, BorderColor});
    if (Font)
        DrawRows();
    TeskElement::Render();
}

void TeskListBox::DrawRows()
{
    tagRECT row = ScreenRect();
    row.left = WrapAdd(row.left, Border);
    row.top = WrapAdd(row.top, Border);
    row.right = WrapSub(row.right, Border);
    if (ScrollBar && ScrollBar->Visible)
        row.right = WrapSub(row.right, ScrollBar->Width);
    const i32 textRight = WrapSub(WrapSub(row.right, Border), TextMargin);

    const std::span<ListBoxItem* const> items = m_Order.Rows();
    u32 rowsLeft = VisibleRows();
    for (u32 order = TopOrder; order < items.size() && rowsLeft > 0; ++order, --rowsLeft) {
        const ListBoxItem& item = *items[order];
        row.bottom = WrapAdd(row.top, u32{Font->Size});
        if (SelectedItems.Contains(item.ID))
            FillRect(row, SelectionColor);
        Font->Color = item.Color;
        DrawTextClipped(Font.get(), item.GetText(), WrapAdd(row.left, TextMargin), row.top, textRight);
        row.top = WrapAdd(row.top, Pitch());
    }
}
