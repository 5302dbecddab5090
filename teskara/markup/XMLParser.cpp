#include "teskara/markup/XMLParser.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/Limits.h"
#include "teskara/core/MemorySize.h"
#include "teskara/core/Numbers.h"
#include "teskara/core/Utf8.h"

#include <algorithm>

namespace {

// Room for a small interface; blocks grow from there.
constexpr std::size_t FirstBlockBytes = 2048;

bool IsSameName(std::u16string_view units, const char* name)
{
    return IsSpelled(units, name) || EqualsNoCase(ToUtf8(units), name);
}

// The node's name and the names of all above it, cut to what fits.
void WritePath(char* to, std::size_t size, const XMLNode* node)
{
    std::size_t length = CopyBounded(to, size, node->Name);
    for (node = node->Parent; node; node = node->Parent)
        length += FormatBounded(to + length, size - length, "@%s", node->Name);
}

} // namespace

XMLParser::XMLParser(XMLDocument& document, XMLStream& stream) : m_Document(document), m_Stream(stream) { }

bool XMLParser::Fail(const char* format, const XMLSpan& token)
{
    XMLToken text;
    text.Set(token);
    FormatBounded(m_Document.ErrorText, sizeof m_Document.ErrorText, format, text.Text);
    return false;
}

bool XMLParser::FailInAttribute(const XMLNode& node, const char* format, const char* name)
{
    // The input did not end; the stream has said what is wrong with it.
    if (m_Stream.HasFailed())
        return false;

    char message[Limits::MarkupErrorBytes];
    char path[Limits::MarkupErrorBytes];
    FormatBounded(message, sizeof message, format, name);
    WritePath(path, sizeof path, &node);
    FormatBounded(m_Document.ErrorText, sizeof m_Document.ErrorText, "%s: %s", path, message);
    return false;
}

void XMLParser::Append(std::string& to, std::u16string_view units)
{
    const std::size_t before = to.size();
    to.resize(before + Utf8Length(units));
    Utf16ToUtf8(units, to.data() + before, to.size() - before);
}

XMLSpan XMLParser::NextBehindSpace()
{
    XMLSpan token = m_Stream.Next();
    while (token.IsSpace())
        token = m_Stream.Next();
    return token;
}

XMLNode* XMLParser::NewChild(const char* name, u32 type, u32 hash)
{
    return m_Arena->NewNode(name, type, hash, *m_Document.Current);
}

bool XMLParser::MakeRoot()
{
    m_Arena = XMLArena::Create(FirstBlockBytes);
    if (!m_Arena)
        return false;

    XMLNode* const root = m_Arena->NewNode(m_Arena->Store(std::string_view("DOCUMENT ROOT")).Text, XMLRootNode, 0);
    m_Arena->First = root;
    m_Document.Root = root;
    m_Document.Current = root;
    return true;
}

bool XMLParser::ParseDocument()
{
    XMLSpan token = m_Stream.Next();
    if (!token || !MakeRoot())
        return false;

    for (; token; token = m_Stream.Next()) {
        if (token.IsSpace())
            continue;
        if (token.Type != XMLOpenBracketToken)
            return Fail("Bad text outside elements: %s", token);
        if (!ParseTag() || !ParseContent())
            return false;
    }
    return !m_Stream.HasFailed();
}

// Goes on until every element that is open is closed again.
bool XMLParser::ParseContent()
{
    while (m_Document.Current != m_Document.Root) {
        const std::u16string_view run = m_Stream.TakeUntil(XMLUnit::EndsContent);
        if (m_Text.empty() && m_Stream.TakeTagBegin()) {
            if (!run.empty() && !NewChild(Store(run).Text, XMLTextNode))
                return false;
            if (!ParseTag())
                return false;
        } else {
            Append(m_Text, run);
            if (!ParseContentToken())
                return false;
        }
    }
    return true;
}

