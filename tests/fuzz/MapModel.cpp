#include "tests/fuzz/MapModel.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

std::string Lower(std::string text)
{
    for (char& character : text)
        character = character >= 'A' && character <= 'Z' ? static_cast<char>(character + 32) : character;
    return text;
}

i32 Truncated(float value)
{
    const bool fits = value > -2147483648.0f && value < 2147483648.0f;
    return fits ? static_cast<i32>(value) : std::numeric_limits<i32>::min();
}

void GuardSize(MapModel::Display& display)
{
    float& size = display.IsRound ? display.SizeX : display.SizeY;
    if (size == 0)
        size = 1;
}

} // namespace

u32 MapModel::FindID(const std::string& name) const
{
    const auto found =
        std::find_if(Blips.begin(), Blips.end(), [&](const auto& entry) { return entry.second.Name == name; });
    return found == Blips.end() ? 0 : found->first;
}

MapModel::Blip* MapModel::Find(u32 id)
{
    const auto found = Blips.find(id);
    return found == Blips.end() ? nullptr : &found->second;
}

bool MapModel::MakeRoom(const std::string& name)
{
    Blips.erase(FindID(name));
    return std::none_of(
        Blips.begin(), Blips.end(), [&](const auto& entry) { return Lower(entry.second.Name) == Lower(name); });
}

void MapModel::Add(u32 id, Blip blip)
{
    Blips[id] = std::move(blip);
    ++Count;
}

void MapModel::Remove(u32 id)
{
    if (Blips.erase(id) != 0)
        --Count;
}

void MapModel::Clear()
{
    Blips.clear();
    Count = 0;
}

bool MapModel::Shows(const Display& display, const _Point3f& point)
{
    const _Point3f& origin = display.Origin;
    if (display.ClipsZ && (point.z < origin.z + -10 || point.z > origin.z + 10))
        return false;
    if (display.IsRound) {
        const float x = origin.x - point.x;
        const float y = origin.y - point.y;
        const float squared = x * x + y * y;
        return !(squared >= display.SizeX * display.SizeX);
    }
    if (point.x < origin.x - display.SizeX || point.x > origin.x + display.SizeX)
        return false;
    return !(point.y < origin.y - display.SizeY || point.y > origin.y + display.SizeY);
}

_Point2i MapModel::PlaceOn(const Display& display, const _Point3f& point, u32 pixels, u32 size)
{
    const float sizeX = display.SizeX;
    const float sizeY = display.IsRound ? display.SizeX : display.SizeY;
    float h = point.x - (display.Origin.x - sizeX);
    float v = point.y - (display.Origin.y - sizeY);
    if (display.IsRotated) {
        const float c = std::cos(-display.Rotation);
        const float s = std::sin(-display.Rotation);
        const float x = point.x - display.Origin.x;
        const float y = point.y - display.Origin.y;
        h = s * x + c * y + sizeX;
        v = -(c * x - s * y) + sizeY;
    }
    h = h / (2 * sizeX) * static_cast<float>(pixels);
    v = v / (2 * sizeY) * static_cast<float>(pixels);
    return {Truncated(h - static_cast<float>(size >> 1)), Truncated(v - static_cast<float>(size >> 1))};
}

void MapModel::Draw(u32 pixels)
{
    GuardSize(Map);
    GuardSize(View);
    for (auto& [id, blip] : Blips) {
        blip.Visible = Shows(Map, blip.Location);
        if (blip.Visible)
            blip.Place = PlaceOn(Map, blip.Location, pixels, blip.Size);
        blip.VisibleInView = Shows(View, blip.Location);
        if (blip.VisibleInView)
            blip.PlaceInView = PlaceOn(View, blip.Location, pixels, blip.SizeInView);
    }
}
