#pragma once

#include "teskara/core/Types.h"

#include <string>

// A file with elements of every kind that has a factory, side by side and one in another. The seed varies it.
std::string EventSceneMarkup(u8 seed);

// A small file, for scripts to load.
std::string EventPartMarkup();
