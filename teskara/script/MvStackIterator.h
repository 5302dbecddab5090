#pragma once

#include "teskara/script/PositionIterator.h"

class MvStack;

// Walks a stack from its top down.
class TESKARA_EXPORT MvStackIterator : public PositionIterator
{
public:
    explicit MvStackIterator(MvStack& stack, const IteratorFlags& flags = {});
};
