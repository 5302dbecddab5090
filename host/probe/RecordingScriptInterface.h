#pragma once

#include "host/probe/HostOperation.h"
#include "teskara/core/HostInterface.h"

#include <map>
#include <string>

class ProbeSession;
class RecordingHost;

// The second table of the recording host.
class RecordingScriptInterface : public HostScriptInterface
{
public:
    RecordingScriptInterface(ProbeSession& session, RecordingHost& host) : m_Session(session), m_Host(host) { }

    bool ParseTypedValue(const char* text, _MvTypeVar& result, u32 flag) override;
    MvTypeDefinition* FindTypeByName(const char* name, u32 unused1, u32 unused2) override;
    char* MakeTempBuffer(std::size_t size, const char* text) override;
    u32 RegisterTransientClass2(const char* name) override;
    void InvalidateTransientObject2(u32 classID, void* object) override;
    u32 CreateQuery(MvTypeDefinition* owner, const char* text, u32 extra) override;
    bool EvaluateQuery(u32 query, _MvTypeVar& object, bool& result) override;
    void FreeQuery(u32 query) override;

private:
    ProbeSession& m_Session;
    RecordingHost& m_Host;
    std::map<u32, std::string> m_Queries;
    u32 m_LastQuery = 0;
};
