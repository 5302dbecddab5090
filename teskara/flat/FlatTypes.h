#pragma once

#include "teskara/script/MvTypeDefinition.h"

#include <memory>
#include <vector>

// The types of plain values, for programs that have none of their own. They know the texts of their values.
class FlatTypes
{
public:
    FlatTypes();

    // Null: there is no such type.
    MvTypeDefinition* Find(const char* name) const;

private:
    std::vector<std::unique_ptr<MvTypeDefinition>> m_Types;
};
