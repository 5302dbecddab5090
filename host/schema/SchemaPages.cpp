#include "host/schema/SchemaPages.h"

#include "host/schema/SchemaNotes.h"
#include "host/schema/SchemaWords.h"

#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr char MadeBy[] = "<!-- Made by teskara schema, which reads the toolkit's own tables. -->\n";

std::string PathTo(const SchemaShape& shape)
{
    std::string name = shape.Name;
    std::replace(name.begin(), name.end(), ' ', '_');
    return (shape.Use == SchemaUse::Value ? "values/" : "kinds/") + name + ".md";
}

std::string PathTo(const SchemaType& type)
{
    return "types/" + type.Name + ".md";
}

// From a page in one of the folders.
template <class Described> std::string LinkTo(const Described& described)
{
    return "[" + described.Name + "](../" + PathTo(described) + ")";
}

template <class Described> std::string LinkFromIndex(const Described& described)
{
    return "[" + described.Name + "](" + PathTo(described) + ")";
}

std::string AsCode(const std::string& text)
{
    return text.empty() ? "" : "`" + text + "`";
}

std::string Joined(const std::vector<std::string>& words)
{
    std::string joined;
    for (const std::string& word : words)
        joined += (joined.empty() ? "" : ", ") + AsCode(word);
    return joined;
}

// Writes the pages of one schema.
class PageWriter
{
public:
    explicit PageWriter(const Schema& schema) : m_Schema(schema) { }

    std::vector<SchemaPage> Write()
    {
        WriteIndex();
        for (const SchemaShape& shape : m_Schema.Shapes)
            WriteShape(shape);
        for (const SchemaType& type : m_Schema.Types)
            WriteType(type);
        return std::move(m_Pages);
    }

private:
    std::string FormOf(const SchemaValue& value) const
    {
        if (const SchemaShape* shape = m_Schema.FindShape(value.Form))
            return LinkTo(*shape) + (value.Place == SchemaPlace::NamedChild ? " or template" : "");
        return value.Words.empty() ? value.Form : Joined(value.Words);
    }

    static std::string NameOf(const SchemaValue& value)
    {
        const bool isAmongTags = value.Place == SchemaPlace::AttributeOfTemplate;
        return AsCode(value.Name) + (value.Owner.empty() ? "" : " of " + AsCode(value.Owner))
            + (isAmongTags ? ", an attribute" : "");
    }

    // The rows of those values that keep(value) wants, under a heading.
    template <class Keep> std::string Table(const SchemaShape& shape, const char* heading, Keep keep) const
    {
        std::string rows;
        for (const SchemaValue& value : shape.Values) {
            if (keep(value))
                rows += "| " + NameOf(value) + " | " + FormOf(value) + " | " + AsCode(value.Default) + " | "
                    + std::string(NoteOn(shape, value)) + " |\n";
        }
        if (rows.empty())
            return {};
        return std::string("\n## ") + heading + "\n\n| Name | Form | Default | |\n|---|---|---|---|\n" + rows;
    }

    static std::string Events(const SchemaShape& shape)
    {
        std::string rows;
        for (const SchemaValue& value : shape.Values) {
            if (value.IsEvent)
                rows += "| " + AsCode(value.Name) + " | " + AsCode(value.Arguments) + " | "
                    + std::string(NoteOn(shape, value)) + " |\n";
        }
        return rows.empty() ? rows : "\n## Events\n\n| Name | Arguments | |\n|---|---|---|\n" + rows;
    }

    void WriteShape(const SchemaShape& shape)
    {
        std::string text = MadeBy + ("# " + shape.Name) + "\n\n" + std::string(NoteOn(shape)) + "\n";
        if (const SchemaShape* base = m_Schema.FindShape(shape.Base))
            text += "\nHas all that " + LinkTo(*base) + " has.";
        if (const SchemaType* type = m_Schema.TypeOf(shape))
            text += "\nScripts know it as " + LinkTo(*type) + ".";
        if (shape.Use == SchemaUse::Part)
            text += "\nStands in other elements only.";
        if (shape.Use == SchemaUse::Made)
            text += "\nMade by programs; its template may say what follows.";
        if (shape.Holds == "element")
            text += "\nHolds elements of any kind.";
        text += text.back() == '\n' ? "" : "\n";

        text +=
            Table(shape, "Attributes", [](const SchemaValue& value) { return value.Place == SchemaPlace::Attribute; });
        text += Table(shape, "Values", [](const SchemaValue& value) {
            return !value.IsEvent && (value.Place == SchemaPlace::Child || value.Place == SchemaPlace::NamedChild);
        });
        text += Table(shape, "Of templates only", [](const SchemaValue& value) {
            return value.Place == SchemaPlace::TemplateChild || value.Place == SchemaPlace::AttributeOfTemplate;
        });
        text += Events(shape) + "\n[All pages](../README.md)\n";
        m_Pages.push_back({PathTo(shape), text});
    }

