#pragma once

#include "teskara/core/utf8string.h"

// Has the host run a command, with its output sent to a console unless that has no name. The texts may belong to an
// element that the command, or a turn of the output, deletes.
void RunCommand(const utf8string& command, const utf8string& console);
