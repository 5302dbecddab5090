#include "host/serve/Server.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace host {

namespace {

using Type = ServeFieldType;
using Need = ServeField::Need;

constexpr i64 FarthestPlace = 1 << 20;

constexpr ServeField Element = {"element", Type::Text};
constexpr ServeField PlaceX = {"x", Type::Number, Need::Optional, -FarthestPlace, FarthestPlace};
constexpr ServeField PlaceY = {"y", Type::Number, Need::Optional, -FarthestPlace, FarthestPlace};
constexpr ServeField Button = {"button", Type::Text};
constexpr ServeField File = {"file", Type::Text};
constexpr ServeField NeededFile = {"file", Type::Text, Need::Required};

constexpr ServeField LoadFields[] = {NeededFile, {"skin", Type::Text}};
constexpr ServeField TreeFields[] = {Element, {"levels", Type::Number, Need::Optional, 0, 256}};
constexpr ServeField FindFields[] = {{"name", Type::Text}, {"kind", Type::Text}, {"text", Type::Text},
    {"visible", Type::Flag}, {"most", Type::Number, Need::Optional, 1, 100000}};
constexpr ServeField ClickFields[] = {Element, PlaceX, PlaceY, Button, {"times", Type::Number, Need::Optional, 1, 10}};
constexpr ServeField MoveFields[] = {Element, PlaceX, PlaceY};
constexpr ServeField ButtonFields[] = {Button};
constexpr ServeField WheelFields[] = {{"notches", Type::Number, Need::Required, -1000, 1000}, Element, PlaceX, PlaceY};
constexpr ServeField TypeFields[] = {{"text", Type::Text, Need::Required}};
constexpr ServeField KeysFields[] = {{"keys", Type::Texts, Need::Required}};
constexpr ServeField WaitFields[] = {
    {"frames", Type::Number, Need::Optional, 0, 100000}, {"milliseconds", Type::Number, Need::Optional, 0, 600000}};
constexpr ServeField GetFields[] = {{"expression", Type::Text, Need::Required}};
constexpr ServeField DoFields[] = {{"script", Type::Text, Need::Required}};
constexpr ServeField OutputFields[] = {File};
constexpr ServeField LintFields[] = {{"files", Type::Texts}, {"text", Type::Text}, {"strict", Type::Flag}};

constexpr ServeCommand Commands[] = {
    {"load", "opens an interface file, in another skin if one is named", LoadFields, &ServedInterface::Load},
    {"tree", "tells of an element, or of the screen, and of what is in it", TreeFields, &ServedInterface::Tree},
    {"find", "tells of the elements that have all that is said", FindFields, &ServedInterface::Find},
    {"click", "moves the mouse to an element or a point, and clicks", ClickFields, &ServedInterface::Click},
    {"move", "moves the mouse there", MoveFields, &ServedInterface::Move},
    {"press", "presses a button of the mouse where it is", ButtonFields, &ServedInterface::Press},
    {"release", "releases it", ButtonFields, &ServedInterface::Release},
    {"wheel", "turns the wheel, away from the user if notches is positive", WheelFields, &ServedInterface::Wheel},
    {"type", "types a text into what has the keyboard", TypeFields, &ServedInterface::Type},
    {"keys", "presses keys, or several together such as Ctrl+A", KeysFields, &ServedInterface::Keys},
    {"wait", "lets frames of 16 ms pass, or milliseconds", WaitFields, &ServedInterface::Wait},
    {"get", "tells the value of a script's expression", GetFields, &ServedInterface::Get},
    {"do", "runs a script, and tells what it returns", DoFields, &ServedInterface::Do},
    {"list", "writes what a frame draws as a draw list", OutputFields, &ServedInterface::List},
    {"picture", "draws a frame as a PNG file, or tells its bytes in base64", OutputFields,
        &ServedInterface::TakePicture},
    {"lint", "looks for what interface files, or a text, say in vain", LintFields, &ServedInterface::Lint},
    {"help", "tells all of this", {}, nullptr},
};

Json DescribeCommands()
{
    Json commands = Json::object();
    for (const ServeCommand& command : Commands) {
        Json fields = Json::object();
        for (const ServeField& field : command.Fields)
            fields[std::string(field.Name)] =
                ServeRequest::Describe(field) + (field.Presence == Need::Required ? ", needed" : "");
        commands[std::string(command.Name)] = {{"does", command.Text}, {"fields", fields}};
    }
    return commands;
}

std::string NamesOfCommands()
{
    std::string names;
    for (const ServeCommand& command : Commands)
        names.append(names.empty() ? "" : ", ").append(command.Name);
    return names;
}

const ServeCommand& FindCommand(const Json& request)
{
    const auto name = request.find("command");
    if (name == request.end() || !name->is_string())
        throw ServeFault("the field 'command' is " + (name == request.end() ? "missing" : DescribeJson(*name))
            + "; expected one of " + NamesOfCommands());

    const auto wanted = name->get<std::string>();
    const auto found = std::find_if(
        std::begin(Commands), std::end(Commands), [&](const ServeCommand& command) { return command.Name == wanted; });
    if (found == std::end(Commands))
        throw ServeFault("there is no command '" + wanted.substr(0, 64) + "'; expected one of " + NamesOfCommands());
    return *found;
}

// Numbers and texts name a request for who made it.
void CopyID(const Json& request, Json& answer)
{
    const auto id = request.find("id");
    if (id == request.end())
        return;
    if (!id->is_number() && !id->is_string() && !id->is_null())
        throw ServeFault("the field 'id' is " + DescribeJson(*id) + "; expected a number or a text");
    answer["id"] = *id;
}

Json Refusal(const std::string& why)
{
    return {{"ok", false}, {"error", why}};
}

} // namespace

std::span<const ServeCommand> ServeCommands()
{
    return Commands;
}

Json Server::Run(const Json& request)
{
    const ServeCommand& command = FindCommand(request);
    const ServeRequest checked(request, command.Fields);
    return command.Run ? (m_Interface.*command.Run)(checked) : DescribeCommands();
}

std::string Server::Answer(std::string_view line)
{
    Json answer = Json::object();
    std::string why;
    const std::optional<Json> request = ReadJsonObject(line, why);
    try {
        if (!request)
            throw ServeFault(why);
        CopyID(*request, answer);
        answer["result"] = Run(*request);
        answer["ok"] = true;
    } catch (const std::exception& error) { // memory may run out for what is asked, too
        answer.update(Refusal(error.what()));
    }
    if (const std::vector<std::string> lines = m_Interface.TakeLines(); !lines.empty())
        answer["lines"] = lines;
    return WriteJsonLine(answer);
}

std::string Server::AnswerTooLong(std::size_t most) const
{
    return WriteJsonLine(Refusal("this line is longer than " + std::to_string(most)
        + " bytes; expected one JSON object that is not, and files for what is longer"));
}

RequestLines::Kind RequestLines::Next(std::string& line)
{
    using Traits = std::istream::traits_type;
    line.clear();
    std::size_t length = 0;
    std::streambuf& bytes = *m_Stream.rdbuf();
    for (int byte = bytes.sbumpc(); byte != '\n'; byte = bytes.sbumpc(), ++length) {
        if (Traits::eq_int_type(byte, Traits::eof())) {
            if (length == 0)
                return Kind::End;
            break;
        }
        if (length < m_Most)
            line += Traits::to_char_type(byte);
    }
    if (length > m_Most) {
        line = {};
        return Kind::TooLong;
    }
    if (line.ends_with('\r'))
        line.pop_back();
    return Kind::Line;
}

} // namespace host
