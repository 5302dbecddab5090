#include "tests/fuzz/MapActs.h"

#include "teskara/core/CUIManager.h"
#include "teskara/windows/TeskMap.h"
#include "teskara/windows/TeskMapView.h"
#include "tests/fuzz/HostileActs.h"

#include <iterator>
#include <string>

namespace {

TeskMap* FindMap(TeskElement& self)
{
    if (auto* map = dynamic_cast<TeskMap*>(&self))
        return map;
    auto* parent = dynamic_cast<TeskMap*>(self.Parent);
    return parent ? parent : dynamic_cast<TeskMap*>(g_UIManager.FindElement("map"));
}

TeskMapView* FindView()
{
    return dynamic_cast<TeskMapView*>(g_UIManager.FindElement("mapview"));
}

std::string NameFrom(u8 argument)
{
    return std::string("blip ") + static_cast<char>('a' + argument % 4);
}

void Add(TeskMap& map, u8 argument)
{
    const float x = static_cast<float>(NumberFrom(argument)) / 4;
    map.AddBlip(NameFrom(argument).c_str(), {x, -x / 2, 0}, argument % 20u, "a label", nullptr, nullptr);
}

void AddOfTemplate(TeskMap& map, u8 argument)
{
    map.AddBlip(NameFrom(argument).c_str(), {}, 12, nullptr, "all", argument % 16 == 15 ? "button" : nullptr);
}

void RemoveFirst(TeskMap& map, u8)
{
    if (const TeskMapBlip* blip = map.FirstBlip())
        map.RemoveBlip(blip->ID);
}

void Clear(TeskMap& map, u8)
{
    map.ClearBlips();
}

void Move(TeskMap& map, u8 argument)
{
    const TeskMapBlip* blip = map.FindBlip(NameFrom(argument).c_str());
    map.UpdateBlip(blip ? blip->ID : argument, {static_cast<float>(argument), 0, 0});
}

void ShowInView(TeskMap& map, u8 argument)
{
    if (TeskMapView* view = FindView())
        view->AddBlipView(map.FindBlip(NameFrom(argument).c_str()));
}

void TakeFromView(TeskMap& map, u8 argument)
{
    const TeskMapBlip* blip = map.FindBlip(NameFrom(argument).c_str());
    if (TeskMapView* view = FindView())
        view->RemoveBlipView(blip ? blip->ID : argument);
}

void Turn(TeskMap& map, u8 argument)
{
    map.Rotation = static_cast<float>(argument);
    map.RotationEnabled = !map.RotationEnabled;
    map.Radial = argument % 3 == 0;
    map.MapSizeX = static_cast<float>(NumberFrom(argument));
}

constexpr void (*Acts[])(TeskMap& map, u8 argument) = {
    Add, AddOfTemplate, RemoveFirst, Clear, Move, ShowInView, TakeFromView, Turn};

} // namespace

void FeedFuzzMap(TeskElement& self, u8 argument)
{
    if (TeskMap* map = FindMap(self))
        Acts[argument / 4u % std::size(Acts)](*map, argument);
}
