#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <string>
#include <string_view>
#include <vector>

// What the toolkit knows of markup and scripts, for tools: editors, checkers, documents. All of it comes from the tables
// that the toolkit itself works with. Names of markup compare without regard to case, names of scripts with regard to it.

// Where a value stands in the element that has it.
enum class SchemaPlace : u8 {
    Child, // <Text>...</Text>
    NamedChild, // a child that is what its form says, or holds the name of a template and nothing else
    TemplateChild, // a child that is only read from a template
    Attribute, // Text="..."
    AttributeOfTemplate, // an attribute that is only read from a template
};

// How a text is read: integer, hex, float, toggle, string, word, sequence (a text with data sequences), variable (the name
// of one), position, template, templates (a list in which each name ends in a comma, or one name), file and script; else
// the name of a shape, as with texture, font and button.
struct SchemaValue {
    std::string Name;
    std::string Form;
    SchemaPlace Place = SchemaPlace::Child;
    std::string Default; // empty where there is none
    std::string Arguments; // of a script: its arguments with their types; empty for none
    std::vector<std::string> Words; // those that a word may be
    std::string Owner; // the child element that has the attribute; empty for the element itself
    bool IsEvent = false;

    bool IsAttribute() const { return Place == SchemaPlace::Attribute || Place == SchemaPlace::AttributeOfTemplate; }
};

enum class SchemaUse : u8 {
    Element, // makes an element, wherever elements may stand
    Part, // makes an element, but only as a part of another
    Made, // programs make the element; its values are those of a template
    Base, // nothing by itself: what several kinds have
    Value, // describes a part of an element
};

// What may stand in one element of markup: a kind, or a value with an inside of its own.
struct SchemaShape {
    std::string Name;
    SchemaUse Use = SchemaUse::Element;
    std::string Base; // the shape whose values it has too; empty for none
    std::string ScriptType; // empty for values
    std::vector<SchemaValue> Values; // its own, in the order of reading
    // What else stands in it: "element" any element, "value" any value of any kind, "string" a text; else empty.
    std::string Holds;

    bool IsKind() const { return Use == SchemaUse::Element || Use == SchemaUse::Part || Use == SchemaUse::Made; }
};

// The result of members that give an element of any kind.
inline constexpr char AnyElement[] = "element";

// A member or a method of a script type.
struct SchemaName {
    std::string Name;
    std::string Result; // the type of a member's value, or AnyElement; empty where there never is one, and for methods
    int Needs = 0; // with fewer arguments nothing is answered
};

struct SchemaType {
    std::string Name;
    std::string Base; // the type that knows what this one does not; empty for none
    std::vector<SchemaName> Members;
    std::vector<SchemaName> Methods;
};

// What an element tells its parents.
struct SchemaNotification {
    std::string Name;
    u32 Code = 0;
};

class TESKARA_EXPORT Schema
{
public:
    // Needs no host, and no toolkit that was started. Throws when there is no memory.
    Schema();

    std::vector<SchemaShape> Shapes; // by name
    std::vector<SchemaType> Types; // in the order in which they are made
    std::vector<std::string> Objects; // with which references from scripts begin
    std::vector<std::string> Commands;
    std::vector<SchemaNotification> Notifications; // by code
    std::vector<std::string> Messages; // formats of the lines that the toolkit prints
    std::string RootTag; // of a file

    // By name; null: there is none. Values are sought in the shape, then in its bases.
    const SchemaShape* FindShape(std::string_view name) const;
    const SchemaType* FindType(std::string_view name) const;
    const SchemaValue* FindChild(const SchemaShape& shape, std::string_view tag) const;
    const SchemaValue* FindAttribute(const SchemaShape& shape, std::string_view name, std::string_view owner) const;

    // All values of a shape, those of its bases first.
    std::vector<const SchemaValue*> ValuesOf(const SchemaShape& shape) const;

    // The script type of a kind's elements.
    const SchemaType* TypeOf(const SchemaShape& shape) const;
};
