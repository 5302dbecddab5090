#pragma once

#include "teskara/script/PositionIterator.h"

class MvIndex;

// Walks an index. The key is the position.
class TESKARA_EXPORT MvIndexIterator : public PositionIterator
{
public:
    explicit MvIndexIterator(MvIndex& index, const IteratorFlags& flags = {});
};
