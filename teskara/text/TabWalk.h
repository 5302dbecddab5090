#pragma once

class TeskElement;

// Gives the keyboard to the next visible text field in the order of the whole tree, or with Shift to the one before.
// There is no way around the ends: after the last field nothing happens. May run scripts.
void WalkToTextField(TeskElement& from);
