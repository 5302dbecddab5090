#include "teskara/element/TeskDataSequence.h"

#include "teskara/core/HostCalls.h"

namespace {

// The host is to keep the text, since RetrieveOriginalText asks for it.
constexpr u32 KeepText = 1;

} // namespace

TeskDataSequence::TeskDataSequence(const char* text) : Sequence(Host::PreParseSequence(text ? text : "", KeepText)) { }

TeskDataSequence::~TeskDataSequence()
{
    Host::FreeSequence(Sequence);
}

void TeskDataSequence::PreParse(const char* text)
{
    Clear();
    if (text)
        Sequence = Host::PreParseSequence(text, KeepText);
}

void TeskDataSequence::Clear()
{
    if (Sequence)
        Host::FreeSequence(Sequence);
    Sequence = 0;
}

bool TeskDataSequence::RetrieveOriginalText(char* buffer, unsigned int size)
{
    return Host::RetrieveOriginalText(Sequence, buffer, size);
}

bool TeskDataSequence::RetrieveProcessedText(char* buffer, unsigned int size)
{
    return Host::RetrieveProcessedText(Sequence, buffer, size);
}

bool TeskDataSequence::RetrieveProcessedResult(_MvTypeVar& result)
{
    return Host::RetrieveProcessedResult(Sequence, result);
}
