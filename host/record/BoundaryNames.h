#pragma once

#include "host/probe/HostTypes.h"
#include "teskara/core/HostInterface.h"
#include "teskara/script/MvTypeVar.h"

#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace host {

// What stands in a recording for the pointers that cross the boundary: names of types and handlers, and for objects a
// number, which they get when the toolkit first shows them. The toolkit shows them in the same order in each run.
class BoundaryNames
{
public:
    // --- Objects of the toolkit

    // serial: the second word of the value that stands for the object; 0 if it was not told.
    struct ObjectName {
        u32 Number = 0; // 0 for null
        bool TellsSerial = false;
    };

    // An address that may come back without a word of the first one's end: each value that shows it is another object.
    enum class Address { Lasting, Passing };

    // One address under two types is two objects. type: null is any.
    ObjectName NameOf(const void* object, const MvTypeDefinition* type, u64 serial, Address address);
    u32 NumberOf(const void* object) { return NameOf(object, nullptr, 0, Address::Lasting).Number; }

    // The object as a value. False: no object of that type has the number.
    bool FindObject(u32 number, const MvTypeDefinition* type, MvValue& value) const;

    // It is gone, and its address may come back.
    void Forget(const void* object);

    // --- Types: the toolkit's, and the host's own, which are the same for every host

    void AddType(MvTypeDefinition* type) { m_Types.push_back(type); }
    void RemoveType(const MvTypeDefinition* type) { std::erase(m_Types, type); }
    bool IsToolkitType(const MvTypeDefinition* type) const;
    MvTypeDefinition* FindToolkitType(std::string_view name) const;
    MvTypeDefinition* FindHostType(std::string_view name) const
    {
        return m_HostTypes.FindOwn(std::string(name).c_str());
    }

    // --- Handlers, by the names under which the toolkit registered them; null if there is none

    void AddCommand(const char* name, CommandHandler handler) { m_Commands[name] = handler; }
    void AddTopLevelObject(const char* name, TopLevelObjectHandler handler) { m_TopLevelObjects[name] = handler; }
    CommandHandler FindCommand(const char* name) const;
    TopLevelObjectHandler FindTopLevelObject(const char* name) const;
    const char* NameOf(TopLevelObjectHandler handler) const;

    // --- Memory for what is read, until the outermost call has returned

    const char* Keep(std::string_view text) { return m_Texts.emplace_back(text).c_str(); }
    char* KeepBuffer(std::size_t size, const char* text);
    char** KeepTexts(std::vector<char*> texts) { return m_TextLists.emplace_back(std::move(texts)).data(); }
    _Point3f* KeepPoint(const _Point3f& point) { return &m_Points.emplace_back(point); }
    char16_t* KeepWide(std::u16string text) { return m_WideTexts.emplace_back(std::move(text)).data(); }
    void ForgetKept();

    // The clock as it was last read; recordings hold how far it went since.
    u32 LastTick = 0;

private:
    struct SeenObject {
        const void* Address = nullptr;
        const MvTypeDefinition* Type = nullptr;
        u64 Serial = 0;
    };

    std::vector<SeenObject> m_Objects; // number n is at n - 1
    std::unordered_map<const void*, u32> m_Numbers; // of the object that was last seen at an address
    HostTypes m_HostTypes;
    std::vector<MvTypeDefinition*> m_Types;
    std::map<std::string, CommandHandler, std::less<>> m_Commands;
    std::map<std::string, TopLevelObjectHandler, std::less<>> m_TopLevelObjects;
    std::deque<std::string> m_Texts;
    std::deque<std::vector<char*>> m_TextLists;
    std::deque<_Point3f> m_Points;
    std::deque<std::u16string> m_WideTexts;
};

} // namespace host
