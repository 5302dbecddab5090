// How a window comes by its values and its parts.

#include "teskara/controls/TeskText.h"
#include "teskara/core/MarkupReading.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/script/TypeGlobals.h"
#include "teskara/windows/TeskWindow.h"

namespace {

constexpr char Kind[] = "window";

// Edges that are thinner than this cannot be caught.
constexpr u32 LeastResizeBorder = 3;

// The least size where markup speaks of resizing and names none.
constexpr u32 LeastHeightOfMarkup = 20;
constexpr u32 LeastWidthOfMarkup = 40;

// Only sets flags: one that is off takes nothing from what another has set.
template <u32 Flags>
constexpr MarkupForm<TeskWindow> Flag = {
    "toggle", [](TeskWindow& window, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        if (source.Toggle(tag, fallback.Number != 0))
            window.WindowFlags |= Flags;
    }};

// Of the window's own node, never of its template.
constexpr MarkupForm<TeskWindow> TitleElseName = {
    "string", [](TeskWindow& window, const MarkupSource& source, TagName tag, MarkupDefault) {
        const char* title = XMLHelper::GetStringValue(source.Node(), tag.Text, window.Name.c_str());
        window.Title = std::make_unique<utf8string>(title);
    }};

constexpr MarkupForm<TeskWindow> OwnClickFocus = {
    "string", [](TeskWindow& window, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        const char* name = XMLHelper::GetStringValue(source.Node(), tag.Text, fallback.Text);
        window.ClickFocus = std::make_unique<utf8string>(name);
    }};

// clang-format off
constexpr MarkupValue<TeskWindow> WindowValues[] = {
    {"CloseButton",     Flag<WindowHasClose>,                             false},
    {"MinimizeButton",  Flag<WindowHasMinimize>,                          false},
    {"Resizable",       Flag<WindowResizesWidth | WindowResizesHeight>,   false},
    {"Locked",          Markup::Toggle<&TeskWindow::Locked>,              false},
    {"WidthResizable",  Flag<WindowResizesWidth>,                         false},
    {"HeightResizable", Flag<WindowResizesHeight>,                        false},
    {"Title",           TitleElseName,                                    {}},
    {"ClickFocus",      OwnClickFocus,                                    ""},
};

constexpr MarkupValue<TeskWindow> CreatedWindowValues[] = {
    {"CloseButton",          Flag<WindowHasClose>,                           false},
    {"MinimizeButton",       Flag<WindowHasMinimize>,                        false},
    {"Resizable",            Flag<WindowResizesWidth | WindowResizesHeight>, false},
    {"WidthResizable",       Flag<WindowResizesWidth>,                       false},
    {"HeightResizable",      Flag<WindowResizesHeight>,                      false},
    {"OffsetTitleBarHeight", Flag<WindowAddsTitleBarHeight>,                 false},
    {"OffsetTitleBarWidth",  Flag<WindowAddsTitleBarWidth>,                  false},
    {"Title",                TitleElseName,                                  {}},
    {"ClickFocus",           OwnClickFocus,                                  ""},
};
// clang-format on

// Their attributes bound the size.
constexpr MarkupPart MinHeightPart = {"MinHeight", "integer", MarkupPlace::Attribute, "Resizable"};
constexpr MarkupPart MinWidthPart = {"MinWidth", "integer", MarkupPlace::Attribute, "Resizable"};
constexpr MarkupPart TitleBarPart = {"TitleBar", "frame"};
constexpr MarkupPart ClientPart = {"Client", "windowclient"};

constexpr MarkupPart WindowParts[] = {
    MinHeightPart,
    MinWidthPart,
    {MinHeightPart.Name, "integer", MarkupPlace::Attribute, "HeightResizable"},
    {MinWidthPart.Name, "integer", MarkupPlace::Attribute, "WidthResizable"},
    TitleBarPart,
    ClientPart,
};

constexpr MarkupPart DialogWindowParts[] = {TitleBarPart, ClientPart};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "frame",
    .ScriptType = &pTeskWindowType,
    .Tables = {&RowsOf<WindowValues>},
    .Parts = {WindowParts},
});

// The window that a dialog is takes these from the dialog's template.
const MarkupShape g_DialogShape({
    .Name = "dialog window",
    .Base = nullptr,
    .Use = MarkupUse::Base,
    .Tables = {&RowsOf<CreatedWindowValues>},
    .Parts = {DialogWindowParts},
});

// A part whose markup says nothing at all is none. An empty one of the window's own still hides that of the template.
XMLNode* PartMarkup(const MarkupSource& source, TagName tag)
{
    XMLNode* node = source.Child(tag);
    return node && (node->Attributes || node->FirstChild) ? node : nullptr;
}

bool IsInside(const TeskElement* element, const TeskElement* holder)
{
    while (element && element != holder)
        element = element->Parent;
    return element != nullptr;
}

} // namespace

bool TeskWindow::FromXML(XMLNode* node, XMLNode* templateNode)
{
    WindowFlags = 0;
    templateNode = TemplateFor(node, templateNode, Kind);
    const MarkupSource source(node, templateNode);
    if (!TeskFrame::FromXML(node, templateNode) || !ReadMarkup<WindowValues>(*this, source))
        return false;

    ReadBounds(source);
    if (!LoadParts(source))
        return false;

    WidenBorder();
    AddTitleBar();
    AddBorder();
    const ElementWatch self(*this);
    RecalculateSize(true);
    return self.Exists();
}

