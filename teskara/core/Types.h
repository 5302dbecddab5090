#pragma once

#include <cstdint>

using u8 = std::uint8_t;
using u16 = std::uint16_t;
using u32 = std::uint32_t;
using u64 = std::uint64_t;
using i8 = std::int8_t;
using i32 = std::int32_t;
using i64 = std::int64_t;

// A point in screen coordinates, in pixels.
struct _Point2i {
    i32 x = 0;
    i32 y = 0;
};

// A position in the world that a map shows.
struct _Point3f {
    float x = 0;
    float y = 0;
    float z = 0;
};

// A rectangle in screen coordinates; far edges may lie before near ones. Windows' own serves where a program has that.
#ifndef _WINDEF_
struct tagRECT {
    i32 left = 0;
    i32 top = 0;
    i32 right = 0;
    i32 bottom = 0;
};
#endif
// A line between two points in screen coordinates.
struct _Line {
    i32 x1 = 0;
    i32 y1 = 0;
    i32 x2 = 0;
    i32 y2 = 0;
};
