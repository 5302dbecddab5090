#pragma once

#include "teskara/core/HostInterface.h"

#include <deque>
#include <string>

namespace host {

// The place of the script engine. There is none yet: no atom compiles, no reference has a value and no query is made,
// so interfaces work without the scripts of their events. What doesn't need an engine works.
class ScriptEngine : public HostScriptInterface
{
public:
    // --- Atoms. Id 0, and nothing runs.
    u32 Compile(const char* source, u32 length);
    int Execute(u32 atom, int argc, char** argv, _MvTypeVar* self);

    // Reads a plain number. False: the text is anything else.
    bool Calculate(const char* text, double& result);

    bool ParseTypedValue(const char* text, _MvTypeVar& result, u32 flag) override;
    MvTypeDefinition* FindTypeByName(const char* name, u32 unused1, u32 unused2) override;
    char* MakeTempBuffer(std::size_t size, const char* text) override;
    u32 RegisterTransientClass2(const char* name) override;
    void InvalidateTransientObject2(u32 classID, void* object) override;
    u32 CreateQuery(MvTypeDefinition* owner, const char* text, u32 extra) override;
    bool EvaluateQuery(u32 query, _MvTypeVar& object, bool& result) override;
    void FreeQuery(u32 query) override;

private:
    std::deque<std::string> m_TempTexts; // the latest ones
    u32 m_LastClass = 0;
};

} // namespace host
