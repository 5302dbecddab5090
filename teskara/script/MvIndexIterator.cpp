#include "teskara/script/MvIndexIterator.h"

#include "teskara/script/MvIndex.h"

MvIndexIterator::MvIndexIterator(MvIndex& index, const IteratorFlags& flags) : PositionIterator(index, flags) { }
