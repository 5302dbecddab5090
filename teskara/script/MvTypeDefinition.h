#pragma once

#include "teskara/core/CIndex.h"
#include "teskara/core/Export.h"
#include "teskara/core/utf8string.h"
#include "teskara/script/MvTypeVar.h"

#include <functional>
#include <map>
#include <memory>

struct _MvTypeMember;

// Answers a member or carries out a method in place of the type's own operation. result is null for a method.
using MvTypeHandler
    = bool (*)(MvTypeDefinition& type, MvValue value, int argc, char** argv, _MvTypeVar* result);

// A name of a type. Several handlers may stand behind one name, the newest first.
struct _MvTypeMember {
    u32 ID = 0;
    utf8string Name;
    MvTypeHandler Handler = nullptr; // null: the type's GetMember or GetMethod answers
    _MvTypeMember* Previous = nullptr;
    _MvTypeMember* Next = nullptr;
};

// What came of asking a type for a name.
enum DispatchResult : int {
    DispatchUnknown = -1, // nothing answered
    DispatchFailed = 0,   // the name is known, and there is no value
    DispatchDone = 1,
};

// A script type: a named table of members and methods, and the operations that answer them on a value of the type. The
// host calls DispatchMember and DispatchMethod. Names are case-sensitive. argv are the texts behind the name, without it.
class TESKARA_EXPORT MvTypeDefinition
{
public:
    // Keeps the first 31 bytes of the name.
    explicit MvTypeDefinition(const char* name);
    virtual ~MvTypeDefinition();
    MvTypeDefinition(const MvTypeDefinition&) = delete;
    MvTypeDefinition& operator=(const MvTypeDefinition&) = delete;

    // --- Variables of the type

    virtual bool FromValue(MvValue& value);
    virtual bool FromText(MvValue& value, const char* text);
    virtual bool FromArguments(MvValue& value, int argc, char** argv);
    virtual bool InitVariable(MvValue& value, const char* subtype);
    virtual void InitValue(MvValue& value, const char* subtype);
    virtual void FreeValue(MvValue& value);

    // --- Members and methods

    virtual bool GetMember(MvValue value, _MvTypeMember& member, int argc, char** argv, _MvTypeVar& result);
    virtual bool GetMemberByName(MvValue value, const char* name, int argc, char** argv, _MvTypeVar& result);
    virtual bool GetMethod(MvValue value, _MvTypeMember& method, int argc, char** argv);
    virtual bool GetMethodByName(MvValue value, const char* name, int argc, char** argv);
    virtual int GetIndex(MvValue value, int argc, char** argv, _MvTypeVar& result);

    // --- Dispatch by name

    virtual int DispatchMember(MvValue value, const char* name, int argc, char** argv, _MvTypeVar& result);
    virtual int DispatchMethod(MvValue value, const char* name, int argc, char** argv);
    virtual int UnknownIndex(MvValue value, int argc, char** argv, _MvTypeVar& result);
    virtual int UnknownMember(MvValue value, const char* name, int argc, char** argv, _MvTypeVar& result);
    virtual int UnknownMethod(MvValue value, const char* name, int argc, char** argv);

    // --- Text of a value. ToText writes at most size bytes with the end; the other two write at most 4096.

    virtual bool ToTextCopy(MvValue value, char* buffer);
    virtual bool ToText(MvValue value, char* buffer, u32 size);
    virtual bool ToTextFallback(MvValue value, char* buffer);

    // --- Names

    virtual bool InheritsMember(const char* name);
    virtual bool InheritsMethod(const char* name);
    virtual MvTypeDefinition* GetVariableType();
    virtual bool RegisterMember(const char* name, MvTypeHandler handler);
    virtual bool AddMember(u32 id, const char* name, MvTypeHandler handler);
    virtual bool RemoveMember(const char* name, MvTypeHandler handler);
    virtual bool RegisterMethod(const char* name, MvTypeHandler handler);
    virtual bool AddMethod(u32 id, const char* name, MvTypeHandler handler);
    virtual bool RemoveMethod(const char* name, MvTypeHandler handler);

    void SetBase(MvTypeDefinition* base) { m_Base = base; }
    MvTypeDefinition* GetBase() const { return m_Base; }
    bool GetMemberID(const char* name, u32& id) const;
    bool GetMethodID(const char* name, u32& id) const;
    const char* GetName() const { return m_Name; }

private:
    // Chains of the records that share a name, by position and by name.
    class NameTable
    {
    public:
        NameTable() = default;
        ~NameTable();
        NameTable(const NameTable&) = delete;
        NameTable& operator=(const NameTable&) = delete;

        bool Add(u32 id, const char* name, MvTypeHandler handler);
        bool Register(const char* name, MvTypeHandler handler);
        bool Remove(const char* name, MvTypeHandler handler);
        _MvTypeMember* Find(std::string_view name) const;
        bool Has(std::string_view name) const { return Find(name) != nullptr; }

    private:
        CIndex<_MvTypeMember> m_Chains{10};
        std::map<utf8string, std::size_t, std::less<>> m_Positions; // position plus one
        u32 m_NextID = 1;
    };

    char m_Name[32];
    NameTable m_Members;
    NameTable m_Methods;
    MvTypeDefinition* m_Base = nullptr;
};
