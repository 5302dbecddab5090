#pragma once

#include "teskara/script/PositionIterator.h"

class MvSet;

// Walks a set in its order.
class TESKARA_EXPORT MvSetIterator : public PositionIterator
{
public:
    explicit MvSetIterator(MvSet& set, const IteratorFlags& flags = {});
};
