#include "host/probe/HostTypes.h"

#include "host/probe/ProbeEncoding.h"
#include "host/probe/ValueText.h"

#include <charconv>
#include <cstring>
#include <string_view>

namespace {

constexpr std::array<const char*, static_cast<std::size_t>(HostValueKind::Count)> TypeNames = {
    "string", "int", "int64", "bool", "float", "point3f", "filepath", "uint"};

std::string TwoDecimals(float value)
{
    char buffer[64];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, 2);
    return end.ec == std::errc() ? std::string(buffer, end.ptr) : FloatText(value);
}

// Whether a whole number lies within what a kind can be.
bool Holds(HostValueKind kind, i64 number)
{
    switch (kind) {
    case HostValueKind::Int:
        return number == static_cast<i32>(number);
    case HostValueKind::Uint:
        return number == static_cast<u32>(number);
    default:
        return true;
    }
}

std::string PointTextOf(const void* object)
{
    const auto* point = static_cast<const _Point3f*>(object);
    return point ? TwoDecimals(point->x) + ',' + TwoDecimals(point->y) + ',' + TwoDecimals(point->z) : std::string();
}

std::string WideTextOf(const void* object)
{
    const auto* units = static_cast<const char16_t*>(object);
    return units ? Utf8FromUtf16(units) : std::string();
}

} // namespace

HostValueType::HostValueType(HostValueKind kind)
    : MvTypeDefinition(TypeNames[static_cast<std::size_t>(kind)]), m_Kind(kind)
{
}

bool HostValueType::FromText(MvValue& value, const char* text)
{
    if (m_Kind == HostValueKind::String) {
        FreeValue(value);
        const std::size_t size = std::strlen(text) + 1;
        value.Object = std::memcpy(new char[size], text, size);
        return true;
    }
    if (m_Kind == HostValueKind::Bool) {
        value.Bool = SameWord(text, "TRUE") || ReadDecimal(text).value_or(0) != 0;
        return true;
    }
    if (m_Kind == HostValueKind::Float) {
        const auto number = ReadDecimal(text);
        value.Float = static_cast<float>(number.value_or(0));
        return number.has_value();
    }
    if (m_Kind == HostValueKind::Point3f || m_Kind == HostValueKind::FilePath)
        return false;

    const auto number = ReadNumber(TrimBlanks(text));
    value.Integer64 = number.value_or(0);
    return number.has_value() && Holds(m_Kind, *number);
}

void HostValueType::FreeValue(MvValue& value)
{
    if (m_Kind == HostValueKind::String)
        delete[] static_cast<char*>(value.Object);
    value = {};
}

bool HostValueType::ToText(MvValue value, char* buffer, u32 size)
{
    if (size == 0 || (m_Kind == HostValueKind::String && !value.Text))
        return false;

    CopyText(buffer, size, TextOf(value));
    return true;
}

std::string HostValueType::TextOf(const MvValue& value) const
{
    switch (m_Kind) {
    case HostValueKind::String:
        return value.Text ? value.Text : "";
    case HostValueKind::Int:
        return std::to_string(value.Integer);
    case HostValueKind::Int64:
        return std::to_string(value.Integer64);
    case HostValueKind::Bool:
        return value.Bool ? "TRUE" : "FALSE";
    case HostValueKind::Float:
        return TwoDecimals(value.Float);
    case HostValueKind::Point3f:
        return PointTextOf(value.Object);
    case HostValueKind::FilePath:
        return WideTextOf(value.Object);
    case HostValueKind::Uint:
        return std::to_string(value.Unsigned);
    case HostValueKind::Count:
        break;
    }
    return {};
}

HostTypes::HostTypes()
{
    for (std::size_t index = 0; index < m_Own.size(); ++index)
        m_Own[index] = std::make_unique<HostValueType>(static_cast<HostValueKind>(index));
}

const HostValueType* HostTypes::AsOwn(const MvTypeDefinition* type) const
{
    for (const auto& own : m_Own) {
        if (own.get() == type)
            return own.get();
    }
    return nullptr;
}

MvTypeDefinition* HostTypes::FindOwn(const char* name) const
{
    for (const auto& own : m_Own) {
        if (name && std::string_view(own->GetName()) == name)
            return own.get();
    }
    return nullptr;
}

MvTypeDefinition* HostTypes::Find(const char* name) const
{
    for (MvTypeDefinition* type : m_Added) {
        if (name && std::string_view(type->GetName()) == name)
            return type;
    }
    return FindOwn(name);
}
