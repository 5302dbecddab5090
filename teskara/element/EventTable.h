#pragma once

#include "teskara/core/Export.h"
#include "teskara/element/MarkupTable.h"

#include <cstddef>
#include <span>
#include <type_traits>
#include <vector>

// The events among the values that a control reads. A control has them known by a line below its table:
//
//     constexpr MarkupValue<TeskSlider> SliderScripts[] = {
//         {"OnChange", Markup::Script<&TeskSlider::OnChange>, ""},
//     };
//     const EventTable Events(SliderScripts);
//
// So a new event is a row of the form Markup::Script, and that line if the table had no events before: messages, tests
// and fuzzers then know it through EventNames.h.
class TESKARA_EXPORT EventRows
{
public:
    EventRows(const EventRows&) = delete;
    EventRows& operator=(const EventRows&) = delete;

    // Whether all elements have them.
    virtual bool IsOfEveryKind() const = 0;

    virtual void AppendNames(std::vector<const char*>& names) const = 0;

    // The event whose script is the atom. Null: it is none of these, or the element is of another kind.
    virtual const char* NameOf(const TeskElement& element, u32 atom) const = 0;

    static const EventRows* First() { return g_First; }
    const EventRows* Next() const { return m_Next; }

protected:
    EventRows();
    virtual ~EventRows();

private:
    static const EventRows* g_First;

    mutable const EventRows* m_Next;
};

template <class Owner> class EventTable final : public EventRows
{
public:
    template <std::size_t Count> explicit EventTable(const MarkupValue<Owner> (&values)[Count]) : m_Values(values) { }

    bool IsOfEveryKind() const override { return std::is_same_v<Owner, TeskElement>; }

    void AppendNames(std::vector<const char*>& names) const override
    {
        for (const MarkupValue<Owner>& value : m_Values) {
            if (value.Form.Script)
                names.push_back(value.Tag.Text);
        }
    }

    const char* NameOf(const TeskElement& element, u32 atom) const override
    {
        const auto* owner = dynamic_cast<const Owner*>(&element);
        if (!owner)
            return nullptr;

        for (const MarkupValue<Owner>& value : m_Values) {
            const TeskEmbeddedScript* script = value.Form.Script ? value.Form.Script(*owner).get() : nullptr;
            if (script && script->Atom == atom)
                return value.Tag.Text;
        }
        return nullptr;
    }

private:
    std::span<const MarkupValue<Owner>> m_Values;
};
