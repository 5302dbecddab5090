#pragma once

#include <cstdarg>
#include <cstddef>
#include <string_view>

#if defined(__GNUC__)
#define TESKARA_PRINTF_LIKE(text, arguments) __attribute__((format(printf, text, arguments)))
#else
#define TESKARA_PRINTF_LIKE(text, arguments)
#endif

// Copies a text into a buffer of size bytes: cut to what fits, always terminated. The text may lie in the buffer
// itself. Returns the number of bytes copied, without the terminator. A size of 0 writes nothing.
std::size_t CopyBounded(char* to, std::size_t size, std::string_view from);

// Formats into a buffer of size bytes: cut to what fits, always terminated. The format is a literal that uses only
// %s, %d, %u, %X and %%; texts that come from outside are arguments, never the format. Returns the number of bytes
// written, without the terminator.
std::size_t FormatBounded(char* to, std::size_t size, const char* format, ...) TESKARA_PRINTF_LIKE(3, 4);

// The same for a function that takes such arguments itself.
std::size_t FormatBoundedList(char* to, std::size_t size, const char* format, std::va_list arguments)
    TESKARA_PRINTF_LIKE(3, 0);

// For arguments of %s that may be missing.
constexpr const char* TextOrEmpty(const char* text)
{
    return text ? text : "";
}
