#include "teskara/flat/FlatTypes.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/Numbers.h"
#include "teskara/core/Utf8.h"

#include <array>
#include <string>
#include <string_view>

namespace {

using WriteText = std::string (*)(const MvValue& value);

std::string FloatText(float value)
{
    std::array<char, 32> text;
    return {text.data(), WriteFloat(text.data(), text.size(), value)};
}

std::string PointText(const MvValue& value)
{
    const auto* point = static_cast<const _Point3f*>(value.Object);
    return point ? FloatText(point->x) + ',' + FloatText(point->y) + ',' + FloatText(point->z) : std::string();
}

std::string PathText(const MvValue& value)
{
    const auto* path = static_cast<const char16_t*>(value.Object);
    return path ? ToUtf8(path) : std::string();
}

constexpr struct {
    const char* Name;
    WriteText Write;
} PlainTypes[] = {
    {"string", [](const MvValue& value) { return std::string(TextOrEmpty(value.Text)); }},
    {"int", [](const MvValue& value) { return std::to_string(value.Integer); }},
    {"int64", [](const MvValue& value) { return std::to_string(value.Integer64); }},
    {"uint", [](const MvValue& value) { return std::to_string(value.Unsigned); }},
    {"bool", [](const MvValue& value) { return std::string(value.Bool ? "TRUE" : "FALSE"); }},
    {"float", [](const MvValue& value) { return FloatText(value.Float); }},
    {"point3f", PointText},
    {"filepath", PathText},
};

class PlainType : public MvTypeDefinition
{
public:
    PlainType(const char* name, WriteText write) : MvTypeDefinition(name), m_Write(write) { }

    bool ToText(MvValue value, char* buffer, u32 size) override
    {
        if (size == 0)
            return false;
        CopyBounded(buffer, size, m_Write(value));
        return true;
    }

private:
    WriteText m_Write;
};

} // namespace

FlatTypes::FlatTypes()
{
    for (const auto& type : PlainTypes)
        m_Types.push_back(std::make_unique<PlainType>(type.Name, type.Write));
}

MvTypeDefinition* FlatTypes::Find(const char* name) const
{
    for (const auto& type : m_Types) {
        if (name && std::string_view(type->GetName()) == name)
            return type.get();
    }
    return nullptr;
}
