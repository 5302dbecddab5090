#include "teskara/script/MvStackIterator.h"

#include "teskara/script/MvStack.h"

MvStackIterator::MvStackIterator(MvStack& stack, const IteratorFlags& flags) : PositionIterator(stack, flags) { }
