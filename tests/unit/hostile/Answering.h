#pragma once

#include "tests/unit/Allocations.h"
#include "tests/unit/hostile/Hostility.h"

#include <climits>
#include <cstring>
#include <initializer_list>
#include <limits>
#include <string>

// How an operation answers, by what it gives back: as the host does wrong at present, or by its work. work returns what
// the operation returns. What is allocated meanwhile is the host's.
namespace Answering {

constexpr std::size_t HugeText = 65536;

// Of a text that a host owns; it outlives every use.
inline const char* HugeTextWithEnd()
{
    static const std::string& text = *new std::string(HugeText, 'h');
    return text.c_str();
}

template <class Work> void Nothing(Operation operation, Work&& work)
{
    const Allocations::Spared spared;
    if (g_Hostility.Take(operation) == Answer::Good)
        work();
}

template <class Work> bool Decision(Operation operation, Work&& work)
{
    const Allocations::Spared spared;
    return g_Hostility.Take(operation) == Answer::Good && work();
}

template <class Work> u32 Number(Operation operation, Work&& work)
{
    const Allocations::Spared spared;
    switch (g_Hostility.Take(operation)) {
    case Answer::Good:
        return work();
    case Answer::Huge:
        return UINT_MAX;
    case Answer::Negative:
        return u32{1} << 31;
    default:
        return 0;
    }
}

template <class Work> int SignedNumber(Operation operation, Work&& work)
{
    const Allocations::Spared spared;
    switch (g_Hostility.Take(operation)) {
    case Answer::Good:
        return work();
    case Answer::Huge:
        return INT_MAX;
    case Answer::Negative:
        return INT_MIN;
    default:
        return 0;
    }
}

template <class Result, class Work> Result* Pointer(Operation operation, Work&& work)
{
    const Allocations::Spared spared;
    return g_Hostility.Take(operation) == Answer::Good ? work() : nullptr;
}

template <class Work> const char* TextPointer(Operation operation, Work&& work)
{
    const Allocations::Spared spared;
    switch (g_Hostility.Take(operation)) {
    case Answer::Good:
        return work();
    case Answer::Empty:
        return "";
    case Answer::Huge:
        return HugeTextWithEnd();
    default:
        return nullptr;
    }
}

// Fills a buffer as a wrong answer says. Whether the operation claims to have done it.
inline bool SpoilText(Answer answer, char* buffer, std::size_t size)
{
    switch (answer) {
    case Answer::Fails:
        std::memset(buffer, 'f', size);
        return false;
    case Answer::Empty:
        buffer[0] = 0;
        return true;
    case Answer::Unterminated:
        std::memset(buffer, 'u', size);
        return true;
    case Answer::Huge:
        std::memset(buffer, 0xff, size - 1); // and no UTF-8
        buffer[size - 1] = 0;
        return true;
    default:
        return true;
    }
}

template <class Work> bool Text(Operation operation, char* buffer, std::size_t size, Work&& work)
{
    const Allocations::Spared spared;
    const Answer answer = g_Hostility.Take(operation);
    return answer == Answer::Good ? work() : SpoilText(answer, buffer, size);
}

template <class Work> int NumberAndText(Operation operation, char* buffer, std::size_t size, Work&& work)
{
    const Allocations::Spared spared;
    const Answer answer = g_Hostility.Take(operation);
    switch (answer) {
    case Answer::Good:
        return work();
    case Answer::Negative:
        return INT_MIN;
    default:
        return SpoilText(answer, buffer, size) ? INT_MAX : 0;
    }
}

// Spoils any number of numbers alike. Whether the operation claims to have done it.
template <class Value> bool SpoilNumbers(Answer answer, std::initializer_list<Value*> numbers)
{
    using Limits = std::numeric_limits<Value>;
    const auto fill = [&](Value with) {
        for (Value* number : numbers)
            *number = with;
        return true;
    };
    switch (answer) {
    case Answer::Fails:
        fill(static_cast<Value>(-7));
        return false;
    case Answer::Empty:
        return fill(0);
    case Answer::Huge:
        return fill(Limits::max());
    case Answer::Negative:
        return fill(Limits::lowest());
    case Answer::NotANumber:
        return fill(Limits::quiet_NaN());
    default:
        return true;
    }
}

template <class Value, class Work> bool Numbers(Operation operation, std::initializer_list<Value*> numbers, Work&& work)
{
    const Allocations::Spared spared;
    const Answer answer = g_Hostility.Take(operation);
    return answer == Answer::Good ? work() : SpoilNumbers(answer, numbers);
}

} // namespace Answering
