#include "host/live/InterfaceState.h"

#include "host/live/StateField.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"

namespace host {

InterfaceState InterfaceState::Take()
{
    InterfaceState state;
    for (const auto& [path, id] : NumbersOfAll()) {
        TeskElement& element = *g_UIManager.FindElementByID(id);
        for (const StateField& field : StateFields())
            if (auto value = field.Read(element))
                state.m_Elements[path][field.Name] = std::move(*value);
        if (id == g_UIManager.FocusElementID)
            state.m_Focus = path;
    }
    if (g_UIManager.Screen)
        for (const TeskElement* child = g_UIManager.Screen->FirstChild; child; child = child->Next)
            state.m_Order.push_back(child->Name.c_str());
    return state;
}

void InterfaceState::AddNew(const InterfaceState& other)
{
    m_Elements.insert(other.m_Elements.begin(), other.m_Elements.end());
}

InterfaceState InterfaceState::ChangesSince(const InterfaceState& before) const
{
    InterfaceState changes;
    for (const auto& [path, values] : m_Elements) {
        const auto known = before.m_Elements.find(path);
        if (known == before.m_Elements.end())
            continue;
        for (const auto& [field, value] : values) {
            const auto then = known->second.find(field);
            if (then != known->second.end() && then->second != value)
                changes.m_Elements[path][field] = value;
        }
    }
    changes.m_Order = m_Order;
    changes.m_Focus = m_Focus;
    return changes;
}

void InterfaceState::PutBack(bool afterFrame) const
{
    const Numbers numbers = NumbersOfAll();
    for (const StateField& field : StateFields()) {
        for (const auto& [path, values] : m_Elements) {
            const auto value = values.find(field.Name);
            const auto number = numbers.find(path);
            if (field.AfterFrame != afterFrame || value == values.end() || number == numbers.end())
                continue;
            TeskElement* element = g_UIManager.FindElementByID(number->second);
            if (element && field.Read(*element))
                field.Write(*element, value->second);
        }
    }
    if (!afterFrame)
        PutBackOrder(numbers);
}

void InterfaceState::PutBackOrder(const Numbers& numbers) const
{
    for (const std::string& name : m_Order)
        if (TeskElement* element = g_UIManager.FindElement(name.c_str()))
            element->MoveZTop(false);
    const auto focus = numbers.find(m_Focus);
    TeskElement* element = focus == numbers.end() ? nullptr : g_UIManager.FindElementByID(focus->second);
    if (element && element->ID != g_UIManager.FocusElementID)
        g_UIManager.SetFocusElement(element);
}

// Namesakes are told apart by their order.
void InterfaceState::AddChildren(TeskElement& parent, const std::string& path, Numbers& numbers)
{
    for (TeskElement* child = parent.FirstChild; child; child = child->Next) {
        const std::string name = path + '/' + child->Name.c_str();
        std::string unique = name;
        for (int namesake = 2; numbers.contains(unique); ++namesake)
            unique = name + '#' + std::to_string(namesake);
        numbers[unique] = child->ID;
        AddChildren(*child, unique, numbers);
    }
}

InterfaceState::Numbers InterfaceState::NumbersOfAll()
{
    Numbers numbers;
    if (g_UIManager.Screen)
        AddChildren(*g_UIManager.Screen, "", numbers);
    return numbers;
}

} // namespace host
