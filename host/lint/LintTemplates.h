#pragma once

#include "host/lint/LintFile.h"

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace host {

// A template as it stands in a file. Files are known by their order; those of the skin come first.
struct LintTemplate {
    std::size_t File;
    XMLNode* Node;
};

// The skin in which the files are shown.
struct LintSkin {
    std::string Name;
    std::filesystem::path Folder;
    std::size_t Files = 0; // how many of the files are its own
};

// The names that stand in a text: one, or a list in which a comma ends each. Empty ones stand for nothing.
std::vector<std::string_view> TemplateNamesIn(std::string_view text);

// The template that a line of a skin puts in the place of another; empty if it puts none there.
std::string SkinnedNameOf(XMLNode* line);

// The templates of several files, by their names.
class LintTemplates
{
public:
    static constexpr const char* DefaultFont = "Default Font";

    // skinFiles: how many of the files are the skin's.
    explicit LintTemplates(std::size_t skinFiles) : m_SkinFiles(skinFiles) { }

    // markup: the element around a file.
    void Add(std::size_t file, XMLNode* markup);

    // From now on a name stands for another one: the skin puts that in its place.
    void Redirect(std::string_view base, std::string_view skinned);

    // All templates of a name, in any file.
    const std::vector<LintTemplate>& Named(std::string_view name) const;

    // What a file means by a name in the skin: its own template, else that of the skin, else that of any other file.
    // Null: there is none.
    XMLNode* Find(std::string_view name, std::size_t file) const;

    // A value as an element or a part gets it: its own, else that of its template or of one that this builds upon.
    // fallback: the template of a node that names none, or none that is there. Null: nobody has it.
    XMLNode* FindValue(XMLNode* node, const char* tag, std::string_view fallback, std::size_t file) const;

    // Only what the templates give.
    XMLNode* FindInherited(XMLNode* node, const char* tag, std::string_view fallback, std::size_t file) const;

    // Whether a template, or one that it builds upon, has an attribute with something in it.
    bool HasAttribute(XMLNode* templateNode, const char* name, std::size_t file) const;

    std::vector<std::string> Names() const;

    const std::map<std::string, std::vector<LintTemplate>>& All() const { return m_Templates; }

private:
    using Seen = std::set<const XMLNode*>;

    // The first in a template's chain for which the question has an answer, as answer(template); null: it has none.
    template <class Answer>
    XMLNode* FindInChain(XMLNode* templateNode, std::size_t file, Seen& seen, const Answer& answer) const;

    std::size_t m_SkinFiles;
    std::map<std::string, std::vector<LintTemplate>> m_Templates; // by name in small letters
    std::map<std::string, std::string> m_Skinned; // by name in small letters
};

} // namespace host
