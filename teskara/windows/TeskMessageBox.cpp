#include "teskara/windows/TeskMessageBox.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/script/TypeGlobals.h"
#include "teskara/windows/DialogBuilder.h"

namespace {

constexpr char Kind[] = "messagebox";

// Below the text.
constexpr u32 Room = 30;

constexpr MarkupPart FontPart = {"Font", "font", MarkupPlace::TemplateChild};
constexpr MarkupPart BorderColorPart = {"BorderColor", "hex", MarkupPlace::TemplateChild};
constexpr MarkupPart BoxParts[] = {FontPart, BorderColorPart};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "dialog",
    .Use = MarkupUse::Made,
    .ScriptType = &pTeskMessageBoxType,
    .Parts = {BoxParts, DialogButtonParts<OKDialogButton, CancelDialogButton, YesDialogButton, NoDialogButton>},
});

} // namespace

// A button of a type of box: how wide it is, how far from the first one it stands, and how wide all of them are.
struct TeskMessageBox::Part {
    TeskButton* TeskMessageBox::*Button;
    const DialogButton& Look;
    eMessageBoxType Type;
    u32 Width;
    u32 Offset;
    u32 RowWidth;
};

std::span<const TeskMessageBox::Part> TeskMessageBox::Parts()
{
    using namespace DialogLayout;
    constexpr u32 next = NarrowButton + ButtonGap;
    // clang-format off
    static constexpr Part parts[] = {
        {&TeskMessageBox::OKButton,     OKDialogButton,     MessageBoxOK,       NarrowButton, 0,    NarrowButton},
        {&TeskMessageBox::OKButton,     OKDialogButton,     MessageBoxOKCancel, NarrowButton, 0,    next + WideButton},
        {&TeskMessageBox::CancelButton, CancelDialogButton, MessageBoxOKCancel, WideButton,   next, next + WideButton},
        {&TeskMessageBox::YesButton,    YesDialogButton,    MessageBoxYesNo,    NarrowButton, 0,    next + NarrowButton},
        {&TeskMessageBox::NoButton,     NoDialogButton,     MessageBoxYesNo,    NarrowButton, next, next + NarrowButton},
    };
    // clang-format on
    return parts;
}

bool TeskMessageBox::FromXML(XMLNode*, XMLNode*)
{
    return false;
}

bool TeskMessageBox::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskWindow::IsTypeOf(word);
}

MvTypeDefinition* TeskMessageBox::GetMvType()
{
    return pTeskMessageBoxType;
}

void TeskMessageBox::Create(const char* title, const char* text, eMessageBoxType type, XMLNode* templateNode)
{
    if (!templateNode)
        templateNode = g_UIManager.FindTemplate(Kind);
    Type = type;
    const MarkupReading reading;
    const ElementWatch self(*this);
    Markup::KeepMade(*this, Font, [&] { return FontFromXML(templateNode, FontPart.Name.Text, nullptr); });
    if (!self.Exists())
        return;

    DialogBuilder dialog(*this, templateNode, Font.get());
    const u32 lineHeight = Font ? Font->Size + 1u : 1u;
    if (!dialog.BreakText(text, {lineHeight, Room}))
        return;
    if (!dialog.MakeWindow(title, dialog.Source().Hex(BorderColorPart.Name, 0)))
        return;

    MakeText(dialog);
    if (self.Exists() && MakeButtons(dialog))
        Center();
}

void TeskMessageBox::MakeText(const DialogBuilder& dialog)
{
    if (auto* text = TeskElementFactory::New<TeskText>("text", &dialog.Area(), "Text"))
        text->Create(dialog.TextRecord(), nullptr);
}

// False: the box has ended.
bool TeskMessageBox::MakeButtons(const DialogBuilder& dialog)
{
    const ElementWatch self(*this);
    for (const Part& part : Parts()) {
        if (part.Type != Type)
            continue;

        const u32 first = DialogLayout::FirstButton(dialog.AreaWidth(), part.RowWidth);
        TeskButton* button = MakeButton(dialog, part.Look, first + part.Offset, part.Width);
        if (!self.Exists())
            return false;

        this->*part.Button = button;
    }
    return true;
}

TeskButton* TeskMessageBox::MakeButton(const DialogBuilder& dialog, const DialogButton& look, u32 x, u32 width)
{
    auto* button = TeskElementFactory::New<TeskButton>("button", &dialog.Area(), look.Text);
    if (!button)
        return nullptr;

    _CreateButton record = dialog.ButtonRecord(look, x, width);
    record.TexturesFromTemplate = true;
    const ElementWatch watch(*button);
    const char* templateName = dialog.Source().Text(look.Template, "");
    button->Create(record, *templateName ? g_UIManager.FindTemplate(templateName) : nullptr);
    if (watch.Exists())
        dialog.SetFaces(*button, look, DialogBuilder::Faces::Missing);
    return watch.Exists() ? button : nullptr;
}

const char* TeskMessageBox::AnswerOf(const TeskElement* button) const
{
    for (const Part& part : Parts()) {
        if (button && this->*part.Button == button)
            return part.Look.Text;
    }
    return nullptr;
}

void TeskMessageBox::ForgetButton(const TeskElement* button)
{
    for (const Part& part : Parts()) {
        if (this->*part.Button == button)
            this->*part.Button = nullptr;
    }
}

// Nothing that happens in the box is told to its parent.
void TeskMessageBox::OnNotify(TeskElement* source, unsigned int code, unsigned long long value)
{
    if (code == NotifyChildGoing) {
        ForgetButton(source);
        TeskWindow::OnNotify(source, code, value);
    } else if (code == NotifyLeftReleased && AnswerOf(source) && Parent) {
        Parent->DeleteChild(this);
    }
}
