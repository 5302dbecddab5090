#pragma once

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"

// Tells whether an element outlived a call during which scripts could run. Take one before the call, ask it afterwards,
// and touch nothing of the element if it says no.
//
// These may run a script, and so delete anything: the host's ExecuteAtom, ExecuteAtomForText, ExecuteCommand,
// DataParse, RetrieveProcessedText, RetrieveProcessedResult, Calculate, ParseTypedValue, CreateQuery, EvaluateQuery,
// CompleteCommandLine, SaveElementPosition, LoadElementPosition, SetOutputConsole and PrintLine; every OnNotify; every
// virtual operation of a class that is not ours; and whatever reaches one of them.
class ElementWatch
{
public:
    explicit ElementWatch(const TeskElement& element) : ElementWatch(&element) { }

    // A watch on null says from the start that there is nothing.
    explicit ElementWatch(const TeskElement* element)
        : m_Element(element), m_ID(element ? element->ID : 0), m_Deaths(g_UIManager.GetElementDeaths())
    {
    }

    // Cheap while nothing at all has died.
    bool Exists() const
    {
        if (g_UIManager.GetElementDeaths() == m_Deaths)
            return m_Element != nullptr;

        return m_ID != 0 && g_UIManager.FindElementByID(m_ID) == m_Element;
    }

    // The element, or null if it is gone.
    TeskElement* Get() const { return Exists() ? const_cast<TeskElement*>(m_Element) : nullptr; }

    u32 GetID() const { return m_ID; }

private:
    const TeskElement* m_Element;
    u32 m_ID;
    u32 m_Deaths;
};
