#include "host/probe/SessionProcess.h"

SessionProcess::SessionProcess(const SessionWork& work) : m_Process(work.Folder.empty() ? 0 : Start(work))
{
    if (work.Folder.empty())
        m_StartFailure = "no room for temporary files";
    else if (m_Process == 0)
        m_StartFailure = "no process could be started";
}

SessionProcess::~SessionProcess()
{
    End();
    Wait();
}
