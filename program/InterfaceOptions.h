#pragma once

#include "program/DisplaySize.h"

#include <string>
#include <vector>

namespace CLI {
class App;
}

// The options of the commands that show interfaces: which files, how large, in which skin.
struct InterfaceOptions {
    std::vector<std::string> Files;
    DisplaySize Size;
    float Scale = 1; // pixels of what is shown for each of the interface
    std::string Skin; // empty for the first one
    bool Trust = false; // scripts may use all of Lua

    void AddTo(CLI::App& command);
};
