#include "teskara/script/PositionIterator.h"

#include "teskara/script/MvContainer.h"
#include "teskara/script/TypeGlobals.h"

#include <algorithm>
#include <limits>

namespace {

constexpr u32 Before = 0;
constexpr u32 Behind = std::numeric_limits<u32>::max();

} // namespace

PositionIterator::PositionIterator(MvContainer& container, const IteratorFlags& flags)
    : MvIterator(container, flags), m_Position(flags.Forward ? Before : Behind)
{
}

bool PositionIterator::First()
{
    return Start(Onward());
}

bool PositionIterator::Last()
{
    return GetFlags().Reversible && Start(Backward());
}

bool PositionIterator::Next()
{
    return Walk(Onward());
}

bool PositionIterator::Previous()
{
    return GetFlags().Reversible && Walk(Backward());
}

bool PositionIterator::IsValid()
{
    _MvTypeVar entry;
    return ReadEntry(entry);
}

bool PositionIterator::GetKey(_MvTypeVar& result)
{
    if (!pInt64Type || !IsValid())
        return false;

    result.Value = {};
    result.Value.Integer64 = m_Position;
    result.Type = pInt64Type;
    return true;
}

bool PositionIterator::GetValue(_MvTypeVar& result)
{
    _MvTypeVar entry;
    if (!ReadEntry(entry))
        return false;

    result = entry;
    return true;
}

bool PositionIterator::Start(Direction direction)
{
    m_Position = direction == Direction::Up ? Before : Behind;
    return Walk(direction);
}

// Goes to the next position that has an entry; where there is none, out of the container. The container may change
// or go at each question.
bool PositionIterator::Walk(Direction direction)
{
    for (;;) {
        const u32 size = Size();
        const bool isOver = direction == Direction::Up ? m_Position >= size : m_Position <= 1 || size == 0;
        if (isOver) {
            m_Position = direction == Direction::Up ? size + 1 : Before;
            return false;
        }
        m_Position = direction == Direction::Up ? m_Position + 1 : std::min(m_Position - 1, size);
        if (IsValid())
            return true;
    }
}

// At most one less than Behind. A container of a host's that throws has no entries.
u32 PositionIterator::Size() const
{
    try {
        MvContainer* container = GetContainer();
        return container ? std::min(container->GetSize(), Behind - 1) : 0;
    } catch (...) {
        return 0;
    }
}

bool PositionIterator::ReadEntry(_MvTypeVar& result) const
{
    try {
        MvContainer* container = GetContainer();
        return container && container->GetEntry(m_Position, result);
    } catch (...) {
        return false;
    }
}
