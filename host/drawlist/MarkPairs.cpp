#include "host/drawlist/MarkPairs.h"

#include "teskara/core/Numbers.h"

#include <algorithm>
#include <map>
#include <span>

namespace host {

namespace {

// The table of what two lists have in common is as large as their product; longer ones are paired by their order.
constexpr std::size_t LargestTable = 1u << 22;

using Marks = std::span<const ElementMark>;

bool LooksLike(const ElementMark& left, const ElementMark& right)
{
    return left.Operation == right.Operation && left.Mark->Values == right.Mark->Values;
}

_Point2i Way(const ElementMark& from, const ElementMark& to)
{
    return {WrapSub(to.Mark->Place.left, from.Mark->Place.left), WrapSub(to.Mark->Place.top, from.Mark->Place.top)};
}

bool IsMovedBy(const ElementMark& from, const ElementMark& to, _Point2i way)
{
    const tagRECT& old = from.Mark->Place;
    const tagRECT& now = to.Mark->Place;
    return now.left == WrapAdd(old.left, way.x) && now.right == WrapAdd(old.right, way.x)
        && now.top == WrapAdd(old.top, way.y) && now.bottom == WrapAdd(old.bottom, way.y) && LooksLike(from, to);
}

// How far the element has moved: as far as most of what looks alike. None if that is not clear.
_Point2i FindWay(Marks before, Marks after)
{
    std::map<std::pair<i32, i32>, int> votes;
    std::size_t next = 0;
    for (const ElementMark& mark : before) {
        for (std::size_t at = next; at < std::min(after.size(), next + 64); ++at) {
            if (!LooksLike(mark, after[at]))
                continue;
            const _Point2i way = Way(mark, after[at]);
            ++votes[{way.x, way.y}];
            next = at + 1;
            break;
        }
    }
    std::pair<i32, i32> best = {0, 0};
    for (const auto& [way, count] : votes)
        if (count > votes[best])
            best = way;
    return {best.first, best.second};
}

class Pairing
{
public:
    Pairing(Marks before, Marks after) : m_Way(FindWay(before, after)) { Pair(before, after); }

    std::vector<MarkPair> Take() { return std::move(m_Pairs); }

private:
    void Add(const ElementMark& before, const ElementMark& after)
    {
        m_Pairs.push_back({before.Operation, before.Mark, after.Mark});
    }

    // Same ends are taken off first: mostly there is nothing else.
    void Pair(Marks before, Marks after)
    {
        while (!before.empty() && !after.empty() && IsMovedBy(before.front(), after.front(), m_Way)) {
            Add(before.front(), after.front());
            before = before.subspan(1);
            after = after.subspan(1);
        }
        const std::size_t ends = CountSameEnds(before, after);
        const Marks left = before.first(before.size() - ends);
        const Marks right = after.first(after.size() - ends);
        if (left.empty() || right.empty() || left.size() * right.size() > LargestTable)
            PairRest(left, right);
        else
            PairCommon(left, right);
        for (std::size_t at = 0; at < ends; ++at)
            Add(before[left.size() + at], after[right.size() + at]);
    }

    std::size_t CountSameEnds(Marks before, Marks after) const
    {
        std::size_t count = 0;
        while (count < std::min(before.size(), after.size())
            && IsMovedBy(before[before.size() - 1 - count], after[after.size() - 1 - count], m_Way))
            ++count;
        return count;
    }

    // The longest sequence that both have, and what lies between its parts.
    void PairCommon(Marks before, Marks after)
    {
        const std::size_t width = after.size() + 1;
        std::vector<u32> lengths((before.size() + 1) * width);
        for (std::size_t left = before.size(); left-- > 0;)
            for (std::size_t right = after.size(); right-- > 0;)
                lengths[left * width + right] = IsMovedBy(before[left], after[right], m_Way)
                    ? lengths[(left + 1) * width + right + 1] + 1
                    : std::max(lengths[(left + 1) * width + right], lengths[left * width + right + 1]);

        std::size_t left = 0;
        std::size_t right = 0;
        std::size_t restLeft = 0;
        std::size_t restRight = 0;
        while (left < before.size() && right < after.size()) {
            if (IsMovedBy(before[left], after[right], m_Way)) {
                PairRest(before.subspan(restLeft, left - restLeft), after.subspan(restRight, right - restRight));
                Add(before[left], after[right]);
                restLeft = ++left;
                restRight = ++right;
            } else if (lengths[(left + 1) * width + right] >= lengths[left * width + right + 1]) {
                ++left;
            } else {
                ++right;
            }
        }
        PairRest(before.subspan(restLeft), after.subspan(restRight));
    }

    // The first of an operation with the first one, and so on.
    void PairRest(Marks before, Marks after)
    {
        std::vector<bool> isTaken(after.size());
        std::map<std::string_view, std::size_t> searched; // where the search for an operation goes on
        for (const ElementMark& mark : before) {
            std::size_t& at = searched[mark.Operation];
            while (at < after.size() && after[at].Operation != mark.Operation)
                ++at;
            if (at == after.size()) {
                m_Pairs.push_back({mark.Operation, mark.Mark, nullptr});
                continue;
            }
            isTaken[at] = true;
            Add(mark, after[at++]);
        }
        for (std::size_t at = 0; at < after.size(); ++at)
            if (!isTaken[at])
                m_Pairs.push_back({after[at].Operation, nullptr, after[at].Mark});
    }

    _Point2i m_Way;
    std::vector<MarkPair> m_Pairs;
};

} // namespace

std::vector<MarkPair> PairMarks(const std::vector<ElementMark>& before, const std::vector<ElementMark>& after)
{
    return Pairing(before, after).Take();
}

} // namespace host
