#include "host/serve/ServeRequest.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace host {

namespace {

// What every request may have.
bool IsOfEveryRequest(std::string_view name)
{
    return name == "id" || name == "command";
}

// What the toolkit and the system call a text ends at its first zero byte.
bool IsText(const Json& value)
{
    return value.is_string() && value.get_ref<const std::string&>().find('\0') == std::string::npos;
}

bool IsListOfTexts(const Json& value)
{
    return value.is_array() && std::all_of(value.begin(), value.end(), IsText);
}

bool IsWithin(const Json& value, const ServeField& field)
{
    if (value.is_number_unsigned())
        return field.Most >= 0 && value.get<u64>() <= static_cast<u64>(field.Most)
            && (field.Least <= 0 || value.get<u64>() >= static_cast<u64>(field.Least));
    return value.is_number_integer() && value.get<i64>() >= field.Least && value.get<i64>() <= field.Most;
}

bool Fits(const Json& value, const ServeField& field)
{
    switch (field.Type) {
    case ServeFieldType::Text:
        return IsText(value);
    case ServeFieldType::Texts:
        return IsText(value) || IsListOfTexts(value);
    case ServeFieldType::Flag:
        return value.is_boolean();
    case ServeFieldType::Number:
        return IsWithin(value, field);
    }
    return false;
}

std::string QuotedName(std::string_view name)
{
    return std::string("'").append(name.substr(0, 64)).append("'");
}

std::string NamesOf(std::span<const ServeField> fields)
{
    std::string names;
    for (const ServeField& field : fields)
        names.append(names.empty() ? "" : ", ").append(field.Name);
    return names.empty() ? "no fields" : names;
}

std::string ValueText(const Json& value)
{
    if (value.is_string() && !IsText(value))
        return "a text with a zero byte in it";
    return value.is_number() ? WriteJsonLine(value) : DescribeJson(value);
}

} // namespace

ServeRequest::ServeRequest(const Json& object, std::span<const ServeField> fields) : m_Object(object)
{
    for (const auto& [name, value] : object.items()) {
        const auto isNamed = [&wanted = name](const ServeField& field) { return field.Name == wanted; };
        if (!IsOfEveryRequest(name) && std::none_of(fields.begin(), fields.end(), isNamed))
            throw ServeFault("there is no field " + QuotedName(name) + " here; expected " + NamesOf(fields));
    }
    for (const ServeField& field : fields) {
        const Json* value = Find(field.Name);
        if (!value && field.Presence == ServeField::Need::Required)
            throw ServeFault("the field " + QuotedName(field.Name) + " is missing; expected " + Describe(field));
        if (value && !Fits(*value, field))
            throw ServeFault(
                "the field " + QuotedName(field.Name) + " is " + ValueText(*value) + "; expected " + Describe(field));
    }
}

std::string ServeRequest::Describe(const ServeField& field)
{
    switch (field.Type) {
    case ServeFieldType::Text:
        return "a text";
    case ServeFieldType::Texts:
        return "a text or a list of texts";
    case ServeFieldType::Flag:
        return "true or false";
    case ServeFieldType::Number:
        return "a whole number from " + std::to_string(field.Least) + " to " + std::to_string(field.Most);
    }
    return {};
}

const Json* ServeRequest::Find(std::string_view name) const
{
    const auto found = m_Object.find(std::string(name));
    return found == m_Object.end() ? nullptr : &*found;
}

bool ServeRequest::Has(std::string_view name) const
{
    return Find(name);
}

std::string ServeRequest::Text(std::string_view name, const std::string& fallback) const
{
    const Json* value = Find(name);
    return value ? value->get<std::string>() : fallback;
}

std::vector<std::string> ServeRequest::Texts(std::string_view name) const
{
    const Json* value = Find(name);
    if (!value)
        return {};
    if (value->is_string())
        return {value->get<std::string>()};
    return value->get<std::vector<std::string>>();
}

bool ServeRequest::Flag(std::string_view name) const
{
    const Json* value = Find(name);
    return value && value->get<bool>();
}

i64 ServeRequest::Number(std::string_view name, i64 fallback) const
{
    const Json* value = Find(name);
    return value ? value->get<i64>() : fallback;
}

} // namespace host
