#include "host/script/ScriptNames.h"

#include "host/script/ScriptEngine.h"
#include "teskara/script/ScriptTable.h"

namespace host {

std::vector<std::string> ScriptNames::Commands() const
{
    return m_Engine.Commands.Names();
}

std::vector<std::string> ScriptNames::Variables() const
{
    std::vector<std::string> names = m_Engine.TopLevel.Names();
    for (std::string& name : m_Engine.Globals.Names())
        names.push_back(std::move(name));
    return names;
}

std::vector<std::string> ScriptNames::MembersOf(const std::string& path)
{
    return NamesOf(path, &ToolkitType::VisitMembers);
}

std::vector<std::string> ScriptNames::MethodsOf(const std::string& path)
{
    return NamesOf(path, &ToolkitType::VisitMethods);
}

std::vector<std::string> ScriptNames::NamesOf(const std::string& path, Rows rows)
{
    std::vector<std::string> names;
    _MvTypeVar value;
    if (!m_Engine.ParseTypedValue(path.c_str(), value, 0))
        return names;

    for (const MvTypeDefinition* type = value.Type; type; type = type->GetBase()) {
        if (const auto* known = dynamic_cast<const ToolkitType*>(type))
            (known->*rows)([&](const ScriptRow& row) { names.emplace_back(row.Name); });
    }
    return names;
}

} // namespace host
