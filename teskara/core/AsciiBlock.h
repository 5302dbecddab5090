#pragma once

#include "teskara/core/Types.h"

#include <cstddef>
#include <cstring>

// Eight characters at a time, as UTF-16 units or as bytes, in vectors that compilers know how to keep in registers.
namespace AsciiBlock {

inline constexpr std::size_t Size = 8;

using Units = u16 __attribute__((vector_size(Size * sizeof(u16))));
using Bytes = u8 __attribute__((vector_size(Size)));

// Copies eight units as bytes, of which the upper half is lost.
inline void Narrow(const char16_t* from, char* to)
{
    Units units;
    std::memcpy(&units, from, sizeof units);
    const Bytes bytes = __builtin_convertvector(units, Bytes);
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

} // namespace AsciiBlock
