#include "teskara/text/ClipboardText.h"

#include "teskara/core/platform/PlatformCalls.h"

#include <algorithm>

namespace {

// Has the clipboard open for the length of a scope.
class OpenClipboard
{
public:
    OpenClipboard() : m_IsOpen(System::OpenClipboard()) { }
    ~OpenClipboard()
    {
        if (m_IsOpen)
            System::CloseClipboard();
    }
    OpenClipboard(const OpenClipboard&) = delete;
    OpenClipboard& operator=(const OpenClipboard&) = delete;

    bool Succeeded() const { return m_IsOpen; }

private:
    bool m_IsOpen;
};

} // namespace

std::string ClipboardText()
try {
    const OpenClipboard clipboard;
    std::string text;
    if (!clipboard.Succeeded() || !System::GetClipboardText(text))
        return {};

    text.resize(std::min(text.find('\0'), text.size()));
    return text;
} catch (...) {
    return {};
}
