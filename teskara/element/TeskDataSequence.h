#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

struct _MvTypeVar;

// A text with data sequences, parsed once by the host and evaluated at each use. Only the host's id is kept; the host
// is asked for the text itself. Evaluation may run scripts.
class TESKARA_EXPORT TeskDataSequence
{
public:
    TeskDataSequence() = default;
    explicit TeskDataSequence(const char* text);

    // Gives the id back, 0 included.
    ~TeskDataSequence();
    TeskDataSequence(const TeskDataSequence&) = delete;
    TeskDataSequence& operator=(const TeskDataSequence&) = delete;

    // Takes a new text in place of the old; null leaves none.
    void PreParse(const char* text);
    void Clear();

    // At most size bytes with the end. False: buffer is not to be used.
    bool RetrieveOriginalText(char* buffer, unsigned int size);
    bool RetrieveProcessedText(char* buffer, unsigned int size);
    bool RetrieveProcessedResult(_MvTypeVar& result);

    u32 Sequence = 0; // host's, 0 for none
};
