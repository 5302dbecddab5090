#include "teskara/markup/XMLBuffer.h"

#include "teskara/core/Utf8.h"

#include <algorithm>

XMLBuffer::XMLBuffer(XMLDocument* document, std::string_view text)
    : XMLStream(document), Data(text.data()), Size(text.size())
{
    InputBytes = Size;
}

// As many bytes as there is room for units always fit, and never become nothing. A sequence of bytes that goes on
// behind them is cut, and both of its parts are ill-formed.
std::size_t XMLBuffer::Read(char16_t* buffer, std::size_t capacity)
{
    const std::size_t count = std::min(capacity, Size - Position);
    const std::size_t units = Utf8ToUtf16({Data + Position, count}, buffer, capacity);
    Position += count;
    return units;
}
