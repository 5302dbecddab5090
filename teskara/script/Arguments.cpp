#include "teskara/script/Arguments.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Numbers.h"

const char* Arguments::Text(int index) const
{
    return Has(index) ? TextOrEmpty(m_Texts[index]) : "";
}

i32 Arguments::Integer(int index) const
{
    return ReadInteger(Text(index));
}

float Arguments::Float(int index) const
{
    return ReadFloat(Text(index));
}

bool Arguments::Color(int index, u32& color) const
{
    return ReadHex(Text(index), color);
}

bool Arguments::IsWord(int index, std::string_view word) const
{
    return EqualsNoCase(Text(index), word);
}

bool Arguments::IsNumber(int index) const
{
    std::string_view text = Text(index);
    if (text.empty())
        return false;

    if (text.front() == '-')
        text.remove_prefix(1);
    return text.find_first_not_of("0123456789.") == std::string_view::npos;
}

bool Arguments::Calculated(int index) const
{
    double result = 0;
    return Host::Calculate(Text(index), result) && result != 0;
}

bool Arguments::IsTrue(int index) const
{
    return IsWord(index, "TRUE") || Float(index) != 0;
}
