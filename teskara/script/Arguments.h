#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <string_view>

// The texts that a script handed to a member, a method, an object or a command, and the ways to read them. The texts
// are the host's and are borrowed. An argument that is not there, or is null, reads as the empty text.
class TESKARA_EXPORT Arguments
{
public:
    Arguments(int count, const char* const* texts) : m_Texts(texts), m_Count(texts && count > 0 ? count : 0) { }

    int Count() const { return m_Count; }
    bool Has(int index) const { return index >= 0 && index < m_Count; }
    const char* Text(int index) const;

    // Leading decimal digits with their sign; 0 without digits.
    i32 Integer(int index) const;
    float Float(int index) const;

    // Hexadecimal digits. False, and color as it was: there are none.
    bool Color(int index, u32& color) const;

    // Without regard to case.
    bool IsWord(int index, std::string_view word) const;

    // Whether the text is a number rather than a name: digits and points behind an optional "-".
    bool IsNumber(int index) const;

    // What the host's expression evaluates to is not zero. May run scripts; one that cannot be evaluated is false.
    bool Calculated(int index) const;

    // The word "TRUE" in any case, or a number that is not zero.
    bool IsTrue(int index) const;

private:
    const char* const* m_Texts;
    int m_Count;
};
