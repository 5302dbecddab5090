#include "host/lint/LintTemplates.h"

#include "host/lint/LintName.h"
#include "teskara/markup/XMLHelper.h"

namespace host {

namespace {

// More bases than anyone writes; a cycle ends here.
constexpr int DeepestChain = 32;

} // namespace

std::vector<std::string_view> TemplateNamesIn(std::string_view text)
{
    std::vector<std::string_view> names;
    std::size_t comma = text.find(',');
    if (comma == text.npos && !text.empty())
        names.push_back(text);
    for (; comma != text.npos; comma = text.find(',')) {
        names.push_back(text.substr(0, comma));
        text.remove_prefix(comma + 1);
    }
    return names;
}

void LintTemplates::Add(std::size_t file, XMLNode* markup)
{
    for (XMLNode* node = markup ? markup->FirstChild : nullptr; node; node = node->Next) {
        const std::string_view name = XMLHelper::GetStringAttribute(node, "name", "");
        if (node->Type == XMLElementNode && IsSameName(node->Name, "Template") && !name.empty())
            m_Templates[FoldedName(name)].push_back({file, node});
    }
}

const std::vector<LintTemplate>& LintTemplates::Named(std::string_view name) const
{
    static const std::vector<LintTemplate> none;
    const auto found = m_Templates.find(FoldedName(name));
    return found == m_Templates.end() ? none : found->second;
}

XMLNode* LintTemplates::Find(std::string_view name, std::size_t file) const
{
    const std::vector<LintTemplate>& named = Named(name);
    for (auto each = named.rbegin(); each != named.rend(); ++each) {
        if (each->File == file)
            return each->Node;
    }
    return named.empty() ? nullptr : named.front().Node;
}

XMLNode* LintTemplates::FindValue(XMLNode* node, const char* tag, std::string_view fallback, std::size_t file) const
{
    XMLNode* own = XMLHelper::GetChild(node, tag);
    return own ? own : FindInherited(node, tag, fallback, file);
}

XMLNode* LintTemplates::FindInherited(XMLNode* node, const char* tag, std::string_view fallback, std::size_t file) const
{
    XMLNode* templateNode = Find(XMLHelper::GetStringAttribute(node, "Template", ""), file);
    return FindInChain(templateNode ? templateNode : Find(fallback, file), tag, file, 0);
}

XMLNode* LintTemplates::FindInChain(XMLNode* templateNode, const char* tag, std::size_t file, int depth) const
{
    if (!templateNode || depth == DeepestChain)
        return nullptr;
    if (XMLNode* value = XMLHelper::GetChild(templateNode, tag))
        return value;

    // The first of a list wins.
    for (const std::string_view base : TemplateNamesIn(XMLHelper::GetStringAttribute(templateNode, "Template", ""))) {
        if (XMLNode* value = FindInChain(Find(base, file), tag, file, depth + 1))
            return value;
    }
    return nullptr;
}

std::vector<std::string> LintTemplates::Names() const
{
    std::vector<std::string> names;
    for (const auto& [folded, templates] : m_Templates)
        names.emplace_back(XMLHelper::GetStringAttribute(templates.front().Node, "name", ""));
    return names;
}

} // namespace host
