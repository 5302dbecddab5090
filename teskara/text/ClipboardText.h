#pragma once

#include <string>

// The bytes of the system's clipboard, as they are, up to the first zero. Empty if it cannot be opened or holds no text.
// The clipboard is closed again before this returns, so that what is pasted may run scripts.
std::string ClipboardText();
