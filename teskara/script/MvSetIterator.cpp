#include "teskara/script/MvSetIterator.h"

#include "teskara/script/MvSet.h"

MvSetIterator::MvSetIterator(MvSet& set, const IteratorFlags& flags) : PositionIterator(set, flags) { }
