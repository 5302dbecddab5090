#pragma once

#include "teskara/core/Types.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What texts of markup mean, said in the plainest way there is: the readers of the toolkit must come to the same.
namespace ValueModel {

u32 Integer(std::string_view text);
std::optional<u32> Hex(std::string_view text);
double Real(const std::string& text);

// The share that a text with "%" or "." names.
std::optional<float> Share(const std::string& text);

struct Place {
    u32 Type = 0;
    u32 Factor = 0;
    u32 Value = 0;

    bool operator==(const Place&) const = default;
};

// shareValue: the number of pixels that a share comes with.
Place Position(const std::string& text, u32 shareValue);

// The double without its fraction, if it is a number and lies in the range.
std::optional<i64> Whole(double value, double least, double beyond);

// The text without colour codes.
std::string WithoutCodes(std::string_view text);

struct Piece {
    std::string Text;
    u32 Color = 0;

    bool operator==(const Piece&) const = default;
};

// What is drawn behind each mark, and in which colour.
std::vector<Piece> ColoredPieces(std::string_view text, u32 color);

} // namespace ValueModel
