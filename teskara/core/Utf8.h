#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// UTF-8 to UTF-16 and back. Total: every input converts, none that isn't empty converts to nothing. A maximal
// ill-formed part of a sequence becomes one U+FFFD, a lone surrogate likewise. Nothing is terminated.

// The number of units that the bytes become. It is never more than the number of bytes.
std::size_t Utf16Length(std::string_view bytes);

// Writes at most capacity units, always whole characters, and returns their number. With a capacity of as many units
// as there are bytes, all of the text fits.
std::size_t Utf8ToUtf16(std::string_view bytes, char16_t* to, std::size_t capacity);

// The number of bytes that the units become. It is never more than three times the number of units.
std::size_t Utf8Length(std::u16string_view units);

// Writes at most capacity bytes, always whole characters, and returns their number.
std::size_t Utf16ToUtf8(std::u16string_view units, char* to, std::size_t capacity);

std::u16string ToUtf16(std::string_view bytes);
std::string ToUtf8(std::u16string_view units);
