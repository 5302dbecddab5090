#include "tests/unit/ScriptValues.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"

#include <charconv>
#include <iterator>
#include <stdexcept>

namespace {

char** AsArguments(const std::vector<const char*>& arguments)
{
    return const_cast<char**>(arguments.data());
}

// With six digits and a point, whatever the locale.
std::string FloatText(float number)
{
    constexpr int Digits = 6;
    char text[64];
    return {text, std::to_chars(text, std::end(text), number, std::chars_format::general, Digits).ptr};
}

std::string ValueText(const std::string& type, MvTypeDefinition& definition, MvValue value)
{
    if (type == "int")
        return std::to_string(value.Integer);
    if (type == "uint")
        return std::to_string(value.Unsigned);
    if (type == "bool")
        return value.Bool ? "true" : "false";
    if (type == "float")
        return FloatText(value.Float);
    if (type == "string")
        return value.Text ? value.Text : "(null)";

    char text[256] = "";
    return definition.ToText(value, text, sizeof(text)) ? text : "(none)";
}

} // namespace

ScriptObject::ScriptObject(TeskElement& element) : ScriptObject(*element.GetMvType(), &element) { }

int ScriptObject::Ask(const char* member, const std::vector<const char*>& arguments, _MvTypeVar& result) const
{
    return m_Type->DispatchMember(m_Value, member, static_cast<int>(arguments.size()), AsArguments(arguments), result);
}

std::string ScriptObject::Get(const char* member, std::vector<const char*> arguments) const
{
    _MvTypeVar result;
    const int answer = Ask(member, arguments, result);
    if (answer != DispatchDone)
        return answer == DispatchFailed && !result.Type ? "failed" : "unknown";

    const std::string type = result.Type->GetName();
    return type + ' ' + ValueText(type, *result.Type, result.Value);
}

bool ScriptObject::Do(const char* method, std::vector<const char*> arguments) const
{
    const int count = static_cast<int>(arguments.size());
    return m_Type->DispatchMethod(m_Value, method, count, AsArguments(arguments)) == DispatchDone;
}

ScriptObject ScriptObject::Follow(const char* member, std::vector<const char*> arguments) const
{
    _MvTypeVar result;
    if (Ask(member, arguments, result) != DispatchDone)
        throw std::runtime_error(std::string("no value of ") + member);
    return ScriptObject(result);
}

TeskElement& MakeElement(const char* kind, const char* name, TeskElement* parent)
{
    TeskElement* element = g_UIManager.LoadElement(parent ? parent : g_UIManager.Screen, kind, name);
    if (!element)
        throw std::runtime_error(std::string("no element ") + name);
    return *element;
}
