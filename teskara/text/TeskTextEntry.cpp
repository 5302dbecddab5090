#include "teskara/text/TeskTextEntry.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/script/TypeGlobals.h"
#include "teskara/text/ClipboardText.h"
#include "teskara/text/TabWalk.h"
#include "teskara/text/TextKeys.h"
#include "teskara/text/TypedText.h"

#include <algorithm>

namespace {

constexpr char Kind[] = "textentry";

// Bytes.
constexpr u32 LeastLength = 1;
constexpr u32 MostLength = 4096;

// Pixels.
constexpr u32 LeastFontSize = 8;
constexpr u32 MostFontSize = 96;

constexpr MarkupForm<TeskTextEntry> Length = {
    "integer", [](TeskTextEntry& entry, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        entry.ReserveText(source.Integer(tag, fallback.Number));
    }};

constexpr MarkupForm<TeskTextEntry> FirstByte = {
    "string", [](TeskTextEntry& entry, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        entry.PasswordCharacter = *source.Text(tag, fallback.Text);
    }};

// clang-format off
constexpr MarkupValue<TeskTextEntry> EntryValues[] = {
    {"MaxLength",         Length,                                           0},
    {"SelectionColor",    Markup::Hex<&TeskTextEntry::SelectionColor>,      0},
    {"BackgroundColor",   Markup::Hex<&TeskTextEntry::BackgroundColor>,     0},
    {"BorderColor",       Markup::Hex<&TeskTextEntry::BorderColor>,         0},
    {"Border",            Markup::Integer<&TeskTextEntry::Border>,          0},
    {"CaretOuterColor",   Markup::Hex<&TeskTextEntry::CaretOuterColor>,     0},
    {"CaretInnerColor",   Markup::Hex<&TeskTextEntry::CaretInnerColor>,     0},
    {"Font",              Markup::Font<&TeskTextEntry::Font>,               {}},
    {"OnChange",          Markup::Script<&TeskTextEntry::OnChange>,         ""},
    {"Texture",           Markup::Texture<&TeskTextEntry::Texture>,         {}},
    {"TextureFocused",    Markup::Texture<&TeskTextEntry::TextureFocused>,  {}},
    {"PasswordCharacter", FirstByte,                                        ""},
};

constexpr MarkupValue<TeskTextEntry> EntryFont[] = {
    {"Font", Markup::Font<&TeskTextEntry::Font>, {}},
};
// clang-format on

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "element",
    .ScriptType = &pTeskTextEntryType,
    .Tables = {&RowsOf<EntryValues>},
});

// A key that does something else than to give a character.
struct KeyAction {
    u32 Key;
    void (*Act)(TeskTextEntry& entry);
};

void PasteOrFlipMode(TeskTextEntry& entry)
{
    if (g_UIManager.ShiftDown)
        entry.PasteClipboard();
    else
        entry.Text.InsertMode = !entry.Text.InsertMode;
}

constexpr KeyAction KeyActions[] = {
    {KeyBackspace, [](TeskTextEntry& entry) { entry.HandleBackspace(); }},
    {KeyEnter, [](TeskTextEntry& entry) { entry.HandleEnter(); }},
    {KeySeparator, [](TeskTextEntry& entry) { entry.HandleEnter(); }},
    {KeyEscape, [](TeskTextEntry& entry) { entry.HandleEscape(); }},
    {KeyEnd, [](TeskTextEntry& entry) { entry.Text.MoveToEnd(); }},
    {KeyHome, [](TeskTextEntry& entry) { entry.Text.MoveToStart(); }},
    {KeyLeft, [](TeskTextEntry& entry) { entry.Text.MoveLeft(); }},
    {KeyRight, [](TeskTextEntry& entry) { entry.Text.MoveRight(); }},
    {KeyInsert, PasteOrFlipMode},
    {KeyDelete, [](TeskTextEntry& entry) { entry.HandleDelete(); }},
};

} // namespace

// What is the host's is given back in the order that hosts expect.
TeskTextEntry::~TeskTextEntry()
{
    Font.reset();
    Texture.reset();
    TextureFocused.reset();
    TextureCaret.reset();
    TextureCaretOverwrite.reset();
    OnChange.reset();
}

bool TeskTextEntry::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    return TeskElement::FromXML(node, templateNode) && ReadMarkup<EntryValues>(*this, {node, templateNode});
}

bool TeskTextEntry::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskElement::IsTypeOf(word);
}

MvTypeDefinition* TeskTextEntry::GetMvType()
{
    return pTeskTextEntryType;
}

