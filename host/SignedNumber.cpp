#include "host/SignedNumber.h"

#include "teskara/core/DecimalNumber.h"

namespace host {

std::size_t ReadSignedNumber(std::string_view text, double& number)
{
    const std::size_t sign = text.starts_with('-') ? 1 : 0;
    const std::size_t digits = ReadDecimalNumber(text.substr(sign), number);
    if (digits == 0)
        return 0;
    if (sign != 0)
        number = -number;
    return sign + digits;
}

} // namespace host
