#include "tests/unit/XMLPlainParser.h"

#include "teskara/core/Limits.h"
#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLNode.h"

#include <algorithm>
#include <cstdlib>

namespace {

char Lower(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + 32) : character;
}

bool SameName(std::string_view left, std::string_view right)
{
    return std::equal(
        left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) { return Lower(a) == Lower(b); });
}

u32 TypeOf(char16_t unit)
{
    static constexpr std::u16string_view Characters = u"<>=\"'&/#;!-?[]";
    if (unit == u'\t' || unit == u'\n' || unit == u'\r')
        return 16;
    if (unit == u' ')
        return 17;
    const std::size_t place = Characters.find(unit);
    return place == Characters.npos ? 1 : static_cast<u32>(place + 2);
}

// The number of bytes of the well-formed character at the start, or 0 and the length of the ill-formed part.
std::size_t CharacterLength(std::string_view bytes, std::size_t& badLength)
{
    const auto byte = [&](std::size_t index) { return static_cast<u8>(bytes[index]); };
    const u8 lead = byte(0);
    badLength = 1;
    if (lead < 0x80)
        return 1;
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4)
        return 0;
    for (std::size_t index = 1; index < length; ++index) {
        if (index >= bytes.size() || byte(index) < 0x80 || byte(index) > 0xBF)
            return 0;
        if (index == 1
            && ((lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xED && byte(1) > 0x9F) || (lead == 0xF0 && byte(1) < 0x90)
                || (lead == 0xF4 && byte(1) > 0x8F)))
            return 0;
        badLength = index + 1;
    }
    return length;
}

std::u16string Widen(std::string_view bytes)
{
    std::u16string units;
    while (!bytes.empty()) {
        std::size_t length = 0;
        const std::size_t good = CharacterLength(bytes, length);
        char32_t character = 0xFFFD;
        if (good > 0) {
            length = good;
            character = static_cast<u8>(bytes[0]) & (good == 1 ? 0x7Fu : 0xFFu >> (good + 1));
            for (std::size_t index = 1; index < good; ++index)
                character = character << 6 | (static_cast<u8>(bytes[index]) & 0x3Fu);
        }
        if (character >= 0x10000) {
            units += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
            units += static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
        } else {
            units += static_cast<char16_t>(character);
        }
        bytes.remove_prefix(length);
    }
    return units;
}

// For what Widen gives: no surrogate is alone.
std::string Narrow(std::u16string_view units)
{
    std::string bytes;
    for (std::size_t index = 0; index < units.size(); ++index) {
        char32_t character = units[index];
        if (character >= 0xD800 && character <= 0xDBFF)
            character = 0x10000 + ((character - 0xD800) << 10) + (units[++index] - 0xDC00u);
        if (character < 0x80) {
            bytes += static_cast<char>(character);
            continue;
        }
        const int more = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
        bytes += static_cast<char>((0xF00u >> (more + 1)) | character >> (6 * more));
        for (int left = more - 1; left >= 0; --left)
            bytes += static_cast<char>(0x80 | (character >> (6 * left) & 0x3F));
    }
    return bytes;
}

void AddLine(
    std::string& to, std::size_t depth, u32 type, std::string_view name, const std::vector<std::string>& attributes)
{
    to.append(depth, '.');
    to += std::to_string(type);
    to += " '";
    to += name;
    to += '\'';
    for (const std::string& attribute : attributes)
        to += ' ' + attribute;
    to += '\n';
}

void DumpPlain(const XMLPlainParser::Node& node, std::size_t depth, std::string& to)
{
    std::vector<std::string> attributes;
    for (const auto& [name, value] : node.Attributes)
        attributes.push_back(name + "=" + value);
    AddLine(to, depth, node.Type, node.Name, attributes);
    for (const auto& child : node.Children)
        DumpPlain(*child, depth + 1, to);
}

} // namespace

std::string DumpTree(const XMLNode* root)
{
    std::string to;
    std::size_t depth = 0;
    for (const XMLNode* node = root; node;) {
        std::vector<std::string> attributes;
        for (const XMLAttribute* attribute = node->Attributes; attribute; attribute = attribute->Next)
            attributes.push_back(std::string(attribute->Name) + "=" + attribute->Value);
        AddLine(to, depth, node->Type, node->Name, attributes);
        if (node->FirstChild) {
            node = node->FirstChild;
            ++depth;
            continue;
        }
        while (node != root && !node->Next) {
            node = node->Parent;
            --depth;
        }
        node = node == root ? nullptr : node->Next;
    }
    return to;
}

