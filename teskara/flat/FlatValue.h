#pragma once

#include "teskara/host.h"
#include "teskara/script/MvTypeVar.h"

#include <bit>
#include <cstddef>

// A typed value as the flat table knows it. Both are the same bytes.
static_assert(
    sizeof(teskara_value) == sizeof(_MvTypeVar) && offsetof(teskara_value, as) == offsetof(_MvTypeVar, Value));

inline teskara_type* ToFlat(MvTypeDefinition* type)
{
    return reinterpret_cast<teskara_type*>(type);
}

inline MvTypeDefinition* FromFlat(teskara_type* type)
{
    return reinterpret_cast<MvTypeDefinition*>(type);
}

inline const MvTypeDefinition* FromFlat(const teskara_type* type)
{
    return reinterpret_cast<const MvTypeDefinition*>(type);
}

inline teskara_value ToFlat(const _MvTypeVar& value)
{
    return std::bit_cast<teskara_value>(value);
}

inline _MvTypeVar FromFlat(const teskara_value& value)
{
    return std::bit_cast<_MvTypeVar>(value);
}

// Hands a place for a value to fill(teskara_value*). False, and result as it was: there is none.
template <class Fill> bool TakeFlat(_MvTypeVar& result, Fill&& fill)
{
    teskara_value value = {};
    if (!fill(&value))
        return false;
    result = FromFlat(value);
    return true;
}
