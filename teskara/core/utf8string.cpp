#include "teskara/core/utf8string.h"

#include "teskara/core/AsciiCase.h"

#include <cstring>

namespace {

// Where the library was loaded differs from run to run, which is all that a seed has to do.
const char g_SeedAnchor = 0;

// Sets the case bit of each of eight bytes that holds 'A' to 'Z'.
u64 FoldEightBytes(u64 bytes)
{
    constexpr u64 ones = 0x0101010101010101u;
    const u64 low = bytes & (0x7fu * ones);
    const u64 atLeastA = low + (0x80u - 'A') * ones;
    const u64 aboveZ = low + (0x80u - 'Z' - 1u) * ones;
    const u64 upper = (atLeastA & ~aboveZ & ~bytes) & (0x80u * ones);
    return bytes | (upper >> 2);
}

u64 Mix(u64 hash, u64 word)
{
    hash = (hash ^ word) * 0x9e3779b97f4a7c15u;
    return hash ^ (hash >> 29);
}

} // namespace

bool TryAssign(utf8string& text, const char* from) noexcept
{
    try {
        text = from ? from : "";
        return true;
    } catch (...) {
        return false;
    }
}

std::size_t NameHash::operator()(std::string_view name) const noexcept
{
    u64 hash = reinterpret_cast<std::uintptr_t>(&g_SeedAnchor) ^ name.size();
    const char* bytes = name.data();
    std::size_t left = name.size();
    for (; left >= 8; left -= 8, bytes += 8) {
        u64 word;
        std::memcpy(&word, bytes, 8);
        hash = Mix(hash, FoldEightBytes(word));
    }
    u64 word = 0;
    std::memcpy(&word, bytes, left);
    return static_cast<std::size_t>(Mix(hash, FoldEightBytes(word)));
}

bool NameEqual::operator()(std::string_view left, std::string_view right) const noexcept
{
    return EqualsNoCase(left, right);
}