void TeskTextEntry::Create(const _CreateTextEntry& record, XMLNode* templateNode)
try {
    if (!templateNode)
        templateNode = g_UIManager.FindTemplate(Kind);
    const MarkupSource source(nullptr, templateNode);
    const auto color = [&](u32 given, TagName tag) { return given != 0 ? given : source.Hex(tag, 0); };
    const auto number = [&](u32 given, TagName tag) { return given != 0 ? given : source.Integer(tag, 0); };

    CreateFrom(record);
    SelectionColor = color(record.SelectionColor, "SelectionColor");
    BackgroundColor = color(record.BackgroundColor, "BackgroundColor");
    BorderColor = color(record.BorderColor, "BorderColor");
    Border = number(record.Border, "Border");
    CaretOuterColor = color(record.CaretOuterColor, "CaretOuterColor");
    CaretInnerColor = color(record.CaretInnerColor, "CaretInnerColor");
    PasswordCharacter = record.PasswordCharacter;
    ReserveText(number(record.MaxLength, "MaxLength"));
    Text.Set(TextOrEmpty(record.Text), MaxLength);
    Text.MoveToEnd();
    ReadMarkup<EntryFont>(*this, source);
    MoveZTop(true);
} catch (...) {
    return;
}

void TeskTextEntry::ReserveText(u32 maxLength)
{
    MaxLength = std::clamp(maxLength, LeastLength, MostLength);
    Text.Reserve(MaxLength);
}

void TeskTextEntry::SetText(const char* text)
{
    Text.Set(TextOrEmpty(text), MaxLength);
    RunScript(OnChange);
}

void TeskTextEntry::SetFontSize(u32 size)
{
    if (Font)
        Font->SetHeight(static_cast<u8>(std::clamp(size, LeastFontSize, MostFontSize)));
}

void TeskTextEntry::ReportChange()
{
    const ElementWatch self(*this);
    NotifyParent(NotifyTextChanged, reinterpret_cast<std::uintptr_t>(Text.Bytes()));
    if (self.Exists())
        RunScript(OnChange);
}

void TeskTextEntry::InsertCharacter(char character)
{
    if (Text.Insert(character, MaxLength))
        ReportChange();
}

void TeskTextEntry::HandleBackspace()
{
    if (Text.Backspace())
        ReportChange();
}

void TeskTextEntry::HandleDelete()
{
    if (Text.Delete())
        ReportChange();
}

void TeskTextEntry::HandleEnter()
{
    NotifyParent(NotifyEnter, 0);
}

void TeskTextEntry::HandleEscape() { }

void TeskTextEntry::PasteClipboard()
{
    PasteLines(nullptr);
}

void TeskTextEntry::PasteLines(void (TeskTextEntry::*endLine)())
{
    const ElementWatch self(*this);
    for (const char byte : ClipboardText()) {
        if (byte == '\b')
            HandleBackspace();
        else if (byte == '\x7f')
            HandleDelete();
        else if (byte != '\n' && byte != '\r')
            InsertCharacter(byte);
        else if (endLine)
            (this->*endLine)();
        if (!self.Exists())
            return;
    }
}

u64 TeskTextEntry::GetPositionFromPoint(_Point2i& point)
{
    const u32 offset = WrapAdd<u32>(WrapSub(point.x, AbsoluteX), Border);
    return Font ? Font->GetCharByOffset(Text.Bytes(), offset) : 0;
}

bool TeskTextEntry::OnLMouseDown(_Point2i& point)
{
    const ElementWatch self(*this);
    g_UIManager.SetFocusElement(this);
    if (!self.Exists())
        return true;

    Text.CaretPos = GetPositionFromPoint(point);
    TeskElement::OnLMouseDown(point);
    return true;
}

bool TeskTextEntry::OnKeyDown(unsigned int key)
{
    if (key == KeyTab) {
        WalkToTextField(*this);
        return true;
    }

    const ElementWatch self(*this);
    if (!ActOnKey(key))
        return false;
    if (self.Exists())
        FinishKeyDown(key);
    return true;
}

// False: the key does nothing here.
bool TeskTextEntry::ActOnKey(u32 key)
{
    for (const KeyAction& action : KeyActions) {
        if (action.Key == key) {
            action.Act(*this);
            return true;
        }
    }
    if (key == KeyV && g_UIManager.CtrlDown) {
        PasteClipboard();
        return true;
    }
    return key >= CharacterKeys || TypeKey(key);
}

// False: the key gives no character.
bool TeskTextEntry::TypeKey(u32 key)
{
    const TypedText typed(key);
    const ElementWatch self(*this);
    for (const char byte : typed.Bytes()) {
        InsertCharacter(byte);
        if (!self.Exists())
            break;
    }
    return !typed.Bytes().empty();
}

// Of the two keys that enter, only one is not held.
void TeskTextEntry::FinishKeyDown(u32 key)
{
    if (key == KeyEnter)
        Repeat.Stop();
    else
        Repeat.Hold(key);
    TeskElement::OnKeyDown(key);
}

bool TeskTextEntry::OnKeyUp(unsigned int key)
{
    Repeat.Release(key);
    TeskElement::OnKeyUp(key);
    return true;
}

void TeskTextEntry::OnKeyboardExit(TeskElement* next)
{
    Repeat.Stop();
    TeskElement::OnKeyboardExit(next);
}
