#pragma once

#ifndef __SSE2__
#include <cfenv>
#endif

// While it lives, arithmetic on floats gives infinities and values that are no number, and never a trap, whatever the
// host has set; afterwards the host's setting is back. Costs a few nanoseconds. What leaves the toolkit, such as a call
// of the host, is left out of it.
class QuietFloats
{
public:
#ifdef __SSE2__
    QuietFloats()
    {
        __builtin_ia32_ldmxcsr((m_Former | Masks) & ~Raised);
    }
    ~QuietFloats()
    {
        __builtin_ia32_ldmxcsr(m_Former);
    }
#else
    QuietFloats()
    {
        std::feholdexcept(&m_Former);
    }
    ~QuietFloats()
    {
        std::fesetenv(&m_Former);
    }
#endif
    QuietFloats(const QuietFloats&) = delete;
    QuietFloats& operator=(const QuietFloats&) = delete;

private:
#ifdef __SSE2__
    // Of the register that controls arithmetic on floats.
    static constexpr unsigned Masks = 0x1f80;
    static constexpr unsigned Raised = 0x3f;

    unsigned m_Former = __builtin_ia32_stmxcsr();
#else
    std::fenv_t m_Former;
#endif
};
