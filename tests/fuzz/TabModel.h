#pragma once

#include "teskara/core/Types.h"

#include <optional>
#include <string>
#include <vector>

// What a tab control is, written down as plainly as possible: places in a vector, tabs as spans of pixels.
class TabModel
{
public:
    struct Tab {
        u32 ID;
        std::string Name; // in lower case
        u32 Width;
    };

    static constexpr i64 Height = 16; // of the strip, and of the buttons

    // The id that a tab of this name gets; 0 if there is one.
    u32 NextID(const std::string& name) const;
    void Add(const std::string& name, u32 width);
    void Remove(u32 id);
    void Rename(u32 id, const std::string& name);
    void Move(u32 id, u32 place);
    void Select(u32 id);
    void Press(i64 x, i64 y);
    void DragTo(i64 x, i64 y);
    void Release() { DragTab = 0; }
    void ScrollLeft();
    void ScrollRight();

    // What a frame does before it draws.
    void Draw();

    const Tab* Find(u32 id) const;
    u32 Count() const;

    std::vector<std::optional<Tab>> Places;
    u32 SelectedTab = 0;
    u32 DragTab = 0;
    u32 FirstTab = 0;
    i64 Width = 0; // of the control
    bool Draggable = false;
    bool IsCut = false; // in the last frame that was drawn

private:
    void Put(u32 from, u32 to);
    u32 PlaceOf(u32 id) const;
    bool IsBesideStrip(i64 y) const { return Count() == 0 || y < 0 || y > Height; }
    std::optional<u32> PlaceAt(i64 x) const;
};
