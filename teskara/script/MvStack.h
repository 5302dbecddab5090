#pragma once

#include "teskara/script/MvContainer.h"

// A stack of a host's. The host implements the questions of MvContainer, and scripts walk it. Position 1 is its top, which leaves it next.
class TESKARA_EXPORT MvStack : public MvContainer
{
public:
    MvStack() : MvContainer("stack") { }

    std::unique_ptr<MvIterator> NewIterator() override;
};
