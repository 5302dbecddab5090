#include "teskara/script/MvStack.h"

#include "teskara/script/MvStackIterator.h"

std::unique_ptr<MvIterator> MvStack::NewIterator()
{
    return std::make_unique<MvStackIterator>(*this);
}
