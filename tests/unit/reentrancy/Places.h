#pragma once

#include "teskara/core/Types.h"

#include <span>

// A row of the matrix: somewhere the toolkit calls out, and a way that leads there. One place may be reached on several
// ways, each a row of its own.
struct Place {
    const char* Name; // what the bomb is told there
    const char* Way; // tells the ways to one place apart
    u64 Needs; // traits of the kinds that reach it: all of these, and no other kind does
    void (*Drive)();
    u64 Unless = 0; // no kind with one of these traits reaches it
};

std::span<const Place> AllPlaces();

// A way that no row names. What it leads to is found out for each kind.
struct Way {
    const char* Name;
    void (*Drive)();
};

std::span<const Way> MoreWays();