XMLPlainParser::XMLPlainParser(std::string_view bytes)
    : Entities{{"lt", "<"}, {"gt", ">"}, {"amp", "&"}, {"apos", "'"}, {"quot", "\""}}, m_Bytes(bytes)
{
}

std::string XMLPlainParser::Dump() const
{
    std::string to;
    if (m_Root)
        DumpPlain(*m_Root, 0, to);
    return to;
}

bool XMLPlainParser::Fail(const std::string& message)
{
    ErrorText = message.substr(0, Limits::MarkupErrorBytes - 1);
    return false;
}

bool XMLPlainParser::FailIn(const Node* node, const std::string& message)
{
    if (m_Broken)
        return false;
    std::string path = node->Name;
    while ((node = node->Parent))
        path += "@" + node->Name;
    return Fail(path.substr(0, Limits::MarkupErrorBytes - 1) + ": " + message.substr(0, Limits::MarkupErrorBytes - 1));
}

bool XMLPlainParser::ReadMore()
{
    if (m_Broken)
        return false;
    if (m_Units.size() * 2 > 0x100000) {
        m_Broken = true;
        return Fail("Memory allocation failed");
    }
    m_Capacity = std::max(m_Capacity, m_Units.size() * 2);
    const std::size_t count = std::min(m_Capacity - m_Units.size(), m_Bytes.size() - m_Position);
    m_Units += Widen(std::string_view(m_Bytes).substr(m_Position, count));
    m_Position += count;
    return count > 0;
}

XMLPlainParser::Token XMLPlainParser::TakeText(std::size_t units)
{
    Token token{1, Narrow(std::u16string_view(m_Units).substr(0, units))};
    m_Units.erase(0, units);
    return token;
}

XMLPlainParser::Token XMLPlainParser::Next()
{
    if (m_Broken)
        return {};
    for (std::size_t place = 0;; ++place) {
        if (place == m_Units.size() && !ReadMore())
            return place == 0 || m_Broken ? Token{} : TakeText(place);
        const char16_t unit = m_Units[place];
        const u32 type = TypeOf(unit);
        if (type == 1 && unit != 0)
            continue;
        if (place > 0)
            return TakeText(place);
        if (unit == 0)
            return {};
        if (type == 2) {
            while (m_Units.size() < 13 && ReadMore()) { }
            if (m_Units.compare(1, 8, u"![CDATA[") == 0)
                return Section();
        }
        m_Units.erase(0, 1);
        return {type, std::string(1, static_cast<char>(unit))};
    }
}

XMLPlainParser::Token XMLPlainParser::Section()
{
    for (std::size_t place = 9;; ++place) {
        while (place + 3 >= m_Units.size())
            if (!ReadMore()) {
                if (!m_Broken)
                    Fail("No end to CDATA tag");
                m_Broken = true;
                return {};
            }
        if (m_Units.compare(place, 3, u"]]>") == 0) {
            Token token = TakeText(place);
            m_Units.erase(0, 3);
            token.Text.resize(std::min(token.Text.size(), token.Text.find('\0')));
            return token;
        }
    }
}

XMLPlainParser::Token XMLPlainParser::NextBehindSpace()
{
    Token token = Next();
    while (token.IsSpace())
        token = Next();
    return token;
}

XMLPlainParser::Node* XMLPlainParser::NewNode(const std::string& name, u32 type)
{
    auto node = std::make_unique<Node>();
    node->Name = name;
    node->Type = type;
    node->Parent = m_Current;
    Node* const made = node.get();
    if (m_Current)
        m_Current->Children.push_back(std::move(node));
    else
        m_Root = std::move(node);
    return made;
}

bool XMLPlainParser::SetAttribute(Node* node, const std::string& name, const std::string& value)
{
    if (value.size() > Limits::AttributeValueBytes)
        return false;
    for (auto& [known, old] : node->Attributes)
        if (SameName(known, name)) {
            old = value;
            return true;
        }
    if (node->Attributes.size() == Limits::NodeAttributes)
        return false;
    node->Attributes.emplace_back(name, value);
    return true;
}

