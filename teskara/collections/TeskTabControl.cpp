#include "teskara/collections/TeskTabControl.h"

#include "teskara/controls/Panel.h"
#include "teskara/controls/TeskButton.h"
#include "teskara/controls/TeskFrame.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/script/TypeGlobals.h"

// Where the markup of one of the two buttons stands, and what the textures of one without markup are called.
struct ScrollButtonMarkup {
    const char* Name;
    TeskButton* TeskTabControl::*Button;
    TagName Tag;
    TagName Texture;
    TagName TexturePressed;
    TagName TextureHover;
    bool IsReadTwice;
};

namespace {

constexpr char Kind[] = "tabcontrol";
constexpr char ButtonKind[] = "button";

// clang-format off
constexpr MarkupValue<TeskTabControl> TabControlValues[] = {
    {"Draggable",            Markup::Toggle<&TeskTabControl::Draggable>,           false},
    {"SelectedTextColor",    Markup::Hex<&TeskTabControl::SelectedTextColor>,      0},
    {"TabHeight",            Markup::Integer<&TeskTabControl::TabHeight>,          0},
    {"TabBorder",            Markup::Integer<&TeskTabControl::TabBorder>,          0},
    {"TabTexture",           Markup::Texture<&TeskTabControl::TabTexture>,         {}},
    {"TabSelectedTexture",   Markup::Texture<&TeskTabControl::TabSelectedTexture>, {}},
    {"Font",                 Markup::Font<&TeskTabControl::Font>,                  {}},
    {"OnSelect",             Markup::Script<&TeskTabControl::OnSelect>,            "int ID"},
    {"FrameTexture",         Markup::Texture<&TeskTabControl::FrameTexture>,       {}},
    {"FrameBackgroundColor", Markup::Hex<&TeskTabControl::FrameBackgroundColor>,   0},
    {"FrameBorder",          Markup::Integer<&TeskTabControl::FrameBorder>,        0},
    {"FrameBorderColor",     Markup::Hex<&TeskTabControl::FrameBorderColor>,       0},
};

constexpr ScrollButtonMarkup Left = {"left", &TeskTabControl::LeftButton, "LeftButton",
    "LeftTexture", "LeftPressedTexture", "LeftHoverTexture", false};
constexpr ScrollButtonMarkup Right = {"right", &TeskTabControl::RightButton, "RightButton",
    "RightTexture", "RightPressedTexture", "RightHoverTexture", true};
// clang-format on

constexpr MarkupPart TabsPart = {"Tabs", "tabs"};
constexpr MarkupPart TabPart = {"Tab", "tab"};
constexpr MarkupPart TabName = {"Name", "string", MarkupPlace::Attribute};

constexpr MarkupPart TabControlParts[] = {
    {Left.Tag, ButtonKind},
    {Left.Texture, "texture"},
    {Left.TexturePressed, "texture"},
    {Left.TextureHover, "texture"},
    {Right.Tag, ButtonKind},
    {Right.Texture, "texture"},
    {Right.TexturePressed, "texture"},
    {Right.TextureHover, "texture"},
    TabsPart,
};
constexpr MarkupPart TabsParts[] = {TabPart};
constexpr MarkupPart TabParts[] = {TabName};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "element",
    .ScriptType = &pTeskTabControlType,
    .Tables = {&RowsOf<TabControlValues>},
    .Parts = {TabControlParts},
});

const MarkupShape g_TabsShape({.Name = TabsPart.Form, .Use = MarkupUse::Value, .Parts = {TabsParts}});
const MarkupShape g_TabShape({.Name = TabPart.Form, .Use = MarkupUse::Value, .Parts = {TabParts}, .Holds = "element"});

} // namespace

// What is the host's is given back in the order that hosts expect.
TeskTabControl::~TeskTabControl()
{
    Font.reset();
    TabTexture.reset();
    TabSelectedTexture.reset();
    FrameTexture.reset();
    OnSelect.reset();
}

bool TeskTabControl::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    const MarkupSource source(node, templateNode);
    if (!TeskElement::FromXML(node, templateNode) || !ReadMarkup<TabControlValues>(*this, source))
        return false;
    if (!LoadButton(Left, source) || !LoadButton(Right, source))
        return false;

    for (TeskButton* button : {LeftButton, RightButton}) {
        if (button)
            button->Width = button->Height = TabHeight;
    }
    const ElementWatch self(*this);
    AddTabs(source.Child(TabsPart.Name));
    return self.Exists();
}

