#pragma once

#include "teskara/core/Types.h"

class TeskElement;

// Does something to the nodes of a tree, which is the element, its parent, or one of the scene.
void ShakeFuzzTree(TeskElement& self, u8 argument);
