// Loaded into a program before it starts (LD_PRELOAD), this makes it run as in the hands of an unkind host: in the locale
// of the environment, which the tests set to one with a decimal comma, and with traps for floating-point operations that
// have no result. The small stack comes from the limit that the program is started under.

#include <cfenv>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <locale>

namespace {

[[gnu::constructor]] void BeUnkind()
{
    if (!std::setlocale(LC_ALL, "") || *std::localeconv()->decimal_point != ',') {
        std::fputs("the locale has no decimal comma\n", stderr);
        std::_Exit(3);
    }
    std::locale::global(std::locale(""));
    feenableexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW);
}

} // namespace
