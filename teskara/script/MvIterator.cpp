#include "teskara/script/MvIterator.h"

MvIterator::MvIterator(MvContainer& container, const IteratorFlags& flags) : m_Container(container), m_Flags(flags) { }

MvIterator::~MvIterator() = default;
