#include "teskara/core/BoundedText.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

std::size_t CopyBounded(char* to, std::size_t size, std::string_view from)
{
    if (size == 0)
        return 0;

    const std::size_t length = std::min(from.size(), size - 1);
    if (length > 0)
        std::memmove(to, from.data(), length);
    to[length] = 0;
    return length;
}

std::size_t FormatBounded(char* to, std::size_t size, const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const std::size_t length = FormatBoundedList(to, size, format, arguments);
    va_end(arguments);
    return length;
}

std::size_t FormatBoundedList(char* to, std::size_t size, const char* format, std::va_list arguments)
{
    if (size == 0)
        return 0;

    // A result that no int can count is reported as an error, although its beginning stands in the buffer.
    const int wanted = std::vsnprintf(to, size, format, arguments);
    if (wanted >= 0)
        return std::min(static_cast<std::size_t>(wanted), size - 1);
    to[size - 1] = 0;
    return std::strlen(to);
}
