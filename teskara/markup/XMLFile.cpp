#include "teskara/markup/XMLFile.h"

#include "teskara/core/Utf8.h"

#include <algorithm>
#include <new>
#include <utility>

XMLFile::XMLFile(XMLDocument* document, OpenedFile file) : XMLStream(document), File(std::move(file))
{
    std::fseek(File.get(), 0, SEEK_END);
    const long size = std::ftell(File.get());
    InputBytes = size > 0 ? static_cast<u64>(size) : 0;
    std::rewind(File.get());
    SkipByteOrderMark();
}

// Three bytes of which the first is right are a mark, whatever the others are.
void XMLFile::SkipByteOrderMark()
{
    unsigned char mark[3];
    if (std::fread(mark, 1, sizeof mark, File.get()) == sizeof mark && mark[0] == 0xEF)
        InputBytes -= std::min<u64>(InputBytes, sizeof mark);
    else
        std::rewind(File.get());
}

std::size_t XMLFile::Read(char16_t* buffer, std::size_t capacity)
{
    if (capacity > m_BytesCapacity) {
        m_Bytes.reset(new (std::nothrow) char[capacity]);
        m_BytesCapacity = m_Bytes ? capacity : 0;
    }
    if (!m_Bytes)
        return 0;
    return Utf8ToUtf16({m_Bytes.get(), std::fread(m_Bytes.get(), 1, capacity, File.get())}, buffer, capacity);
}