    std::string ResultOf(const SchemaName& member) const
    {
        if (member.Result.empty())
            return "nothing";
        const SchemaType* type = m_Schema.FindType(member.Result == AnyElement ? "teskelement" : member.Result);
        return type ? LinkTo(*type) : member.Result;
    }

    void WriteType(const SchemaType& type)
    {
        std::string text = MadeBy + ("# " + type.Name) + "\n\n";
        if (const SchemaType* base = m_Schema.FindType(type.Base))
            text += "What it does not know itself goes to " + LinkTo(*base) + ".\n";
        std::string kinds;
        for (const SchemaShape& shape : m_Schema.Shapes) {
            if (shape.IsKind() && m_Schema.TypeOf(shape) == &type)
                kinds += (kinds.empty() ? "" : ", ") + LinkTo(shape);
        }
        if (!kinds.empty())
            text += "The type of " + kinds + ".\n";

        if (!type.Members.empty())
            text += "\n## Members\n\n| Name | Value | Arguments needed |\n|---|---|---|\n";
        for (const SchemaName& member : type.Members)
            text +=
                "| " + AsCode(member.Name) + " | " + ResultOf(member) + " | " + std::to_string(member.Needs) + " |\n";
        if (!type.Methods.empty())
            text += "\n## Methods\n\n| Name | Arguments needed |\n|---|---|\n";
        for (const SchemaName& method : type.Methods)
            text += "| " + AsCode(method.Name) + " | " + std::to_string(method.Needs) + " |\n";
        text += "\n[All pages](../README.md)\n";
        m_Pages.push_back({PathTo(type), text});
    }

    template <class Keep> std::string ShapeList(const char* heading, Keep keep) const
    {
        std::string text = std::string("\n## ") + heading + "\n\n";
        for (const SchemaShape& shape : m_Schema.Shapes) {
            if (keep(shape))
                text += "- " + LinkFromIndex(shape) + ": " + std::string(NoteOn(shape)) + "\n";
        }
        return text;
    }

    void WriteIndex()
    {
        std::string text = std::string(MadeBy)
            + "# Reference\n\nAll that markup and scripts may say, from the tables that the toolkit works with.\n"
              "[teskara.xsd](teskara.xsd) tells it to editors.\n\n## Forms\n\n"
              "| Form | What is read |\n|---|---|\n"
              "| integer | a decimal number |\n| hex | a hexadecimal number without a prefix; colours as AARRGGBB |\n"
              "| float | a number with a point |\n| toggle | 1 or nothing for yes, 0 for no; words count as 0 |\n"
              "| position | pixels, a share with `%` or a point, or with `r` before it the distance from the far edge "
              "|\n"
              "| string | a text |\n| sequence | a text with data sequences, `${...}` |\n"
              "| variable | the name of a variable |\n| file | the name of an image |\n"
              "| template, templates | the name of a template; of several, each ends in a comma |\n"
              "| script | what runs when something happens |\n";
        text += ShapeList("Kinds", [](const SchemaShape& shape) { return shape.IsKind(); });
        text += ShapeList(
            "What kinds have in common", [](const SchemaShape& shape) { return shape.Use == SchemaUse::Base; });
        text += ShapeList("Files and values", [](const SchemaShape& shape) { return shape.Use == SchemaUse::Value; });
        text += "\n## Script types\n\n";
        for (const SchemaType& type : m_Schema.Types)
            text += "- " + LinkFromIndex(type) + "\n";
        text += "\n## Scripts begin with\n\nThe objects " + Joined(m_Schema.Objects) + "; the commands "
            + Joined(m_Schema.Commands) + ".\n";
        text += "\n## Notifications\n\n| Code | Name |\n|---|---|\n";
        for (const SchemaNotification& notification : m_Schema.Notifications)
            text += "| " + std::to_string(notification.Code) + " | " + AsCode(notification.Name) + " |\n";
        text += "\n## Messages\n\nThe lines that the toolkit prints.\n\n```\n";
        for (const std::string& message : m_Schema.Messages)
            text += message + "\n";
        text += "```\n";
        m_Pages.push_back({"README.md", text});
    }

    const Schema& m_Schema;
    std::vector<SchemaPage> m_Pages;
};

} // namespace

std::vector<SchemaPage> WriteSchemaPages(const Schema& schema)
{
    return PageWriter(schema).Write();
}

} // namespace host
