#pragma once

#include "teskara/core/Export.h"

class TeskTreeNode;

// Walks from node to node along their links, in the order in which they are drawn. Trees may be a million nodes deep, so
// nothing here goes down into itself.
namespace TreeWalk {

// The node below, else the one behind this one or behind the nearest node above it that has one; null at the end. Below
// a collapsed node only if collapsed ones are included.
TESKARA_EXPORT TeskTreeNode* Next(const TeskTreeNode& node, bool includeCollapsed);

// The same with all collapsed ones, and null where the nodes below top end.
TESKARA_EXPORT TeskTreeNode* NextBelow(const TeskTreeNode& top, const TeskTreeNode& node);

} // namespace TreeWalk
