#pragma once

class Arguments;

// UI: resets the toolkit, and loads and unloads interface files. The first argument is the command's own name. -1: the
// file could not be loaded or unloaded; calls that are written wrongly print how they are written, and give 0.
int RunUICommand(const Arguments& arguments);
