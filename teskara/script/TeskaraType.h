#pragma once

#include "teskara/core/CUIManager.h"
#include "teskara/script/TableType.h"

// The manager, whose value is any but 0.
CUIManager* ManagerOf(MvValue value);

// teskara: the toolkit itself, with members alone.
class TeskaraType : public TableType<CUIManager, ManagerOf>
{
public:
    explicit TeskaraType(const char* name);
};
