#pragma once

#include "host/script/Variables.h"
#include "teskara/core/Types.h"

#include <string>
#include <string_view>
#include <unordered_map>

namespace host {

// Texts with parts of the form ${Name}, which are replaced by a variable's value at each use.
class DataSequences
{
public:
    // The variables are borrowed.
    explicit DataSequences(const Variables& variables);

    // Writes a text with its parts replaced, at most size bytes with the end. The output may be the text itself.
    void Expand(std::string_view text, char* output, u32 size);

    // Keeps a text for later. 0 if there are no more ids.
    u32 Keep(const char* text);
    void Free(u32 sequence);

    // The kept text, as it was or with its parts replaced. False: there is no such sequence.
    bool WriteOriginal(u32 sequence, char* buffer, u32 size) const;
    bool WriteProcessed(u32 sequence, char* buffer, u32 size);

private:
    const Variables& m_Variables;
    std::unordered_map<u32, std::string> m_Texts;
    std::string m_Expanded; // keeps its memory between uses
    u32 m_LastID = 0;
};

} // namespace host
