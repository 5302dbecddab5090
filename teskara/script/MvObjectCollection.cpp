#include "teskara/script/MvObjectCollection.h"

#include "teskara/script/MvObjectCollectionIterator.h"

std::unique_ptr<MvIterator> MvObjectCollection::NewIterator()
{
    return std::make_unique<MvObjectCollectionIterator>(*this);
}
