#include "host/record/BoundaryNames.h"

#include <algorithm>

namespace host {

// A host that keeps no serial numbers means the object that was last seen at the address.
BoundaryNames::ObjectName BoundaryNames::NameOf(const void* object, u64 serial, Address address)
{
    if (!object)
        return {};

    u32& number = m_Numbers[object];
    const bool isKnown = number != 0 && address == Address::Lasting
        && (serial == 0 || m_Objects[number - 1].Serial == 0 || m_Objects[number - 1].Serial == serial);
    if (!isKnown) {
        m_Objects.push_back({object, serial});
        number = static_cast<u32>(m_Objects.size());
    } else if (serial != 0) {
        m_Objects[number - 1].Serial = serial;
    }
    return {number, serial != 0};
}

bool BoundaryNames::FindObject(ObjectName name, MvValue& value) const
{
    value = {};
    if (name.Number == 0)
        return true;
    if (name.Number > m_Objects.size() || !m_Objects[name.Number - 1].Address)
        return false;

    const SeenObject& object = m_Objects[name.Number - 1];
    value.Object = const_cast<void*>(object.Address);
    value.Words[1] = name.TellsSerial ? object.Serial : 0;
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
