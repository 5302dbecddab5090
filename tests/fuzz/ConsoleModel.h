#pragma once

#include "teskara/core/Types.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

// What a console is, written down as plainly as possible: lines by their slots, everything else computed anew.
class ConsoleModel
{
public:
    static constexpr i32 CharacterWidth = 6;
    static constexpr i32 Pitch = 10;

    void Print(const std::string& text, u64 columns);
    void Clear();

    // Moves the scroll bar as far as it goes. The console hears of it if the bar has room for its handle.
    void SetValue(i64 value);

    // The number of rows that a pane of that height shows.
    i32 VisibleLines() const;

    // What each row shows, from the top.
    std::vector<std::optional<std::string>> Rows() const;

    // A press at one point, and a release at another one. None: nothing is copied.
    std::optional<std::string> Select(_Point2i from, _Point2i to);

    std::map<i64, std::string> Lines; // by slot
    i64 Size = 0;
    i64 Newest = -1;
    i64 ScrollLine = -1;
    i64 Value = 0; // of the scroll bar
    u64 BadLines = 0; // how often a slot behind the ring was told of
    i32 X = 0;
    i32 Y = 0;
    i32 Width = 0;
    i32 Height = 0;
    i32 Border = 0;
    bool HasRoomForHandle = true; // on the scroll bar

private:
    void AddLine(const std::string& line);
    _Point2i Snapped(_Point2i point) const;
    std::optional<std::string> TextOf(i64 slot) const;
    std::string CopyOf(i64 first, i64 limit, i64 firstColumn, i64 columns);
};
