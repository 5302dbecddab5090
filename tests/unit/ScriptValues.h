#pragma once

#include "teskara/script/MvTypeDefinition.h"
#include "tests/unit/ScriptHost.h"

#include <string>
#include <vector>

class TeskElement;

// An object as scripts see it, asked and told by name.
class ScriptObject
{
public:
    ScriptObject(MvTypeDefinition& type, void* object) : m_Type(&type) { m_Value.Object = object; }
    explicit ScriptObject(const _MvTypeVar& value) : m_Type(value.Type), m_Value(value.Value) { }
    explicit ScriptObject(TeskElement& element); // of the type of its own kind

    // The type and the value of a member as text: "int 5", "string abc", "teskframe main". "failed" and "unknown" are
    // the two ways to have no value.
    std::string Get(const char* member, std::vector<const char*> arguments = {}) const;

    // Whether a method was carried out; false for one that is unknown, too.
    bool Do(const char* method, std::vector<const char*> arguments = {}) const;

    // The object that a member gives.
    ScriptObject Follow(const char* member, std::vector<const char*> arguments = {}) const;

    MvTypeDefinition& Type() const { return *m_Type; }
    MvValue Value() const { return m_Value; }

private:
    int Ask(const char* member, const std::vector<const char*>& arguments, _MvTypeVar& result) const;

    MvTypeDefinition* m_Type;
    MvValue m_Value;
};

// Makes an element without markup under the screen, or under a parent.
TeskElement& MakeElement(const char* kind, const char* name, TeskElement* parent = nullptr);
