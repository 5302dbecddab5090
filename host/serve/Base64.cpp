#include "host/serve/Base64.h"

#include "teskara/core/Types.h"

namespace host {

std::string ToBase64(std::string_view bytes)
{
    constexpr char Digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr std::size_t Group = 3;
    std::string text;
    text.reserve((bytes.size() + Group - 1) / Group * 4);
    for (std::size_t at = 0; at < bytes.size(); at += Group) {
        const std::string_view group = bytes.substr(at, Group);
        u32 bits = 0;
        for (std::size_t index = 0; index < Group; ++index)
            bits = bits << 8 | (index < group.size() ? static_cast<u8>(group[index]) : 0u);
        for (std::size_t digit = 0; digit < Group + 1; ++digit)
            text += digit <= group.size() ? Digits[bits >> (18 - 6 * digit) & 63] : '=';
    }
    return text;
}

} // namespace host
