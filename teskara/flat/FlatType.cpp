#include "teskara/flat/FlatType.h"

#include "teskara/flat/FlatTable.h"
#include "teskara/flat/FlatValue.h"

#include <algorithm>

namespace {

static_assert(int{TESKARA_UNKNOWN} == DispatchUnknown && int{TESKARA_NO_VALUE} == DispatchFailed
    && int{TESKARA_DONE} == DispatchDone);

// What a program answers may be any number.
int AsDispatchResult(int answer)
{
    return std::clamp<int>(answer, DispatchUnknown, DispatchDone);
}

// ask(teskara_value*) answers as a table's operation does; only what is done has a result.
template <class Ask> int AskForValue(_MvTypeVar& result, Ask&& ask)
{
    teskara_value value = {};
    const int answer = AsDispatchResult(ask(&value));
    if (answer == DispatchDone)
        result = FromFlat(value);
    return answer;
}

} // namespace

teskara_value FlatType::WithType(const MvValue& value)
{
    _MvTypeVar typed;
    typed.Type = this;
    typed.Value = value;
    return ToFlat(typed);
}

int FlatType::UnknownIndex(MvValue value, int argc, char** argv, _MvTypeVar& result)
{
    const teskara_value self = WithType(value);
    return AskForValue(result, [&](teskara_value* found) {
        return CallFlat(m_Table, m_Table.index, int{DispatchUnknown}, &self, argc, argv, found);
    });
}

int FlatType::UnknownMember(MvValue value, const char* name, int argc, char** argv, _MvTypeVar& result)
{
    const teskara_value self = WithType(value);
    return AskForValue(result, [&](teskara_value* found) {
        return CallFlat(m_Table, m_Table.get, int{DispatchUnknown}, &self, name, argc, argv, found);
    });
}

int FlatType::UnknownMethod(MvValue value, const char* name, int argc, char** argv)
{
    const teskara_value self = WithType(value);
    return AsDispatchResult(CallFlat(m_Table, m_Table.call, int{DispatchUnknown}, &self, name, argc, argv));
}

bool FlatType::ToText(MvValue value, char* buffer, u32 size)
{
    if (!buffer || size == 0)
        return false;

    const teskara_value self = WithType(value);
    *buffer = 0;
    const bool hasText = CallFlat(m_Table, m_Table.text, false, &self, buffer, size);
    buffer[size - 1] = 0;
    return hasText;
}
