#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <memory>
#include <string_view>

class XMLArena;
class XMLAttribute;

// What a node is, as it stands in XMLNode::Type. 5 is not used.
enum XMLNodeType : u32 {
    XMLRootNode = 0,
    XMLElementNode = 1,
    XMLCommentNode = 2,
    XMLTextNode = 3,
    XMLInstructionNode = 4,
    XMLDoctypeNode = 6,
};

// A node of a markup tree. All nodes, attributes and texts of a tree share its memory: whoever deletes the node that
// the tree was begun with, a document's root or a node made without a parent, frees everything under it at once.
class TESKARA_EXPORT XMLNode
{
public:
    // Makes a node as the last child of parent and in its memory, or without a parent as the start of a tree of its
    // own. The name is copied. Null if memory ran out.
    static XMLNode* Create(XMLNode* parent, std::string_view name, u32 type);

    XMLNode(const XMLNode&) = delete;
    XMLNode& operator=(const XMLNode&) = delete;
    virtual ~XMLNode();

    // Ends the node with all that is under it. It does not take itself out of its parent's children, the caller does.
    // The memory returns when the start of the tree is deleted.
    virtual void Delete();

    // Gives the attribute of that name, in whatever case, a new value and keeps its spelling; without such an
    // attribute adds one at the end. Null texts are empty. Does nothing if memory ran out.
    virtual void SetAttribute(const char* name, const char* value);

    // Copies the node with its attributes and all that is under it, as the last child of parent, or for null as a tree
    // of its own that the caller deletes. Null if memory ran out.
    virtual XMLNode* Clone(XMLNode* parent) const;

    // The same as Delete() for a node that may be null.
    static void Delete(XMLNode* node);

    // Compares without regard to case.
    bool HasName(std::string_view name, u32 foldedHash) const
    {
        return NameHash == static_cast<u16>(foldedHash) && IsNamed(name);
    }

    // The attribute of that name in any case, or null.
    XMLAttribute* FindAttribute(std::string_view name) const;
    XMLAttribute* FindAttribute(std::string_view name, u32 foldedHash) const;

    const char* Name; // never null: the tag, the text of a text or comment, the root name of a DOCTYPE
    u32 Type;
    u16 NameHash = 0; // the low half of FoldedHash of an element's name

private:
    u16 m_PlaceInBlock = 0; // the distance to the start of its memory block, in words of 8 bytes

public:
    XMLAttribute* Attributes = nullptr; // in the order of the markup
    XMLNode* Parent = nullptr;
    XMLNode* FirstChild = nullptr;
    XMLNode* LastChild = nullptr;
    XMLNode* Next = nullptr;
    XMLNode* Prev = nullptr;

private:
    friend class XMLArena;

    XMLNode(const char* name, u32 type) : Name(name), Type(type) { }
    bool IsNamed(std::string_view name) const;
    static void operator delete(void*) { }
};

// For owning a tree: std::unique_ptr<XMLNode, XMLNodeDeleter>.
struct XMLNodeDeleter {
    void operator()(XMLNode* node) const { XMLNode::Delete(node); }
};

using XMLTree = std::unique_ptr<XMLNode, XMLNodeDeleter>;
