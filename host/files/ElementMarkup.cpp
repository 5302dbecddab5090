#include "host/files/ElementMarkup.h"

#include "host/files/MarkupWriter.h"
#include "host/files/UsedFiles.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/markup/XMLDocument.h"
#include "teskara/markup/XMLHelper.h"

#include <algorithm>
#include <string>
#include <vector>

namespace host {

namespace {

constexpr TagName RootTag = "Tesk";
constexpr TagName TemplateTag = "Template";
constexpr TagName SkinTag = "Skin";

bool IsSame(std::string_view left, std::string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
        [](char one, char other) { return FoldAscii(one) == FoldAscii(other); });
}

bool IsElement(const XMLNode& node)
{
    return node.Type == XMLElementNode && !node.HasName(TemplateTag.Text, TemplateTag.Hash)
        && !node.HasName(SkinTag.Text, SkinTag.Hash);
}

// Goes through nodes without a name, but not into those with another one.
XMLNode* FindInside(XMLNode& node, std::string_view name)
{
    for (XMLNode* child = node.FirstChild; child; child = child->Next) {
        if (!IsElement(*child))
            continue;
        const std::string_view own = XMLHelper::GetStringAttribute(child, "name", "");
        if (IsSame(own.empty() ? child->Name : own, name))
            return child;
        if (!own.empty())
            continue;
        if (XMLNode* found = FindInside(*child, name))
            return found;
    }
    return nullptr;
}

XMLNode* FindByPath(XMLNode* node, std::string_view path)
{
    while (node && !path.empty()) {
        const std::size_t separator = path.rfind('@');
        node = FindInside(*node, separator == path.npos ? path : path.substr(separator + 1));
        path = separator == path.npos ? std::string_view() : path.substr(0, separator);
    }
    return node;
}

} // namespace

std::optional<std::string> FindElementMarkup(const UsedFiles& files, std::string_view name)
{
    if (name.empty())
        return std::nullopt;

    // What was loaded last is what shows.
    const std::vector<std::string>& paths = files.Interfaces();
    for (auto file = paths.rbegin(); file != paths.rend(); ++file) {
        XMLDocument document;
        if (!document.ParseFile(file->c_str()))
            continue;
        XMLNode* root = XMLHelper::GetChild(document.Root, RootTag);
        if (const XMLNode* node = root ? FindByPath(root, name) : nullptr)
            return MarkupWriter::Write(*node);
    }
    return std::nullopt;
}

} // namespace host
