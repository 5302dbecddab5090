#pragma once

#include "teskara/core/Types.h"

#include <iosfwd>
#include <span>
#include <string>
#include <vector>

// What a kind does: the places that only some kinds reach ask for it.
enum Trait : u64 {
    HasParts = u64{1} << 16, // makes elements of its own below itself
    HoldsParts = u64{1} << 17, // they have others below them
    FollowsMouse = u64{1} << 20, // runs OnMouseMove as the mouse comes by
    FollowsHeldMouse = u64{1} << 21, // runs OnMouseMove between press and release
    IsForeign = u64{1} << 22, // not the toolkit's: its own operations call out
    HasCollection = u64{1} << 34, // of rows, nodes, tabs, cells, blips or lines
    Refuses = u64{1} << 33, // foreign, and runs its scripts without taking what they are for
    IsMade = u64{1} << 63, // only code makes it: what markup does for others is done by Prepare
    ExpandsText = u64{1} << 23, // has a text that is expanded at each use
    EvaluatesText = u64{1} << 24, // has a text that is parsed once and evaluated at each use
    Calculates = u64{1} << 25, // has a text that is a number
    RunsCommand = u64{1} << 26, // runs a command of the host, its output on another console
    HasFont = u64{1} << 27, // a font of its own, which tells of its changes
    HasTexture = u64{1} << 28,
    SetsText = u64{1} << 29, // scripts set its text
    SetsTexture = u64{1} << 30,
    SetsCheck = u64{1} << 31,
    SetsLines = u64{1} << 32,
    HasValue = u64{1} << 35, // a value within a range, which scripts set
    RunsOnChange = u64{1} << 36, // a script for changes of the value
    HasHandle = u64{1} << 37, // a press sets the value
    HasButtons = u64{1} << 38, // its parts change the value by steps, as scripts may
    HasRows = u64{1} << 39, // selects, drags and scrolls rows
    PressSelects = u64{1} << 59, // a press selects a row
    NamesRows = u64{1} << 40, // its type knows the operations on rows, even if it has none
    DropsList = u64{1} << 41, // opens a list with rows
    RunsOnSelect = u64{1} << 42, // a script for the selection
    TakesKeys = u64{1} << 43, // a field for text
    FocusedByPress = u64{1} << 44,
    HasTitleBar = u64{1} << 45, // a window, whose parts have scripts
    KnowsReset = u64{1} << 46, // its type has a method of that name
    HasLines = u64{1} << 47, // prints, scrolls and copies lines
    EditsLines = u64{1} << 48, // a field for lines
    EntersLines = u64{1} << 49, // runs what is typed
    EditsText = u64{1} << 52, // repeats its keys, and a script runs as they change it
    ScriptsScroll = u64{1} << 53, // its scroll bar runs a script
    ClearsLines = u64{1} << 54, // scripts empty it
    LoadsParts = u64{1} << 55, // its parts run scripts as they come and go
    HasCells = u64{1} << 56, // a table, whose cells are such parts
    HasTabs = u64{1} << 57, // selects, drags and scrolls tabs, whose elements are such parts
    UnloadsParts = u64{1} << 58, // its parts run scripts as it goes itself
    HoversBlips = u64{1} << 60, // shows blips, whose scripts run as the mouse comes and as they are drawn
    HasBlips = u64{1} << 61, // a map, which adds, removes and replaces them
    HasNodes = u64{1} << 62, // a tree, which takes every release for the left one's
};

// It tells its parent so, of its own accord or for others.
constexpr u64 Sends(u32 notification)
{
    return u64{1} << notification;
}

// A row of the matrix: a kind of element.
struct Kind {
    const char* Name; // its word in markup
    u64 Traits;
    const char* Markup; // its own values
    void (*Prepare)(const char* word); // what markup cannot say; null for nothing
    const char* Parent = "listening"; // the kind of the element that it stands in
};

std::span<const Kind> AllKinds();

// What stands in a scene: an element of a kind, or of a foreign class that derives from it.
struct Subject {
    const Kind* Row;
    std::string Word; // that makes it
    u64 Traits;
    std::size_t Number; // among all of them

    bool Has(u64 traits) const { return (traits & ~Traits) == 0; }
    bool Reaches(u64 needs, u64 unless) const { return Has(needs) && (Traits & unless) == 0; }
    bool IsForeignClass() const { return Traits != Row->Traits; }
};

std::vector<Subject> AllSubjects();

void PrintTo(const Subject& subject, std::ostream* stream);
