#include "teskara/script/MvStack.h"

#include "teskara/script/MvStackIterator.h"

#include <new>

std::unique_ptr<MvIterator> MvStack::NewIterator()
{
    return std::unique_ptr<MvIterator>(new (std::nothrow) MvStackIterator(*this));
}
