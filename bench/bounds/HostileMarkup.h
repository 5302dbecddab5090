#pragma once

#include <cstddef>
#include <span>
#include <string>

// A shape of markup that a parser or the templates may be tempted to spend more on than it is worth.
struct HostileShape {
    const char* Name;
    const char* About;
    bool IsLoaded; // as a file of templates, whereas the others are only parsed
    std::string (*Write)(std::size_t bytes); // so many bytes, but for less than a unit of the shape
    std::size_t HeapFactor = 24; // bytes of heap that each of its bytes may take
    std::size_t HeapBesides = 0; // what it may take besides, by a limit of its own
};

std::span<const HostileShape> HostileShapes();
