#pragma once

#include "teskara/core/HostCalls.h"
#include "teskara/script/ScriptTable.h"
#include "teskara/script/ToolkitType.h"

#include <new>

// A script type that answers from its tables. Find gives the object that a value stands for; null, and then nothing is
// answered: there is none, or it is not what the type is for. Nothing is thrown by an answer.
template <class Owner, Owner* (*Find)(MvValue)> class TableType : public ToolkitType
{
public:
    using MemberTable = ScriptTable<ScriptMember<Owner>>;
    using MethodTable = ScriptTable<ScriptMethod<Owner>>;

    // Registers all names. Throws when there is no memory.
    TableType(const char* name, MemberTable members, MethodTable methods = {})
        : ToolkitType(name), m_Members(members), m_Methods(methods)
    {
        for (const ScriptRow& row : members) {
            if (!AddMember(row.ID, row.Name, nullptr))
                throw std::bad_alloc();
        }
        for (const ScriptRow& row : methods) {
            if (!AddMethod(row.ID, row.Name, nullptr))
                throw std::bad_alloc();
        }
    }

    bool GetMember(MvValue value, _MvTypeMember& member, int argc, char** argv, _MvTypeVar& result) override
    try {
        const Arguments arguments(argc, argv);
        const auto* row = m_Members.Find(member.ID);
        Owner* owner = Find(value);
        return owner && row && !Host::IsAnswering() && arguments.Count() >= row->Needs
            && row->Answer(*owner, arguments, result);
    } catch (...) {
        return false;
    }

    bool GetMethod(MvValue value, _MvTypeMember& method, int argc, char** argv) override
    try {
        const Arguments arguments(argc, argv);
        const auto* row = m_Methods.Find(method.ID);
        Owner* owner = Find(value);
        return owner && row && !Host::IsAnswering() && arguments.Count() >= row->Needs && row->Act(*owner, arguments);
    } catch (...) {
        return false;
    }

    void VisitMembers(const RowVisitor& visit) const override
    {
        for (const ScriptRow& row : m_Members)
            visit(row);
    }

    void VisitMethods(const RowVisitor& visit) const override
    {
        for (const ScriptRow& row : m_Methods)
            visit(row);
    }

private:
    MemberTable m_Members;
    MethodTable m_Methods;
};
