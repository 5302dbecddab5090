#include "host/AnsiCodePage.h"

#include "host/display/Characters.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace host {

namespace {

// Two of the five that have no character; nothing else in the toolkit uses them.
constexpr u8 OpenBytes[] = {0x81, 0x8D};

} // namespace

int AnsiCodePage::Encode(char32_t character, char* bytes)
{
    if (const u8 byte = ToAnsi(character)) {
        *bytes = static_cast<char>(byte);
        return 1;
    }

    const std::u16string units = CharacterToWide(character);
    std::copy(units.begin(), units.end(), m_Borrowers);
    std::memcpy(bytes, OpenBytes, units.size());
    return static_cast<int>(units.size());
}

char16_t AnsiCodePage::BorrowerOf(u8 byte) const
{
    const auto* open = std::find(std::begin(OpenBytes), std::end(OpenBytes), byte);
    return open == std::end(OpenBytes) ? char16_t{0} : m_Borrowers[open - OpenBytes];
}

} // namespace host
