#include "teskara/markup/XMLArena.h"

#include "teskara/core/Utf8.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

XMLArena::Block* XMLArena::AllocateBlock(std::size_t bytes)
{
    return static_cast<Block*>(::operator new(bytes, std::nothrow));
}

XMLArena::Block* XMLArena::TakeBlock(std::size_t bytes)
{
    Block* const block = AllocateBlock(bytes);
    if (block)
        block->Owner = this;
    return block;
}

XMLArena* XMLArena::Create(std::size_t bytes)
{
    const std::size_t head = sizeof(Block) + sizeof(XMLArena);
    const std::size_t size = std::min((head + bytes + Slack + 15) / 16 * 16, LargestBlock);
    Block* const block = AllocateBlock(size);
    if (!block)
        return nullptr;

    XMLArena* const arena = new (block + 1) XMLArena;
    arena->m_NextBlockBytes = std::clamp<std::size_t>(size * 2, 1024, LargestBlock);
    block->Owner = arena;
    block->Next = nullptr;
    arena->m_Blocks = block;
    arena->Use(block, head, size);
    return arena;
}

void XMLArena::Destroy()
{
    // The arena lies in one of them and is not looked at again.
    for (Block* block = m_Blocks; block;) {
        Block* const next = block->Next;
        ::operator delete(block);
        block = next;
    }
}

XMLArena& XMLArena::Of(const XMLNode& node)
{
    const char* const place = reinterpret_cast<const char*>(&node) - std::size_t{node.m_PlaceInBlock} * 8;
    return *reinterpret_cast<const Block*>(place)->Owner;
}

void XMLArena::Use(Block* block, std::size_t used, std::size_t bytes)
{
    m_TextsEnd = reinterpret_cast<char*>(block) + used;
    m_ObjectsBegin = reinterpret_cast<char*>(block) + bytes;
}

bool XMLArena::AddBlock()
{
    Block* const block = TakeBlock(m_NextBlockBytes);
    if (!block)
        return false;

    block->Next = m_Blocks;
    m_Blocks = block;
    Use(block, sizeof(Block), m_NextBlockBytes);
    m_NextBlockBytes = std::min(m_NextBlockBytes * 2, LargestBlock);
    return true;
}

// A text that is large for a block gets one of its own, so that the rest of the block in use isn't lost.
char* XMLArena::RoomForLongText(std::size_t bytes)
{
    if (bytes < m_NextBlockBytes / 8)
        return AddBlock() ? RoomForText(bytes) : nullptr;

    Block* const block = TakeBlock(sizeof(Block) + bytes + Slack);
    if (!block)
        return nullptr;
    block->Next = m_Blocks->Next;
    m_Blocks->Next = block;
    return reinterpret_cast<char*>(block + 1);
}

XMLAttribute* XMLArena::NewAttribute(const XMLName& name, XMLText value)
{
    void* const room = name.Text && value.Text ? RoomForObject(sizeof(XMLAttribute)) : nullptr;
    if (!room)
        return nullptr;

    XMLAttribute* const attribute = new (room) XMLAttribute;
    attribute->Name = name.Text;
    attribute->Value = value.Text;
    attribute->m_NameHash = name.Hash;
    attribute->m_NameLength = name.Length;
    return attribute;
}

XMLText XMLArena::Store(std::string_view text)
{
    char* const room = text.size() < std::numeric_limits<u32>::max() ? RoomForText(text.size() + 1) : nullptr;
    if (!room)
        return {};

    if (!text.empty())
        std::memcpy(room, text.data(), text.size());
    room[text.size()] = 0;
    return {room, static_cast<u32>(text.size())};
}

XMLName XMLArena::StoreName(std::string_view text)
{
    const XMLText stored = Store(text);
    return {stored.Text, stored.Length, FoldedHash(text)};
}

XMLText XMLArena::Store(std::u16string_view units)
{
    const std::size_t length = Utf8Length(units);
    char* const room = length < std::numeric_limits<u32>::max() ? RoomForText(length + 1) : nullptr;
    if (!room)
        return {};

    Utf16ToUtf8(units, room, length);
    room[length] = 0;
    return {room, static_cast<u32>(length)};
}
