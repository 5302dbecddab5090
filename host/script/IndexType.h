#pragma once

#include "teskara/script/ToolkitType.h"

class HostTypes;

namespace host {

class ScriptIndexes;

// The script type of indexes: what scripts and texts ask them and do to them.
class IndexType : public ToolkitType
{
public:
    // Both are borrowed.
    IndexType(ScriptIndexes& indexes, HostTypes& types);

    bool GetMember(MvValue value, _MvTypeMember& member, int argc, char** argv, _MvTypeVar& result) override;
    bool GetMethod(MvValue value, _MvTypeMember& method, int argc, char** argv) override;

    // The value at a position.
    int GetIndex(MvValue value, int argc, char** argv, _MvTypeVar& result) override;

    // The values with commas between them, as many as fit.
    bool ToText(MvValue value, char* buffer, u32 size) override;

    void VisitMembers(const RowVisitor& visit) const override;
    void VisitMethods(const RowVisitor& visit) const override;

private:
    ScriptIndexes& m_Indexes;
    HostTypes& m_Types;
};

} // namespace host
