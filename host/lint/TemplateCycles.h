#pragma once

#include "host/lint/LintTemplates.h"

#include <cstddef>
#include <set>
#include <unordered_map>
#include <vector>

namespace host {

// The templates that a file's own build upon, over whatever others: which of them come back to themselves.
class TemplateCycles
{
public:
    // templates: borrowed. markup: the element around the file; null if there is none.
    TemplateCycles(const LintTemplates& templates, std::size_t file, XMLNode* markup);

    // Those that build upon each other. One alone builds upon itself.
    using Cycle = std::set<const XMLNode*>;

    // The one that a template is in; null if it is in none.
    const Cycle* Find(const XMLNode* node) const;

private:
    struct Visit {
        XMLNode* Node;
        std::vector<XMLNode*> Bases;
        std::size_t Next; // the base that is looked at next
    };

    struct Marks {
        std::size_t Number; // in the order in which they were reached
        std::size_t Lowest; // number of those that one comes back to
        bool IsOpen; // may still come back to an earlier one
    };

    void SearchFrom(XMLNode* node);
    void Enter(XMLNode* node);
    void Leave();
    void CloseCycle(const Visit& visit);
    std::vector<XMLNode*> BasesOf(XMLNode* node) const;

    const LintTemplates& m_Templates;
    std::size_t m_File;
    std::vector<Visit> m_Path;
    std::vector<XMLNode*> m_Open;
    std::unordered_map<const XMLNode*, Marks> m_Marks;
    std::vector<Cycle> m_Cycles;
    std::unordered_map<const XMLNode*, std::size_t> m_CycleOf;
};

} // namespace host
