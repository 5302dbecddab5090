#pragma once

#include "teskara/core/Types.h"

#include <string>
#include <string_view>

namespace host {

// Decodes the UTF-8 character at a place and moves the place behind it. An ill-formed byte counts as U+FFFD.
char32_t DecodeCharacter(std::string_view text, std::size_t& at);

void AppendUtf8(std::string& text, char32_t character);

// One unit, or two.
std::u16string CharacterToWide(char32_t character);

std::u16string Utf8ToWide(std::string_view text);
std::string WideToUtf8(std::u16string_view text);

// A character's byte in the ANSI code page, Windows-1252; 0 if it has none.
u8 ToAnsi(char32_t character);

} // namespace host
