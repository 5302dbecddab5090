#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/utf8string.h"

class XMLNode;

// A table that redirects one template name to another while the skin is in force.
class TESKARA_EXPORT TeskSkin
{
public:
    explicit TeskSkin(const char* name);

    // Redirects base to skinned, in place of an earlier line. An empty base does nothing.
    void AddTemplate(const char* base, const char* skinned);
    void RemoveTemplate(const char* base);

    // Takes the SkinTemplate lines of the template, if there is one, and then those of the node. Always true.
    bool FromXML(XMLNode* node, XMLNode* templateNode);

    // The name that replaces base; null if the skin does not mention it.
    const char* FindTemplate(const char* base) const;

    utf8string Name;
    NameMap<utf8string> Templates;

private:
    void AddLines(XMLNode* node);
};
