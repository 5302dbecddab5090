#include "host/schema/SchemaXsd.h"

#include "host/schema/SchemaNotes.h"
#include "teskara/script/Schema.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

namespace host {

namespace {

// The type of what may be anything.
constexpr char Anything[] = "anything";

struct PlainForm {
    const char* Name;
    const char* Pattern; // null: every text
};

constexpr PlainForm PlainForms[] = {
    {"integer", R"(\s*-?[0-9]+\s*)"},
    {"hex", R"(\s*[0-9A-Fa-f]{1,8}\s*)"},
    {"float", R"(\s*-?[0-9]*\.?[0-9]+\s*)"},
    {"toggle", R"(\s*-?[0-9]*\s*)"},
    {"position", R"(\s*([rR]?-?[0-9]+|-?[0-9]*\.?[0-9]+%?)\s*)"},
    {"string", nullptr},
    {"sequence", nullptr},
    {"variable", nullptr},
    {"template", nullptr},
    {"templates", nullptr},
    {"file", nullptr},
    {"script", nullptr},
};

std::string Escaped(std::string_view text)
{
    std::string escaped;
    for (const char character : text) {
        switch (character) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default:
            escaped += character;
        }
    }
    return escaped;
}

// Names of shapes become names of types.
std::string TypeName(std::string_view name)
{
    std::string type(name);
    std::replace(type.begin(), type.end(), ' ', '-');
    return type;
}

std::string Documentation(std::string_view note, const std::string& indent)
{
    if (note.empty())
        return {};
    return indent + "<xs:annotation><xs:documentation>" + Escaped(note) + "</xs:documentation></xs:annotation>\n";
}

// A line that may hold a note: <xs:element .../> or with its documentation inside.
std::string Declaration(
    const std::string& what, const std::string& rest, std::string_view note, const std::string& indent)
{
    if (note.empty())
        return indent + "<xs:" + what + rest + "/>\n";
    return indent + "<xs:" + what + rest + ">\n" + Documentation(note, indent + "  ") + indent + "</xs:" + what + ">\n";
}

std::string PatternFor(const std::string& word)
{
    std::string pattern;
    for (const char letter : word) {
        const char upper = static_cast<char>(letter - ('a' - 'A'));
        pattern += std::string("[") + letter + upper + "]";
    }
    return pattern;
}

// Writes one schema.
class XsdWriter
{
public:
    explicit XsdWriter(const Schema& schema) : m_Schema(schema) { }

    std::string Write()
    {
        m_Text = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
                 "<!-- Made by teskara schema, which reads the toolkit's own tables. -->\n"
                 "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\">\n";
        m_Text += "  <xs:element name=\"" + m_Schema.RootTag + "\" type=\"interface\"/>\n\n";
        for (const PlainForm& form : PlainForms)
            WritePlainForm(form);
        WriteAnything();
        WriteElements();
        for (const SchemaShape& shape : m_Schema.Shapes) {
            if (shape.Holds == "value")
                WriteTemplates(shape);
            else if (shape.Use != SchemaUse::Base && shape.Use != SchemaUse::Made)
                WriteShape(shape, false);
        }
        for (const std::string& name : m_NamedShapes)
            WriteShape(*m_Schema.FindShape(name), true);
        m_Text += m_ValueTypes + "</xs:schema>\n";
        return m_Text;
    }

private:
    void WritePlainForm(const PlainForm& form)
    {
        m_Text += std::string("  <xs:simpleType name=\"") + form.Name + "\">\n    <xs:restriction base=\"xs:string\"";
        m_Text += form.Pattern
            ? std::string(">\n      <xs:pattern value=\"") + form.Pattern + "\"/>\n    </xs:restriction>\n"
            : "/>\n";
        m_Text += "  </xs:simpleType>\n";
    }

    void WriteAnything()
    {
        m_Text += std::string("  <xs:complexType name=\"") + Anything
            + "\" mixed=\"true\">\n    <xs:sequence>\n"
              "      <xs:any minOccurs=\"0\" maxOccurs=\"unbounded\" processContents=\"skip\"/>\n    </xs:sequence>\n"
              "    <xs:anyAttribute processContents=\"skip\"/>\n  </xs:complexType>\n";
    }

    // The elements that may stand wherever elements may.
    void WriteElements()
    {
        m_Text += "  <xs:group name=\"elements\">\n    <xs:choice>\n";
        for (const SchemaShape& shape : m_Schema.Shapes) {
            if (shape.Use == SchemaUse::Element)
                m_Text +=
                    Declaration("element", NameAndType(shape.Name, TypeName(shape.Name)), NoteOn(shape), "      ");
        }
        m_Text += "    </xs:choice>\n  </xs:group>\n";
    }

    // The line on a value, which one of the bases may have.
    std::string_view NoteFor(const SchemaShape& shape, const SchemaValue& value) const
    {
        std::string_view note;
        for (const SchemaShape* at = &shape; at && note.empty(); at = m_Schema.FindShape(at->Base))
            note = NoteOn(*at, value);
        return note;
    }

    // Whether templates serve it.
    bool HasTemplates(const SchemaShape& shape) const
    {
        return shape.Use != SchemaUse::Value || m_Schema.FindAttribute(shape, "Template", "");
    }

    static std::string NameAndType(const std::string& name, const std::string& type)
    {
        return " name=\"" + name + "\" type=\"" + type + "\"";
    }

