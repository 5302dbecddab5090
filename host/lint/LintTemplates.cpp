#include "host/lint/LintTemplates.h"

#include "host/lint/LintName.h"
#include "teskara/markup/XMLHelper.h"

namespace host {

namespace {

// More bases than anyone writes.
constexpr std::size_t MostInChain = 256;

} // namespace

std::vector<std::string_view> TemplateNamesIn(std::string_view text)
{
    std::vector<std::string_view> names;
    std::size_t comma = text.find(',');
    if (comma == text.npos)
        names.push_back(text);
    for (; comma != text.npos; comma = text.find(',')) {
        names.push_back(text.substr(0, comma));
        text.remove_prefix(comma + 1);
    }
    std::erase_if(names, [](std::string_view name) { return name.empty(); });
    return names;
}

std::string SkinnedNameOf(XMLNode* line)
{
    const std::string skinned = XMLHelper::GetStringAttribute(line, "Skin", "");
    const std::string prefix = XMLHelper::GetStringAttribute(line, "SkinPrefix", "");
    if (!skinned.empty() || prefix.empty())
        return skinned;
    return prefix + XMLHelper::GetStringAttribute(line, "Base", "");
}

void LintTemplates::Add(std::size_t file, XMLNode* markup)
{
    for (XMLNode* node = markup ? markup->FirstChild : nullptr; node; node = node->Next) {
        const std::string_view name = XMLHelper::GetStringAttribute(node, "name", "");
        if (node->Type == XMLElementNode && IsSameName(node->Name, "Template") && !name.empty())
            m_Templates[FoldedName(name)].push_back({file, node});
    }
}

void LintTemplates::Redirect(std::string_view base, std::string_view skinned)
{
    m_Skinned[FoldedName(base)] = skinned;
}

const std::vector<LintTemplate>& LintTemplates::Named(std::string_view name) const
{
    static const std::vector<LintTemplate> none;
    const auto found = m_Templates.find(FoldedName(name));
    return found == m_Templates.end() ? none : found->second;
}

XMLNode* LintTemplates::Find(std::string_view name, std::size_t file) const
{
    const auto skinned = m_Skinned.find(FoldedName(name));
    const std::vector<LintTemplate>& named = Named(skinned == m_Skinned.end() ? name : skinned->second);
    const LintTemplate* found = named.empty() ? nullptr : &named.front();
    for (const LintTemplate& each : named) {
        const bool isNearer = each.File == file || (each.File < m_SkinFiles && found->File != file);
        if (isNearer) // what is read later takes the place of what was there
            found = &each;
    }
    return found ? found->Node : nullptr;
}

XMLNode* LintTemplates::FindValue(XMLNode* node, const char* tag, std::string_view fallback, std::size_t file) const
{
    XMLNode* own = XMLHelper::GetChild(node, tag);
    return own ? own : FindInherited(node, tag, fallback, file);
}

XMLNode* LintTemplates::FindInherited(XMLNode* node, const char* tag, std::string_view fallback, std::size_t file) const
{
    XMLNode* templateNode = Find(XMLHelper::GetStringAttribute(node, "Template", ""), file);
    Seen seen;
    return FindInChain(templateNode ? templateNode : Find(fallback, file), file, seen,
        [tag](XMLNode* each) { return XMLHelper::GetChild(each, tag); });
}

bool LintTemplates::HasAttribute(XMLNode* templateNode, const char* name, std::size_t file) const
{
    Seen seen;
    return FindInChain(templateNode, file, seen, [name](XMLNode* each) {
        return *XMLHelper::GetStringAttribute(each, name, "") != 0 ? each : nullptr;
    }) != nullptr;
}

template <class Answer>
XMLNode* LintTemplates::FindInChain(XMLNode* templateNode, std::size_t file, Seen& seen, const Answer& answer) const
{
    if (!templateNode || seen.size() == MostInChain || !seen.insert(templateNode).second)
        return nullptr;
    if (XMLNode* found = answer(templateNode))
        return found;

    // The first of a list wins.
    for (const std::string_view base : TemplateNamesIn(XMLHelper::GetStringAttribute(templateNode, "Template", ""))) {
        if (XMLNode* found = FindInChain(Find(base, file), file, seen, answer))
            return found;
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
