#include "teskara/element/ChildIndex.h"

#include "teskara/element/TeskElement.h"

std::span<TeskElement* const> ChildIndex::UpTo(const TeskElement& parent, const TeskElement& child)
{
    if (m_Children.empty())
        Fill(parent);
    if (child.Place >= m_Children.size() || m_Children[child.Place] != &child)
        return {};

    return {m_Children.data(), child.Place + 1u};
}

void ChildIndex::Fill(const TeskElement& parent)
try {
    for (TeskElement* child = parent.FirstChild; child; child = child->Next) {
        child->Place = static_cast<u32>(m_Children.size());
        m_Children.push_back(child);
    }
} catch (...) {
    m_Children.clear();
}
