#pragma once

#include "teskara/core/HostInterface.h"
#include "tests/fuzz/Answers.h"

// The second table of a host that answers as it is told. usual: what answers otherwise; both must outlive it.
class AnswerScripts final : public HostScriptInterface
{
public:
    AnswerScripts(HostScriptInterface& usual, Answers& told) : m_Usual(usual), m_Told(told) { }

    bool ParseTypedValue(const char* text, _MvTypeVar& result, u32 flag) override;
    MvTypeDefinition* FindTypeByName(const char* name, u32 first, u32 second) override;
    char* MakeTempBuffer(std::size_t size, const char* text) override;
    u32 RegisterTransientClass2(const char* name) override;
    void InvalidateTransientObject2(u32 classID, void* object) override;
    u32 CreateQuery(MvTypeDefinition* owner, const char* text, u32 extra) override;
    bool EvaluateQuery(u32 query, _MvTypeVar& object, bool& result) override;
    void FreeQuery(u32 query) override;

private:
    HostScriptInterface& m_Usual;
    Answers& m_Told;
};
