#pragma once

#include "teskara/core/Types.h"

#include <map>
#include <optional>
#include <string>

// What a map and a view of it are, written down as plainly as possible.
class MapModel
{
public:
    struct Blip {
        std::string Name;
        _Point3f Location;
        u32 Size = 0;
        std::optional<std::string> Label;
        bool Visible = true;
        _Point2i Place;
        bool IsInView = false;
        u32 SizeInView = 0;
        bool VisibleInView = true;
        _Point2i PlaceInView;
    };

    // What a map and a view have each for themselves.
    struct Display {
        _Point3f Origin;
        float Rotation = 0;
        float SizeX = 0;
        float SizeY = 0;
        bool IsRound = false;
        bool ClipsZ = false;
        bool IsRotated = false;
    };

    // Takes the place of a blip of that name. False, and nothing is added: a name that differs in case alone is taken.
    bool MakeRoom(const std::string& name);
    void Add(u32 id, Blip blip);
    void Remove(u32 id);
    void Clear();
    Blip* Find(u32 id);
    u32 FindID(const std::string& name) const; // 0: there is none

    // A frame of both, each of them of so many pixels in either direction.
    void Draw(u32 pixels);

    Display Map;
    Display View;
    std::map<u32, Blip> Blips;
    u32 Count = 0;

private:
    static bool Shows(const Display& display, const _Point3f& point);
    static _Point2i PlaceOn(const Display& display, const _Point3f& point, u32 pixels, u32 size);
};
