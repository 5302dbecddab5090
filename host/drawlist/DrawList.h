#pragma once

#include "teskara/core/Types.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

// One property of what is drawn, such as color=ff202020. The value is as it is written, texts in quotes.
struct DrawValue {
    std::string Name;
    std::string Value;

    bool operator==(const DrawValue&) const = default;
};

// A rectangle, an image, a line or a text: where it is, in pixels of the interface, and how it looks.
struct DrawMark {
    tagRECT Place;
    std::vector<DrawValue> Values;
};

// One call of the toolkit's that draws. All calls but DrawTexturedRects draw one mark.
struct DrawCall {
    std::string Element; // the full name of the one that it is a part of
    std::string Operation;
    std::vector<DrawMark> Marks;
};

// What the toolkit drew in a frame, in its order.
struct DrawList {
    int Width = 0;
    int Height = 0;
    std::vector<DrawCall> Calls;
};

// In double quotes, on one line. What is printable in UTF-8 stays, the rest is written as \" \\ \n \r \t and \xHH.
std::string QuotedLine(std::string_view text);

// A text with a line for the frame and one for each call; each image of a call that draws many has one of its own.
std::string WriteDrawList(const DrawList& list);

// Nothing if the text is no draw list; why then says so.
std::optional<DrawList> ReadDrawList(std::string_view text, std::string& why);

} // namespace host
