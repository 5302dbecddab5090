#pragma once

#include "teskara/core/Types.h"

#include <string>
#include <string_view>

// What is ill-formed becomes U+FFFD.
std::string Utf8FromUtf16(std::u16string_view units);

// One byte of the code page Windows-1252.
char16_t WideFromCodePage(u8 byte);
