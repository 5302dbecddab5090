#pragma once

#include "teskara/core/AsciiCase.h"
#include "teskara/core/Types.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/MarkupRows.h"
#include "teskara/element/MarkupShape.h"
#include "teskara/element/TeskElement.h"
#include "teskara/markup/MarkupSource.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

// The values that a control reads from markup, as a constant table in the order of reading:
//
//     constexpr MarkupValue<TeskFrame> FrameValues[] = {
//         {"Border",  Markup::Integer<&TeskFrame::Border>,  0},
//         {"Texture", Markup::Texture<&TeskFrame::Texture>, {}},
//     };
//
//     return ReadMarkup<FrameValues>(*this, {node, templateNode});
//
// The columns are kept by hand, so a table stands between the marks that keep the formatter away. A value that depends
// on one just read is a row with a form of its own: {"name", lambda}. An event is a row like others, and known to
// EventNames.h as soon as some code reads the table. Tools learn of a table from the MarkupShape of its kind.

// What a value is if neither node nor template has it.
struct MarkupDefault {
    constexpr MarkupDefault() = default;
    constexpr MarkupDefault(int number) : Number(static_cast<u32>(number)) { }
    constexpr MarkupDefault(u32 number) : Number(number) { }
    constexpr MarkupDefault(bool toggle) : Number(toggle) { }
    constexpr MarkupDefault(float real) : Real(real) { }
    constexpr MarkupDefault(const char* text) : Text(text) { }

    u32 Number = 0;
    float Real = 0;
    const char* Text = "";
};

// How a text becomes the field of a control: the name that people read, and the function. If the field is a script, the
// value is an event, and Script finds it. A value that is one of a few words names them.
template <class Owner> struct MarkupForm {
    const char* Name;
    void (*Read)(Owner& control, const MarkupSource& source, TagName tag, MarkupDefault fallback);
    const ScriptPointer& (*Script)(const Owner& control) = nullptr;
    std::span<const MarkupWord> Words = {};
};

template <class Owner> struct MarkupValue {
    TagName Tag;
    MarkupForm<Owner> Form;
    MarkupDefault Default;
};

// The default as markup would say it; empty for a form that has none.
TESKARA_EXPORT std::string DefaultText(
    std::string_view form, const MarkupDefault& value, std::span<const MarkupWord> words);

// A table, for those who do not know its kind.
template <class Owner> class MarkupTableRows final : public MarkupRows
{
public:
    template <std::size_t Count> explicit MarkupTableRows(const MarkupValue<Owner> (&values)[Count]) : m_Values(values)
    {
    }

    bool IsOfEveryKind() const override { return std::is_same_v<Owner, TeskElement>; }

    void AppendTo(std::vector<MarkupRow>& rows) const override
    {
        for (const auto& [tag, form, fallback] : m_Values) {
            rows.push_back({tag.Text, form.Name, DefaultText(form.Name, fallback, form.Words), form.Words,
                form.Script != nullptr});
        }
    }

    const char* NameOfEvent(const TeskElement& element, u32 atom) const override
    {
        const auto* owner = dynamic_cast<const Owner*>(&element);
        if (!owner)
            return nullptr;

        for (const MarkupValue<Owner>& value : m_Values) {
            const TeskEmbeddedScript* script = value.Form.Script ? value.Form.Script(*owner).get() : nullptr;
            if (script && script->Atom == atom)
                return value.Tag.Text;
        }
        return nullptr;
    }

private:
    std::span<const MarkupValue<Owner>> m_Values;
};

// Those of one table, from the start of the program on.
template <const auto& Values> inline const MarkupTableRows RowsOf(Values);

// Reads every value of a table in its order. False: the control was deleted meanwhile, or memory ran out.
template <const auto& Values, class Control> bool ReadMarkup(Control& control, const MarkupSource& source)
{
    static_cast<void>(&RowsOf<Values>);
    const ElementWatch self(control);
    try {
        for (const auto& value : Values) {
            value.Form.Read(control, source, value.Tag, value.Default);
            if (!self.Exists())
                return false;
        }
        return true;
    } catch (...) {
        return false;
    }
}

