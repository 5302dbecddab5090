#include "teskara/collections/TeskComboBox.h"

#include "teskara/collections/TeskListBox.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/script/TypeGlobals.h"

namespace {

constexpr char Kind[] = "combobox";

// Between the text and the edges of the face.
constexpr u32 TextMargin = 3;

// Room for the text of any 32-bit number.
constexpr u32 NumberTextSize = 32;

// clang-format off
constexpr MarkupValue<TeskComboBox> ComboValues[] = {
    {"FullHeight",    Markup::Integer<&TeskComboBox::FullHeight>,    0},
    {"Border",        Markup::Integer<&TeskComboBox::Border>,        0},
    {"Font",          Markup::Font<&TeskComboBox::Font>,             {}},
    {"ButtonWidth",   Markup::Integer<&TeskComboBox::ButtonWidth>,   0},
    {"OnSelect",      Markup::Script<&TeskComboBox::OnSelect>,       "int ID"},
    {"Texture",       Markup::Texture<&TeskComboBox::Texture>,       {}},
    {"ButtonTexture", Markup::Texture<&TeskComboBox::ButtonTexture>, {}},
};
// clang-format on

constexpr MarkupPart ListPart = {"ListBox", "listbox"};
constexpr MarkupPart ItemsPart = {"Items", "items"};
constexpr MarkupPart ComboParts[] = {ListPart, ItemsPart};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "element",
    .ScriptType = &pTeskComboBoxType,
    .Tables = {&RowsOf<ComboValues>},
    .Parts = {ComboParts},
});

} // namespace

// Rows that stand in the list's own markup are selected before the list is known here, and do not show; the box's own
// rows do.
// What is the host's is given back in the order that hosts expect.
TeskComboBox::~TeskComboBox()
{
    Font.reset();
    Texture.reset();
    ButtonTexture.reset();
    OnSelect.reset();
}

bool TeskComboBox::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    if (!TeskElement::FromXML(node, templateNode))
        return false;

    ClosedHeight = Height;
    const MarkupSource source(node, templateNode);
    if (!ReadMarkup<ComboValues>(*this, source) || !LoadList(source))
        return false;

    const ElementWatch self(*this);
    List->AddItems(XMLHelper::GetChild(node, ItemsPart.Name));
    return self.Exists();
}

bool TeskComboBox::LoadList(const MarkupSource& source)
{
    XMLNode* node = source.Child(ListPart.Name);
    if (!node)
        return false;

    const ElementWatch self(*this);
    auto* list = dynamic_cast<TeskListBox*>(g_UIManager.LoadElement(this, ListPart.Form, "List", node, nullptr));
    if (!list || !self.Exists())
        return false;

    List = list;
    List->SelectMultiple = false;
    List->Width = Width;
    List->Height = FullHeight - Height;
    List->RecalculateChildrenSize();
    return self.Exists() && List;
}

bool TeskComboBox::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskElement::IsTypeOf(word);
}

MvTypeDefinition* TeskComboBox::GetMvType()
{
    return pTeskComboBoxType;
}

void TeskComboBox::RecalculateSize(bool recurse)
{
    const ElementWatch self(*this);
    TeskElement::RecalculateSize(recurse);
    if (self.Exists())
        PlaceList();
}

void TeskComboBox::PlaceList()
{
    if (Down) {
        if (List)
            List->Y = static_cast<i32>(ClosedHeight);
        Height = FullHeight;
        return;
    }

    ClosedHeight = Height;
    if (!List)
        return;
    List->X = 0;
    List->Y = static_cast<i32>(ClosedHeight);
    List->Height = FullHeight - ClosedHeight;
    List->Width = Width;
    List->RecalculateSize(true);
}

void TeskComboBox::Render()
{
    DrawFace();
    DrawSelection();
    const ElementWatch self(*this);
    if (List)
        List->Show(Down);
    if (self.Exists())
        TeskElement::Render();
}

void TeskComboBox::DrawFace()
{
    tagRECT face = ScreenRect();
    face.bottom = WrapAdd(AbsoluteY, ClosedHeight);
    tagRECT button = face;
    face.right = WrapSub(face.right, ButtonWidth);
    button.left = face.right;

    if (Texture && Border != 0)
        TexturedRectBordered(face, Texture.get(), Border);
    else if (Texture)
        TexturedRect(face, Texture.get());

    if (!ButtonTexture || ButtonWidth == 0)
        return;
    if (ButtonTexture->Border != 0)
        TexturedRectBordered(button, ButtonTexture.get(), ButtonTexture->Border);
    else
        TexturedRect(button, ButtonTexture.get());
}

void TeskComboBox::DrawSelection()
{
    const ListBoxItem* item = List && Selection != 0 ? List->RetrieveItem(Selection) : nullptr;
    if (!item || !Font)
        return;

    const i32 x = WrapAdd(WrapAdd(AbsoluteX, TextMargin), Border);
    const i32 y = WrapAdd(AbsoluteY, (ClosedHeight - Font->Size) / 2);
    const i32 right = WrapAdd(WrapSub(AbsoluteX, TextMargin), Width - ButtonWidth);
    DrawTextClipped(Font.get(), item->GetText(), x, y, right);
}

bool TeskComboBox::OnLMouseDown(_Point2i& point)
{
    TeskElement::OnLMouseDown(point);
    return true;
}

bool TeskComboBox::OnLMouseUp(_Point2i& point)
{
    const ElementWatch self(*this);
    MoveZTop(true);
    if (!self.Exists())
        return true;

    if (Down) {
        g_UIManager.MouseCaptureElementID = 0;
        Close();
    } else {
        Open();
    }
    if (self.Exists())
        TeskElement::OnLMouseUp(point);
    return true;
}

// The scripts that hear of the focus may close the box again, or end it.
void TeskComboBox::Open()
{
    Down = true;
    Height = FullHeight;
    const ElementWatch self(*this);
    g_UIManager.SetFocusElement(this);
    if (self.Exists() && Down)
        g_UIManager.MouseCaptureElementID = ID;
}

void TeskComboBox::Close()
{
    Height = ClosedHeight;
    Down = false;
}

void TeskComboBox::OnLMouseDownOther(TeskElement* taker)
{
    if (!Down)
        return;
    for (const TeskElement* element = taker; element; element = element->Parent) {
        if (element == this)
            return;
    }

    if (g_UIManager.MouseCaptureElementID == ID)
        g_UIManager.MouseCaptureElementID = 0;
    Close();
}

// Picking another row comes as two changes: the old one is deselected first.
void TeskComboBox::OnNotify(TeskElement* source, unsigned int code, unsigned long long value)
{
    if (!source || source != List)
        return;
    if (code == NotifyChildGoing)
        List = nullptr;
    if (code != NotifySelectionChanged)
        return;

    const u32 id = static_cast<u32>(value);
    Selection = List->SelectedItems.Contains(id) ? id : 0;
    if (Down)
        Close(); // the mouse stays captured

    const ElementWatch self(*this);
    NotifyParent(NotifySelectionChanged, Selection);
    if (!self.Exists())
        return;

    char text[NumberTextSize];
    WriteInteger(text, sizeof(text), static_cast<i32>(Selection));
    RunScript(OnSelect, text);
}
