#include "host/schema/SchemaJson.h"

#include "host/schema/SchemaNotes.h"
#include "host/schema/SchemaWords.h"

#include <nlohmann/json.hpp>

namespace host {

namespace {

using Json = nlohmann::ordered_json;

constexpr int IndentWidth = 2;

void SetUnlessEmpty(Json& object, const char* name, const std::string& text)
{
    if (!text.empty())
        object[name] = text;
}

Json ValueAsJson(const SchemaShape& shape, const SchemaValue& value)
{
    Json json = {{"name", value.Name}, {"form", value.Form}, {"place", WordOf(value.Place)}};
    SetUnlessEmpty(json, "default", value.Default);
    SetUnlessEmpty(json, "owner", value.Owner);
    if (value.IsEvent)
        json["arguments"] = value.Arguments;
    if (!value.Words.empty())
        json["words"] = value.Words;
    SetUnlessEmpty(json, "note", std::string(NoteOn(shape, value)));
    return json;
}

Json ShapeAsJson(const SchemaShape& shape)
{
    Json json = {{"name", shape.Name}, {"use", WordOf(shape.Use)}};
    SetUnlessEmpty(json, "base", shape.Base);
    SetUnlessEmpty(json, "scriptType", shape.ScriptType);
    SetUnlessEmpty(json, "holds", shape.Holds);
    SetUnlessEmpty(json, "note", std::string(NoteOn(shape)));
    Json values = Json::array();
    for (const SchemaValue& value : shape.Values)
        values.push_back(ValueAsJson(shape, value));
    json["values"] = std::move(values);
    return json;
}

Json NamesAsJson(const std::vector<SchemaName>& names)
{
    Json array = Json::array();
    for (const SchemaName& name : names) {
        Json json = {{"name", name.Name}, {"needs", name.Needs}};
        SetUnlessEmpty(json, "result", name.Result);
        array.push_back(std::move(json));
    }
    return array;
}

Json TypeAsJson(const SchemaType& type)
{
    Json json = {{"name", type.Name}};
    SetUnlessEmpty(json, "base", type.Base);
    json["members"] = NamesAsJson(type.Members);
    json["methods"] = NamesAsJson(type.Methods);
    return json;
}

} // namespace

std::string WriteSchemaJson(const Schema& schema)
{
    Json json = {{"root", schema.RootTag}};
    for (const SchemaShape& shape : schema.Shapes)
        json["shapes"].push_back(ShapeAsJson(shape));
    for (const SchemaType& type : schema.Types)
        json["types"].push_back(TypeAsJson(type));
    json["objects"] = schema.Objects;
    json["commands"] = schema.Commands;
    for (const SchemaNotification& notification : schema.Notifications)
        json["notifications"].push_back({{"name", notification.Name}, {"code", notification.Code}});
    json["messages"] = schema.Messages;
    return json.dump(IndentWidth) + "\n";
}

} // namespace host
