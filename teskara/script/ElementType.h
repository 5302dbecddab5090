#pragma once

#include "teskara/core/BoundedText.h"
#include "teskara/element/TeskElement.h"
#include "teskara/script/ScriptActions.h"
#include "teskara/script/ScriptResults.h"
#include "teskara/script/TableType.h"

#include <type_traits>

// The element that a value stands for; null if it is of another class. Bases are what scripts see, and names travel up
// to types that are not for the class; and of an element that is being destroyed only the base is left.
template <class Control> Control* ElementOf(MvValue value)
{
    TeskElement* element = static_cast<TeskElement*>(value.Object);
    if constexpr (std::is_same_v<Control, TeskElement>)
        return element;
    else
        return dynamic_cast<Control*>(element);
}

// The script type of a kind of element. As a text, an element is its name.
template <class Control> class ElementType : public TableType<Control, ElementOf<Control>>
{
public:
    using TableType<Control, ElementOf<Control>>::TableType;

    bool ToText(MvValue value, char* buffer, u32 size) override
    {
        const TeskElement* element = static_cast<TeskElement*>(value.Object);
        if (!element || !buffer)
            return false;

        CopyBounded(buffer, size, element->Name);
        return true;
    }
};
