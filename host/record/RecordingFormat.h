#pragma once

#include "teskara/core/Types.h"

#include <cstddef>
#include <string_view>

namespace host {

// How a recording lies in its file; docs/tools.md describes it whole. Behind the header come blocks, each with its length
// and a check sum, which hold tokens. A token gives one or several items, and an item is a call or a half of one.
namespace RecordingFormat {

constexpr std::string_view Magic = "TeskaraRecording"; // and a byte for the version
constexpr u8 Version = 1;

constexpr std::size_t BlockHeaderSize = 8; // length and check sum, four bytes each, the lowest first
constexpr u32 LargestBlock = 256u << 20;

// Tokens. From FirstKnown on: an item that was there before, counted from 0.
enum Token : u64 {
    NewItem = 0, // its length and its bytes follow
    Predicted = 1, // a count follows: so many items are those that came last time in this place
    FirstKnown = 2,
};
constexpr u64 LongestRun = 1u << 16;

// What stands behind the operation in an item.
enum Phase : u8 {
    WholeCall = 0, // arguments, Results, results
    Begin = 1, // arguments; the calls inside it follow
    End = 2, // results
    Finish = 3, // nothing: the recording ends here, and is complete
};

// What begins a value.
enum Tag : u8 {
    Results = '=', // no value: results begin here
    Null = '0',
    Number = 'n', // signed, zigzag
    Unsigned = 'u',
    Single = 'f', // four bytes
    Double = 'd', // eight bytes
    Text = 't', // length and bytes
    Point = 'p', // two numbers
    Rectangle = 'r', // four numbers
    Image = 'i', // the bytes of a draw record
    Object = 'o', // the number that it got when it was first seen, and whether its serial number was told
    Type = 'y', // T or H, toolkit's or host's, and its name
    List = 'l', // a count, then so many values
    Opaque = 'x', // a value of the host's that a recording cannot hold
};

// Bytes that differ in one place have different sums.
inline u32 CheckSum(std::string_view bytes)
{
    constexpr u32 Start = 2166136261u;
    constexpr u32 Prime = 16777619u;
    u32 sum = Start;
    for (const char byte : bytes)
        sum = (sum ^ static_cast<u8>(byte)) * Prime;
    return sum;
}

} // namespace RecordingFormat

} // namespace host
