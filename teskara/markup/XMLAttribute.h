#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <string_view>

// A name and a value of a node. It lives in the memory of its node's tree and goes with it.
class TESKARA_EXPORT XMLAttribute
{
public:
    XMLAttribute(const XMLAttribute&) = delete;
    XMLAttribute& operator=(const XMLAttribute&) = delete;
    virtual ~XMLAttribute();

    // Ends the attribute. It does not take itself out of its node's list; the memory returns with the tree.
    virtual void Delete();

    // Compares without regard to case.
    bool HasName(std::string_view name, u32 foldedHash) const;

    const char* Name = ""; // never null, as spelled in the markup
    const char* Value = ""; // never null
    XMLAttribute* Next = nullptr;

private:
    friend class XMLArena;

    XMLAttribute() = default;
    static void operator delete(void*) { }

    u32 m_NameHash = 0;
    u32 m_NameLength = 0;
};
