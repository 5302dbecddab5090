#pragma once

#include "teskara/script/PositionIterator.h"

class MvQueue;

// Walks a queue from its front to its back.
class TESKARA_EXPORT MvQueueIterator : public PositionIterator
{
public:
    explicit MvQueueIterator(MvQueue& queue, const IteratorFlags& flags = {});
};
