#include "teskara/script/MvQueue.h"

#include "teskara/script/MvQueueIterator.h"

#include <new>

std::unique_ptr<MvIterator> MvQueue::NewIterator()
{
    return std::unique_ptr<MvIterator>(new (std::nothrow) MvQueueIterator(*this));
}
