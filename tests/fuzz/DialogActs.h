#pragma once

#include "teskara/core/Types.h"

class HostScript;

// Menus and dialogs, which no markup makes: what a host or a script does with them in the middle of everything. The
// argument chooses among what there is.

void OpenFuzzMenu(u8 argument);
void CloseFuzzMenu(u8 argument);
void ShowFuzzBox(u8 argument);

// The handlers of the menus, and the script that the boxes answer. They go; new ones come when they are needed.
void EndFuzzMenus();
HostScript* FuzzScriptOfBoxes();
void EndFuzzScript();
