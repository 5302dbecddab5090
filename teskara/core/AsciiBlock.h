#pragma once

#include "teskara/core/Types.h"

#include <bit>
#include <cstddef>
#include <cstring>

// Eight characters at a time, as UTF-16 units or as bytes, in vectors that compilers know how to keep in registers.
namespace AsciiBlock {

inline constexpr std::size_t Size = 8;

using Units = u16 __attribute__((vector_size(Size * sizeof(u16))));
using Bytes = u8 __attribute__((vector_size(Size)));

// The result of comparing units: all bits set in each place where the comparison holds.
using UnitMask = decltype(Units {} == Units {});

inline Units Load(const char16_t* from)
{
    Units units;
    std::memcpy(&units, from, sizeof units);
    return units;
}

// The first place of a mask that is set, or Size if none is.
inline std::size_t FirstOf(UnitMask mask)
{
    const Bytes narrow = __builtin_convertvector(mask, Bytes);
    const u64 word = std::bit_cast<u64>(narrow);
    const int bits = std::endian::native == std::endian::little ? std::countr_zero(word) : std::countl_zero(word);
    return static_cast<std::size_t>(bits) / 8;
}

// Copies eight units as bytes, of which the upper half is lost.
inline void Narrow(const char16_t* from, char* to)
{
    const Bytes bytes = __builtin_convertvector(Load(from), Bytes);
    std::memcpy(to, &bytes, sizeof bytes);
}

// Copies eight bytes as units.
inline void Widen(const char* from, char16_t* to)
{
    Bytes bytes;
    std::memcpy(&bytes, from, sizeof bytes);
    const Units units = __builtin_convertvector(bytes, Units);
    std::memcpy(to, &units, sizeof units);
}

}
