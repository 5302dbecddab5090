#include "teskara/script/MvSet.h"

#include "teskara/script/MvSetIterator.h"

#include <new>

std::unique_ptr<MvIterator> MvSet::NewIterator()
{
    return std::unique_ptr<MvIterator>(new (std::nothrow) MvSetIterator(*this));
}
