#pragma once

#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskFont.h"
#include "teskara/element/TeskPreParse.h"
#include "teskara/element/TeskTexture.h"
#include "teskara/script/Arguments.h"
#include "teskara/script/MvTypeVar.h"
#include "teskara/script/TypeGlobals.h"

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

// What stands for the members in a script type's table. Each takes where the value comes from: a field, an operation,
// or a function of the object, or of the object and the arguments.
//
//     {7,  "Width",     Script::Int<&TeskElement::Width>},
//     {13, "MouseOver", Script::Bool<&TeskElement::IsMouseOver>},
//     {28, "FindChild", Script::Element<FindChild>, 1},
//
// A null text or object is no value, nor is an empty std::optional or one of a type that the host does not have.
namespace Script {

// The kinds of value. Put writes one into the 16 bytes and returns its type; null: there is no value.

struct IntValue {
    static constexpr const char* Name = "int";
    template <class Number> static MvTypeDefinition* Put(MvValue& value, Number number)
    {
        value.Integer = static_cast<i32>(number);
        return pIntType;
    }
};

struct UintValue {
    static constexpr const char* Name = "uint";
    template <class Number> static MvTypeDefinition* Put(MvValue& value, Number number)
    {
        value.Unsigned = static_cast<u32>(number);
        return pUintType;
    }
};

struct Int64Value {
    static constexpr const char* Name = "int64";
    template <class Number> static MvTypeDefinition* Put(MvValue& value, Number number)
    {
        value.Integer64 = static_cast<i64>(number);
        return pInt64Type;
    }
};

struct BoolValue {
    static constexpr const char* Name = "bool";
    static MvTypeDefinition* Put(MvValue& value, bool flag)
    {
        value.Unsigned = flag;
        return pBoolType;
    }
};

struct FloatValue {
    static constexpr const char* Name = "float";
    static MvTypeDefinition* Put(MvValue& value, float number)
    {
        value.Float = number;
        return pFloatType;
    }
};

// The point is the object's.
struct PointValue {
    static constexpr const char* Name = "point3f";
    static MvTypeDefinition* Put(MvValue& value, _Point3f& point)
    {
        value.Object = &point;
        return pPoint3fType;
    }
};

// The text is the object's or the program's: it must live until the host has read it.
struct StringValue {
    static constexpr const char* Name = "string";
    static MvTypeDefinition* Put(MvValue& value, const char* text)
    {
        value.Text = text;
        return text ? pStringType : nullptr;
    }
    static MvTypeDefinition* Put(MvValue& value, const utf8string& text) { return Put(value, text.c_str()); }
    static MvTypeDefinition* Put(MvValue& value, const TeskPreParse& text) { return Put(value, text.Text.get()); }
    static MvTypeDefinition* Put(MvValue& value, utf8string&& text) = delete;
};

// Of the type of the element's own kind.
struct ElementValue {
    static constexpr const char* Name = "element";
    static MvTypeDefinition* Put(MvValue& value, TeskElement* element)
    {
        value.Object = element;
        return element ? element->GetMvType() : nullptr;
    }
};

struct FontValue {
    static constexpr const char* Name = "teskfont";
    static MvTypeDefinition* Put(MvValue& value, TeskFont* font)
    {
        value.Object = font;
        return font && font->Hold.HandOut(font) ? pTeskFontType : nullptr;
    }
    template <class Font> static MvTypeDefinition* Put(MvValue& value, const std::unique_ptr<Font>& font)
    {
        return Put(value, font.get());
    }
};

struct TextureValue {
    static constexpr const char* Name = "tesktexture";
    static MvTypeDefinition* Put(MvValue& value, TeskTexture* texture)
    {
        value.Object = texture;
        return texture && texture->Hold.HandOut(texture) ? pTeskTextureType : nullptr;
    }
    static MvTypeDefinition* Put(MvValue& value, const std::unique_ptr<TeskTexture>& texture)
    {
        return Put(value, texture.get());
    }
};

template <class Value, auto Source> struct ResultOf {
    static constexpr const char* Result = Value::Name;

    template <class Owner> static bool Answer(Owner& owner, const Arguments& arguments, _MvTypeVar& result)
    {
        MvTypeDefinition* type = Put(result.Value, Read(owner, arguments));
        if (!type)
            return false;

        result.Type = type;
        return true;
    }

private:
    template <class Found> static MvTypeDefinition* Put(MvValue& value, Found&& found)
    {
        if constexpr (requires { found.has_value(); })
            return found ? Value::Put(value, *found) : nullptr;
        else
            return Value::Put(value, std::forward<Found>(found));
    }

    template <class Owner> static decltype(auto) Read(Owner& owner, const Arguments& arguments)
    {
        if constexpr (std::is_invocable_v<decltype(Source), Owner&, const Arguments&>)
            return std::invoke(Source, owner, arguments);
        else
            return std::invoke(Source, owner);
    }
};

template <auto Source> inline constexpr ResultOf<IntValue, Source> Int;
template <auto Source> inline constexpr ResultOf<UintValue, Source> Uint;
template <auto Source> inline constexpr ResultOf<Int64Value, Source> Int64;
template <auto Source> inline constexpr ResultOf<BoolValue, Source> Bool;
template <auto Source> inline constexpr ResultOf<FloatValue, Source> Float;
template <auto Source> inline constexpr ResultOf<PointValue, Source> Point;
template <auto Source> inline constexpr ResultOf<StringValue, Source> String;
template <auto Source> inline constexpr ResultOf<ElementValue, Source> Element;
template <auto Source> inline constexpr ResultOf<FontValue, Source> Font;
template <auto Source> inline constexpr ResultOf<TextureValue, Source> Texture;

// A name that is known and never has a value.
struct NoResult {
    static constexpr const char* Result = nullptr;
    template <class Owner> static bool Answer(Owner&, const Arguments&, _MvTypeVar&) { return false; }
};

inline constexpr NoResult Nothing;

} // namespace Script