bool XMLParser::ParseContentToken()
{
    const XMLSpan token = m_Stream.Next();
    if (token.Type == XMLOpenBracketToken)
        return FlushText() && ParseTag();
    if (token.Type == XMLAmpersandToken)
        return AppendReference(m_Text) == Reference::Appended;
    Append(m_Text, token.Units);
    ExpectLongText();
    return bool{token};
}

// Of a text that is long already the rest may be text as well; growing step by step would move it again and again. A
// byte that is no UTF-8 becomes the three of U+FFFD.
void XMLParser::ExpectLongText()
{
    constexpr std::size_t LongText = 64 * 1024;
    constexpr std::size_t ReplacementBytes = 3;
    if (m_Text.size() > LongText)
        m_Text.reserve(MemorySize(m_Stream.InputBytes * (m_Stream.HoldsOnlyAscii() ? 1 : ReplacementBytes)));
}

bool XMLParser::FlushText()
{
    if (m_Text.empty())
        return true;

    const XMLText text = m_Arena->Store(std::string_view(m_Text));
    m_Text.clear();
    return NewChild(text.Text, XMLTextNode) != nullptr;
}

bool XMLParser::ParseTag()
{
    if (const std::u16string_view name = m_Stream.TakeText(); !name.empty())
        return ParseStartTag(name);

    const XMLSpan token = NextBehindSpace();
    switch (token.Type) {
    case XMLTextToken:
        return ParseStartTag(token.Units);
    case XMLSlashToken:
        return ParseEndTag();
    case XMLExclamationToken:
        return ParseDeclaration();
    case XMLQuestionToken:
        return ParseInstruction();
    default:
        return false;
    }
}

bool XMLParser::ParseStartTag(std::u16string_view nameUnits)
{
    const XMLName name = StoreName(nameUnits);
    XMLNode* const node = NewChild(name.Text, XMLElementNode, name.Hash);
    if (!node)
        return false;

    m_Attributes.Begin(*node);
    bool closesItself = false;
    while (!m_Stream.TakeCharacter(u'>')) {
        m_Stream.SkipSpace();
        const XMLSpan token = m_Stream.Next();
        if (!token)
            return false;
        if (token.Type == XMLCloseBracketToken)
            break;
        if (token.Type == XMLTextToken) {
            if (!ParseAttribute(*node, token.Units))
                return false;
        } else if (token.Type == XMLSlashToken) {
            closesItself = true;
        } else if (!token.IsSpace()) {
            return Fail("Bad token '%s' in tag", token);
        }
    }
    if (closesItself)
        return true;
    if (m_OpenElements == Limits::MarkupNesting)
        return false;
    ++m_OpenElements;
    m_Document.Current = node;
    return true;
}

bool XMLParser::ParseEndTag()
{
    std::u16string_view name = m_Stream.TakeText();
    if (name.empty())
        name = m_Stream.Next().Units;
    XMLNode* const current = m_Document.Current;
    if (name.empty() || !current->Parent)
        return false;

    if (!IsSameName(name, current->Name)) {
        FormatBounded(m_Document.ErrorText, sizeof m_Document.ErrorText, "Closing element %s, expected %s",
            ToUtf8(name).c_str(), current->Name);
        return false;
    }
    --m_OpenElements;
    m_Document.Current = current->Parent;
    // Whatever comes next is taken for the closing bracket, and so is the end of the input.
    if (!m_Stream.TakeCharacter(u'>'))
        m_Stream.Next();
    return !m_Stream.HasFailed();
}

bool XMLParser::ParseAttribute(XMLNode& node, std::u16string_view nameUnits)
{
    constexpr const char* UnexpectedEnd = "Unexpected end in attribute %s";
    const XMLName name = StoreName(nameUnits);
    if (!name.Text)
        return false;

    XMLSpan token = NextBehindSpace();
    if (!token)
        return FailInAttribute(node, UnexpectedEnd, name.Text);
    if (token.Type != XMLEqualsToken)
        return false;

    token = NextBehindSpace();
    if (!token)
        return FailInAttribute(node, UnexpectedEnd, name.Text);
    if (token.Type != XMLDoubleQuoteToken && token.Type != XMLSingleQuoteToken)
        return FailInAttribute(node, "Invalid quote type in attribute %s", name.Text);

    XMLText value;
    return ParseValue(node, name.Text, token.Type, value) && SetAttribute(name, value);
}

