#pragma once

class Decisions;

// Lines that are typed, pasted, entered and recalled in a command entry and in a model of it; the commands that are
// run are compared too. The first two bytes choose the room for a line and for lines.
void RunHistorySteps(Decisions& bytes);
