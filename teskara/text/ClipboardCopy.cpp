#include "teskara/text/ClipboardCopy.h"

#include "teskara/core/HostCalls.h"
#include "teskara/core/platform/PlatformCalls.h"

void CopyToClipboard(const std::string& text)
{
    if (!Host::OpenClipboard())
        return;

    System::EmptyClipboard();
    System::SetClipboardText(text);
    System::CloseClipboard();
}
