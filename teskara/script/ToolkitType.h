#pragma once

#include "teskara/script/MvTypeDefinition.h"

#include <functional>

struct ScriptRow;

// A script type of the toolkit. What it has no name for goes to its base, on the same value. Its values stand for
// objects of the toolkit's and cannot be made from text.
class TESKARA_EXPORT ToolkitType : public MvTypeDefinition
{
public:
    using MvTypeDefinition::MvTypeDefinition;

    bool FromText(MvValue& value, const char* text) override;
    int UnknownMember(MvValue value, const char* name, int argc, char** argv, _MvTypeVar& result) override;
    int UnknownMethod(MvValue value, const char* name, int argc, char** argv) override;

    // What the base's index operation gives. Nothing asks for it: an index on a value of the toolkit's is unknown.
    virtual int BaseIndex(MvValue value, int argc, char** argv, _MvTypeVar& result);

    // Tells the type's own members or methods in the order of their ids, for tools that describe types.
    using RowVisitor = std::function<void(const ScriptRow& row)>;
    virtual void VisitMembers(const RowVisitor& visit) const;
    virtual void VisitMethods(const RowVisitor& visit) const;
};
