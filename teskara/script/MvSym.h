#pragma once

#include "teskara/core/Export.h"

// What a script engine holds by its address: the root of its containers and iterators.
class TESKARA_EXPORT MvSym
{
public:
    MvSym() = default;
    virtual ~MvSym();
    MvSym(const MvSym&) = delete;
    MvSym& operator=(const MvSym&) = delete;
};
