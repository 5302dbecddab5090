#include "teskara/core/ScriptLink.h"

#include "teskara/core/HostCalls.h"

namespace {

// All links that have a script, the newest first. A plain pointer, since scripts may outlive the library's objects.
ScriptLink* g_Links = nullptr;

} // namespace

HostScript::~HostScript()
{
    for (ScriptLink* link = g_Links; link;) {
        ScriptLink* next = link->m_Next;
        if (link->m_Script == this)
            link->Release();
        link = next;
    }
}

ScriptLink::~ScriptLink()
{
    Release();
}

void ScriptLink::Open(HostScript& script, u32 dialogID)
{
    Release();
    m_Script = &script;
    m_DialogID = dialogID;
    m_Next = g_Links;
    g_Links = this;
    script.*m_Dialog = dialogID;
    if (Host::GetUserInput(script))
        Host::SetUserInput(script, nullptr);
}

void ScriptLink::Close(const char* answer)
{
    if (HostScript* script = Release())
        Host::SetUserInput(*script, answer);
}

// A script may have another dialog by now, whose id stays.
HostScript* ScriptLink::Release()
{
    HostScript* script = m_Script;
    if (!script)
        return nullptr;

    ScriptLink** place = &g_Links;
    while (*place != this)
        place = &(*place)->m_Next;
    *place = m_Next;
    m_Script = nullptr;
    if (script->*m_Dialog == m_DialogID)
        script->*m_Dialog = 0;
    return script;
}
