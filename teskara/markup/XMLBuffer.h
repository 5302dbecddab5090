#pragma once

#include "teskara/markup/XMLStream.h"

#include <string_view>

// Reads UTF-8 bytes in memory, which it borrows.
class XMLBuffer : public XMLStream
{
public:
    XMLBuffer(XMLDocument* document, std::string_view text);

    std::size_t Read(char16_t* buffer, std::size_t capacity) override;

    const char* Data;
    std::size_t Size;
    std::size_t Position = 0;
};
