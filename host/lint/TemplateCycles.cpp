#include "host/lint/TemplateCycles.h"

#include "host/lint/LintName.h"
#include "teskara/markup/XMLHelper.h"

#include <algorithm>
#include <utility>

namespace host {

TemplateCycles::TemplateCycles(const LintTemplates& templates, std::size_t file, XMLNode* markup)
    : m_Templates(templates), m_File(file)
{
    for (XMLNode* node = markup ? markup->FirstChild : nullptr; node; node = node->Next) {
        if (node->Type == XMLElementNode && IsSameName(node->Name, "Template") && !m_Marks.contains(node))
            SearchFrom(node);
    }
}

const TemplateCycles::Cycle* TemplateCycles::Find(const XMLNode* node) const
{
    const auto found = m_CycleOf.find(node);
    return found == m_CycleOf.end() ? nullptr : &m_Cycles[found->second];
}

// A walk to the depth of the bases that needs no stack of calls: chains may be as long as a file.
void TemplateCycles::SearchFrom(XMLNode* node)
{
    Enter(node);
    while (!m_Path.empty()) {
        Visit& visit = m_Path.back();
        if (visit.Next == visit.Bases.size()) {
            Leave();
            continue;
        }
        XMLNode* base = visit.Bases[visit.Next++];
        const auto known = m_Marks.find(base);
        if (known == m_Marks.end())
            Enter(base);
        else if (known->second.IsOpen)
            m_Marks[visit.Node].Lowest = std::min(m_Marks[visit.Node].Lowest, known->second.Number);
    }
}

void TemplateCycles::Enter(XMLNode* node)
{
    const std::size_t number = m_Marks.size();
    m_Marks[node] = {number, number, true};
    m_Open.push_back(node);
    m_Path.push_back({node, BasesOf(node), 0});
}

void TemplateCycles::Leave()
{
    const Visit visit = std::move(m_Path.back());
    m_Path.pop_back();
    const Marks marks = m_Marks[visit.Node];
    if (!m_Path.empty()) {
        Marks& user = m_Marks[m_Path.back().Node];
        user.Lowest = std::min(user.Lowest, marks.Lowest);
    }
    if (marks.Lowest == marks.Number)
        CloseCycle(visit);
}

// What was reached from a template that comes back to no earlier one, and is still open, comes back to it.
void TemplateCycles::CloseCycle(const Visit& visit)
{
    Cycle cycle;
    while (!cycle.contains(visit.Node)) {
        m_Marks[m_Open.back()].IsOpen = false;
        cycle.insert(m_Open.back());
        m_Open.pop_back();
    }
    const bool isUponItself = std::find(visit.Bases.begin(), visit.Bases.end(), visit.Node) != visit.Bases.end();
    if (cycle.size() == 1 && !isUponItself)
        return;
    for (const XMLNode* node : cycle)
        m_CycleOf[node] = m_Cycles.size();
    m_Cycles.push_back(std::move(cycle));
}

std::vector<XMLNode*> TemplateCycles::BasesOf(XMLNode* node) const
{
    std::vector<XMLNode*> bases;
    for (const std::string_view name : TemplateNamesIn(XMLHelper::GetStringAttribute(node, "Template", ""))) {
        if (XMLNode* base = m_Templates.Find(name, m_File))
            bases.push_back(base);
    }
    return bases;
}

} // namespace host
