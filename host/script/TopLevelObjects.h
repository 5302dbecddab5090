#pragma once

#include "teskara/core/HostInterface.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace host {

// The objects that scripts and texts start from, such as UIElement. There are few of them.
class TopLevelObjects
{
public:
    void Add(const char* name, TopLevelObjectHandler handler)
    {
        Remove(name);
        m_Rows.push_back({name, handler});
    }

    void Remove(std::string_view name)
    {
        std::erase_if(m_Rows, [name](const Row& row) { return row.Name == name; });
    }

    // Null if there is none.
    TopLevelObjectHandler Find(std::string_view name) const
    {
        const auto found =
            std::find_if(m_Rows.begin(), m_Rows.end(), [name](const Row& row) { return row.Name == name; });
        return found == m_Rows.end() ? nullptr : found->Handler;
    }

    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const Row& row : m_Rows)
            names.push_back(row.Name);
        return names;
    }

private:
    struct Row {
        std::string Name;
        TopLevelObjectHandler Handler;
    };

    std::vector<Row> m_Rows;
};

} // namespace host
