#include "host/probe/TypedValue.h"

#include "host/probe/HostTypes.h"
#include "host/probe/ValueText.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskFont.h"
#include "teskara/element/TeskTexture.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace {

constexpr std::string_view TypesWithoutElement[] = {
    "teskara", "teskfont", "tesktexture", "tesklistboxitem", "tesktab", "tesktreenode"};

bool IsElementType(std::string_view name)
{
    return name.starts_with("tesk")
        && std::find(std::begin(TypesWithoutElement), std::end(TypesWithoutElement), name)
        == std::end(TypesWithoutElement);
}

std::string HostValueText(const HostValueType& type, const MvValue& value)
{
    switch (type.Kind()) {
    case HostValueKind::String:
        return QuotedOrNull(value.Text);
    case HostValueKind::Bool:
        return BoolText(value.Bool);
    case HostValueKind::Float:
        return FloatText(value.Float);
    case HostValueKind::FilePath:
        return value.Object ? Quoted(type.TextOf(value)) : "null";
    case HostValueKind::Point3f: {
        const auto* point = static_cast<const _Point3f*>(value.Object);
        return point ? '(' + FloatText(point->x) + ',' + FloatText(point->y) + ',' + FloatText(point->z) + ')' : "null";
    }
    default:
        return type.TextOf(value);
    }
}

// A member of a list box item, a tab or a tree node, without the name of its type.
std::string MemberText(const _MvTypeVar& value, const char* member, const HostTypes& types)
{
    _MvTypeVar result;
    if (value.Type->DispatchMember(value.Value, member, 0, nullptr, result) != DispatchDone)
        return "null";

    const HostValueType* own = types.AsOwn(result.Type);
    return own ? HostValueText(*own, result.Value) : "null";
}

std::string ToolkitValueText(const _MvTypeVar& value, std::string_view type, const HostTypes& types)
{
    if (type == "teskara")
        return std::to_string(value.Value.Integer);
    if (type == "tesklistboxitem")
        return MemberText(value, "ID", types) + ' ' + MemberText(value, "Text", types);
    if (type == "tesktab")
        return MemberText(value, "ID", types) + ' ' + MemberText(value, "Name", types);
    if (type == "tesktreenode")
        return MemberText(value, "Handle", types) + ' ' + MemberText(value, "Text", types);
    if (!value.Value.Object)
        return "null";
    if (type == "teskfont") {
        const auto* font = static_cast<const TeskFont*>(value.Value.Object);
        return Quoted(font->Name) + ' ' + std::to_string(font->Size);
    }
    if (type == "tesktexture")
        return Quoted(static_cast<const TeskTexture*>(value.Value.Object)->Filename);
    if (const TeskElement* element = ElementOf(value))
        return Quoted(element->FullName);
    return "*";
}

} // namespace

TeskElement* ElementOf(const _MvTypeVar& value)
{
    if (value.Type && !IsElementType(value.Type->GetName()))
        return nullptr;
    return static_cast<TeskElement*>(value.Value.Object);
}

std::string TypedValueText(const _MvTypeVar& value, const HostTypes& types)
{
    if (!value.Type)
        return "null";

    const std::string name = value.Type->GetName();
    if (const HostValueType* own = types.AsOwn(value.Type))
        return name + ' ' + HostValueText(*own, value.Value);
    return name + ' ' + ToolkitValueText(value, name, types);
}

std::string TypeText(const MvTypeDefinition* type)
{
    return type ? Quoted(type->GetName()) : "null";
}
