#include "teskara/script/MvQueue.h"

#include "teskara/script/MvQueueIterator.h"

std::unique_ptr<MvIterator> MvQueue::NewIterator()
{
    return std::make_unique<MvQueueIterator>(*this);
}
