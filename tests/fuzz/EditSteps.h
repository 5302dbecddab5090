#pragma once

class Decisions;

// What happens to a text edit with a scroll bar, and to a model of it.
void RunEditSteps(Decisions& bytes);
