#pragma once

#include "teskara/core/Export.h"
#include "teskara/element/MarkupRows.h"
#include "teskara/markup/XMLHelper.h"

#include <array>
#include <span>

class MvTypeDefinition;

// Where a part of markup stands in the element that has it.
enum class MarkupPlace : u8 {
    Child,
    NamedChild, // a child element that is the part, or holds the name of a template and nothing else
    TemplateChild, // the same as a child, of templates only
    Attribute,
    TemplateAttribute, // the same, of templates only
};

// What markup holds beside the values of a table. Who reads it takes the name from here.
struct MarkupPart {
    TagName Name;
    const char* Form; // of a value, or the name of a shape
    MarkupPlace Place = MarkupPlace::Child;
    const char* Owner = nullptr; // the child element that has the attribute; null: the element itself
};

// What an element of markup is.
enum class MarkupUse : u8 {
    Element, // makes an element, wherever elements may stand
    Part, // makes an element, but only as a part of another
    Made, // programs make the element; its values are those of a template
    Base, // nothing by itself: what several kinds have
    Value, // describes a part of an element
};

// Everything that may stand in one element of markup: a kind, or a value with an inside of its own. All that exist form
// a list, for tools that describe markup.
class TESKARA_EXPORT MarkupShape
{
public:
    struct Description {
        const char* Name = nullptr;
        const char* Base = nullptr; // the shape whose markup is read as well; null for none
        MarkupUse Use = MarkupUse::Element;
        MvTypeDefinition* const* ScriptType = nullptr; // null: the base's
        std::array<const MarkupRows*, 4> Tables = {}; // null behind the last one
        std::array<std::span<const MarkupPart>, 2> Parts = {}; // an empty one behind the last
        const char* Holds = nullptr; // the shape of the elements in it, whatever their tags; null: there are none
    };

    explicit MarkupShape(const Description& description);
    ~MarkupShape();
    MarkupShape(const MarkupShape&) = delete;
    MarkupShape& operator=(const MarkupShape&) = delete;

    const Description Is;

    static const MarkupShape* First() { return g_First; }
    const MarkupShape* Next() const { return m_Next; }

private:
    static const MarkupShape* g_First;

    mutable const MarkupShape* m_Next;
};
