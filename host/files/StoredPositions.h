#pragma once

#include "teskara/core/Types.h"

#include <filesystem>
#include <map>
#include <string>

namespace host {

// Positions of elements that are kept from one run to the next, in a file with a line for each: the four numbers and
// the element's full name.
class StoredPositions
{
public:
    struct Position {
        i32 X = 0;
        i32 Y = 0;
        u32 Width = 0;
        u32 Height = 0;
    };

    // The file in the user's state folder; empty if the user has none.
    static std::filesystem::path DefaultFile();

    // Reads what the file holds; lines that are no position are passed over. Without a file nothing is kept for later.
    explicit StoredPositions(std::filesystem::path file);

    // Null if there is none.
    const Position* Find(const std::string& name) const;

    // Keeps a position and writes the file anew. False: it could not be written.
    bool Store(const std::string& name, const Position& position);

private:
    void Read();
    bool Write() const;

    std::filesystem::path m_File;
    std::map<std::string, Position> m_Positions;
};

} // namespace host
