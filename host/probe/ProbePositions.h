#pragma once

#include "host/probe/ValueText.h"

#include <map>
#include <string>

struct StoredPosition {
    std::string Name; // full name, as it was given last
    i32 X = 0;
    i32 Y = 0;
    u32 Width = 0;
    u32 Height = 0;
};

// What is kept of elements by full name, without regard to case, in the order of the names.
class ProbePositions
{
public:
    void Store(const StoredPosition& position) { m_Positions[LowerCase(position.Name)] = position; }

    // Null if there is none.
    const StoredPosition* Find(const std::string& name) const
    {
        const auto found = m_Positions.find(LowerCase(name));
        return found != m_Positions.end() ? &found->second : nullptr;
    }

    const std::map<std::string, StoredPosition>& All() const { return m_Positions; }

private:
    std::map<std::string, StoredPosition> m_Positions;
};
