#include "host/record/BoundaryNames.h"

#include <algorithm>

namespace host {

// A host that keeps no serial numbers means the object that was last seen at the address.
BoundaryNames::ObjectName BoundaryNames::NameOf(
    const void* object, const MvTypeDefinition* type, u64 serial, Address address)
{
    if (!object)
        return {};

    u32& number = m_Numbers[object];
    const auto isSame = [&](const SeenObject& seen) {
        return (!type || seen.Type == type) && (serial == 0 || seen.Serial == 0 || seen.Serial == serial);
    };
    if (number == 0 || address == Address::Passing || !isSame(m_Objects[number - 1])) {
        m_Objects.push_back({object, type, serial});
        number = static_cast<u32>(m_Objects.size());
    } else if (serial != 0) {
        m_Objects[number - 1].Serial = serial;
    }
    return {number, serial != 0};
}

// A serial number is told whenever there is one, so that an object that has gone is not taken for another.
bool BoundaryNames::FindObject(u32 number, const MvTypeDefinition* type, MvValue& value) const
{
    value = {};
    if (number == 0)
        return true;
    if (number > m_Objects.size() || !m_Objects[number - 1].Address || m_Objects[number - 1].Type != type)
        return false;

    value.Object = const_cast<void*>(m_Objects[number - 1].Address);
    value.Words[1] = m_Objects[number - 1].Serial;
    return true;
}

void BoundaryNames::Forget(const void* object)
{
    const auto found = m_Numbers.find(object);
    if (found == m_Numbers.end())
        return;

    m_Objects[found->second - 1].Address = nullptr;
    m_Numbers.erase(found);
}

bool BoundaryNames::IsToolkitType(const MvTypeDefinition* type) const
{
    return std::find(m_Types.begin(), m_Types.end(), type) != m_Types.end();
}

MvTypeDefinition* BoundaryNames::FindToolkitType(std::string_view name) const
{
    const auto found =
        std::find_if(m_Types.begin(), m_Types.end(), [name](const auto* type) { return type->GetName() == name; });
    return found == m_Types.end() ? nullptr : *found;
}

CommandHandler BoundaryNames::FindCommand(const char* name) const
{
    const auto found = m_Commands.find(std::string_view(name ? name : ""));
    return found == m_Commands.end() ? nullptr : found->second;
}

TopLevelObjectHandler BoundaryNames::FindTopLevelObject(const char* name) const
{
    const auto found = m_TopLevelObjects.find(std::string_view(name ? name : ""));
    return found == m_TopLevelObjects.end() ? nullptr : found->second;
}

const char* BoundaryNames::NameOf(TopLevelObjectHandler handler) const
{
    for (const auto& [name, other] : m_TopLevelObjects)
        if (other == handler)
            return name.c_str();
    return nullptr;
}

char* BoundaryNames::KeepBuffer(std::size_t size, const char* text)
{
    std::string& buffer = m_Texts.emplace_back(text ? text : "");
    buffer.resize(std::max(size, buffer.size() + 1));
    return buffer.data();
}

void BoundaryNames::ForgetKept()
{
    m_Texts.clear();
    m_TextLists.clear();
    m_Points.clear();
    m_WideTexts.clear();
}

} // namespace host
