#include "tests/unit/reentrancy/Selection.h"

#include "tests/unit/reentrancy/Kinds.h"

#include <cstdlib>
#include <string_view>

namespace {

const char* OnlyCell()
{
    static const char* const cell = std::getenv("TESKARA_CELL");
    return cell;
}

} // namespace

Selection::Selection(const Subject& subject) : m_Subject(subject.Number) { }

bool Selection::Takes(std::size_t place, std::size_t act) const
{
    return TakesAll() || HasOne() || (m_Subject + place + act) % OneOf == 0;
}

bool Selection::TakesAll()
{
    static const char* const matrix = std::getenv("TESKARA_MATRIX");
    return matrix && std::string_view(matrix) == "all";
}

bool Selection::HasOne()
{
    return OnlyCell() != nullptr;
}

bool Selection::Runs(const std::string& cell)
{
    return !HasOne() || cell == OnlyCell();
}
