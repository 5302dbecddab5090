#pragma once

#include "host/lint/Finding.h"

#include <cstddef>
#include <string>
#include <vector>

namespace host {

// The text of a file, and its lines.
class SourceText
{
public:
    explicit SourceText(std::string text);

    const std::string& Text() const { return m_Text; }

    // Where a byte stands. A byte-order mark is no character.
    SourcePlace PlaceOf(std::size_t offset) const;

    // The byte that so many UTF-16 units precede; the end if there are fewer.
    std::size_t OffsetOfUnits(u64 units) const;

private:
    std::size_t CharactersBefore(std::size_t offset) const;

    std::string m_Text;
    std::vector<std::size_t> m_Lines; // where each begins
    std::vector<std::size_t> m_Characters; // how many stand before each block of the text
};

} // namespace host
