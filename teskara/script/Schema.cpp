#include "teskara/script/Schema.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/Messages.h"
#include "teskara/element/MarkupShape.h"
#include "teskara/element/NotificationNames.h"
#include "teskara/script/Commands.h"
#include "teskara/script/ScriptTable.h"
#include "teskara/script/ScriptTypes.h"
#include "teskara/script/ToolkitType.h"
#include "teskara/script/TopLevelObjects.h"

#include <algorithm>

namespace {

constexpr SchemaPlace PlaceOf(MarkupPlace place)
{
    switch (place) {
    case MarkupPlace::Child:
        break;
    case MarkupPlace::NamedChild:
        return SchemaPlace::NamedChild;
    case MarkupPlace::TemplateChild:
        return SchemaPlace::TemplateChild;
    case MarkupPlace::Attribute:
        return SchemaPlace::Attribute;
    case MarkupPlace::TemplateAttribute:
        return SchemaPlace::AttributeOfTemplate;
    }
    return SchemaPlace::Child;
}

constexpr SchemaUse UseOf(MarkupUse use)
{
    switch (use) {
    case MarkupUse::Element:
        break;
    case MarkupUse::Part:
        return SchemaUse::Part;
    case MarkupUse::Made:
        return SchemaUse::Made;
    case MarkupUse::Base:
        return SchemaUse::Base;
    case MarkupUse::Value:
        return SchemaUse::Value;
    }
    return SchemaUse::Element;
}

SchemaValue Describe(const MarkupPart& part)
{
    SchemaValue value;
    value.Name = part.Name.Text;
    value.Form = part.Form;
    value.Place = PlaceOf(part.Place);
    value.Owner = TextOrEmpty(part.Owner);
    return value;
}

SchemaValue Describe(const MarkupRow& row)
{
    SchemaValue value;
    value.Name = row.Tag;
    value.Form = row.Form;
    value.IsEvent = row.IsEvent;
    (row.IsEvent ? value.Arguments : value.Default) = row.Default;
    for (const MarkupWord& word : row.Words)
        value.Words.emplace_back(word.Word);
    return value;
}

SchemaShape Describe(const MarkupShape::Description& markup)
{
    SchemaShape shape;
    shape.Name = markup.Name;
    shape.Use = UseOf(markup.Use);
    shape.Base = TextOrEmpty(markup.Base);
    shape.ScriptType = TextOrEmpty(NameOfScriptType(markup.ScriptType));
    shape.Holds = TextOrEmpty(markup.Holds);
    std::vector<MarkupRow> rows;
    for (const MarkupRows* table : markup.Tables) {
        if (table)
            table->AppendTo(rows);
    }
    for (const MarkupRow& row : rows)
        shape.Values.push_back(Describe(row));
    for (const std::span<const MarkupPart> parts : markup.Parts) {
        for (const MarkupPart& part : parts)
            shape.Values.push_back(Describe(part));
    }
    return shape;
}

SchemaName Describe(const ScriptRow& row)
{
    return {row.Name, TextOrEmpty(row.Result), row.Needs};
}

SchemaType Describe(const ToolkitType& script, const char* base)
{
    SchemaType type;
    type.Name = script.GetName();
    type.Base = TextOrEmpty(base);
    script.VisitMembers([&type](const ScriptRow& row) { type.Members.push_back(Describe(row)); });
    script.VisitMethods([&type](const ScriptRow& row) { type.Methods.push_back(Describe(row)); });
    return type;
}

template <class Row> const Row* FindNamed(const std::vector<Row>& rows, std::string_view name)
{
    const auto row =
        std::find_if(rows.begin(), rows.end(), [name](const Row& each) { return EqualsNoCase(each.Name, name); });
    return row == rows.end() ? nullptr : &*row;
}

} // namespace

Schema::Schema() : RootTag(g_UIManager.RootTagName)
{
    for (const MarkupShape* shape = MarkupShape::First(); shape; shape = shape->Next())
        Shapes.push_back(Describe(shape->Is));
    std::sort(Shapes.begin(), Shapes.end(),
        [](const SchemaShape& left, const SchemaShape& right) { return left.Name < right.Name; });
    VisitScriptTypes([this](const ToolkitType& type, const char* base) { Types.push_back(Describe(type, base)); });
    for (const char* name : TopLevelObjectNames())
        Objects.emplace_back(name);
    for (const char* name : CommandNames())
        Commands.emplace_back(name);
    for (const char* line : Messages::All)
        Messages.emplace_back(line);
    for (u32 code = 0; code < NotificationCodeEnd; ++code) {
        if (const char* name = NameOfNotification(static_cast<NotificationCode>(code)))
            Notifications.push_back({name, code});
    }
}

const SchemaShape* Schema::FindShape(std::string_view name) const
{
    return FindNamed(Shapes, name);
}

const SchemaType* Schema::FindType(std::string_view name) const
{
    return FindNamed(Types, name);
}

std::vector<const SchemaValue*> Schema::ValuesOf(const SchemaShape& shape) const
{
    std::vector<const SchemaValue*> values;
    if (const SchemaShape* base = FindShape(shape.Base))
        values = ValuesOf(*base);
    for (const SchemaValue& value : shape.Values)
        values.push_back(&value);
    return values;
}

const SchemaValue* Schema::FindChild(const SchemaShape& shape, std::string_view tag) const
{
    for (const SchemaShape* at = &shape; at; at = FindShape(at->Base)) {
        for (const SchemaValue& value : at->Values) {
            if (!value.IsAttribute() && EqualsNoCase(value.Name, tag))
                return &value;
        }
    }
    return nullptr;
}

const SchemaValue* Schema::FindAttribute(const SchemaShape& shape, std::string_view name, std::string_view owner) const
{
    for (const SchemaShape* at = &shape; at; at = FindShape(at->Base)) {
        for (const SchemaValue& value : at->Values) {
            if (value.IsAttribute() && EqualsNoCase(value.Name, name) && EqualsNoCase(value.Owner, owner))
                return &value;
        }
    }
    return nullptr;
}

const SchemaType* Schema::TypeOf(const SchemaShape& shape) const
{
    const SchemaShape* at = &shape;
    while (at && at->ScriptType.empty())
        at = FindShape(at->Base);
    return at ? FindType(at->ScriptType) : nullptr;
}
