#include "teskara/windows/TeskScriptInputBox.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/script/TypeGlobals.h"
#include "teskara/text/TeskTextEntry.h"
#include "teskara/windows/DialogBuilder.h"

namespace {

constexpr char Kind[] = "scriptinputbox";

// Lines are that high whatever the font.
constexpr u32 LineHeight = 13;

// Below the text.
constexpr u32 Room = 55;

constexpr u32 EntryBottom = 50; // from its top to the bottom of the box
constexpr u32 EntryMargin = 5;
constexpr u32 EntryHeight = 20;

constexpr MarkupPart FontPart = {"Font", "font", MarkupPlace::TemplateChild};
constexpr MarkupPart TexturePart = {"Texture", "texture", MarkupPlace::TemplateChild};

// Unlike that of a message box, the colour is read as a decimal number.
constexpr MarkupPart BorderColorPart = {"BorderColor", "integer", MarkupPlace::TemplateChild};
constexpr MarkupPart BoxParts[] = {FontPart, TexturePart, BorderColorPart};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "dialog",
    .Use = MarkupUse::Made,
    .ScriptType = &pTeskWindowType,
    .Parts = {BoxParts, DialogButtonParts<OKDialogButton, CancelDialogButton>},
});

} // namespace

bool TeskScriptInputBox::FromXML(XMLNode*, XMLNode*)
{
    return false;
}

bool TeskScriptInputBox::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskWindow::IsTypeOf(word);
}

void TeskScriptInputBox::Create(const char* title, const char* text, const char* initial, XMLNode* templateNode)
{
    if (!templateNode)
        templateNode = g_UIManager.FindTemplate(Kind);
    const MarkupReading reading;
    const ElementWatch self(*this);
    Markup::KeepMade(*this, Font, [&] { return FontFromXML(templateNode, FontPart.Name.Text, nullptr); });
    if (!self.Exists())
        return;

    DialogBuilder dialog(*this, templateNode, Font.get());
    if (!dialog.BreakText(text, {LineHeight, Room}))
        return;

    Markup::KeepMade(*this, Texture, [&] { return TextureFromXML(templateNode, TexturePart.Name.Text, nullptr); });
    if (!self.Exists())
        return;

    if (dialog.MakeWindow(title, dialog.Source().Integer(BorderColorPart.Name, 0)) && MakeParts(dialog, initial))
        Center();
}

// Each part is made as any other element is, so that scripts may run. False: the box has ended.
bool TeskScriptInputBox::MakeParts(const DialogBuilder& dialog, const char* initial)
{
    using namespace DialogLayout;
    constexpr u32 next = NarrowButton + ButtonGap;
    const ElementWatch self(*this);
    MakeText(dialog);
    if (!self.Exists())
        return false;

    MakeEntry(dialog, initial);
    if (!self.Exists())
        return false;

    const u32 first = FirstButton(dialog.AreaWidth(), next + WideButton);
    TeskButton* button = MakeButton(dialog, OKDialogButton, first, NarrowButton);
    if (!self.Exists())
        return false;

    OKButton = button;
    button = MakeButton(dialog, CancelDialogButton, first + next, WideButton);
    if (!self.Exists())
        return false;

    CancelButton = button;
    return true;
}

void TeskScriptInputBox::MakeText(const DialogBuilder& dialog)
{
    TeskElement* element = g_UIManager.LoadElement(&dialog.Area(), "text", "Text");
    if (auto* text = dynamic_cast<TeskText*>(element))
        text->Create(dialog.TextRecord(), nullptr);
}

void TeskScriptInputBox::MakeEntry(const DialogBuilder& dialog, const char* initial)
{
    const ElementWatch self(*this);
    auto* entry = dynamic_cast<TeskTextEntry*>(g_UIManager.LoadElement(&dialog.Area(), "textentry", "Entry"));
    if (!self.Exists() || !entry)
        return;

    Entry = entry;
    _CreateTextEntry record;
    record.X = EntryMargin;
    record.Y = static_cast<i32>(dialog.AreaHeight() - EntryBottom);
    record.Width = dialog.AreaWidth() - 2 * EntryMargin;
    record.Height = EntryHeight;
    record.Border = 1;
    record.Text = initial;
    entry->Create(record, nullptr);
}

TeskButton* TeskScriptInputBox::MakeButton(const DialogBuilder& dialog, const DialogButton& look, u32 x, u32 width)
{
    const ElementWatch self(*this);
    auto* button = dynamic_cast<TeskButton*>(g_UIManager.LoadElement(&dialog.Area(), "button", look.Text));
    if (!self.Exists() || !button)
        return nullptr;

    const ElementWatch watch(*button);
    button->Create(dialog.ButtonRecord(look, x, width), g_UIManager.FindTemplate("button"));
    if (watch.Exists())
        dialog.SetFaces(*button, look, DialogBuilder::Faces::All);
    return watch.Exists() ? button : nullptr;
}

// Nothing that happens in the box is told to its parent.
void TeskScriptInputBox::OnNotify(TeskElement* source, unsigned int code, unsigned long long value)
{
    switch (code) {
    case NotifyChildGoing:
        ForgetPart(source);
        TeskWindow::OnNotify(source, code, value);
        break;
    case NotifyEnter:
        if (source && source == Entry)
            AnswerEntry();
        break;
    case NotifyLeftReleased:
        Released(source);
        break;
    default:
        break;
    }
}

// What is neither button closes the box without an answer.
void TeskScriptInputBox::Released(const TeskElement* source)
{
    if (source && source == OKButton) {
        AnswerEntry();
        return;
    }
    const ElementWatch self(*this);
    if (source && source == CancelButton)
        pScript.Close(nullptr);
    if (self.Exists())
        Close();
}

void TeskScriptInputBox::AnswerEntry()
{
    const ElementWatch self(*this);
    utf8string answer;
    const bool isThere = Entry && TryAssign(answer, Entry->Text.From(0));
    pScript.Close(isThere ? answer.c_str() : nullptr);
    if (self.Exists())
        Close();
}

void TeskScriptInputBox::Close()
{
    if (Parent)
        Parent->DeleteChild(this);
}

void TeskScriptInputBox::ForgetPart(const TeskElement* part)
{
    if (part == OKButton)
        OKButton = nullptr;
    if (part == CancelButton)
        CancelButton = nullptr;
    if (part == Entry)
        Entry = nullptr;
}
