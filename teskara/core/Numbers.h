#pragma once

#include "teskara/core/Types.h"

#include <concepts>
#include <cstddef>
#include <string_view>

// Numbers as texts and back, and arithmetic with a stated result for every input. Nothing here asks a locale.

// Reads leading white space, an optional sign and decimal digits, and stops at the first other byte. No digits give 0.
// Of a value that needs more than 32 bits the low 32 are kept.
i32 ReadInteger(std::string_view text);

// Reads leading white space, an optional sign and a decimal number, also with a point and an exponent, or "inf",
// "infinity" or "nan" in any case; what follows is not looked at. No number gives 0. A value out of range gives
// infinity or 0 with its sign.
double ReadDouble(std::string_view text);
float ReadFloat(std::string_view text);

// Reads leading white space, an optional sign, an optional "0x" and hexadecimal digits. Of a value that needs more than
// 32 bits the low 32 are kept; "0x" without digits is the number 0. False, and value as it was, if there is no digit.
bool ReadHex(std::string_view text, u32& value);

// Drops the fraction. Not a number, or beyond the signed 32-bit range: 0x80000000.
i32 TruncateToI32(double value);

// Drops the fraction and keeps the low 32 bits of the signed 64-bit result. Not a number, or beyond 64 bits: 0.
u32 TruncateToU32(double value);

// Drops the fraction. Not a number or negative: 0; above 255: 255.
u8 TruncateToByte(double value);

template <typename T>
concept Integer32 = std::same_as<T, i32> || std::same_as<T, u32>;

// 32-bit arithmetic that wraps. Operands of both signs may be mixed; the result is signed unless it is asked for as
// WrapAdd<u32>(a, b).
template <Integer32 Result = i32, Integer32 Left, Integer32 Right> constexpr Result WrapAdd(Left left, Right right)
{
    return static_cast<Result>(static_cast<u32>(left) + static_cast<u32>(right));
}

template <Integer32 Result = i32, Integer32 Left, Integer32 Right> constexpr Result WrapSub(Left left, Right right)
{
    return static_cast<Result>(static_cast<u32>(left) - static_cast<u32>(right));
}

template <Integer32 Result = i32, Integer32 Left, Integer32 Right> constexpr Result WrapMul(Left left, Right right)
{
    return static_cast<Result>(static_cast<u32>(left) * static_cast<u32>(right));
}

// Writers: the text is cut to what fits into size bytes and always terminated; the number of bytes written, without
// the terminator, is returned. 32 bytes hold every integer and every shortest form.

std::size_t WriteInteger(char* to, std::size_t size, i64 value);

// The shortest text that reads back as the same value.
std::size_t WriteFloat(char* to, std::size_t size, float value);
std::size_t WriteDouble(char* to, std::size_t size, double value);

// A fixed number of decimals, at most 64: 0.5 with 6 of them is "0.500000".
std::size_t WriteFixed(char* to, std::size_t size, double value, int decimals);
