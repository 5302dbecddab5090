#pragma once

#include "teskara/script/PositionIterator.h"

class MvObjectCollection;

// Walks a collection of objects.
class TESKARA_EXPORT MvObjectCollectionIterator : public PositionIterator
{
public:
    explicit MvObjectCollectionIterator(MvObjectCollection& collection, const IteratorFlags& flags = {});
};
