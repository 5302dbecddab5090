#include "teskara/script/MvObjectCollection.h"

#include "teskara/script/MvObjectCollectionIterator.h"

#include <new>

std::unique_ptr<MvIterator> MvObjectCollection::NewIterator()
{
    return std::unique_ptr<MvIterator>(new (std::nothrow) MvObjectCollectionIterator(*this));
}
