#include "host/serve/ElementReport.h"

#include "host/lint/NearestName.h"
#include "host/probe/ValueText.h"
#include "host/record/ToolkitCalls.h"
#include "host/serve/ServeRequest.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/script/MvTypeDefinition.h"

#include <nlohmann/json.hpp>

#include <functional>
#include <optional>

namespace host {

namespace {

constexpr const char* TextMember = "Text";
constexpr std::size_t MostNamesCompared = 4096;

// Nothing: elements of its kind have none. It may be gone afterwards.
std::optional<std::string> TextOf(TeskElement& element)
{
    MvTypeDefinition* type = element.GetMvType();
    u32 id = 0;
    const MvTypeDefinition* knows = type;
    while (knows && !knows->GetMemberID(TextMember, id))
        knows = knows->GetBase();
    if (!knows)
        return std::nullopt;

    char* noArguments[] = {nullptr};
    _MvTypeVar object;
    object.Type = type;
    object.Value.Object = &element;
    _MvTypeVar result;
    char text[4096] = "";
    if (Toolkit::DispatchMember(object, TextMember, 0, noArguments, result) != DispatchDone
        || !Toolkit::ToText(result, text, sizeof text))
        return std::string();
    return text;
}

// ? is a byte, as good as a character in names.
bool Matches(std::string_view pattern, std::string_view text)
{
    std::size_t star = std::string_view::npos;
    std::size_t after = 0;
    std::size_t at = 0;
    for (std::size_t here = 0; here < text.size();) {
        if (at < pattern.size() && pattern[at] == '*') {
            star = at++;
            after = here;
        } else if (at < pattern.size()
            && (pattern[at] == '?' || SameWord(pattern.substr(at, 1), text.substr(here, 1)))) {
            ++at;
            ++here;
        } else if (star != std::string_view::npos) {
            at = star + 1;
            here = ++after;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', at) == std::string_view::npos;
}

bool IsWanted(TeskElement& element, const ElementQuery& query)
{
    if (query.OnlyVisible && !element.IsReallyVisible())
        return false;
    if (!query.Kind.empty() && !SameWord(query.Kind, element.Type.c_str()))
        return false;
    if (!query.Name.empty() && !Matches(query.Name, element.FullName.c_str())
        && !Matches(query.Name, element.Name.c_str()))
        return false;
    if (query.Text.empty())
        return true;
    const u32 id = element.ID;
    const std::optional<std::string> text = TextOf(element);
    return text && g_UIManager.FindElementByID(id) && LowerCase(*text).find(LowerCase(query.Text)) != std::string::npos;
}

// The elements as they are before anything is asked of them, by id: scripts may change the tree meanwhile.
void CollectElements(const TeskElement& element, std::vector<u32>& ids)
{
    ids.push_back(element.ID);
    for (const TeskElement* child = element.FirstChild; child; child = child->Next)
        CollectElements(*child, ids);
}

std::vector<u32> AllElements()
{
    std::vector<u32> ids;
    for (const TeskElement* child = g_UIManager.Screen ? g_UIManager.Screen->FirstChild : nullptr; child;
         child = child->Next)
        CollectElements(*child, ids);
    return ids;
}

} // namespace

Json ReportElement(TeskElement& element)
{
    Json report = {{"name", element.FullName.c_str()}, {"kind", element.Type.empty() ? "screen" : element.Type.c_str()},
        {"x", element.AbsoluteX}, {"y", element.AbsoluteY}, {"width", element.Width}, {"height", element.Height},
        {"visible", element.IsReallyVisible()}};
    if (const std::optional<std::string> text = TextOf(element))
        report["text"] = *text;
    return report;
}

Json ReportTree(TeskElement& element, int levels)
{
    const u32 id = element.ID;
    std::vector<u32> children;
    for (const TeskElement* child = element.FirstChild; child; child = child->Next)
        children.push_back(child->ID);
    Json report = ReportElement(element);
    if (levels == 0 || children.empty() || !g_UIManager.FindElementByID(id))
        return report;
    Json& below = report["children"] = Json::array();
    for (const u32 childID : children)
        if (TeskElement* child = g_UIManager.FindElementByID(childID))
            below.push_back(ReportTree(*child, levels - 1));
    return report;
}

Json FindElements(const ElementQuery& query, std::size_t most)
{
    Json found = Json::array();
    for (const u32 id : AllElements()) {
        TeskElement* element = g_UIManager.FindElementByID(id);
        if (found.size() < most && element && IsWanted(*element, query))
            found.push_back(ReportElement(*element));
    }
    return found;
}

TeskElement& NamedElement(const std::string& name)
{
    if (TeskElement* element = g_UIManager.FindElement(name.c_str()))
        return *element;

    std::vector<std::string> names;
    for (const auto& [known, element] : g_UIManager.ElementsByName)
        if (names.size() < MostNamesCompared && element)
            names.emplace_back(element->FullName.c_str());
    std::string why = "there is no element '" + name.substr(0, 256) + "'";
    const std::string meant = NearestName(name, names);
    throw ServeFault(meant.empty() ? why + "; find tells which there are" : why + "; meant: '" + meant + "'");
}

} // namespace host
