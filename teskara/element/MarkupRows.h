#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"
#include "teskara/element/MarkupWord.h"

#include <span>
#include <string>
#include <vector>

class TeskElement;

// A value that a kind reads from markup, as tools see it.
struct MarkupRow {
    const char* Tag;
    const char* Form; // how its text is read
    std::string Default; // empty where there is none; of an event the arguments of its script
    std::span<const MarkupWord> Words; // those that it may be, where it is one of a few
    bool IsEvent;
};

// A table by which some kind reads its values. All that exist form a list, through which EventNames.h tells of events.
// A control makes none itself: the table that it reads its markup by does.
class TESKARA_EXPORT MarkupRows
{
public:
    MarkupRows(const MarkupRows&) = delete;
    MarkupRows& operator=(const MarkupRows&) = delete;

    // Whether all elements have these values.
    virtual bool IsOfEveryKind() const = 0;

    // In the order of reading. Throws when there is no memory.
    virtual void AppendTo(std::vector<MarkupRow>& rows) const = 0;

    // The event whose script is the atom. Null: it is none of these, or the element is of another kind.
    virtual const char* NameOfEvent(const TeskElement& element, u32 atom) const = 0;

    static const MarkupRows* First() { return g_First; }
    const MarkupRows* Next() const { return m_Next; }

protected:
    MarkupRows();
    virtual ~MarkupRows();

private:
    static const MarkupRows* g_First;

    mutable const MarkupRows* m_Next;
};
