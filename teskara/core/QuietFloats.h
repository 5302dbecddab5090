#pragma once

#include <cfenv>

// While it lives, arithmetic on floats gives infinities and values that are no number, and never a trap, whatever the
// host has set; afterwards the host's setting is back.
class QuietFloats
{
public:
    QuietFloats() { std::feholdexcept(&m_Former); }
    ~QuietFloats() { std::fesetenv(&m_Former); }
    QuietFloats(const QuietFloats&) = delete;
    QuietFloats& operator=(const QuietFloats&) = delete;

private:
    std::fenv_t m_Former;
};
