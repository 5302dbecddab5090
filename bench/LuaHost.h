#pragma once

#include "bench/NullHost.h"
#include "host/Console.h"
#include "host/script/ScriptEngine.h"

// A host that draws nothing, with the scripts of the reference host.
class LuaHost : public NullHost
{
public:
    HostScript* GetCurrentScript() override { return Scripts.Tasks.Current(); }
    int DataParse(const char* text, char* output, u32 size) override;
    void AddTopLevelObject(const char* name, TopLevelObjectHandler handler) override;
    void RemoveTopLevelObject(const char* name) override { Scripts.RemoveTopLevelObject(name); }
    void AddType(MvTypeDefinition* type) override { Scripts.Types.Add(type); }
    void RemoveType(MvTypeDefinition* type) override { Scripts.RemoveType(type); }
    MvTypeDefinition* FindType(const char* name) override { return Scripts.Types.FindOwn(name); }
    bool Calculate(const char* text, double& result) override { return Scripts.Calculate(text, result); }
    HostScriptInterface* GetScriptInterface() override { return &Scripts; }
    u32 CompileAtom(const char* source, u32 length) override { return Scripts.Scripts.Compile({source, length}); }
    void ReleaseAtom(u32 atom) override { Scripts.Scripts.Release(atom); }
    int ExecuteAtom(u32 atom, u32 unused, int argc, char** argv, _MvTypeVar* self) override;
    u32 PreParseSequence(const char* text, u32) override { return Scripts.Sequences.Keep(text, {}); }
    bool RetrieveProcessedText(u32 sequence, char* buffer, u32 size) override;
    void FreeSequence(u32 sequence) override { Scripts.Sequences.Free(sequence); }
    void InvalidateObject(u32, void* object) override { Scripts.Invalidate(object); }

private:
    host::Console m_Console;

public:
    host::ScriptEngine Scripts{m_Console, host::ScriptTrust::None};
};
