#pragma once

#include "teskara/core/Types.h"

#include <optional>
#include <string>
#include <vector>

// What a text edit and its scroll bar are, written down as plainly as possible: strings in a vector, and positions by
// their numbers. Every byte is 6 pixels wide and every row 12 high; the edit has its corner at 0, 0.
class EditModel
{
public:
    struct Position {
        bool operator==(const Position&) const = default;

        u64 Line = 0;
        u64 Column = 0;
    };

    void SetText(const std::string& text);
    void AddText(const std::string& text);
    void AddLine(const std::string& text);
    void InsertLine(u64 line, const std::string& text); // the new line is in front of that one
    void RemoveLine(u64 line, bool upward);

    // What keys do, with or without Shift.
    void Insert(char byte);
    void Backspace();
    void Delete();
    void Enter();
    void Left();
    void Right();
    void Home();
    void End();
    void Up(u64 lines);
    void Down(u64 lines);
    void Start();
    void Finish();
    void SelectAll();

    void Press(int x, int y);
    void Move(int x, int y);
    void Release();
    void Wheel(int offset);
    void SetBar(u32 value);
    void SetBarRange(u32 range);
    void Frame();

    std::string Selected() const;

    std::vector<std::string> Lines;
    Position Caret;
    u64 Top = 0; // first line that shows
    u64 TopColumn = 0;
    u64 Bottom = 0;
    std::optional<Position> SelectionStart;
    std::optional<Position> SelectionEnd;
    bool Selecting = false;
    bool Shift = false;
    u64 Rows = 0;
    u64 Columns = 0;
    u32 DrawnRows = 0;
    u32 BarRange = 1;
    u32 BarValue = 1;
    u32 Width = 0;
    u32 Height = 0;
    u32 Border = 0;
    int MouseX = 0;
    int MouseY = 0;

private:
    u64 LengthOf(u64 line) const { return Lines[line].size(); }
    void FollowBar();
    void TellCaretLine();
    void TellLines();
    void BeginMove();
    void UpdateSelection();
    void ShowColumn();
    Position Hit(int x, int y) const;
    void Repair(u64& number, u64 line, bool upward) const;

    bool m_HasCaret = false;
};
