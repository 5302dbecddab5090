#pragma once

#include "teskara/script/MvSym.h"

#include <memory>

class MvIterator;

// What a script can walk.
class TESKARA_EXPORT MvIteratable : public MvSym
{
public:
    // typeName: what scripts call such an object; borrowed for as long as it lives.
    explicit MvIteratable(const char* typeName) : m_TypeName(typeName) { }
    ~MvIteratable() override;

    const char* GetTypeName() const { return m_TypeName; }

    // A walk that stands before the first entry; null without memory.
    virtual std::unique_ptr<MvIterator> NewIterator() = 0;

private:
    const char* m_TypeName;
};
