#include "teskara/element/TeskPreParse.h"

#include "teskara/core/HostCalls.h"

#include <cstring>
#include <new>

namespace {

// The host need not keep the text, since it stands here.
constexpr u32 DropText = 0;

} // namespace

TeskPreParse::TeskPreParse(const char* text)
{
    PreParse(text);
}

TeskPreParse::~TeskPreParse()
{
    Clear();
}

void TeskPreParse::PreParse(const char* text)
{
    std::unique_ptr<char[]> copy;
    if (text) {
        const std::size_t size = std::strlen(text) + 1;
        copy.reset(new (std::nothrow) char[size]);
        if (copy)
            std::memcpy(copy.get(), text, size);
    }
    Clear();
    Text = std::move(copy);
    if (Text)
        Sequence = Host::PreParseSequence(Text.get(), DropText);
}

void TeskPreParse::Clear()
{
    if (Sequence)
        Host::FreeSequence(Sequence);
    Sequence = 0;
    Text.reset();
}

bool TeskPreParse::RetrieveProcessedText(char* buffer, unsigned int size)
{
    return Host::RetrieveProcessedText(Sequence, buffer, size);
}
