#pragma once

#include "tests/unit/ScriptHost.h"

#include <string>

class HostileHost;

// The script that runs all the time.
class HostileScript final : public TestScript
{
public:
    const char* GetName() const override;
    bool IsInsideAtom() const override;
    const char* GetUserInput() const override;
    void SetUserInput(const char* text) override;
};

// The second table.
class HostileScripts final : public HostScriptInterface
{
public:
    explicit HostileScripts(HostileHost& host) : m_Host(host) { }

    bool ParseTypedValue(const char* text, _MvTypeVar& result, u32 flag) override;
    MvTypeDefinition* FindTypeByName(const char* name, u32 unused1, u32 unused2) override;
    char* MakeTempBuffer(std::size_t size, const char* text) override;
    u32 RegisterTransientClass2(const char* name) override;
    void InvalidateTransientObject2(u32 classID, void* object) override;
    u32 CreateQuery(MvTypeDefinition* owner, const char* text, u32 extra) override;
    bool EvaluateQuery(u32 query, _MvTypeVar& object, bool& result) override;
    void FreeQuery(u32 query) override;

private:
    HostileHost& m_Host;
    std::string m_Buffer;
    u32 m_LastQuery = 0;
};
