#pragma once

#include "host/lint/MarkupPlaces.h"
#include "host/lint/SourceText.h"
#include "teskara/markup/XMLDocument.h"

#include <memory>
#include <optional>
#include <string>

namespace host {

// A file that is read as an interface, or the like of one.
class LintFile
{
public:
    // path: for messages, and for what lies beside the file.
    LintFile(std::string path, std::string text);

    // Null, and what is wrong in why: there is no such file, or it is none to be read.
    static std::unique_ptr<LintFile> Open(const std::string& path, std::string& why);

    const std::string& Path() const { return m_Path; }
    const SourceText& Source() const { return m_Source; }

    // Why it is no markup, and where; nothing if it is.
    const std::optional<std::string>& Fault() const { return m_Fault; }
    SourcePlace FaultPlace() const;

    // The element around everything; null if there is none, or the file is no markup.
    XMLNode* RootElement(std::string_view tag) const;

    // Of an element that cannot be found, that of the one around it.
    SourcePlace PlaceOf(const XMLNode* node) const;
    SourcePlace PlaceOf(const XMLAttribute* attribute, const XMLNode* node) const;

    // The byte at which a node begins.
    std::optional<std::size_t> OffsetOf(const XMLNode* node) const { return m_Places->Find(node); }

private:
    std::string m_Path;
    SourceText m_Source;
    XMLDocument m_Document;
    std::optional<std::string> m_Fault;
    std::optional<MarkupPlaces> m_Places;
};

} // namespace host
