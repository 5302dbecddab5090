#pragma once

#include "teskara/host.h"
#include "teskara/script/MvTypeDefinition.h"

// A type of a program's own: what its values can do is a table of functions.
class FlatType : public MvTypeDefinition
{
public:
    FlatType(const char* name, const teskara_type_operations& table) : MvTypeDefinition(name), m_Table(table) { }

    int UnknownIndex(MvValue value, int argc, char** argv, _MvTypeVar& result) override;
    int UnknownMember(MvValue value, const char* name, int argc, char** argv, _MvTypeVar& result) override;
    int UnknownMethod(MvValue value, const char* name, int argc, char** argv) override;
    bool ToText(MvValue value, char* buffer, u32 size) override;

private:
    teskara_value WithType(const MvValue& value);

    teskara_type_operations m_Table;
};
