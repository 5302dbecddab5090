#include "tests/fuzz/IndexModel.h"

#include <algorithm>

u32 IndexModel::Add(const Word& word)
{
    if (Locked || !word)
        return 0;

    const auto free = std::find(Words.begin(), Words.end(), Word());
    const auto place = static_cast<std::size_t>(free - Words.begin());
    if (free == Words.end())
        Words.resize(Words.size() + 10);
    Words[place] = word;
    return static_cast<u32>(place) + 1;
}

bool IndexModel::Set(u32 position, const Word& word)
{
    if (Locked || !word || !Has(position))
        return false;

    Words[position - 1] = word;
    return true;
}

bool IndexModel::Remove(u32 position)
{
    if (Locked || !At(position))
        return false;

    Words[position - 1] = {};
    return true;
}

bool IndexModel::Collapse()
{
    if (Locked)
        return false;

    const std::size_t size = Words.size();
    std::erase(Words, Word());
    Words.resize(size);
    return true;
}

bool IndexModel::Resize(u32 size)
{
    if (Locked || size <= Words.size())
        return false;

    Words.resize(size);
    return true;
}

bool IndexModel::Swap(u32 a, u32 b)
{
    if (Locked || (a != b && !(Has(a) && Has(b))))
        return false;

    if (a != b)
        std::swap(Words[a - 1], Words[b - 1]);
    return true;
}

bool IndexModel::Move(u32 from, u32 to)
{
    if (Locked || (from != to && !(Has(from) && Has(to))))
        return false;

    if (from != to) {
        Words[to - 1] = Words[from - 1];
        Words[from - 1] = {};
    }
    return true;
}

bool IndexModel::Clear()
{
    if (Locked)
        return false;

    std::fill(Words.begin(), Words.end(), Word());
    return true;
}

u32 IndexModel::Count() const
{
    return static_cast<u32>(Words.size()) - static_cast<u32>(std::count(Words.begin(), Words.end(), Word()));
}

bool WalkModel::Go(const IndexModel& index, bool upwards)
{
    const u64 size = index.Words.size();
    Position = std::min(Position, size + 1);
    do {
        if (upwards ? Position >= size : Position <= 1) {
            Position = upwards ? size + 1 : 0;
            return false;
        }
        Position = upwards ? Position + 1 : Position - 1;
    } while (!index.At(static_cast<u32>(Position)));
    return true;
}
