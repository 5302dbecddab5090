#pragma once

class Decisions;

// A table of rows and cells that the bytes describe, some of which end as they are loaded; then a sequence of sizes that
// it is given, and of cells that are deleted. All of it is done to a model too.
void RunTableSteps(Decisions& bytes);
