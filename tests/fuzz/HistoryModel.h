#pragma once

#include "teskara/core/Types.h"
#include "tests/fuzz/TextModel.h"

#include <string>
#include <vector>

// What the field of a command line remembers, written down as plainly as possible: a row of slots and two places in it.
class HistoryModel
{
public:
    // With room for some lines there is a blank one from the start.
    HistoryModel(u64 room, u64 width, u32 capacity) : Field(room, width), m_Slots(capacity)
    {
        if (capacity > 0)
            Add("");
    }

    void Enter();
    void Escape();
    void Up();
    void Down();

    // A text that holds ends of lines enters each of them.
    void Paste(const std::string& text);

    TextModel Field;
    u32 Write = 0; // slot of the next line
    u32 Read = 0; // slot that was shown last
    u32 Count = 0; // slots in use
    std::vector<std::string> Commands; // that were run

private:
    void Add(const std::string& line);
    void Show(const std::string& line);
    void Clear();

    std::vector<std::string> m_Slots;
};
