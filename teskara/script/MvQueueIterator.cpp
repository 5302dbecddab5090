#include "teskara/script/MvQueueIterator.h"

#include "teskara/script/MvQueue.h"

MvQueueIterator::MvQueueIterator(MvQueue& queue, const IteratorFlags& flags) : PositionIterator(queue, flags) { }
