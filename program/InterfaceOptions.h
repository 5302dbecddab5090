#pragma once

#include "program/DisplaySize.h"

#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

// The options of the commands that show interfaces: which files, how large, in which skin.
struct InterfaceOptions {
    std::vector<std::string> Files;
    DisplaySize Size;
    float Scale = 1; // pixels of what is shown for each of the interface
    std::string Skin; // empty for the first one
    bool Trust = false; // scripts may use all of Lua

    std::string Record; // the file of a recording; empty for none

    // The result is the one for the files, which are needed.
    CLI::Option* AddTo(CLI::App& command);
    CLI::Option* AddRecord(CLI::App& command);
};
