#pragma once

#include "teskara/core/Types.h"

#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace host {

// Bytes that are put together: numbers take seven bits to a byte, the lowest first. Every call of a recorded frame goes
// through here, so room is looked for once a number and not once a byte.
class ItemBytes
{
public:
    void Clear() { m_Size = 0; }
    void Truncate(std::size_t size) { m_Size = size; }
    std::string_view View() const { return {m_Room.data(), m_Size}; }
    std::size_t Size() const { return m_Size; }

    void PutByte(u8 byte)
    {
        *RoomFor(1) = static_cast<char>(byte);
        ++m_Size;
    }
    void SetByte(std::size_t at, u8 byte) { m_Room[at] = static_cast<char>(byte); }

    void PutBytes(std::string_view bytes)
    {
        if (bytes.empty())
            return;
        std::memcpy(RoomFor(bytes.size()), bytes.data(), bytes.size());
        m_Size += bytes.size();
    }

    void PutUnsigned(u64 number)
    {
        char* const begin = RoomFor(LongestNumber);
        char* end = begin;
        for (; number >= 0x80; number >>= 7)
            *end++ = static_cast<char>(number | 0x80);
        *end++ = static_cast<char>(number);
        m_Size += static_cast<std::size_t>(end - begin);
    }

    void PutSigned(i64 number)
    {
        const u64 doubled = static_cast<u64>(number) << 1;
        PutUnsigned(number < 0 ? ~doubled : doubled);
    }

    void PutText(std::string_view text)
    {
        PutUnsigned(text.size());
        PutBytes(text);
    }

    template <class Plain> void PutRaw(const Plain& plain)
    {
        static_assert(std::is_arithmetic_v<Plain>);
        PutBytes({reinterpret_cast<const char*>(&plain), sizeof plain});
    }

private:
    static constexpr std::size_t LongestNumber = 10;

    char* RoomFor(std::size_t bytes)
    {
        if (m_Room.size() - m_Size < bytes)
            m_Room.resize(2 * m_Room.size() + bytes);
        return m_Room.data() + m_Size;
    }

    std::vector<char> m_Room;
    std::size_t m_Size = 0;
};

// Takes such bytes apart. Once something is missing everything that follows is nothing, and IsBroken tells.
class ItemView
{
public:
    ItemView() = default;
    explicit ItemView(std::string_view bytes) : m_Rest(bytes) { }

    bool IsBroken() const { return m_Broken; }
    bool IsAtEnd() const { return m_Rest.empty(); }
    std::string_view Rest() const { return m_Rest; }
    u8 Peek() const { return m_Rest.empty() ? 0 : static_cast<u8>(m_Rest[0]); }
    void Break() { m_Broken = true, m_Rest = {}; }

    u8 TakeByte()
    {
        const std::string_view byte = TakeBytes(1);
        return byte.empty() ? 0 : static_cast<u8>(byte[0]);
    }

    std::string_view TakeBytes(std::size_t size)
    {
        if (size > m_Rest.size()) {
            Break();
            return {};
        }
        const std::string_view bytes = m_Rest.substr(0, size);
        m_Rest.remove_prefix(size);
        return bytes;
    }

    u64 TakeUnsigned()
    {
        u64 number = 0;
        for (unsigned shift = 0; shift < 64; shift += 7) {
            const u8 byte = TakeByte();
            number |= static_cast<u64>(byte & 0x7f) << shift;
            if (byte < 0x80)
                return number;
        }
        Break();
        return 0;
    }

    i64 TakeSigned()
    {
        const u64 number = TakeUnsigned();
        return static_cast<i64>(number >> 1) ^ -static_cast<i64>(number & 1);
    }

    std::string_view TakeText()
    {
        const u64 size = TakeUnsigned();
        return TakeBytes(size);
    }

    template <class Plain> Plain TakeRaw()
    {
        Plain plain = {};
        const std::string_view bytes = TakeBytes(sizeof plain);
        if (!m_Broken)
            std::memcpy(&plain, bytes.data(), sizeof plain);
        return plain;
    }

private:
    std::string_view m_Rest;
    bool m_Broken = false;
};

} // namespace host
