#pragma once

#include <cfenv>

#ifdef __GLIBC__

// While it lives, arithmetic on floats that gives no number traps, as some hosts have it.
class TrappingFloats
{
public:
    TrappingFloats()
    {
        std::fegetenv(&m_Former);
        std::feclearexcept(Traps); // an x87 would trap what was found before
        feenableexcept(Traps);
    }
    ~TrappingFloats() { std::fesetenv(&m_Former); }
    TrappingFloats(const TrappingFloats&) = delete;
    TrappingFloats& operator=(const TrappingFloats&) = delete;

    bool AreStillSet() const { return (fegetexcept() & Traps) == Traps; }

private:
    static constexpr int Traps = FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW;

    std::fenv_t m_Former;
};

#endif
