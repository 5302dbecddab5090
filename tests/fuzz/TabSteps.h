#pragma once

class Decisions;

// What scripts and the mouse do to a tab control, whose tabs can be dragged or not, and to a model of it.
void RunFixedTabSteps(Decisions& bytes);
void RunDraggableTabSteps(Decisions& bytes);
