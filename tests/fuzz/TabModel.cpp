#include "tests/fuzz/TabModel.h"

#include <algorithm>

u32 TabModel::NextID(const std::string& name) const
{
    for (const auto& tab : Places) {
        if (tab && tab->Name == name)
            return 0;
    }

    u32 id = 1;
    while (Find(id))
        ++id;
    return id;
}

void TabModel::Add(const std::string& name, u32 width)
{
    const u32 id = NextID(name);
    if (id == 0)
        return;

    const auto free = std::find(Places.begin(), Places.end(), std::nullopt);
    const auto place = free - Places.begin();
    if (free == Places.end())
        Places.resize(Places.size() + 10);
    Places[static_cast<std::size_t>(place)] = Tab{id, name, width};
}

void TabModel::Remove(u32 id)
{
    if (DragTab == id)
        DragTab = 0;
    if (SelectedTab == id)
        SelectedTab = 0;
    if (!Find(id))
        return;

    Places.erase(Places.begin() + PlaceOf(id));
    Places.emplace_back();
}

void TabModel::Rename(u32 id, const std::string& name)
{
    if (Find(id))
        Places[PlaceOf(id)]->Name = name;
}

void TabModel::Move(u32 id, u32 place)
{
    if (Find(id))
        Put(PlaceOf(id), std::min(place, Count() - 1));
}

void TabModel::Put(u32 from, u32 to)
{
    if (to >= Places.size())
        return;

    const auto tab = Places[from];
    Places.erase(Places.begin() + from);
    Places.insert(Places.begin() + to, tab);
}

void TabModel::Select(u32 id)
{
    SelectedTab = Find(id) ? id : 0;
}

void TabModel::Press(i64 x, i64 y)
{
    if (IsBesideStrip(y) || x < 0 || x >= Width - Height)
        return;

    const auto place = PlaceAt(x);
    if (!place)
        return;
    SelectedTab = Places[*place]->ID;
    if (Draggable)
        DragTab = SelectedTab;
}

void TabModel::DragTo(i64 x, i64 y)
{
    if (DragTab == 0)
        return;
    if (IsBesideStrip(y))
        Put(PlaceOf(DragTab), 0);
    else if (x < 0)
        Put(PlaceOf(DragTab), FirstTab);
    else
        Put(PlaceOf(DragTab), PlaceAt(x).value_or(0));
}

void TabModel::ScrollLeft()
{
    if (FirstTab > 0)
        --FirstTab;
}

void TabModel::ScrollRight()
{
    if (FirstTab + 1 < Count())
        ++FirstTab;
}

void TabModel::Draw()
{
    if (SelectedTab == 0) {
        const auto first = std::find_if(Places.begin(), Places.end(), [](const auto& tab) { return tab.has_value(); });
        if (first == Places.end())
            return;
        SelectedTab = (*first)->ID;
    }

    i64 right = Height;
    IsCut = false;
    for (std::size_t place = FirstTab; place < Places.size(); ++place) {
        if (!Places[place])
            continue;
        right += Places[place]->Width;
        if (right < Width - Height)
            continue;
        IsCut = place + 1 != Places.size();
        return;
    }
}

// The spans of the tabs that show; they do not end at the right button.
std::optional<u32> TabModel::PlaceAt(i64 x) const
{
    i64 left = Height;
    for (std::size_t place = FirstTab; place < Places.size(); ++place) {
        if (!Places[place])
            continue;
        const i64 right = left + Places[place]->Width;
        if (x >= left && x < right)
            return static_cast<u32>(place);
        left = right;
    }
    return std::nullopt;
}

const TabModel::Tab* TabModel::Find(u32 id) const
{
    for (const auto& tab : Places) {
        if (tab && tab->ID == id)
            return &*tab;
    }
    return nullptr;
}

u32 TabModel::PlaceOf(u32 id) const
{
    const auto found =
        std::find_if(Places.begin(), Places.end(), [id](const auto& tab) { return tab && tab->ID == id; });
    return static_cast<u32>(found - Places.begin());
}

u32 TabModel::Count() const
{
    return static_cast<u32>(
        std::count_if(Places.begin(), Places.end(), [](const auto& tab) { return tab.has_value(); }));
}
