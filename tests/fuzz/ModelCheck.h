#pragma once

#include "teskara/core/CUIManager.h"
#include "teskara/core/platform/Platform.h"
#include "teskara/element/TeskScreen.h"
#include "tests/fuzz/ChaosHost.h"

#include <cstdio>
#include <cstdlib>

// Of targets that hold what they test against a plain model.

// How many steps an input has at most: mistakes show within few, and short inputs are run more often.
constexpr std::size_t MostModelSteps = 100;

// One of the scenes of a target, of which the first byte of an input chooses one.
struct ModelScene {
    const char* Name;
    void (*Run)(Decisions& bytes);
};

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

// Stores a template for all inputs: reading markup is most of what a short input costs.
inline XMLNode* KeptTemplate(const char* name, const char* markup)
{
    XMLNode* node = g_UIManager.FindTemplate(name);
    return node ? node : g_UIManager.AddTemplate(name, markup);
}

// Makes an element of that name on the screen. values: what it reads; null for an element without markup.
template <class Control> Control& MakeOnScreen(const char* kind, const char* name, XMLNode* values)
{
    auto* element = values ? g_UIManager.LoadElement(g_UIManager.Screen, kind, name, values, nullptr)
                           : g_UIManager.LoadElement(g_UIManager.Screen, kind, name);
    auto* control = dynamic_cast<Control*>(element);
    Require(control, "the scene was not made");
    return *control;
}