void TeskWindow::Create(const _CreateWindow& record, XMLNode* node)
{
    const MarkupReading reading;
    const ElementWatch self(*this);
    TeskFrame::Create(record);
    if (!self.Exists())
        return;

    WindowFlags = record.Flags;
    Border = record.Border;
    const MarkupSource source(node, TemplateFor(node, nullptr, Kind));
    if (!ReadMarkup<CreatedWindowValues>(*this, source) || !LoadParts(source))
        return;

    WidenBorder();
    AddTitleBar();
    AddBorder();
    RecalculateSize(true);
}

// A value that markup does not name is the other way round than in a window without any bounds.
void TeskWindow::ReadBounds(const MarkupSource& source)
{
    XMLNode* both = source.Child("Resizable");
    XMLNode* width = both ? both : source.Child("WidthResizable");
    XMLNode* height = both ? both : source.Child("HeightResizable");
    if (height)
        MinHeight = XMLHelper::GetIntAttribute(height, MinHeightPart.Name.Text, LeastHeightOfMarkup);
    if (width)
        MinWidth = XMLHelper::GetIntAttribute(width, MinWidthPart.Name.Text, LeastWidthOfMarkup);
}

// False: the window was deleted meanwhile.
bool TeskWindow::LoadParts(const MarkupSource& source)
{
    XMLNode* titleBar = PartMarkup(source, TitleBarPart.Name);
    if (titleBar && !LoadTitleBar(titleBar))
        return false;

    XMLNode* client = PartMarkup(source, ClientPart.Name);
    if (!client)
        return true;

    const ElementWatch self(*this);
    TeskElement* made = g_UIManager.LoadElement(this, ClientPart.Form, "Client", client, nullptr);
    if (!self.Exists())
        return false;

    Client = made;
    return true;
}

bool TeskWindow::LoadTitleBar(XMLNode* node)
{
    const ElementWatch self(*this);
    TeskElement* made = g_UIManager.LoadElement(this, TitleBarPart.Form, "TitleBar", node, nullptr);
    if (!self.Exists())
        return false;

    TitleBar = dynamic_cast<TeskFrame*>(made);
    if (!TitleBar)
        return true;

    TitleText = dynamic_cast<TeskText*>(TitleBar->FindUsableChild("Title", "text"));
    if (TitleText && Title)
        TitleText->SetText(Title->c_str());
    return FindMinimizeButtons() && FindCloseButton();
}

// A button that stands alone serves both ways. False: the window was deleted meanwhile.
bool TeskWindow::FindMinimizeButtons()
{
    MinimizeButton = TitleBar->FindUsableChild("Minimize", "button");
    MaximizeButton = TitleBar->FindUsableChild("Maximize", "button");
    if (!(WindowFlags & WindowHasMinimize))
        return DeletePart(&TeskWindow::MinimizeButton) && DeletePart(&TeskWindow::MaximizeButton);

    if (!MinimizeButton)
        MinimizeButton = MaximizeButton;
    if (!MaximizeButton)
        MaximizeButton = MinimizeButton;
    return true;
}

bool TeskWindow::FindCloseButton()
{
    if (!TitleBar)
        return true; // the scripts of another button ended it

    CloseButton = TitleBar->FindUsableChild("Close", "button");
    return (WindowFlags & WindowHasClose) || DeletePart(&TeskWindow::CloseButton);
}

bool TeskWindow::DeletePart(TeskElement* TeskWindow::*part)
{
    TeskElement* element = this->*part;
    if (!element)
        return true;

    const ElementWatch self(*this);
    element->Parent->DeleteChild(element);
    if (!self.Exists())
        return false;

    this->*part = nullptr; // also if it cannot be deleted
    return true;
}

// A part goes with whatever holds it.
void TeskWindow::ForgetPart(const TeskElement* part)
{
    for (TeskElement* TeskWindow::*field :
        {&TeskWindow::MinimizeButton, &TeskWindow::MaximizeButton, &TeskWindow::CloseButton, &TeskWindow::Client}) {
        if (IsInside(this->*field, part))
            this->*field = nullptr;
    }
    if (IsInside(TitleText, part))
        TitleText = nullptr;
    if (TitleBar == part)
        TitleBar = nullptr;
}

void TeskWindow::WidenBorder()
{
    if ((WindowFlags & (WindowResizesWidth | WindowResizesHeight)) && Border < LeastResizeBorder)
        Border = LeastResizeBorder;
}

void TeskWindow::AddTitleBar()
{
    if (!TitleBar)
        return;

    if (WindowFlags & WindowAddsTitleBarHeight)
        Height += TitleBar->Height;
    if (WindowFlags & WindowAddsTitleBarWidth)
        Width += TitleBar->Width;
}

// From the inner area to the whole of the window.
void TeskWindow::AddBorder()
{
    X = WrapSub(X, Border);
    Y = WrapSub(Y, Border);
    Width += 2 * Border;
    Height += 2 * Border;
}

void TeskWindow::ResetWindowPosition()
{
    X = StartX;
    Y = StartY;
    Width = StartWidth;
    Height = StartHeight;
    PositionX = StartPositionX;
    PositionY = StartPositionY;
    PositionWidth = StartPositionWidth;
    PositionHeight = StartPositionHeight;
    AddTitleBar();
    AddBorder();

    const ElementWatch self(*this);
    RecalculateSize(true);
    if (self.Exists())
        OnResize();
}