    // named: with room for the name of a template.
    void WriteShape(const SchemaShape& shape, bool named)
    {
        const bool isMixed = named || shape.Holds == "string";
        m_Text += "  <xs:complexType name=\"" + TypeName(shape.Name) + (named ? "-or-template" : "") + "\""
            + (isMixed ? " mixed=\"true\"" : "") + ">\n" + Documentation(NoteOn(shape), "    ");
        m_Text += "    <xs:choice minOccurs=\"0\" maxOccurs=\"unbounded\">\n";
        std::set<std::string> known;
        const auto values = m_Schema.ValuesOf(shape);
        for (const SchemaValue* value : values) {
            if (!value->IsAttribute() && value->Place != SchemaPlace::TemplateChild && known.insert(value->Name).second)
                m_Text += Declaration(
                    "element", NameAndType(value->Name, TypeOf(shape, *value)), NoteFor(shape, *value), "      ");
        }
        if (shape.Holds == "element")
            m_Text += "      <xs:group ref=\"elements\"/>\n";
        m_Text += "    </xs:choice>\n";
        for (const SchemaValue* value : values) {
            if (value->Place == SchemaPlace::Attribute && value->Owner.empty())
                m_Text +=
                    Declaration("attribute", NameAndType(value->Name, value->Form), NoteFor(shape, *value), "    ");
        }
        m_Text += "  </xs:complexType>\n";
    }

    // What a template may hold: the values of all shapes. Those that differ from kind to kind may hold anything.
    void WriteTemplates(const SchemaShape& templates)
    {
        std::map<std::string, std::string> children;
        std::map<std::string, std::string> attributes;
        for (const SchemaShape& shape : m_Schema.Shapes) {
            if (!HasTemplates(shape))
                continue;
            for (const SchemaValue& value : shape.Values) {
                if (value.IsAttribute() && value.Owner.empty())
                    attributes.try_emplace(value.Name, value.Form);
                if (value.IsAttribute())
                    continue;
                const std::string type = TypeOf(shape, value);
                const auto [known, isNew] = children.try_emplace(value.Name, type);
                if (!isNew && known->second != type)
                    known->second = Anything;
            }
        }
        m_Text += "  <xs:complexType name=\"" + TypeName(templates.Name) + "\" mixed=\"true\">\n"
            + Documentation(NoteOn(templates), "    ") + "    <xs:choice minOccurs=\"0\" maxOccurs=\"unbounded\">\n";
        for (const auto& [name, type] : children)
            m_Text += "      <xs:element" + NameAndType(name, type) + "/>\n";
        m_Text += "    </xs:choice>\n";
        for (const auto& [name, form] : attributes)
            m_Text += "    <xs:attribute" + NameAndType(name, name == "Template" ? "templates" : form) + "/>\n";
        m_Text += "  </xs:complexType>\n";
    }

    // The type of a value; written when it is met for the first time, if it is its own.
    std::string TypeOf(const SchemaShape& shape, const SchemaValue& value)
    {
        if (const SchemaShape* inside = m_Schema.FindShape(value.Form)) {
            if (value.Place == SchemaPlace::NamedChild)
                m_NamedShapes.insert(inside->Name);
            return TypeName(inside->Name) + (value.Place == SchemaPlace::NamedChild ? "-or-template" : "");
        }
        if (!value.Words.empty())
            return WordsType(shape, value);

        std::string attributes;
        for (const SchemaValue* other : m_Schema.ValuesOf(shape)) {
            if (other->IsAttribute() && other->Owner == value.Name)
                attributes += "        <xs:attribute" + NameAndType(other->Name, other->Form) + "/>\n";
        }
        return attributes.empty() ? value.Form : AttributedType(shape, value, attributes);
    }

    std::string WordsType(const SchemaShape& shape, const SchemaValue& value)
    {
        const std::string name = TypeName(shape.Name) + "." + value.Name;
        if (!m_Written.insert(name).second)
            return name;

        std::string words;
        std::string pattern;
        for (const std::string& word : value.Words) {
            words += "          <xs:enumeration value=\"" + word + "\"/>\n";
            pattern += (pattern.empty() ? "" : "|") + PatternFor(word);
        }
        m_ValueTypes += "  <xs:simpleType name=\"" + name + "\">\n    <xs:union>\n"
            + "      <xs:simpleType>\n        <xs:restriction base=\"xs:string\">\n" + words
            + "        </xs:restriction>\n      </xs:simpleType>\n"
            + "      <xs:simpleType>\n        <xs:restriction base=\"xs:string\">\n          <xs:pattern value=\""
            + pattern
            + "\"/>\n        </xs:restriction>\n      </xs:simpleType>\n    </xs:union>\n  </xs:simpleType>\n";
        return name;
    }

    std::string AttributedType(const SchemaShape& shape, const SchemaValue& value, const std::string& attributes)
    {
        const std::string name = TypeName(shape.Name) + "." + value.Name;
        if (m_Written.insert(name).second) {
            m_ValueTypes += "  <xs:complexType name=\"" + name
                + "\">\n    <xs:simpleContent>\n      <xs:extension base=\"" + value.Form + "\">\n" + attributes
                + "      </xs:extension>\n    </xs:simpleContent>\n  </xs:complexType>\n";
        }
        return name;
    }

    const Schema& m_Schema;
    std::string m_Text;
    std::string m_ValueTypes; // of single values
    std::set<std::string> m_Written; // the names of those
    std::set<std::string> m_NamedShapes;
};

} // namespace

std::string WriteSchemaXsd(const Schema& schema)
{
    return XsdWriter(schema).Write();
}

} // namespace host
