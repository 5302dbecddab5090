#pragma once

#include <optional>
#include <string>

namespace host {

// Lines that are typed or piped in, taken without waiting for them.
class LineInput
{
public:
    // The descriptor is borrowed.
    explicit LineInput(int descriptor) : m_Descriptor(descriptor) { }

    // The next line that is there as a whole, without its end; the last one needs no end. A line that is too long comes
    // in pieces.
    std::optional<std::string> Take();

private:
    bool IsReady() const;
    void Read();

    int m_Descriptor;
    bool m_IsAtEnd = false;
    std::string m_Bytes; // not taken yet
};

} // namespace host
