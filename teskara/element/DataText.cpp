#include "teskara/element/DataText.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/utf8string.h"

namespace {

constexpr char SequenceMark[] = "${";

} // namespace

bool DataText::HasSequences(std::string_view text)
{
    return text.find(SequenceMark) != std::string_view::npos;
}

bool DataText::Evaluate(std::string_view text, Buffer& output)
try {
    *output = 0;
    if (text.size() < sizeof(Buffer)) {
        Buffer source;
        CopyBounded(source, sizeof(source), text);
        Host::DataParse(source, output, sizeof(output));
    } else {
        Host::DataParse(utf8string(text).c_str(), output, sizeof(output));
    }
    return true;
} catch (...) {
    return false;
}

void DataText::Expand(Buffer& text)
{
    Buffer source;
    CopyBounded(source, sizeof(source), text);
    Host::CallOut([&](HostObject& host) { host.DataParse(source, text, sizeof(text)); });
    text[sizeof(text) - 1] = 0;
}
