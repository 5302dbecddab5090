#include "teskara/script/MvSet.h"

#include "teskara/script/MvSetIterator.h"

std::unique_ptr<MvIterator> MvSet::NewIterator()
{
    return std::make_unique<MvSetIterator>(*this);
}
