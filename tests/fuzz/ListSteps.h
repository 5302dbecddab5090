#pragma once

class Decisions;

// What scripts and the mouse do to a list, which stands alone or in a combo box, and to a model of it.
void RunSingleListSteps(Decisions& bytes);
void RunMultipleListSteps(Decisions& bytes);
void RunComboSteps(Decisions& bytes);
