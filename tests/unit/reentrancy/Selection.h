#pragma once

#include <cstddef>
#include <string>

struct Subject;

// Which cells of a subject are tried, of all its places by all its acts. An ordinary run takes every third act at each
// place, at the next place those after them and on the next subject again those after them. So each place meets a third
// of the acts and each act a third of the places, and what one subject leaves out the next two try. Besides, an act is
// tried at all places until it finds something to act on.
//
// TESKARA_MATRIX=all in the environment takes every cell, TESKARA_CELL=NAME that one alone.
class Selection
{
public:
    // Of how many cells one is taken.
    static constexpr std::size_t OneOf = 3;

    explicit Selection(const Subject& subject);

    // By the numbers of place and act among those of the subject.
    bool Takes(std::size_t place, std::size_t act) const;

    // What it leaves of so many cells.
    static std::size_t Share(std::size_t cells) { return TakesAll() ? cells : cells / OneOf; }

    // Of those that it takes only the one is run, if there is one.
    static bool HasOne();
    static bool Runs(const std::string& cell);

private:
    static bool TakesAll();

    std::size_t m_Subject;
};
