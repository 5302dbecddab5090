#pragma once

#include <vector>

// The objects UIElement, UserInput and Teskara, with which every reference from a script begins.
void RegisterTopLevelObjects();
void RemoveTopLevelObjects();

// Their names, for tools. Throws when there is no memory.
std::vector<const char*> TopLevelObjectNames();
