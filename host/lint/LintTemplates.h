#pragma once

#include "host/lint/LintFile.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace host {

// A template as it stands in a file. Files are known by their order; those of the skin come first.
struct LintTemplate {
    std::size_t File;
    XMLNode* Node;
};

// The names that stand in a text: one, or a list in which a comma ends each.
std::vector<std::string_view> TemplateNamesIn(std::string_view text);

// The templates of several files, by their names.
class LintTemplates
{
public:
    static constexpr const char* DefaultFont = "Default Font";

    // markup: the element around a file.
    void Add(std::size_t file, XMLNode* markup);

    // All templates of a name, in any file.
    const std::vector<LintTemplate>& Named(std::string_view name) const;

    // What a file means by a name: its own template, else that of the file that was read first. Null: there is none.
    XMLNode* Find(std::string_view name, std::size_t file) const;

    // A value as an element or a part gets it: its own, else that of its template or of one that this builds upon.
    // fallback: the template of a node that names none, or none that is there. Null: nobody has it.
    XMLNode* FindValue(XMLNode* node, const char* tag, std::string_view fallback, std::size_t file) const;

    // Only what the templates give.
    XMLNode* FindInherited(XMLNode* node, const char* tag, std::string_view fallback, std::size_t file) const;

    std::vector<std::string> Names() const;

    const std::map<std::string, std::vector<LintTemplate>>& All() const { return m_Templates; }

private:
    XMLNode* FindInChain(XMLNode* templateNode, const char* tag, std::size_t file, int depth) const;

    std::map<std::string, std::vector<LintTemplate>> m_Templates; // by name in small letters
};

} // namespace host
