#pragma once

#include "host/probe/SessionWork.h"

#include <cstdint>
#include <string>

// A process in which a session runs, so that its crash or hang is only its own. How one is made is the system's affair.
class SessionProcess
{
public:
    // Starts it, unless there is no folder.
    explicit SessionProcess(const SessionWork& work);

    // Ends it if it still runs.
    ~SessionProcess();

    SessionProcess(const SessionProcess&) = delete;
    SessionProcess& operator=(const SessionProcess&) = delete;

    // Why it could not be started; empty if it was.
    const std::string& StartFailure() const { return m_StartFailure; }

    // Whether it runs no more. Wait waits for that, End brings it about.
    bool HasEnded();
    void Wait();
    void End();

    // How it ended, such as "crashed with SIGSEGV"; empty if it ended well.
    std::string HowItFailed() const;
    int ExitStatus() const;

private:
    // 0 if it could not be started.
    static std::intptr_t Start(const SessionWork& work);

    std::intptr_t m_Process; // the system's name for it; 0 if it runs no more
    std::int64_t m_Status = 0; // as the system tells it
    std::string m_StartFailure;
};
