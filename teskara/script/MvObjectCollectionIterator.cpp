#include "teskara/script/MvObjectCollectionIterator.h"

#include "teskara/script/MvObjectCollection.h"

MvObjectCollectionIterator::MvObjectCollectionIterator(MvObjectCollection& collection, const IteratorFlags& flags)
    : PositionIterator(collection, flags)
{
}
