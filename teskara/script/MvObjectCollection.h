#pragma once

#include "teskara/script/MvContainer.h"

// A collection of objects that a host keeps. The host implements the questions of MvContainer, and scripts walk it. Position 1 is the first object in the order that the host keeps.
class TESKARA_EXPORT MvObjectCollection : public MvContainer
{
public:
    MvObjectCollection() : MvContainer("objectcollection") { }

    std::unique_ptr<MvIterator> NewIterator() override;
};
