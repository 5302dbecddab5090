#include "teskara/script/TeskMapType.h"

#include "teskara/element/ElementWatch.h"

#include <optional>

namespace {

constexpr float DegreesInRadian = 57.29578f;
constexpr u32 UsualBlipSize = 12;

const char* Factory(const TeskMap& map)
{
    return *map.BlipFactory ? map.BlipFactory : nullptr;
}

const char* Template(const TeskMap& map)
{
    return map.BlipTemplate ? map.BlipTemplate->c_str() : nullptr;
}

std::optional<float> Degrees(const TeskMap& map)
{
    return map.RotationEnabled ? std::optional(map.Rotation * DegreesInRadian) : std::nullopt;
}

// The point stands in the result, but scripts are told that there is none.
struct HiddenOrigin {
    static constexpr const char* Result = nullptr;

    static bool Answer(TeskMap& map, const Arguments&, _MvTypeVar& result)
    {
        result.Value.Object = &map.Origin;
        result.Type = pPoint3fType;
        return false;
    }
};

// The same with the range of heights, the low one first.
struct HiddenRange {
    static constexpr const char* Result = nullptr;

    static bool Answer(TeskMap& map, const Arguments&, _MvTypeVar& result)
    {
        static _Point3f range; // until the host has read it
        if (!map.ZClipping)
            return false;

        range = {map.ZClipLow, map.ZClipHigh, 0};
        result.Value.Object = &range;
        result.Type = pPoint3fType;
        return false;
    }
};

// By name a blip; without one the label of the first blip.
struct BlipOrLabel {
    static constexpr const char* Result = Script::ElementValue::Name;

    static bool Answer(TeskMap& map, const Arguments& arguments, _MvTypeVar& result)
    {
        if (arguments.Has(0))
            return Put<Script::ElementValue>(result, map.FindBlip(arguments.Text(0)));

        const TeskMapBlip* first = map.FirstBlip();
        if (!first)
            return false;
        return Put<Script::StringValue>(result, first->Label ? first->Label->c_str() : "");
    }

private:
    template <class Value, class Found> static bool Put(_MvTypeVar& result, Found found)
    {
        MvTypeDefinition* type = Value::Put(result.Value, found);
        if (type)
            result.Type = type;
        return type != nullptr;
    }
};

TeskElement* NextBlip(TeskMap& map, const Arguments& arguments)
{
    const TeskMapBlip* blip = map.FindBlip(arguments.Text(0));
    return blip ? map.NextBlip(*blip) : nullptr;
}

const char* TextOrNull(const Arguments& arguments, int index)
{
    const char* text = arguments.Text(index);
    return *text ? text : nullptr;
}

// NAME [X Y Z SIZE LABEL TEMPLATE FACTORY]. Scripts rely on it that there is a label only beside a template.
bool AddBlip(TeskMap& map, const Arguments& arguments)
{
    const _Point3f location = {arguments.Float(1), arguments.Float(2), arguments.Float(3)};
    const u32 size = arguments.Has(4) ? static_cast<u32>(arguments.Integer(4)) : UsualBlipSize;
    const char* templateName = TextOrNull(arguments, 6);
    const char* label = templateName ? TextOrNull(arguments, 5) : nullptr;
    return map.AddBlip(arguments.Text(0), location, size, label, templateName, TextOrNull(arguments, 7)) != 0;
}

bool SetOrigin(TeskMap& map, const Arguments& arguments)
{
    map.Origin = {arguments.Float(0), arguments.Float(1), arguments.Float(2)};
    return true;
}

bool SetRotation(TeskMap& map, const Arguments& arguments)
{
    map.Rotation = arguments.Float(0) / DegreesInRadian;
    map.RotationEnabled = true;
    return true;
}

// Half of what is shown, unlike markup.
bool SetMapSize(TeskMap& map, const Arguments& arguments)
{
    map.MapSizeX = arguments.Float(0);
    map.MapSizeY = arguments.Has(1) ? arguments.Float(1) : map.MapSizeX;
    return true;
}

template <auto Flag> bool Toggle(TeskMap& map, const Arguments&)
{
    map.*Flag = !(map.*Flag);
    return true;
}

// clang-format off
constexpr ScriptMember<TeskMap> Members[] = {
    {0,  "BlipFactory",  Script::String<Factory>},
    {1,  "BlipTemplate", Script::String<Template>},
    {2,  "Origin",       HiddenOrigin()},
    {3,  "Rotation",     Script::Float<Degrees>},
    {4,  "MapSizeX",     Script::Float<&TeskMap::MapSizeX>},
    {5,  "MapSizeY",     Script::Float<&TeskMap::MapSizeY>},
    {6,  "Radial",       Script::Bool<&TeskMap::Radial>},
    {7,  "ZClipping",    HiddenRange()},
    {8,  "xShowLabels",  Script::Bool<&TeskMap::ShowLabels>},
    {9,  "Blips",        Script::Int<&TeskMap::BlipCount>},
    {10, "Blip",         BlipOrLabel()},
    {11, "NextBlip",     Script::Element<NextBlip>, 1},
};

constexpr ScriptMethod<TeskMap> Methods[] = {
    {0,  "AddBlip",            AddBlip, 1},
    {1,  "SetOrigin",          SetOrigin},
    {2,  "SetRotation",        SetRotation},
    {3,  "SetMapSize",         SetMapSize},
    {4,  "ClipZ",              Script::SetTo<&TeskMap::ZClipping, true>},
    {5,  "UnclipZ",            Script::SetTo<&TeskMap::ZClipping, false>},
    {6,  "ToggleZClipping",    Toggle<&TeskMap::ZClipping>},
    {7,  "ClipText",           Script::SetTo<&TeskMap::ClipLabels, true>},
    {8,  "UnclipText",         Script::SetTo<&TeskMap::ClipLabels, false>},
    {9,  "ToggleTextClipping", Toggle<&TeskMap::ClipLabels>},
    {10, "ShowLabels",         Script::SetTo<&TeskMap::ShowLabels, true>},
    {11, "HideLabels",         Script::SetTo<&TeskMap::ShowLabels, false>},
    {12, "ToggleLabels",       Toggle<&TeskMap::ShowLabels>},
    {13, "EnableRotation",     Script::SetTo<&TeskMap::RotationEnabled, true>},
    {14, "DisableRotation",    Script::SetTo<&TeskMap::RotationEnabled, false>},
    {15, "ToggleRotation",     Toggle<&TeskMap::RotationEnabled>},
};
// clang-format on

} // namespace

TeskMapType::TeskMapType(const char* name) : ElementType(name, Members, Methods) { }

bool TeskMapType::ToText(MvValue, char*, u32)
{
    return false;
}
