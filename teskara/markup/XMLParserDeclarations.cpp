#include "teskara/markup/XMLParser.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/Limits.h"
#include "teskara/core/Utf8.h"

namespace {

struct Declaration {
    const char* Word;
    const char* Message;
};

constexpr Declaration NotImplemented[] = {
    {"ATTLIST", "ParseExAttlist not implemented"},
    {"ENTITY", "ParseExEntity not implemented"},
    {"ELEMENT", "ParseExElement not implemented"},
    {"NOTATION", "ParseExNotation not implemented"},
};

} // namespace

bool XMLParser::ParseInstruction()
{
    XMLSpan token = NextBehindSpace();
    if (token.Type != XMLTextToken)
        return false;
    XMLNode* const node = NewChild(Store(token.Units).Text, XMLInstructionNode);
    if (!node)
        return false;

    m_Attributes.Begin(*node);
    for (token = m_Stream.Next(); token.Type != XMLCloseBracketToken; token = m_Stream.Next()) {
        if (!token)
            return false;
        if (token.Type == XMLTextToken) {
            if (!ParseAttribute(*node, token.Units))
                return false;
        } else if (token.Type != XMLQuestionToken && !token.IsSpace()) {
            return Fail("Bad token in ? Tag: %s", token);
        }
    }
    return true;
}

bool XMLParser::ParseDeclaration()
{
    XMLSpan token = m_Stream.Next();
    if (token.Type == XMLHyphenToken)
        return ParseComment();
    if (token.Type == XMLOpenSquareToken) {
        // A real section was taken for text before it came here.
        token = m_Stream.Next();
        return token && token.Units != u"CDATA" && Fail("Unrecognized <![ tag: %s", token);
    }
    if (token.Type != XMLTextToken)
        return false;

    const std::string word = ToUtf8(token.Units);
    if (EqualsNoCase(word, "DOCTYPE"))
        return ParseDoctype();
    for (const Declaration& declaration : NotImplemented)
        if (EqualsNoCase(word, declaration.Word)) {
            m_Document.SetErrorText(declaration.Message);
            return false;
        }
    return Fail("Unrecognized <! tag: %s", token);
}

// Hyphens get lost, but for a third one in a row.
bool XMLParser::ParseComment()
{
    XMLSpan token = m_Stream.Next();
    if (!token)
        return false;
    if (token.Type != XMLHyphenToken)
        return Fail("Badly formed comment", token);

    std::string text;
    for (token = NextBehindSpace(); token; token = m_Stream.Next()) {
        if (token.Type == XMLHyphenToken) {
            token = m_Stream.Next();
            if (token.Type == XMLHyphenToken) {
                token = m_Stream.Next();
                if (token.Type == XMLCloseBracketToken)
                    return NewChild(m_Arena->Store(std::string_view(text)).Text, XMLCommentNode) != nullptr;
            }
        }
        Append(text, token.Units);
    }
    return false;
}

bool XMLParser::ParseDoctype()
{
    XMLSpan token = NextBehindSpace();
    if (token.Type != XMLTextToken)
        return false;
    XMLNode* const node = NewChild(Store(token.Units).Text, XMLDoctypeNode);
    if (!node)
        return false;
    m_Attributes.Begin(*node);

    token = NextBehindSpace();
    if (!token)
        return false;
    if (token.Type == XMLOpenSquareToken)
        return Fail("DOCTYPE internal subset not currently supported", token);

    const std::string word = ToUtf8(token.Units);
    const bool isPublic = EqualsNoCase(word, "PUBLIC");
    if (!isPublic && !EqualsNoCase(word, "SYSTEM"))
        return Fail("DOCTYPE Unknown DTD type: %s", token);
    return StoreAttribute("type", isPublic ? "PUBLIC" : "SYSTEM") && ParseDoctypeLiterals(isPublic)
        && ParseDoctypeEnd();
}

bool XMLParser::ParseDoctypeLiterals(bool isPublic)
{
    const XMLSpan token = NextBehindSpace();
    if (!token)
        return false;
    if (token.Type != XMLDoubleQuoteToken)
        return Fail("Badly formed DOCTYPE tag", token);
    if (!isPublic)
        return ParseLiteral(m_Stream.Next(), "SystemLiteral");

    // The second literal has no opening quote of its own; one that has reads as empty.
    return ParseLiteral(m_Stream.Next(), "PubidLiteral") && ParseLiteral(NextBehindSpace(), "SystemLiteral");
}

// Collects tokens, beginning with the one in hand, up to the next double quote.
bool XMLParser::ParseLiteral(XMLSpan token, const char* attribute)
{
    std::string text;
    for (; token; token = m_Stream.Next()) {
        if (token.Type == XMLDoubleQuoteToken)
            return StoreAttribute(attribute, text);
        Append(text, token.Units);
        if (text.size() > Limits::AttributeValueBytes)
            return false;
    }
    return false;
}

bool XMLParser::ParseDoctypeEnd()
{
    XMLSpan token = NextBehindSpace();
    if (token.Type == XMLCloseBracketToken)
        return true;
    if (token.Units != u"NDATA")
        return false;

    token = NextBehindSpace();
    return token.Type == XMLTextToken && StoreAttribute("NDATA", ToUtf8(token.Units))
        && m_Stream.Next().Type == XMLCloseBracketToken;
}

bool XMLParser::StoreAttribute(std::string_view name, std::string_view value)
{
    return SetAttribute(m_Arena->StoreName(name), m_Arena->Store(value));
}
