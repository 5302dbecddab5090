#include "teskara/script/ToolkitType.h"

bool ToolkitType::FromText(MvValue&, const char*)
{
    return false;
}

int ToolkitType::UnknownMember(MvValue value, const char* name, int argc, char** argv, _MvTypeVar& result)
{
    return GetBase() ? GetBase()->DispatchMember(value, name, argc, argv, result) : DispatchUnknown;
}

int ToolkitType::UnknownMethod(MvValue value, const char* name, int argc, char** argv)
{
    return GetBase() ? GetBase()->DispatchMethod(value, name, argc, argv) : DispatchUnknown;
}

int ToolkitType::BaseIndex(MvValue value, int argc, char** argv, _MvTypeVar& result)
{
    return GetBase() ? GetBase()->GetIndex(value, argc, argv, result) : DispatchUnknown;
}

void ToolkitType::VisitMembers(const RowVisitor&) const { }

void ToolkitType::VisitMethods(const RowVisitor&) const { }
