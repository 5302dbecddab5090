#pragma once

#include "teskara/core/Types.h"

#include <optional>
#include <string>
#include <string_view>

class TeskElement;
struct TeskDrawRecord;

// How values are written in traces and results, and how texts and numbers are read back from commands.

// In double quotes, with \" \\ \n \r \t, and \xHH for any other byte outside 0x20..0x7e.
std::string Quoted(std::string_view text);

// The same; a null text is null, without quotes.
std::string QuotedOrNull(const char* text);

// Without quotes, but on one line: bytes below 0x20 are written as in Quoted.
std::string OnOneLine(std::string_view text);

// Reads a quoted text whose opening quote stands at position, and moves position behind the closing one. Nothing, and
// position as it was, if there is no closing quote. A backslash before any other character stands for itself.
std::optional<std::string> ReadQuoted(std::string_view text, std::size_t& position);

// A text that is one quoted text and nothing else gives what is inside; any other text is given back as it is.
std::string TakeQuotesOff(std::string_view text);

std::string BoolText(bool value);

// The shortest decimal that reads back the same.
std::string FloatText(float value);
std::string DoubleText(double value);

// Colours, masks and colour keys: eight lower-case hex digits.
std::string ColorText(u32 color);

std::string PointText(const _Point2i& point);
std::string RectText(const tagRECT& rect);
std::string LineText(const tagRECT& points);

// The kind word and the full name; "null" for none. The element must be alive.
std::string ElementText(const TeskElement* element);

// A list of texts as scripts and commands get them.
std::string ArgumentListText(int argc, char** argv);

// texture 1 to=(...) from=(...) flags=3 alpha=255 orientation=0 mask=00000000
std::string ImageText(const TeskDrawRecord& record);

// (0,0)-(1,1) width=1 texture 1 flags=6 alpha=1 orientation=0 mask=ffffffff
std::string LineRecordText(const TeskDrawRecord& record, u32 width);

// A decimal number with an optional sign, or 0x and hex digits. Nothing if the text is anything else or too large.
std::optional<i64> ReadNumber(std::string_view text);

// A decimal number with an optional fraction, and nothing beside it.
std::optional<double> ReadDecimal(std::string_view text);

// Writes a text at most size bytes long with its end; nothing if size is 0.
void CopyText(char* buffer, std::size_t size, std::string_view text);

std::string_view TrimBlanks(std::string_view text);
std::string LowerCase(std::string_view text);
bool SameWord(std::string_view left, std::string_view right);
