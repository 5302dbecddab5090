#pragma once

#include "teskara/core/Types.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class XMLNode;

// The markup language parsed in the plainest way there is: every token is a string, the buffer is moved down for each,
// rules call each other. What the toolkit's parser does with shortcuts must come out the same.
class XMLPlainParser
{
public:
    struct Node {
        u32 Type = 0;
        std::string Name;
        Node* Parent = nullptr;
        std::vector<std::pair<std::string, std::string>> Attributes;
        std::vector<std::unique_ptr<Node>> Children;
    };

    explicit XMLPlainParser(std::string_view bytes);

    bool Parse();

    // The tree in the form of DumpTree.
    std::string Dump() const;

    std::string ErrorText = "Unknown Error";
    std::map<std::string, std::string> Entities;

private:
    struct Token {
        u32 Type = 0;
        std::string Text;
        bool IsSpace() const { return Type == 16 || Type == 17; }
    };

    // Reading.
    bool ReadMore();
    Token Next();
    Token NextBehindSpace();
    Token Section();
    Token TakeText(std::size_t units);

    // Rules.
    bool Tag();
    bool StartTag(const std::string& name);
    bool EndTag();
    bool Content(Node* element);
    bool Attribute(Node* node, const std::string& name);
    bool Reference(std::string& to, bool& ended);
    bool Instruction();
    bool Declaration();
    bool Comment();
    bool Doctype();
    bool Literal(Token token, Node* node, const char* attribute);

    Node* NewNode(const std::string& name, u32 type);
    bool SetAttribute(Node* node, const std::string& name, const std::string& value);
    bool Fail(const std::string& message);
    bool FailIn(const Node* node, const std::string& message);

    std::string m_Bytes;
    std::size_t m_Position = 0;
    std::u16string m_Units;
    std::size_t m_Capacity = 4096;
    bool m_Broken = false;
    std::unique_ptr<Node> m_Root;
    Node* m_Current = nullptr;
    u32 m_Depth = 0;
    u64 m_Expanded = 0;
};

// One line for each node: a dot for each level, the type, the name, the attributes.
std::string DumpTree(const XMLNode* root);