// False: the button could not be loaded, or the control has ended.
bool TeskTabControl::LoadButton(const ScrollButtonMarkup& markup, const MarkupSource& source)
{
    XMLNode* node = source.Child(markup.Tag);
    if (!node) {
        TeskButton* made = MakeButton(markup, source);
        if (made)
            this->*markup.Button = made;
        return made;
    }

    const ElementWatch self(*this);
    TeskElement* loaded = g_UIManager.LoadElement(this, ButtonKind, markup.Name, node, nullptr);
    auto* button = dynamic_cast<TeskButton*>(loaded);
    if (!button || !self.Exists())
        return false;

    this->*markup.Button = button;
    if (markup.IsReadTwice)
        button->FromXML(node, nullptr);
    return self.Exists();
}

// Hidden until a frame finds that there is something to scroll to. Null: it could not be made, or it ended with the
// control as its textures were read.
TeskButton* TeskTabControl::MakeButton(const ScrollButtonMarkup& markup, const MarkupSource& source)
{
    struct Face {
        std::unique_ptr<TeskTexture> TeskButton::*Texture;
        TagName Tag;
    };
    const Face faces[] = {
        {&TeskButton::Texture, markup.Texture},
        {&TeskButton::TexturePressed, markup.TexturePressed},
        {&TeskButton::TextureHover, markup.TextureHover},
    };

    auto* button = TeskElementFactory::New<TeskButton>(ButtonKind, this, markup.Name);
    if (!button)
        return nullptr;

    _CreateButton record;
    record.Visible = false;
    const ElementWatch watch(*button);
    button->Create(record, nullptr);
    if (!watch.Exists())
        return nullptr;

    for (const Face& face : faces) {
        if (button->*face.Texture)
            continue;
        Markup::KeepMade(*button, button->*face.Texture,
            [&] { return TextureFromXML(source.Node(), face.Tag.Text, source.Template()); });
        if (!watch.Exists())
            return nullptr;
    }
    return button;
}

void TeskTabControl::AddTabs(XMLNode* tabs)
{
    const ElementWatch self(*this);
    for (XMLNode* node = XMLHelper::GetFirstChild(tabs); node && self.Exists(); node = node->Next) {
        if (node->Type != XMLElementNode || !EqualsNoCase(node->Name, TabPart.Name.Text))
            continue;

        const char* name = XMLHelper::GetStringAttribute(node, TabName.Name.Text, "");
        AddTab(name, node->FirstChild, name, nullptr);
    }
}

bool TeskTabControl::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskElement::IsTypeOf(word);
}

MvTypeDefinition* TeskTabControl::GetMvType()
{
    return pTeskTabControlType;
}

void TeskTabControl::RecalculateSize(bool)
{
    TeskElement::RecalculateSize(false);
}

// What lies in a frame may run scripts as it gets its size.
void TeskTabControl::SizeRecalculated(bool)
{
    const ElementWatch self(*this);
    const u32 last = static_cast<u32>(Tabs.size());
    for (u32 id = 1; id <= last; ++id) {
        const CTeskTab* tab = RetrieveTab(id);
        if (!tab || !tab->Frame)
            continue;

        tab->Frame->Width = Width;
        tab->Frame->Height = Height - TabHeight;
        tab->Frame->RecalculateChildrenSize();
        if (!self.Exists())
            return;
    }
    if (RightButton)
        RightButton->X = WrapSub(Width, TabHeight);
}

void TeskTabControl::Render()
{
    if (SelectedTab == 0) {
        if (TabCount == 0)
            return;
        SelectFront();
    }

    const bool isCut = DrawStrip();
    const ElementWatch self(*this);
    if (LeftButton)
        LeftButton->Show(FirstTab > 0);
    if (self.Exists() && RightButton)
        RightButton->Show(isCut);
    if (self.Exists())
        TeskElement::Render();
}