namespace Markup {

template <class Member> struct FieldTraits;

template <class OwnerType, class FieldType> struct FieldTraits<FieldType OwnerType::*> {
    using Owner = OwnerType;
    using Type = FieldType;
};

template <auto Field> using OwnerOf = typename FieldTraits<decltype(Field)>::Owner;

template <auto Field> using TypeOf = typename FieldTraits<decltype(Field)>::Type;

// A narrower field keeps the low bits.
template <auto Field>
constexpr MarkupForm<OwnerOf<Field>> Integer = {
    "integer", [](OwnerOf<Field>& control, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        control.*Field = static_cast<TypeOf<Field>>(source.Integer(tag, fallback.Number));
    }};

template <auto Field>
constexpr MarkupForm<OwnerOf<Field>> Hex = {
    "hex", [](OwnerOf<Field>& control, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        control.*Field = source.Hex(tag, fallback.Number);
    }};

template <auto Field>
constexpr MarkupForm<OwnerOf<Field>> Float = {
    "float", [](OwnerOf<Field>& control, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        control.*Field = source.Float(tag, fallback.Real);
    }};

template <auto Field>
constexpr MarkupForm<OwnerOf<Field>> Toggle = {
    "toggle", [](OwnerOf<Field>& control, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        control.*Field = source.Toggle(tag, fallback.Number != 0);
    }};

template <auto Field>
void ReadText(OwnerOf<Field>& control, const MarkupSource& source, TagName tag, MarkupDefault fallback)
{
    control.*Field = source.Text(tag, fallback.Text);
}

template <auto Field> constexpr MarkupForm<OwnerOf<Field>> Text = {"string", ReadText<Field>};

// A text whose data sequences are evaluated each time it is shown.
template <auto Field> constexpr MarkupForm<OwnerOf<Field>> ShownText = {"sequence", ReadText<Field>};

// A text with data sequences, which the host parses here; an empty one has none.
template <auto Field>
constexpr MarkupForm<OwnerOf<Field>> Sequence = {
    "sequence", [](OwnerOf<Field>& control, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        const char* text = source.Text(tag, fallback.Text);
        (control.*Field).PreParse(*text ? text : nullptr);
    }};

// One of a few words, in any case. Words is a constant array of MarkupWord; any other text means the default.
template <auto Field, const auto& Words>
constexpr MarkupForm<OwnerOf<Field>> Word = {"word",
    [](OwnerOf<Field>& control, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        const std::string_view text = source.Text(tag, "");
        u32 number = fallback.Number;
        for (const MarkupWord& word : Words) {
            if (EqualsNoCase(text, word.Word))
                number = word.Value;
        }
        control.*Field = static_cast<TypeOf<Field>>(number);
    },
    nullptr, Words};

// A coordinate or dimension and how it follows the parent.
template <auto Field, auto Position>
constexpr MarkupForm<OwnerOf<Field>> Place = {
    "position", [](OwnerOf<Field>& control, const MarkupSource& source, TagName tag, MarkupDefault) {
        control.*Field = static_cast<TypeOf<Field>>(source.Position(tag, control.*Position));
    }};

// Puts what a virtual operation makes into a field, which owns it. A kind that is not ours may end the control by it, and
// then there is no field any more.
template <class Pointer, class Make> void KeepMade(TeskElement& control, Pointer& field, Make make)
{
    const ElementWatch self(control);
    Pointer made(make());
    if (self.Exists())
        field = std::move(made);
}

template <auto Field>
constexpr MarkupForm<OwnerOf<Field>> Texture = {
    "texture", [](OwnerOf<Field>& control, const MarkupSource& source, TagName tag, MarkupDefault) {
        KeepMade(control, control.*Field,
            [&] { return control.TextureFromXML(source.Node(), tag.Text, source.Template()); });
    }};

template <auto Field>
constexpr MarkupForm<OwnerOf<Field>> Font = {
    "font", [](OwnerOf<Field>& control, const MarkupSource& source, TagName tag, MarkupDefault) {
        KeepMade(
            control, control.*Field, [&] { return control.FontFromXML(source.Node(), tag.Text, source.Template()); });
    }};

template <auto Field>
constexpr MarkupForm<OwnerOf<Field>> FixedFont = {
    "fixed font", [](OwnerOf<Field>& control, const MarkupSource& source, TagName tag, MarkupDefault) {
        KeepMade(control, control.*Field,
            [&] { return control.FixedFontFromXML(source.Node(), tag.Text, source.Template()); });
    }};

// Where markup has no such tag, the script stays as it is.
inline void ReadScript(
    TeskElement& control, ScriptPointer& script, const MarkupSource& source, TagName tag, MarkupDefault arguments)
{
    if (!source.Child(tag))
        return;
    KeepMade(control, script,
        [&] { return control.EmbeddedScriptFromXML(source.Node(), tag.Text, source.Template(), arguments.Text); });
}

// An event of a control; the default is the list of its script's arguments. A script that does not compile is reported,
// and the report may end the element.
template <auto Field>
constexpr MarkupForm<OwnerOf<Field>> Script = {"script",
    [](OwnerOf<Field>& control, const MarkupSource& source, TagName tag, MarkupDefault arguments) {
        ReadScript(control, control.*Field, source, tag, arguments);
    },
    [](const OwnerOf<Field>& control) -> const ScriptPointer& { return control.*Field; }};

// The same for the events that every element has.
template <auto Field>
constexpr MarkupForm<TeskElement> Event = {"script",
    [](TeskElement& element, const MarkupSource& source, TagName tag, MarkupDefault arguments) {
        ReadScript(element, element.Events.*Field, source, tag, arguments);
    },
    [](const TeskElement& element) -> const ScriptPointer& { return element.Events.*Field; }};

} // namespace Markup
