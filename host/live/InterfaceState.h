#pragma once

#include "teskara/core/Types.h"

#include <map>
#include <string>
#include <vector>

class TeskElement;

namespace host {

// What users have changed of the elements on the screen: where windows are, what was typed, chosen and scrolled. Elements
// are known by their names and those of their parents, so it can be put back when their files are loaded again.
class InterfaceState
{
public:
    // As it is now.
    static InterfaceState Take();

    // Takes over the elements that are not known yet.
    void AddNew(const InterfaceState& other);

    // The values that are different here from what they were. What elements were not known then counts as unchanged.
    InterfaceState ChangesSince(const InterfaceState& before) const;

    // Both run scripts. What is put back after a frame needs the elements to have been drawn.
    void PutBack() const { PutBack(false); }
    void PutBackAfterFrame() const { PutBack(true); }

    bool IsEmpty() const { return m_Elements.empty() && m_Focus.empty() && m_Order.empty(); }

private:
    using Values = std::map<std::string, std::string>; // by the name of the field
    using Numbers = std::map<std::string, u32>; // of the elements, by their path

    static void AddChildren(TeskElement& parent, const std::string& path, Numbers& numbers);
    static Numbers NumbersOfAll();
    void PutBack(bool afterFrame) const;
    void PutBackOrder(const Numbers& numbers) const;

    std::map<std::string, Values> m_Elements;
    std::vector<std::string> m_Order; // of what stands directly under the screen, from the bottom
    std::string m_Focus; // empty: nothing has the keyboard
};

} // namespace host
