#include "teskara/element/ChildIndex.h"

#include "teskara/element/TeskElement.h"

void ChildIndex::Enter(TeskElement& child)
try {
    ForgetOrder();
    if (!m_Names.empty())
        AddName(child);
} catch (...) {
    m_Names.clear();
}

// The one that is left of two namesakes, or the one whose name is the key, is found by filling anew.
void ChildIndex::Leave(const TeskElement& child)
{
    const auto entry = m_Names.find(child.Name);
    if (entry == m_Names.end())
        return;

    if (entry->second)
        m_Names.erase(entry);
    else
        m_Names.clear();
}

std::span<TeskElement* const> ChildIndex::UpTo(const TeskElement& parent, const TeskElement& child)
{
    if (m_Children.empty())
        FillPlaces(parent);
    if (child.Place >= m_Children.size() || m_Children[child.Place] != &child)
        return {};

    return {m_Children.data(), child.Place + 1u};
}

std::optional<TeskElement*> ChildIndex::Find(const TeskElement& parent, std::string_view name)
{
    if (m_Names.empty())
        FillNames(parent);
    if (m_Names.empty())
        return std::nullopt;

    const auto entry = m_Names.find(name);
    if (entry == m_Names.end())
        return nullptr;
    return entry->second ? std::optional(entry->second) : std::nullopt;
}

void ChildIndex::FillPlaces(const TeskElement& parent)
try {
    for (TeskElement* child = parent.FirstChild; child; child = child->Next) {
        child->Place = static_cast<u32>(m_Children.size());
        m_Children.push_back(child);
    }
} catch (...) {
    m_Children.clear();
}

void ChildIndex::FillNames(const TeskElement& parent)
try {
    for (TeskElement* child = parent.FirstChild; child; child = child->Next)
        AddName(*child);
} catch (...) {
    m_Names.clear();
}

void ChildIndex::AddName(TeskElement& child)
{
    const auto [entry, isNew] = m_Names.try_emplace(child.Name, &child);
    if (!isNew)
        entry->second = nullptr;
}
