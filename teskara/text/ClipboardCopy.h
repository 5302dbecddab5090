#pragma once

#include <string>

// Puts bytes on the system's clipboard in place of what is there, if the host lets it be opened.
void CopyToClipboard(const std::string& text);
