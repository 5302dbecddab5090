#include "host/files/MarkupFault.h"

#include "host/files/WholeFile.h"
#include "teskara/markup/XMLDocument.h"

#include <filesystem>
#include <string_view>

namespace host {

namespace {

constexpr std::string_view ByteOrderMark = "\xef\xbb\xbf";

// How many UTF-16 units the character takes that a byte of UTF-8 begins; 0 for the other bytes of one.
u64 UnitsOf(unsigned char byte)
{
    if ((byte & 0xc0) == 0x80)
        return 0;
    return byte >= 0xf0 ? 2 : 1;
}

// Counts lines and columns up to a number of units.
void Locate(std::string_view text, u64 units, MarkupFault& fault)
{
    if (text.starts_with(ByteOrderMark))
        text.remove_prefix(ByteOrderMark.size());

    fault.Line = 1;
    fault.Column = 1;
    u64 passed = 0;
    for (const char character : text) {
        const u64 count = UnitsOf(static_cast<unsigned char>(character));
        if (count == 0)
            continue;
        if (passed + count > units)
            return;
        passed += count;
        fault.Column = character == '\n' ? 1 : fault.Column + 1;
        fault.Line += character == '\n';
    }
}

} // namespace

std::optional<MarkupFault> FindMarkupFault(const std::string& path)
{
    XMLDocument document;
    if (document.ParseFile(path.c_str()))
        return std::nullopt;

    MarkupFault fault;
    fault.Message = document.ErrorText;
    if (const auto text = ReadWholeFile(path))
        Locate(*text, document.FailedAt, fault);
    return fault;
}

std::string Describe(const std::string& path, const MarkupFault& fault)
{
    const std::string name = std::filesystem::path(path).filename().string();
    if (fault.Line == 0)
        return fault.Message;
    return name + ":" + std::to_string(fault.Line) + ":" + std::to_string(fault.Column) + ": " + fault.Message;
}

} // namespace host
