#include "host/lint/MarkupPlaces.h"

#include "host/lint/LintName.h"
#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLNode.h"

#include <algorithm>

namespace host {

namespace {

constexpr std::string_view ByteOrderMark = "\xef\xbb\xbf";
constexpr std::string_view Blanks = " \t\r\n";
constexpr std::string_view Delimiters = "<>=\"'&/#;!-?[] \t\r\n";
constexpr std::string_view LiteralBegin = "<![CDATA[";
constexpr std::string_view LiteralEnd = "]]>";
constexpr std::string_view CommentBegin = "!--";
constexpr std::string_view CommentEnd = "-->";

// The node behind this one in the order of the text.
const XMLNode* NextInText(const XMLNode* node)
{
    if (node->FirstChild)
        return node->FirstChild;
    while (node && !node->Next)
        node = node->Parent;
    return node ? node->Next : nullptr;
}

} // namespace

class MarkupWalk
{
public:
    MarkupWalk(MarkupPlaces& places, std::string_view text, const XMLNode* root)
        : m_Places(places), m_Text(text), m_Next(root ? root->FirstChild : nullptr)
    {
        if (m_Text.starts_with(ByteOrderMark))
            m_At = ByteOrderMark.size();
    }

    void Walk()
    {
        while (m_Next && m_At < m_Text.size()) {
            const std::size_t begin = m_At;
            FindTag();
            if (m_At > begin && m_Next && m_Next->Type == XMLTextNode)
                Take(begin);
            if (m_At >= m_Text.size() || !WalkTag())
                return;
        }
    }

private:
    // To the next bracket that begins a tag.
    void FindTag()
    {
        while (true) {
            m_At = std::min(m_Text.find('<', m_At), m_Text.size());
            if (!m_Text.substr(m_At).starts_with(LiteralBegin))
                return;
            SkipTo(LiteralEnd);
        }
    }

    bool WalkTag()
    {
        const std::size_t begin = m_At++;
        SkipBlanks();
        if (Rest().starts_with(CommentBegin)) {
            m_At += CommentBegin.size();
            SkipTo(CommentEnd);
            return TakeIf(XMLCommentNode, begin);
        }
        if (Rest().starts_with('/')) {
            SkipTo(">");
            return true;
        }
        if (Rest().starts_with('!')) {
            SkipTo(">");
            return TakeIf(XMLDoctypeNode, begin);
        }
        const bool isInstruction = Rest().starts_with('?');
        if (isInstruction) {
            ++m_At;
            SkipBlanks();
        }
        const std::string_view name = TakeName();
        const XMLNode* node = m_Next;
        if (!node || !IsSameName(name, node->Name)
            || !TakeIf(isInstruction ? XMLInstructionNode : XMLElementNode, begin))
            return false;
        return WalkAttributes(*node);
    }

    bool WalkAttributes(const XMLNode& node)
    {
        while (m_At < m_Text.size() && m_Text[m_At] != '>') {
            const std::size_t begin = m_At;
            const std::string_view name = TakeName();
            if (name.empty())
                ++m_At;
            else if (!WalkValue(node.FindAttribute(name), begin))
                return false;
        }
        ++m_At;
        return true;
    }

    bool WalkValue(const XMLAttribute* attribute, std::size_t begin)
    {
        SkipBlanks();
        if (!attribute || !Rest().starts_with('='))
            return false;
        ++m_At;
        SkipBlanks();
        if (m_At >= m_Text.size())
            return false;
        const char quote = m_Text[m_At++];
        m_Places.m_Attributes[attribute] = {begin, m_At};
        m_At = std::min(m_Text.find(quote, m_At), m_Text.size()) + 1;
        return true;
    }

    bool TakeIf(u32 type, std::size_t begin)
    {
        if (!m_Next || m_Next->Type != type)
            return false;
        Take(begin);
        return true;
    }

    void Take(std::size_t begin)
    {
        m_Places.m_Nodes[m_Next] = begin;
        m_Next = NextInText(m_Next);
    }

    std::string_view TakeName()
    {
        const std::size_t end = std::min(m_Text.find_first_of(Delimiters, m_At), m_Text.size());
        const std::string_view name = m_Text.substr(m_At, end - m_At);
        m_At = end;
        return name;
    }

    void SkipBlanks() { m_At = std::min(m_Text.find_first_not_of(Blanks, m_At), m_Text.size()); }

    void SkipTo(std::string_view end)
    {
        m_At = std::min(m_Text.find(end, m_At), m_Text.size() - end.size()) + end.size();
    }

    std::string_view Rest() const { return m_Text.substr(std::min(m_At, m_Text.size())); }

    MarkupPlaces& m_Places;
    std::string_view m_Text;
    const XMLNode* m_Next; // not found yet
    std::size_t m_At = 0;
};

MarkupPlaces::MarkupPlaces(std::string_view text, const XMLNode* root)
{
    MarkupWalk(*this, text, root).Walk();
}

std::optional<std::size_t> MarkupPlaces::Find(const XMLNode* node) const
{
    const auto found = m_Nodes.find(node);
    return found == m_Nodes.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::size_t> MarkupPlaces::Find(const XMLAttribute* attribute) const
{
    const auto found = m_Attributes.find(attribute);
    return found == m_Attributes.end() ? std::nullopt : std::optional(found->second.Name);
}

std::optional<std::size_t> MarkupPlaces::FindValue(const XMLAttribute* attribute) const
{
    const auto found = m_Attributes.find(attribute);
    return found == m_Attributes.end() ? std::nullopt : std::optional(found->second.Value);
}

} // namespace host
