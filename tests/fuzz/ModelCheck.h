#pragma once

#include "teskara/core/CUIManager.h"
#include "teskara/core/platform/Platform.h"

#include <cstdio>
#include <cstdlib>

// Of targets that hold what they test against a plain model.

// Ends the program, with what went wrong, if a comparison fails.
inline void Require(bool holds, const char* what)
{
    if (holds)
        return;

    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

// The host of all inputs, with the toolkit started on it. platform: null for the system's own.
template <class Host> Host& StartedHost(Platform* platform = nullptr)
{
    static Host* host = [platform] {
        if (platform)
            SetPlatform(platform);
        auto* started = new Host; // outlives the library's end
        F1(started)->Initialize();
        return started;
    }();
    return *host;
}
