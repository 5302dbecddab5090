#pragma once

#include "teskara/script/MvContainer.h"

// A queue of a host's. The host implements the questions of MvContainer, and scripts walk it. Position 1 is its front, which leaves it next.
class TESKARA_EXPORT MvQueue : public MvContainer
{
public:
    MvQueue() : MvContainer("queue") { }

    std::unique_ptr<MvIterator> NewIterator() override;
};
