#pragma once

#include "host/lint/LintTemplates.h"
#include "teskara/script/Schema.h"

#include <map>
#include <set>
#include <unordered_map>
#include <utility>
#include <vector>

namespace host {

// An element as markup describes it. Shape is null if there is no such kind.
struct LintElement {
    XMLNode* Node;
    const SchemaShape* Shape;
};

// A tag or an attribute with what it is read as. Attribute is null for a tag; Value is null if nobody reads it.
struct LintValue {
    XMLNode* Node; // that is the value, or has the attribute
    const XMLAttribute* Attribute;
    const SchemaShape* Shape; // in which it stands
    const SchemaValue* Value;
};

// What the files of a set mean: which kind each element is, who reads each value, and how. A template is read as what
// those read it as that use it, in whatever file; one that nobody uses, as anything that its tags can be.
class LintModel
{
public:
    // All are borrowed.
    LintModel(const Schema& schema, const std::vector<const LintFile*>& files, const LintSkin& skin = {});

    const Schema& Known() const { return m_Schema; }
    const LintSkin& Skin() const { return m_Skin; }
    const LintTemplates& Templates() const { return m_Templates; }
    const std::vector<const LintFile*>& Files() const { return m_Files; }

    // In the order of the text.
    const std::vector<LintElement>& ElementsOf(std::size_t file) const { return m_InFiles[file].Elements; }
    const std::vector<LintValue>& ValuesOf(std::size_t file) const { return m_InFiles[file].Values; }

    // The element around a file; null if there is none.
    XMLNode* MarkupOf(std::size_t file) const { return m_Files[file]->RootElement(m_Schema.RootTag); }

    // A value as an element gets it, its templates included. Null: nobody has it.
    XMLNode* FindValue(const LintElement& element, const char* tag, std::size_t file) const;

    // The kinds that an element or template is read as.
    std::vector<const SchemaShape*> ShapesOf(const XMLNode* node) const;

    // Whether a kind is another, or is made from it.
    bool IsKind(const SchemaShape* shape, std::string_view kind) const;

private:
    struct InFile {
        std::vector<LintElement> Elements;
        std::vector<LintValue> Values;
    };

    void ReadFile(std::size_t file);
    void ReadKindTemplates();
    void ReadUnusedTemplates();
    void ReadElement(XMLNode* node);
    void ReadInside(XMLNode* node, const SchemaShape& shape);
    void ReadAttributes(XMLNode* node, const SchemaShape& shape, std::string_view owner);
    void ReadValue(XMLNode* node, const SchemaShape& shape, const SchemaValue& value);
    void ReadTemplate(XMLNode* node, const SchemaShape& shape);
    void ReadLoosely(XMLNode* node);
    void Use(std::string_view name, const SchemaShape& shape);
    void ReadUsed();
    void CollectSkins(std::size_t file, const std::string& current);
    void CollectSkinLines(XMLNode* lines, bool isCurrent);
    void Collect(XMLNode* node, InFile& in) const;
    void CollectAttributes(XMLNode* node, InFile& in) const;
    const SchemaShape* ShapeAround(XMLNode* node) const;

    const Schema& m_Schema;
    std::vector<const LintFile*> m_Files;
    LintSkin m_Skin;
    LintTemplates m_Templates;
    std::multimap<std::string, std::string> m_Skinned; // the names that skins put in place of one, in small letters
    std::unordered_map<const XMLNode*, std::vector<const SchemaShape*>> m_Shapes; // as which the inside was read
    std::unordered_map<const XMLNode*, LintElement> m_Elements;
    std::unordered_map<const XMLNode*, LintValue> m_Values;
    std::unordered_map<const XMLAttribute*, const SchemaValue*> m_Attributes;
    std::set<std::pair<std::string, const SchemaShape*>> m_Uses;
    std::vector<std::pair<std::string, const SchemaShape*>> m_Unread; // those whose templates are to be read yet
    std::vector<InFile> m_InFiles;
};

} // namespace host
