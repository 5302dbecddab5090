#pragma once

#include "teskara/core/HostInterface.h"

namespace host {

class Boundary;

// The table for scripts on the boundary.
class BoundaryScriptTable : public HostScriptInterface
{
public:
    // The boundary is borrowed.
    explicit BoundaryScriptTable(Boundary& boundary) : m_Boundary(boundary) { }

    // What is behind it; null if there is nothing.
    void SetInner(HostScriptInterface* inner) { m_Inner = inner; }

    bool ParseTypedValue(const char* text, _MvTypeVar& result, u32 flag) override;
    MvTypeDefinition* FindTypeByName(const char* name, u32 unused1, u32 unused2) override;
    char* MakeTempBuffer(std::size_t size, const char* text) override;
    u32 RegisterTransientClass2(const char* name) override;
    void InvalidateTransientObject2(u32 classID, void* object) override;
    u32 CreateQuery(MvTypeDefinition* owner, const char* text, u32 extra) override;
    bool EvaluateQuery(u32 query, _MvTypeVar& object, bool& result) override;
    void FreeQuery(u32 query) override;

private:
    Boundary& m_Boundary;
    HostScriptInterface* m_Inner = nullptr;
};

} // namespace host
