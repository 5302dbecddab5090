#include "teskara/script/TeskMapBlipType.h"

#include "teskara/windows/TeskMap.h"

namespace {

template <auto Field> const char* TextOf(const TeskMapBlip& blip)
{
    return blip.*Field ? (blip.*Field)->c_str() : nullptr;
}

std::unique_ptr<utf8string> TextOrNone(const Arguments& arguments)
{
    return arguments.Has(0) ? std::make_unique<utf8string>(arguments.Text(0)) : nullptr;
}

// It is known, and does nothing.
bool SetType(TeskMapBlip&, const Arguments&)
{
    return false;
}

template <auto Field> bool SetText(TeskMapBlip& blip, const Arguments& arguments)
{
    blip.*Field = TextOrNone(arguments);
    return true;
}

// Scripts are told that it failed, though it did not.
bool Remove(TeskMapBlip& blip, const Arguments&)
{
    if (TeskMap* map = blip.Map())
        map->RemoveBlip(blip.ID);
    return false;
}

// clang-format off
constexpr ScriptMember<TeskMapBlip> Members[] = {
    {0, "Location", Script::Point<&TeskMapBlip::Location>},
    {1, "Custom",   Script::String<TextOf<&TeskMapBlip::Custom>>},
    {2, "Label",    Script::String<TextOf<&TeskMapBlip::Label>>},
    {3, "Font",     Script::Font<&TeskMapBlip::Font>},
};

constexpr ScriptMethod<TeskMapBlip> Methods[] = {
    {0, "SetType",   SetType},
    {1, "SetLabel",  SetText<&TeskMapBlip::Label>, 1},
    {2, "SetCustom", SetText<&TeskMapBlip::Custom>},
    {3, "Remove",    Remove},
};
// clang-format on

} // namespace

TeskMapBlipType::TeskMapBlipType(const char* name) : ElementType(name, Members, Methods) { }

bool TeskMapBlipType::ToText(MvValue value, char* buffer, u32 size)
{
    const TeskMapBlip* blip = ElementOf<TeskMapBlip>(value);
    if (!blip || !blip->Label)
        return ElementType::ToText(value, buffer, size);
    if (!buffer)
        return false;

    CopyBounded(buffer, size, *blip->Label);
    return true;
}
