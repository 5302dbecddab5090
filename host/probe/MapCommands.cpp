// The command for the blips of a map, as programs feed them.

#include "host/probe/ProbeCommands.h"

#include "host/probe/ProbeSession.h"
#include "host/probe/ValueText.h"
#include "teskara/core/DecimalNumber.h"
#include "teskara/windows/TeskMap.h"

#include <map>
#include <string_view>

namespace {

// Also "inf" and "nan".
float Coordinate(const CommandCall& call, std::size_t index)
{
    const std::string& text = call.Text(index);
    const bool isNegative = text.starts_with('-');
    const std::string_view digits = std::string_view(text).substr(isNegative ? 1 : 0);
    double value = 0;
    if (digits.empty() || ReadDecimalNumber(digits, value) != digits.size())
        throw CommandError("not a number: " + Quoted(text));
    return static_cast<float>(isNegative ? -value : value);
}

_Point3f Location(const CommandCall& call, std::size_t index)
{
    return {Coordinate(call, index), Coordinate(call, index + 1), Coordinate(call, index + 2)};
}

void Add(ProbeSession& session, TeskMap& map, const CommandCall& call)
{
    const std::string label = call.Has(7) ? call.Rest(7) : "";
    const u32 id = map.AddBlip(call.Text(2).c_str(), Location(call, 3), call.Unsigned(6),
        call.Has(7) ? label.c_str() : nullptr, nullptr, nullptr);
    session.Output.Result(std::to_string(id));
}

void Update(ProbeSession&, TeskMap& map, const CommandCall& call)
{
    map.UpdateBlip(call.Unsigned(2), Location(call, 3));
}

void Label(ProbeSession&, TeskMap& map, const CommandCall& call)
{
    map.UpdateBlipLabel(call.Unsigned(2), call.Has(3) ? call.Rest(3).c_str() : nullptr);
}

void Size(ProbeSession&, TeskMap& map, const CommandCall& call)
{
    map.UpdateBlipSize(call.Unsigned(2), call.Unsigned(3));
}

void Remove(ProbeSession&, TeskMap& map, const CommandCall& call)
{
    map.RemoveBlip(call.Unsigned(2));
}

void Clear(ProbeSession&, TeskMap& map, const CommandCall&)
{
    map.ClearBlips();
}

using BlipOperation = void (*)(ProbeSession& session, TeskMap& map, const CommandCall& call);

const std::map<std::string_view, BlipOperation> Operations = {
    {"add", Add},
    {"update", Update},
    {"label", Label},
    {"size", Size},
    {"remove", Remove},
    {"clear", Clear},
};

void Blip(ProbeSession& session, const CommandCall& call)
{
    TeskElement& element = session.Element(call.Text(0));
    auto* map = dynamic_cast<TeskMap*>(&element);
    if (!map)
        throw CommandError("no map: " + call.Text(0));

    const auto operation = Operations.find(call.Text(1));
    if (operation == Operations.end())
        throw CommandError("not an operation on blips: " + call.Text(1));
    operation->second(session, *map, call);
}

constexpr ProbeCommand Commands[] = {
    {"blip", "MAP add|update|label|size|remove|clear ...", 2, AnyNumber, CommandForm::Words, Blip},
};

} // namespace

std::span<const ProbeCommand> MapCommands()
{
    return Commands;
}
