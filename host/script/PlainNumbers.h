#pragma once

#include "teskara/core/QuietFloats.h"

#include <locale.h>

namespace host {

// Scripts run inside of it: whatever the program around them has set, numbers have a point, and dividing by zero gives
// infinity and no trap.
class PlainNumbers
{
public:
    PlainNumbers() : m_Former(uselocale(Plain())) { }
    ~PlainNumbers() { uselocale(m_Former); }
    PlainNumbers(const PlainNumbers&) = delete;
    PlainNumbers& operator=(const PlainNumbers&) = delete;

private:
    static locale_t Plain()
    {
        static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
        return plain;
    }

    QuietFloats m_Quiet;
    locale_t m_Former;
};

} // namespace host