bool XMLPlainParser::Parse()
{
    Token token = Next();
    if (token.Type == 0)
        return false;
    m_Current = NewNode("DOCUMENT ROOT", 0);
    for (; token.Type != 0; token = Next()) {
        if (token.Type == 2) {
            if (!Tag())
                return false;
        } else if (!token.IsSpace()) {
            return Fail("Bad text outside elements: " + token.Text);
        }
    }
    return !m_Broken;
}

bool XMLPlainParser::Tag()
{
    const Token token = NextBehindSpace();
    if (token.Type == 13)
        return Instruction();
    if (token.Type == 11)
        return Declaration();
    if (token.Type == 8)
        return EndTag();
    return token.Type == 1 && StartTag(token.Text);
}

bool XMLPlainParser::StartTag(const std::string& name)
{
    Node* const node = NewNode(name, 1);
    bool closes = false;
    while (true) {
        const Token token = Next();
        if (token.Type == 0)
            return false;
        if (token.Type == 3)
            break;
        if (token.Type == 1) {
            if (!Attribute(node, token.Text))
                return false;
        } else if (token.Type == 8) {
            closes = true;
        } else if (!token.IsSpace()) {
            return Fail("Bad token '" + token.Text + "' in tag");
        }
    }
    if (closes)
        return true;
    if (m_Depth == Limits::MarkupNesting)
        return false;
    ++m_Depth;
    m_Current = node;
    return Content(node);
}

bool XMLPlainParser::EndTag()
{
    const Token token = Next();
    if (token.Type == 0 || !m_Current->Parent)
        return false;
    if (!SameName(token.Text, m_Current->Name))
        return Fail("Closing element " + token.Text + ", expected " + m_Current->Name);
    m_Current = m_Current->Parent;
    --m_Depth;
    Next();
    return !m_Broken;
}

bool XMLPlainParser::Content(Node* element)
{
    std::string text;
    while (true) {
        const Token token = Next();
        if (token.Type == 0)
            return false;
        if (token.Type == 2) {
            if (!text.empty())
                NewNode(text, 3);
            text.clear();
            if (!Tag())
                return false;
            if (m_Current == element->Parent)
                return true;
        } else if (token.Type == 7) {
            bool ended = false;
            if (!Reference(text, ended))
                return false;
        } else {
            text += token.Text;
        }
    }
}

bool XMLPlainParser::Attribute(Node* node, const std::string& name)
{
    Token token = NextBehindSpace();
    if (token.Type == 0)
        return FailIn(node, "Unexpected end in attribute " + name);
    if (token.Type != 4)
        return false;
    token = NextBehindSpace();
    if (token.Type == 0)
        return FailIn(node, "Unexpected end in attribute " + name);
    if (token.Type != 5 && token.Type != 6)
        return FailIn(node, "Invalid quote type in attribute " + name);

    const u32 quote = token.Type;
    std::string value;
    while (true) {
        token = Next();
        if (token.Type == 0)
            return FailIn(node, "Unexpected end in attribute " + name);
        if (token.Type == quote)
            return SetAttribute(node, name, value);
        if (token.Type == 7) {
            bool ended = false;
            if (!Reference(value, ended)) {
                if (m_Expanded > m_Bytes.size() * 64 + 1024 * 1024)
                    return false;
                return FailIn(
                    node, (ended ? "Unexpected end in attribute " : "Expected ; in XML entity in attribute ") + name);
            }
        } else {
            value += token.Text;
        }
        if (value.size() > Limits::AttributeValueBytes)
            return false;
    }
}

bool XMLPlainParser::Reference(std::string& to, bool& ended)
{
    Token token = Next();
    std::string result = "UNKNOWN-ENTITY";
    if (token.Type == 9) {
        token = Next();
        const bool isHex = token.Text.starts_with('x');
        const std::string digits = isHex ? token.Text.substr(1, 128) : token.Text;
        // Only the last digits that can still be seen in the low byte matter, so that the library never saturates.
        std::size_t count = 0;
        const std::string_view allowed = isHex ? "0123456789abcdefABCDEF" : "0123456789";
        std::string number = digits.substr(std::min(digits.find_first_not_of(" \t\n\v\f\r"), digits.size()));
        const bool isNegative = number.starts_with('-');
        if (isNegative || number.starts_with('+'))
            number.erase(0, 1);
        if (isHex && (number.starts_with("0x") || number.starts_with("0X")))
            number.erase(0, 2);
        while (count < number.size() && allowed.find(number[count]) != allowed.npos)
            ++count;
        number.resize(count);
        if (number.size() > 12)
            number.erase(0, number.size() - 12);
        const unsigned long long value = std::strtoull(number.c_str(), nullptr, isHex ? 16 : 10);
        const char byte = static_cast<char>((isNegative ? 0 - value : value) & 0xFF);
        result.assign(byte == 0 ? 0 : 1, byte);
    } else if (const auto found = Entities.find(token.Text); found != Entities.end()) {
        result = found->second;
    }
    ended = token.Type == 0;
    if (ended)
        return false;

    m_Expanded += result.size();
    if (m_Expanded > m_Bytes.size() * 64 + 1024 * 1024)
        return false;
    to += result;
    token = Next();
    ended = token.Type == 0;
    return token.Type == 10;
}

