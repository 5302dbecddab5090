#pragma once

#include "teskara/markup/XMLStream.h"

#include <cstdio>
#include <memory>

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using OpenedFile = std::unique_ptr<std::FILE, FileCloser>;

// Reads an open file of UTF-8 bytes.
class XMLFile : public XMLStream
{
public:
    // Reading begins at its start, behind a byte-order mark.
    XMLFile(XMLDocument* document, OpenedFile file);

    // A read error is the end of the input.
    std::size_t Read(char16_t* buffer, std::size_t capacity) override;

    OpenedFile File;

private:
    void SkipByteOrderMark();

    std::unique_ptr<char[]> m_Bytes;
    std::size_t m_BytesCapacity = 0;
};
