#include "tests/fuzz/MarkupMaker.h"

#include <iterator>

namespace {

constexpr const char* Names[] = {"a", "A", "b", "frame", "Frame", "Template", "Children", "name", "Name",
    "SkinTemplate", "Skin", "Base", "x:y", "\xC3\xA4", "CDATA", "DOCTYPE", "long.name_with0everything", "1", "%",
    "\xF0\x9F\x98\x80"};

// A section's text begins with what opens it.
constexpr char SectionStart[] = "<![CDATA[";

constexpr const char* Texts[] = {"x", SectionStart, " ", "<", ">", "&", "\"", "'", "]]>", "]", "\n\t", "-", "--", "#",
    ";", "!", "?", "/", "=", "[", "r10%", "&lt;", "\xE2\x82\xAC", "\xF0\x9F\x98\x80", "\xC3\xA4", "a word",
    MarkupMaker::EntityValue, "\r", "\x01", "\x7F"};

// Texts of one character, repeated so often at most that reads of the parser end in them.
constexpr std::size_t Stretch = 48;
constexpr std::size_t Stretched = 255; // the choice of them

std::string Hex(unsigned value)
{
    constexpr char Digits[] = "0123456789abcdef";
    return {Digits[value >> 4 & 15], Digits[value & 15]};
}

} // namespace

MarkupTree MarkupMaker::MakeTree()
{
    MarkupTree root;
    root.Type = XMLRootNode;
    root.Name = "DOCUMENT ROOT";
    MarkupTree* open = root.Add(XMLElementNode, Name());
    AddAttributes(*open);
    for (m_Nodes = 2; m_Nodes < MostNodes && !m_Choices.AreUsedUp(); ++m_Nodes) {
        const std::size_t choice = m_Choices.Below(8);
        if (choice < 3) {
            open = open->Add(XMLElementNode, Name());
            AddAttributes(*open);
        } else if (choice < 5) {
            AddSomething(*open);
        } else if (choice == 5 && open->Parent) {
            open = open->Parent;
        } else if (choice == 6 && open->Type != XMLRootNode) {
            AddText(*open);
        } else if (choice == 7) {
            break;
        }
    }
    return root;
}

void MarkupMaker::AddSomething(MarkupTree& parent)
{
    switch (m_Choices.Below(4)) {
    case 0:
        AddAttributes(*parent.Add(XMLInstructionNode, Name()));
        break;
    case 1: {
        MarkupTree* const type = parent.Add(XMLDoctypeNode, Name());
        type->SetAttribute("type", "SYSTEM");
        type->SetAttribute("SystemLiteral", Name());
        break;
    }
    case 2:
        parent.Add(XMLCommentNode, Name());
        break;
    default:
        AddAttributes(*parent.Add(XMLElementNode, Name()));
    }
}

// Two texts beside each other are one.
void MarkupMaker::AddText(MarkupTree& parent)
{
    const std::string text = Text();
    if (text.empty())
        return;
    if (!parent.Children.empty() && parent.Children.back()->Type == XMLTextNode)
        parent.Children.back()->Name += text;
    else
        parent.Add(XMLTextNode, text);
}

void MarkupMaker::AddAttributes(MarkupTree& node)
{
    for (std::size_t count = m_Choices.Below(4); count > 0; --count) {
        const std::string name = Name();
        node.SetAttribute(name, Text());
    }
}

std::string MarkupMaker::Name()
{
    return Names[m_Choices.Below(std::size(Names))];
}

std::string MarkupMaker::Text()
{
    std::string text;
    const std::size_t choice = m_Choices.Next();
    if (choice == Stretched) {
        const std::size_t length = m_Choices.Next();
        return std::string(length * Stretch / 3, length % 2 == 0 ? 'y' : ' ');
    }
    for (std::size_t count = choice % 5; count > 0; --count)
        text += Texts[m_Choices.Below(std::size(Texts))];
    return text;
}

std::string MarkupMaker::Write(const MarkupTree& root)
{
    m_Text.clear();
    for (const auto& child : root.Children) {
        WriteBlank();
        WriteNode(*child);
    }
    return m_Text;
}

void MarkupMaker::WriteBlank()
{
    constexpr const char* Blanks[] = {"", "", " ", "\n", "\t ", "\r\n"};
    m_Text += Blanks[m_Choices.Below(std::size(Blanks))];
}

void MarkupMaker::WriteNode(const MarkupTree& node)
{
    switch (node.Type) {
    case XMLElementNode:
        WriteElement(node);
        break;
    case XMLInstructionNode:
        m_Text += "<?" + node.Name;
        WriteAttributes(node);
        m_Text += "?>";
        break;
    case XMLDoctypeNode:
        m_Text += "<!DOCTYPE " + node.Name + " SYSTEM \"" + *node.FindAttribute("SystemLiteral") + "\">";
        break;
    case XMLCommentNode:
        m_Text += "<!-- " + node.Name + "-->";
        break;
    default:
        WriteText(node.Name);
    }
}

void MarkupMaker::WriteElement(const MarkupTree& node)
{
    m_Text += '<';
    WriteBlank();
    m_Text += node.Name;
    WriteAttributes(node);
    if (node.Children.empty() && m_Choices.Below(2) == 0) {
        m_Text += "/>";
        return;
    }
    m_Text += '>';
    for (const auto& child : node.Children)
        WriteNode(*child);
    m_Text += "</";
    const bool isLoud = m_Choices.Below(2) != 0;
    for (const char letter : node.Name)
        m_Text += isLoud && letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 32) : letter;
    m_Text += '>';
}

void MarkupMaker::WriteAttributes(const MarkupTree& node)
{
    for (const auto& [name, value] : node.Attributes) {
        m_Text += ' ';
        m_Text += name;
        WriteBlank();
        m_Text += '=';
        WriteBlank();
        const char quote = m_Choices.Below(2) == 0 ? '"' : '\'';
        m_Text += quote;
        for (const char character : value)
            WriteCharacter(character, quote);
        m_Text += quote;
    }
}

void MarkupMaker::WriteText(std::string_view text)
{
    const std::size_t way = m_Choices.Below(4);
    if (way < 2 && text.starts_with(SectionStart) && text.find("]]>") == text.npos) {
        m_Text += text;
        m_Text += "]]>";
        return;
    }
    if (way < 2 && text == EntityValue) {
        m_Text += "&e;&empty;";
        return;
    }
    for (const char character : text)
        WriteCharacter(character, 0);
}

// Long runs decide nothing, so that they do not use the choices up. A reference stands for one byte, and characters of
// several must stay whole.
void MarkupMaker::WriteCharacter(char character, char quote)
{
    const auto byte = static_cast<unsigned char>(character);
    if (character == 'y' || character == ' ' || byte > 127) {
        m_Text += character;
        return;
    }
    const std::size_t way = m_Choices.Below(8);
    if (way == 7)
        m_Text += "&#" + std::to_string(byte) + ';';
    else if (way == 6)
        m_Text += "&#x" + Hex(byte) + ';';
    else if (character == '<')
        m_Text += "&lt;";
    else if (character == '&')
        m_Text += "&amp;";
    else if (character == quote)
        m_Text += quote == '"' ? "&quot;" : "&apos;";
    else
        m_Text += character;
}
