#pragma once

#include <vector>

// The commands UI, UIElement, MessageBox and InputBox.
void RegisterCommands();
void RemoveCommands();

// Their names, for tools. Throws when there is no memory.
std::vector<const char*> CommandNames();
