#pragma once

#include "teskara/script/MvTypeVar.h"

#include <vector>

// The typed values that are held while scripts may run. A value whose object goes away loses type and object.
class ScriptReferences
{
public:
    void Invalidate(const void* object);

    // The type is going away; the objects stay.
    void ForgetType(const MvTypeDefinition* type);

private:
    friend class HeldReference;
    std::vector<_MvTypeVar*> m_Held;
};

// One held value. References end in the reverse order of their making.
class HeldReference
{
public:
    HeldReference(ScriptReferences& references, const _MvTypeVar& value) : Value(value), m_References(references)
    {
        m_References.m_Held.push_back(&Value);
    }
    ~HeldReference() { m_References.m_Held.pop_back(); }
    HeldReference(const HeldReference&) = delete;
    HeldReference& operator=(const HeldReference&) = delete;

    _MvTypeVar Value;

private:
    ScriptReferences& m_References;
};

inline void ScriptReferences::Invalidate(const void* object)
{
    for (_MvTypeVar* value : m_Held) {
        if (value->Value.Object == object)
            *value = {};
    }
}

inline void ScriptReferences::ForgetType(const MvTypeDefinition* type)
{
    for (_MvTypeVar* value : m_Held) {
        if (value->Type == type)
            value->Type = nullptr;
    }
}
