#pragma once

class Decisions;

// What scripts and the mouse do to a tree and to a model of it.
void RunTreeSteps(Decisions& bytes);
