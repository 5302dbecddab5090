#pragma once

#include "teskara/collections/TeskTree.h"
#include "teskara/script/ElementType.h"

// tesktree: the looks, the selection and the nodes of a tree.
class TeskTreeType : public ElementType<TeskTree>
{
public:
    explicit TeskTreeType(const char* name);
};
