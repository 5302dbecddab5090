#pragma once

#include "teskara/element/TeskElement.h"
#include "teskara/script/Arguments.h"

#include <functional>
#include <memory>
#include <type_traits>

// What stands for the methods in a script type's table, where they need no function of their own. A Set takes the field
// that it writes, or an operation of the object with one argument that it calls.
//
//     {1,  "SetBackgroundColor", Script::SetColor<&TeskButton::BackgroundColor>},
//     {15, "SetTexture",         Script::SetTexture<&TeskButton::Texture>},
//     {2,  "SetRange",           Script::SetInteger<&TeskScrollBar::SetRange>},
namespace Script {

// What the one argument of an operation is.
template <class Owner, class Result, class Argument> Argument ArgumentOf(Result (Owner::*operation)(Argument));
template <class Owner, class Result, class Argument> Argument ArgumentOf(Result (*operation)(Owner&, Argument));

// Hands a value to a field or to an operation, as the type that it takes: -1 is 4294967295 to those that are never
// negative. Afterwards the owner may be gone.
template <auto Target, class Owner, class Value> void Give(Owner& owner, Value value)
{
    if constexpr (std::is_member_object_pointer_v<decltype(Target)>)
        owner.*Target = static_cast<std::remove_cvref_t<decltype(owner.*Target)>>(value);
    else
        std::invoke(Target, owner, static_cast<decltype(ArgumentOf(Target))>(value));
}

template <auto Target> struct IntegerSetter {
    static constexpr int Needs = 1;
    template <class Owner> static bool Act(Owner& owner, const Arguments& arguments)
    {
        Give<Target>(owner, arguments.Integer(0));
        return true;
    }
};

template <auto Target> struct FloatSetter {
    static constexpr int Needs = 1;
    template <class Owner> static bool Act(Owner& owner, const Arguments& arguments)
    {
        Give<Target>(owner, arguments.Float(0));
        return true;
    }
};

// A text that is no colour leaves the field as it was.
template <auto Field> struct ColorSetter {
    static constexpr int Needs = 1;
    template <class Owner> static bool Act(Owner& owner, const Arguments& arguments)
    {
        arguments.Color(0, owner.*Field);
        return true;
    }
};

// The word "TRUE", or a number that is not zero.
template <auto Target> struct FlagSetter {
    static constexpr int Needs = 1;
    template <class Owner> static bool Act(Owner& owner, const Arguments& arguments)
    {
        Give<Target>(owner, arguments.IsTrue(0));
        return true;
    }
};

// If no argument is needed, the text becomes empty without one.
template <auto Target, int Needed> struct TextSetter {
    static constexpr int Needs = Needed;
    template <class Owner> static bool Act(Owner& owner, const Arguments& arguments)
    {
        Give<Target>(owner, arguments.Text(0));
        return true;
    }
};

// A text with data sequences; without an argument there is none.
template <auto Field> struct SequenceSetter {
    static constexpr int Needs = 0;
    template <class Owner> static bool Act(Owner& owner, const Arguments& arguments)
    {
        (owner.*Field).PreParse(arguments.Has(0) ? arguments.Text(0) : nullptr);
        return true;
    }
};

// Markup, and the name of a skin. False: there is no texture now.
bool ReplaceTexture(TeskElement& owner, const Arguments& arguments, std::unique_ptr<TeskTexture>& texture);

template <auto Field> struct TextureSetter {
    static constexpr int Needs = 0;
    template <class Owner> static bool Act(Owner& owner, const Arguments& arguments)
    {
        return ReplaceTexture(owner, arguments, owner.*Field);
    }
};

// Always the same value.
template <auto Target, auto Value> struct ConstantSetter {
    static constexpr int Needs = 0;
    template <class Owner> static bool Act(Owner& owner, const Arguments&)
    {
        Give<Target>(owner, Value);
        return true;
    }
};

// An operation, or a function, without arguments.
template <auto Operation> struct Caller {
    static constexpr int Needs = 0;
    template <class Owner> static bool Act(Owner& owner, const Arguments&)
    {
        std::invoke(Operation, owner);
        return true;
    }
};

template <auto Target> inline constexpr IntegerSetter<Target> SetInteger;
template <auto Target> inline constexpr FloatSetter<Target> SetFloat;
template <auto Field> inline constexpr ColorSetter<Field> SetColor;
template <auto Target> inline constexpr FlagSetter<Target> SetFlag;
template <auto Target, int Needs = 0> inline constexpr TextSetter<Target, Needs> SetText;
template <auto Field> inline constexpr SequenceSetter<Field> SetSequence;
template <auto Field> inline constexpr TextureSetter<Field> SetTexture;
template <auto Target, auto Value> inline constexpr ConstantSetter<Target, Value> SetTo;
template <auto Operation> inline constexpr Caller<Operation> Call;

} // namespace Script
