#pragma once

class Decisions;

// What happens to a text entry, in a field whose length the first byte chooses, and to a model of it.
void RunEntrySteps(Decisions& bytes);
