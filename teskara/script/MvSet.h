#pragma once

#include "teskara/script/MvContainer.h"

// A set of a host's, in which each value stands once. The host implements the questions of MvContainer, and scripts walk it. Position 1 is the first value in the order that the host keeps.
class TESKARA_EXPORT MvSet : public MvContainer
{
public:
    MvSet() : MvContainer("set") { }

    std::unique_ptr<MvIterator> NewIterator() override;
};
