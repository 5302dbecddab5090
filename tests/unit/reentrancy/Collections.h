#pragma once

// Rows, nodes, tabs, blips, lines or text, whichever the element under test holds. False: it holds nothing of the sort.
// Whatever happens in between, both stop at its end.
bool EmptyCollection();
bool FillCollection();
