#include "host/lint/LintContext.h"

#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLHelper.h"

#include <utility>

namespace host {

LintContext::LintContext(
    const LintModel& model, std::size_t file, const SearchPaths& paths, LuaState& lua, std::vector<Finding>& findings)
    : m_Model(model), m_File(file), m_Paths(paths), m_Lua(lua), m_Findings(findings)
{
}

void LintContext::Report(SourcePlace place, std::string message, std::string meant)
{
    m_Findings.push_back({Source().Path(), place, m_Rule, std::move(message), std::move(meant)});
}

void LintContext::Report(const XMLNode* node, std::string message, std::string meant)
{
    Report(Source().PlaceOf(node), std::move(message), std::move(meant));
}

void LintContext::Report(const LintValue& value, std::string message, std::string meant)
{
    Report(Source().PlaceOf(value.Attribute, value.Node), std::move(message), std::move(meant));
}

std::string_view LintContext::TextOf(const LintValue& value)
{
    if (value.Attribute)
        return value.Attribute->Value;
    return XMLHelper::GetText(XMLHelper::GetFirstChild(value.Node));
}

const char* LintContext::NameOf(const LintValue& value)
{
    return value.Attribute ? value.Attribute->Name : value.Node->Name;
}

SourcePlace LintContext::PlaceIn(const LintValue& value, std::size_t offset) const
{
    if (value.Attribute || !value.Node->FirstChild)
        return Source().PlaceOf(value.Attribute, value.Node);
    return PlaceInText(value.Node->FirstChild, offset);
}

SourcePlace LintContext::PlaceInText(const XMLNode* text, std::size_t offset) const
{
    const auto begin = Source().OffsetOf(text);
    if (!begin)
        return Source().PlaceOf(text);

    const std::string_view before = std::string_view(text->Name).substr(0, offset);
    const bool isPlain = std::string_view(Source().Source().Text()).substr(*begin).starts_with(before);
    return Source().Source().PlaceOf(*begin + (isPlain ? offset : 0));
}

std::string Quoted(std::string_view text)
{
    constexpr std::size_t longest = 60;
    std::string quoted = "'" + std::string(text.substr(0, longest)) + (text.size() > longest ? "..." : "") + "'";
    for (char& character : quoted)
        character = static_cast<unsigned char>(character) < ' ' ? ' ' : character;
    return quoted;
}

} // namespace host
