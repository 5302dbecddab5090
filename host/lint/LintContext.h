#pragma once

#include "host/files/SearchPaths.h"
#include "host/lint/Finding.h"
#include "host/lint/LintModel.h"
#include "host/script/LuaState.h"

#include <string>
#include <string_view>
#include <vector>

namespace host {

// What a rule works with: one file among those of its set.
class LintContext
{
public:
    // All are borrowed; what is found goes behind the findings.
    LintContext(const LintModel& model, std::size_t file, const SearchPaths& paths, LuaState& lua,
        std::vector<Finding>& findings);

    const LintModel& Model() const { return m_Model; }
    const LintTemplates& Templates() const { return m_Model.Templates(); }
    const Schema& Known() const { return m_Model.Known(); }
    const LintFile& Source() const { return *m_Model.Files()[m_File]; }
    std::size_t File() const { return m_File; }
    const SearchPaths& Paths() const { return m_Paths; }
    LuaState& Lua() const { return m_Lua; }

    const std::vector<LintElement>& Elements() const { return m_Model.ElementsOf(m_File); }
    const std::vector<LintValue>& Values() const { return m_Model.ValuesOf(m_File); }

    // The element around the file; null if there is none.
    XMLNode* Markup() const { return m_Model.MarkupOf(m_File); }

    // What is reported from now on belongs to this rule.
    void Begin(std::string_view rule) { m_Rule = rule; }

    void Report(SourcePlace place, std::string message, std::string meant = {});
    void Report(const XMLNode* node, std::string message, std::string meant = {});
    void Report(const LintValue& value, std::string message, std::string meant = {});

    // A literal section is a text that begins with this: it belongs to the text.
    static constexpr std::string_view LiteralMark = "<![CDATA[";

    // The text that is read as the value; empty if there is none.
    static std::string_view TextOf(const LintValue& value);

    // The name of the tag or attribute.
    static const char* NameOf(const LintValue& value);

    // Where a byte of the value's text stands. A text with references in it counts from its start.
    SourcePlace PlaceIn(const LintValue& value, std::size_t offset) const;
    SourcePlace PlaceInText(const XMLNode* text, std::size_t offset) const;

private:
    const LintModel& m_Model;
    std::size_t m_File;
    const SearchPaths& m_Paths;
    LuaState& m_Lua;
    std::vector<Finding>& m_Findings;
    std::string_view m_Rule;
};

// A name as messages quote it.
std::string Quoted(std::string_view text);

} // namespace host
