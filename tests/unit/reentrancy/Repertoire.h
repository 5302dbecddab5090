#pragma once

#include "tests/unit/reentrancy/Bomb.h"

#include <functional>
#include <string>
#include <vector>

struct Subject;

// What can happen to a subject: the places that it reaches, each with a way there, and the acts that are something for
// it. What the tables state is here as it stands there; the rest was found out by going every way once.
struct Repertoire {
    struct Stop {
        std::string Place;
        std::string Way;
        void (*Drive)();
    };

    struct Deed {
        std::string Name;
        std::function<bool()> Act; // false: there was nothing to do it to
        bool MayMiss; // at every place
    };

    std::vector<Stop> Stops;
    std::vector<Deed> Deeds;
};

// build makes a scene with the subject, clear ends it.
Repertoire FindRepertoire(
    const Subject& subject, const std::function<void()>& build, const std::function<void()>& clear);
