#pragma once

#include "teskara/core/AsciiBlock.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/Types.h"
#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLNode.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <string_view>

// A text in an arena: terminated, and good as long as the arena. Null text: memory ran out.
struct XMLText {
    const char* Text = nullptr;
    u32 Length = 0;

    std::string_view View() const { return {Text, Length}; }
};

// The same for a name, with its FoldedHash.
struct XMLName {
    const char* Text = nullptr;
    u32 Length = 0;
    u32 Hash = 0;

    std::string_view View() const { return {Text, Length}; }
};

// The memory of one tree: a few blocks in which texts grow from the front and nodes from the back. Nothing is given
// back before all is. Operations answer null if memory ran out and throw nothing.
class XMLArena
{
public:
    // Makes an arena whose first block has room for bytes, if they are no more than a block may have.
    static XMLArena* Create(std::size_t bytes);
    void Destroy();

    // The arena that a node lives in.
    static XMLArena& Of(const XMLNode& node);

    // What a node, an attribute and a text take, to make a first block that everything fits into.
    static std::size_t BytesForNode() { return sizeof(XMLNode); }
    static std::size_t BytesForAttribute() { return sizeof(XMLAttribute); }
    static std::size_t BytesForText(std::size_t length) { return length + 1; }

    // A node without links, or as the last child of parent.
    // name: a text of this arena, or null, which gives null. hash: FoldedHash of an element's name, otherwise 0.
    XMLNode* NewNode(const char* name, u32 type, u32 hash);
    XMLNode* NewNode(const char* name, u32 type, u32 hash, XMLNode& parent);
    static void LinkLast(XMLNode& child, XMLNode& parent);

    // An attribute in no list.
    XMLAttribute* NewAttribute(const XMLName& name, XMLText value);

    XMLText Store(std::string_view text);
    XMLName StoreName(std::string_view text);

    // Stores UTF-16 units as UTF-8.
    XMLText Store(std::u16string_view units);

    // The same for units below 128. Behind them there must be 7 more that can be read.
    XMLText StoreAscii(std::u16string_view units);

    // The node that the arena was made for. Deleting it frees the arena.
    const XMLNode* First = nullptr;

private:
    // A text is written in blocks, so that up to so many bytes behind its end are touched.
    static constexpr std::size_t Slack = AsciiBlock::Size;
    // A node's place in its block is told by 16 bits. Larger blocks would have their memory from the system and back
    // each time.
    static constexpr std::size_t LargestBlock = 64 * 1024 - 64;

    struct Block {
        XMLArena* Owner;
        Block* Next;
    };

    static Block* AllocateBlock(std::size_t bytes);
    Block* TakeBlock(std::size_t bytes);
    void Use(Block* block, std::size_t used, std::size_t bytes);
    bool AddBlock();
    char* RoomForText(std::size_t bytes);
    char* RoomForLongText(std::size_t bytes);
    void* RoomForObject(std::size_t bytes);
    static void FetchForWriting(const char* objectsBegin);

    std::size_t Room() const { return static_cast<std::size_t>(m_ObjectsBegin - m_TextsEnd); }

    Block* m_Blocks = nullptr; // all of them, the one in use first
    char* m_TextsEnd = nullptr;
    char* m_ObjectsBegin = nullptr;
    std::size_t m_NextBlockBytes = 0;
};

// Has the processor fetch the memory that the nodes after the next few will lie in. A large tree is otherwise held up by
// it at each node.
inline void XMLArena::FetchForWriting(const char* objectsBegin)
{
    constexpr std::uintptr_t Ahead = 768;
    constexpr int ForWriting = 1;
    __builtin_prefetch(
        reinterpret_cast<const void*>(reinterpret_cast<std::uintptr_t>(objectsBegin) - Ahead), ForWriting);
}

inline void* XMLArena::RoomForObject(std::size_t bytes)
{
    if (Room() < bytes + Slack && !AddBlock())
        return nullptr;
    m_ObjectsBegin -= bytes;
    FetchForWriting(m_ObjectsBegin);
    return m_ObjectsBegin;
}

inline char* XMLArena::RoomForText(std::size_t bytes)
{
    if (bytes + Slack > Room())
        return RoomForLongText(bytes);
    char* const text = m_TextsEnd;
    m_TextsEnd += bytes;
    return text;
}

inline XMLNode* XMLArena::NewNode(const char* name, u32 type, u32 hash)
{
    void* const room = name ? RoomForObject(sizeof(XMLNode)) : nullptr;
    if (!room)
        return nullptr;

    XMLNode* const node = new (room) XMLNode(name, type);
    node->m_PlaceInBlock = static_cast<u16>((static_cast<char*>(room) - reinterpret_cast<char*>(m_Blocks)) / 8);
    node->NameHash = static_cast<u16>(hash);
    return node;
}

inline XMLNode* XMLArena::NewNode(const char* name, u32 type, u32 hash, XMLNode& parent)
{
    XMLNode* const node = NewNode(name, type, hash);
    if (node)
        LinkLast(*node, parent);
    return node;
}

inline void XMLArena::LinkLast(XMLNode& child, XMLNode& parent)
{
    child.Parent = &parent;
    child.Prev = parent.LastChild;
    (parent.LastChild ? parent.LastChild->Next : parent.FirstChild) = &child;
    parent.LastChild = &child;
}

inline XMLText XMLArena::StoreAscii(std::u16string_view units)
{
    if (units.size() + 1 + Slack > Room())
        return Store(units);

    char* const text = m_TextsEnd;
    for (std::size_t done = 0; done < units.size(); done += AsciiBlock::Size)
        AsciiBlock::Narrow(units.data() + done, text + done);
    text[units.size()] = 0;
    m_TextsEnd += units.size() + 1;
    return {text, static_cast<u32>(units.size())};
}
