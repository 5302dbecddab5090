#pragma once

#include "teskara/core/Types.h"
#include "teskara/script/MvIterator.h"

// Walks by position and skips those without an entry. The key is the position, as an int64. Positions are looked up at
// each use, so an entry that goes under the iterator is no longer there, and the walk goes on behind it.
class TESKARA_EXPORT PositionIterator : public MvIterator
{
public:
    explicit PositionIterator(MvContainer& container, const IteratorFlags& flags = {});

    bool First() override;
    bool Last() override;
    bool Next() override;
    bool Previous() override;
    bool IsValid() override;
    bool GetKey(_MvTypeVar& result) override;
    bool GetValue(_MvTypeVar& result) override;

private:
    enum class Direction { Up, Down };

    Direction Onward() const { return GetFlags().Forward ? Direction::Up : Direction::Down; }
    Direction Backward() const { return GetFlags().Forward ? Direction::Down : Direction::Up; }
    bool Start(Direction direction);
    bool Walk(Direction direction);
    u32 Size() const;
    bool ReadEntry(_MvTypeVar& result) const;

    u32 m_Position; // 0 before the first one; beyond the size behind the last one
};
