#pragma once

#include "teskara/core/Types.h"

#include <filesystem>
#include <istream>
#include <map>
#include <optional>
#include <string>

namespace host {

class Console;

// Positions of elements that are kept from one run to the next, in a file of text: a line with the four numbers and the
// full name of each element, between a first and a last line that show that the file is whole. One that is not is set
// aside, so that nothing of it is lost.
class StoredPositions
{
public:
    struct Position {
        bool operator==(const Position&) const = default;

        i32 X = 0;
        i32 Y = 0;
        u32 Width = 0;
        u32 Height = 0;
    };

    // The file in the user's data folder; empty if the user has none.
    static std::filesystem::path DefaultFile();

    // Reads what the file holds; an empty path keeps nothing for later. The console, which is told of what goes wrong,
    // must live as long as the object.
    StoredPositions(std::filesystem::path file, Console& console);

    // Saves.
    ~StoredPositions();
    StoredPositions(const StoredPositions&) = delete;
    StoredPositions& operator=(const StoredPositions&) = delete;

    // Null if there is none.
    const Position* Find(const std::string& name) const;

    // Keeps a position, to be saved later. A name that does not fit on a line is refused.
    void Store(const std::string& name, const Position& position);

    // Writes the file, if a position has changed: the new one takes the place of the old one once it is whole. False: it
    // could not be written, and is not tried again until something else changes.
    bool Save();

private:
    using Positions = std::map<std::string, Position>;

    static std::optional<Positions> Parse(std::istream& file);
    std::optional<Positions> Read() const;
    void SetAside();
    std::string Text() const;

    std::filesystem::path m_File;
    Console& m_Console;
    Positions m_Positions;
    bool m_Changed = false;
};

} // namespace host