bool XMLPlainParser::Instruction()
{
    Token token = NextBehindSpace();
    if (token.Type != 1)
        return false;
    Node* const node = NewNode(token.Text, 4);
    while (true) {
        token = Next();
        if (token.Type == 0)
            return false;
        if (token.Type == 3)
            return true;
        if (token.Type == 1) {
            if (!Attribute(node, token.Text))
                return false;
        } else if (token.Type != 13 && !token.IsSpace()) {
            return Fail("Bad token in ? Tag: " + token.Text);
        }
    }
}

bool XMLPlainParser::Declaration()
{
    Token token = Next();
    if (token.Type == 12)
        return Comment();
    if (token.Type == 14) {
        token = Next();
        if (token.Type == 0 || token.Text == "CDATA")
            return false;
        return Fail("Unrecognized <![ tag: " + token.Text);
    }
    if (token.Type != 1)
        return false;
    if (SameName(token.Text, "DOCTYPE"))
        return Doctype();
    if (SameName(token.Text, "ATTLIST"))
        return Fail("ParseExAttlist not implemented");
    if (SameName(token.Text, "ENTITY"))
        return Fail("ParseExEntity not implemented");
    if (SameName(token.Text, "ELEMENT"))
        return Fail("ParseExElement not implemented");
    if (SameName(token.Text, "NOTATION"))
        return Fail("ParseExNotation not implemented");
    return Fail("Unrecognized <! tag: " + token.Text);
}

bool XMLPlainParser::Comment()
{
    Token token = Next();
    if (token.Type == 0)
        return false;
    if (token.Type != 12)
        return Fail("Badly formed comment");
    std::string text;
    token = NextBehindSpace();
    while (token.Type != 0) {
        if (token.Type == 12) {
            token = Next();
            if (token.Type == 12) {
                token = Next();
                if (token.Type == 3) {
                    NewNode(text, 2);
                    return true;
                }
            }
        }
        text += token.Text;
        token = Next();
    }
    return false;
}

bool XMLPlainParser::Doctype()
{
    Token token = NextBehindSpace();
    if (token.Type != 1)
        return false;
    Node* const node = NewNode(token.Text, 6);
    token = NextBehindSpace();
    if (token.Type == 0)
        return false;
    if (token.Type == 14)
        return Fail("DOCTYPE internal subset not currently supported");
    const bool isPublic = SameName(token.Text, "PUBLIC");
    if (!isPublic && !SameName(token.Text, "SYSTEM"))
        return Fail("DOCTYPE Unknown DTD type: " + token.Text);
    SetAttribute(node, "type", isPublic ? "PUBLIC" : "SYSTEM");
    token = NextBehindSpace();
    if (token.Type == 0)
        return false;
    if (token.Type != 5)
        return Fail("Badly formed DOCTYPE tag");
    if (isPublic && !Literal(Next(), node, "PubidLiteral"))
        return false;
    if (!Literal(isPublic ? NextBehindSpace() : Next(), node, "SystemLiteral"))
        return false;
    token = NextBehindSpace();
    if (token.Type == 3)
        return true;
    if (token.Text != "NDATA")
        return false;
    token = NextBehindSpace();
    return token.Type == 1 && SetAttribute(node, "NDATA", token.Text) && Next().Type == 3;
}

bool XMLPlainParser::Literal(Token token, Node* node, const char* attribute)
{
    std::string text;
    for (; token.Type != 0; token = Next()) {
        if (token.Type == 5)
            return SetAttribute(node, attribute, text);
        text += token.Text;
        if (text.size() > Limits::AttributeValueBytes)
            return false;
    }
    return false;
}
