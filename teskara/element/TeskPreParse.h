#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <memory>

// As TeskDataSequence, but keeps the text itself, for a control that wants it back.
class TESKARA_EXPORT TeskPreParse
{
public:
    TeskPreParse() = default;
    explicit TeskPreParse(const char* text);
    ~TeskPreParse();
    TeskPreParse(const TeskPreParse&) = delete;
    TeskPreParse& operator=(const TeskPreParse&) = delete;

    // Takes a new text in place of the old; null leaves none, as does a lack of memory. text may be the present one.
    void PreParse(const char* text);
    void Clear();

    // At most size bytes with the end. False: buffer is not to be used. May run scripts.
    bool RetrieveProcessedText(char* buffer, unsigned int size);

    std::unique_ptr<char[]> Text; // unparsed; null for none
    u32 Sequence = 0; // host's; 0: there is no text to show
};
