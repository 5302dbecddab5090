#include "teskara/text/ClipboardCopy.h"

#include "teskara/core/HostCalls.h"
#include "teskara/core/platform/Platform.h"

void CopyToClipboard(const std::string& text)
{
    if (!Host::OpenClipboard())
        return;

    Platform& platform = CurrentPlatform();
    platform.EmptyClipboard();
    platform.SetClipboardText(text);
    platform.CloseClipboard();
}
