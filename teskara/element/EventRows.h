#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <vector>

class TeskElement;

// The events that some kind reads from markup. All that exist form a list, through which EventNames.h tells of them. A
// control makes none itself: the table that it reads its markup by makes one for its events.
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
