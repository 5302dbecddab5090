#pragma once

class Decisions;

// What programs and scripts do to a map and to a view of it, and to a model of both.
void RunMapSteps(Decisions& bytes);
