#pragma once

#include "teskara/core/Export.h"
#include "teskara/script/MvTypeMember.h"
#include "teskara/script/MvTypeVar.h"
#include "teskara/script/TypeNameTable.h"

// What came of asking a type for a name.
enum DispatchResult : int {
    DispatchUnknown = -1, // nothing answered
    DispatchFailed = 0, // the name is known, and there is no value
    DispatchDone = 1,
};

// A script type: a named table of members and methods, and the operations that answer them on a value of the type. The
// host calls DispatchMember and DispatchMethod. Names are case-sensitive. argv are the texts behind the name, without
// it.
//
// A derived type overrides GetMember and GetMethod, and switches there on the record's ID. A type with a base asks it
// from its UnknownMember and UnknownMethod; names that a type has itself never reach its base.
class TESKARA_EXPORT MvTypeDefinition
{
public:
    // Keeps the first 31 bytes of the name.
    explicit MvTypeDefinition(const char* name);
    virtual ~MvTypeDefinition();
    MvTypeDefinition(const MvTypeDefinition&) = delete;
    MvTypeDefinition& operator=(const MvTypeDefinition&) = delete;

    // --- Variables of the type. False: the value stays as it was. The base knows no way from a text to a value.

    virtual bool FromValue(MvValue& value);
    virtual bool FromText(MvValue& value, const char* text);
    virtual bool FromArguments(MvValue& value, int argc, char** argv); // one text, the arguments with blanks between
    virtual bool InitVariable(MvValue& value, const char* subtype);
    virtual void InitValue(MvValue& value, const char* subtype);
    virtual void FreeValue(MvValue& value);

    // --- Members and methods. False: there is no value, or nothing was done. The base goes on by name, and knows none.

    virtual bool GetMember(MvValue value, _MvTypeMember& member, int argc, char** argv, _MvTypeVar& result);
    virtual bool GetMemberByName(MvValue value, const char* name, int argc, char** argv, _MvTypeVar& result);
    virtual bool GetMethod(MvValue value, _MvTypeMember& method, int argc, char** argv);
    virtual bool GetMethodByName(MvValue value, const char* name, int argc, char** argv);
    virtual int GetIndex(MvValue value, int argc, char** argv, _MvTypeVar& result);

    // --- Dispatch by name, as DispatchResult. A null name is unknown.

    virtual int DispatchMember(MvValue value, const char* name, int argc, char** argv, _MvTypeVar& result);
    virtual int DispatchMethod(MvValue value, const char* name, int argc, char** argv);
    virtual int UnknownIndex(MvValue value, int argc, char** argv, _MvTypeVar& result);
    virtual int UnknownMember(MvValue value, const char* name, int argc, char** argv, _MvTypeVar& result);
    virtual int UnknownMethod(MvValue value, const char* name, int argc, char** argv);

    // --- Text of a value. ToText writes at most size bytes with the end, the other two at most 4096. False: there is
    // none.

    virtual bool ToTextCopy(MvValue value, char* buffer);
    virtual bool ToText(MvValue value, char* buffer, u32 size);
    virtual bool ToTextFallback(MvValue value, char* buffer);

    // --- Names. Of several handlers behind one name the newest answers. A handler of null is the type's own operation.

    // Whether a base has the name; what this type has itself does not count.
    virtual bool InheritsMember(const char* name);
    virtual bool InheritsMethod(const char* name);
    virtual MvTypeDefinition* GetVariableType();

    // Register takes the id that the name has, or the next free one. False: the name has this handler already, or is
    // null.
    virtual bool RegisterMember(const char* name, MvTypeHandler handler);
    virtual bool AddMember(u32 id, const char* name, MvTypeHandler handler);
    virtual bool RemoveMember(const char* name, MvTypeHandler handler);
    virtual bool RegisterMethod(const char* name, MvTypeHandler handler);
    virtual bool AddMethod(u32 id, const char* name, MvTypeHandler handler);
    virtual bool RemoveMethod(const char* name, MvTypeHandler handler);

    // The type whose names this one inherits; null for none. A base that inherits from this type is refused.
    void SetBase(MvTypeDefinition* base);
    MvTypeDefinition* GetBase() const { return m_Base; }

    // The id of the newest record behind the name. False, and id as it was: the name is unknown.
    bool GetMemberID(const char* name, u32& id) const;
    bool GetMethodID(const char* name, u32& id) const;
    const char* GetName() const { return m_Name; }

private:
    static bool AddTo(TypeNameTable& table, u32 id, const char* name, MvTypeHandler handler);

    char m_Name[32];
    TypeNameTable m_Members;
    TypeNameTable m_Methods;
    MvTypeDefinition* m_Base = nullptr;
};