bool XMLParser::SetAttribute(const XMLName& name, XMLText value)
{
    return m_Attributes.Set(*m_Arena, name, value) && m_Attributes.Count() <= Limits::NodeAttributes;
}

bool XMLParser::ParseValue(XMLNode& node, const char* name, u32 quote, XMLText& value)
{
    const u8 stops = quote == XMLDoubleQuoteToken ? XMLUnit::EndsDoubleQuoted : XMLUnit::EndsSingleQuoted;
    m_Value.clear();
    while (true) {
        const std::u16string_view run = m_Stream.TakeUntil(stops);
        const bool isWhole = m_Value.empty() && XMLUnit::TypeOf(*m_Stream.Unread) == quote;
        if (isWhole)
            value = Store(run);
        else
            Append(m_Value, run);
        if (std::max<std::size_t>(m_Value.size(), value.Length) > Limits::AttributeValueBytes)
            return false;

        const XMLSpan token = m_Stream.Next();
        if (!token)
            return FailInAttribute(node, "Unexpected end in attribute %s", name);
        if (token.Type == quote) {
            if (!isWhole)
                value = m_Arena->Store(std::string_view(m_Value));
            return value.Text != nullptr;
        }
        if (token.Type == XMLAmpersandToken) {
            if (!AppendReferenceToValue(node, name))
                return false;
        } else {
            Append(m_Value, token.Units);
        }
    }
}

bool XMLParser::AppendReferenceToValue(XMLNode& node, const char* name)
{
    switch (AppendReference(m_Value)) {
    case Reference::Appended:
        return true;
    case Reference::NoSemicolon:
        return FailInAttribute(node, "Expected ; in XML entity in attribute %s", name);
    case Reference::NoInput:
        return FailInAttribute(node, "Unexpected end in attribute %s", name);
    case Reference::TooMuch:
        break;
    }
    return false;
}

XMLParser::Reference XMLParser::AppendReference(std::string& to)
{
    XMLSpan token = m_Stream.Next();
    const bool isCharacter = token.Type == XMLHashToken;
    if (isCharacter)
        token = m_Stream.Next();
    if (!token)
        return Reference::NoInput;

    const std::string_view text = isCharacter ? CharacterReference(token) : NamedReference(token);
    m_ReferenceBytes += text.size();
    if (m_ReferenceBytes > m_Stream.InputBytes * Limits::EntityOutputFactor + Limits::EntityOutputBytes)
        return Reference::TooMuch;
    to += text;

    token = m_Stream.Next();
    if (!token)
        return Reference::NoInput;
    return token.Type == XMLSemicolonToken ? Reference::Appended : Reference::NoSemicolon;
}

// The low 8 bits of the number as one byte, which need not be UTF-8 by itself; nothing for 0.
std::string_view XMLParser::CharacterReference(const XMLSpan& number)
{
    constexpr std::size_t LongestHex = 128;
    const std::string text = ToUtf8(number.Units);
    u32 value = 0;
    if (text.starts_with('x'))
        ReadHex(std::string_view(text).substr(1, LongestHex), value);
    else
        value = static_cast<u32>(ReadInteger(text));

    const char character = static_cast<char>(value & 0xFF);
    m_Reference.assign(character != 0 ? 1 : 0, character);
    return m_Reference;
}

std::string_view XMLParser::NamedReference(const XMLSpan& name)
{
    const auto entity = m_Document.Entities.find(ToUtf8(name.Units));
    return entity != m_Document.Entities.end() ? std::string_view(entity->second) : "UNKNOWN-ENTITY";
}