// True: there is more on the right than shows.
bool TeskTabControl::DrawStrip()
{
    const i32 left = WrapAdd(AbsoluteX, TabHeight);
    const i32 limit = WrapSub(WrapAdd(AbsoluteX, Width), TabHeight);
    return OrderedTabs.LayOut(
        FirstTab, left, limit, [this](const CTeskTab& tab, i32 from, i32 to) { DrawTab(tab, from, to); });
}

void TeskTabControl::DrawTab(const CTeskTab& tab, i32 left, i32 right)
{
    const bool isSelected = tab.ID == SelectedTab;
    if (TeskTexture* texture = (isSelected ? TabSelectedTexture : TabTexture).get()) {
        const tagRECT rect = {left, AbsoluteY, right, WrapAdd(AbsoluteY, TabHeight)};
        DrawPanel(*this, rect, {texture, 0, TabBorder, FrameBorderColor});
    }
    if (!Font)
        return;

    const u32 plainColor = Font->Color;
    if (isSelected)
        Font->Color = SelectedTextColor;
    DrawTextCenter(Font.get(), tab.Name.c_str(), left, WrapAdd(AbsoluteY, (TabHeight - Font->Size) / 2), right);
    Font->Color = plainColor;
}

bool TeskTabControl::IsBesideStrip(const _Point2i& point) const
{
    return point.y < AbsoluteY || point.y > WrapAdd(AbsoluteY, TabHeight);
}

// Huge left of the first tab.
u32 TeskTabControl::OffsetInStrip(const _Point2i& point) const
{
    return WrapSub<u32>(point.x, AbsoluteX) - TabHeight;
}

// Where tabs end to the right: at the button, or where it would be.
i32 TeskTabControl::RightEnd() const
{
    return RightButton ? WrapAdd(AbsoluteX, RightButton->X) : WrapAdd(AbsoluteX, Width - TabHeight);
}

u32 TeskTabControl::GetTabFromPoint(_Point2i& point)
{
    if (TabCount == 0 || IsBesideStrip(point) || point.x < AbsoluteX || point.x >= RightEnd())
        return 0;

    const CTeskTab* tab = OrderedTabs.FindAt(FirstTab, OffsetInStrip(point));
    return tab ? tab->ID : 0;
}

u32 TeskTabControl::GetOrderFromPoint(_Point2i& point)
{
    if (TabCount == 0 || IsBesideStrip(point))
        return 0;
    if (point.x < AbsoluteX)
        return FirstTab;

    const CTeskTab* tab = OrderedTabs.FindAt(FirstTab, OffsetInStrip(point));
    return tab ? tab->Order : 0;
}

bool TeskTabControl::OnLMouseDown(_Point2i& point)
{
    const ElementWatch self(*this);
    if (const u32 id = GetTabFromPoint(point)) {
        SelectTab(id);
        if (!self.Exists())
            return true;
        if (Draggable && RetrieveTab(id))
            DragTab = id;
    }
    TeskElement::OnLMouseDown(point);
    return true;
}

bool TeskTabControl::OnLMouseUp(_Point2i& point)
{
    DragTab = 0;
    TeskElement::OnLMouseUp(point);
    return true;
}

// A tab that is dragged beyond the last one jumps to the front.
bool TeskTabControl::OnMouseMove(_Point2i& point)
{
    if (const CTeskTab* tab = RetrieveTab(DragTab))
        OrderedTabs.Move(*tab, GetOrderFromPoint(point));
    TeskElement::OnMouseMove(point);
    return true;
}

// Presses of the buttons scroll. Whatever is heard goes on to the parent.
void TeskTabControl::OnNotify(TeskElement* source, unsigned int code, unsigned long long value)
{
    if (source && code == NotifyChildGoing)
        ForgetPart(source);
    else if (source && code == NotifyLeftPressed)
        ScrollBy(source);
    TeskElement::OnNotify(source, code, value);
}

void TeskTabControl::ForgetPart(const TeskElement* part)
{
    if (part == LeftButton)
        LeftButton = nullptr;
    if (part == RightButton)
        RightButton = nullptr;
    for (const auto& tab : Tabs) {
        if (tab && tab->Frame == part)
            tab->Frame = nullptr;
    }
}

void TeskTabControl::ScrollBy(const TeskElement* button)
{
    if (button == LeftButton && FirstTab > 0)
        --FirstTab;
    else if (button == RightButton && FirstTab + 1 < TabCount)
        ++FirstTab;
}
