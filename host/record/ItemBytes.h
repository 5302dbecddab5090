#pragma once

#include "teskara/core/Types.h"

#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>

namespace host {

// Bytes that are put together: numbers take seven bits to a byte, the lowest first.
class ItemBytes
{
public:
    void Clear() { m_Bytes.clear(); }
    void Truncate(std::size_t size) { m_Bytes.resize(size); }
    std::string_view View() const { return m_Bytes; }
    std::size_t Size() const { return m_Bytes.size(); }

    void PutByte(u8 byte) { m_Bytes += static_cast<char>(byte); }
    void SetByte(std::size_t at, u8 byte) { m_Bytes[at] = static_cast<char>(byte); }
    void PutBytes(std::string_view bytes) { m_Bytes += bytes; }

    void PutUnsigned(u64 number)
    {
        for (; number >= 0x80; number >>= 7)
            PutByte(static_cast<u8>(number | 0x80));
        PutByte(static_cast<u8>(number));
    }

    void PutSigned(i64 number) { PutUnsigned((static_cast<u64>(number) << 1) ^ static_cast<u64>(number >> 63)); }

    void PutText(std::string_view text)
    {
        PutUnsigned(text.size());
        PutBytes(text);
    }

    template <class Plain> void PutRaw(const Plain& plain)
    {
        static_assert(std::is_arithmetic_v<Plain>);
        m_Bytes.append(reinterpret_cast<const char*>(&plain), sizeof plain);
    }

private:
    std::string m_Bytes;
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
