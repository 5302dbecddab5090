#include "teskara/text/ClipboardText.h"

#include "teskara/core/platform/Platform.h"

#include <algorithm>

namespace {

// Has the clipboard open for the length of a scope.
class OpenClipboard
{
public:
    explicit OpenClipboard(Platform& platform) : m_Platform(platform), m_IsOpen(platform.OpenClipboard()) { }
    ~OpenClipboard()
    {
        if (m_IsOpen)
            m_Platform.CloseClipboard();
    }
    OpenClipboard(const OpenClipboard&) = delete;
    OpenClipboard& operator=(const OpenClipboard&) = delete;

    bool Succeeded() const { return m_IsOpen; }

private:
    Platform& m_Platform;
    bool m_IsOpen;
};

} // namespace

std::string ClipboardText()
try {
    Platform& platform = CurrentPlatform();
    const OpenClipboard clipboard(platform);
    std::string text;
    if (!clipboard.Succeeded() || !platform.GetClipboardText(text))
        return {};

    text.resize(std::min(text.find('\0'), text.size()));
    return text;
} catch (...) {
    return {};
}
