#include "program/DisplaySize.h"

#include <charconv>

namespace {

constexpr int LargestSide = 8192;

bool ReadSide(const char* from, const char* to, int& side)
{
    const auto [stop, error] = std::from_chars(from, to, side);
    return error == std::errc() && stop == to && side >= 1 && side <= LargestSide;
}

} // namespace

bool DisplaySize::Read(const std::string& text)
{
    const std::size_t cross = text.find('x');
    DisplaySize size;
    if (cross == text.npos || !ReadSide(text.data(), text.data() + cross, size.Width)
        || !ReadSide(text.data() + cross + 1, text.data() + text.size(), size.Height))
        return false;

    *this = size;
    return true;
}
