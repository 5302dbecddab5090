#pragma once

#include <string>

// An empty folder for the files of a run; empty if it cannot be made.
std::string MakeProbeFolder();

// Removes it with all that is in it.
void RemoveProbeFolder(const std::string& folder);
