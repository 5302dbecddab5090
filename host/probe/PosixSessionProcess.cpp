#include "host/probe/SessionProcess.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// A crash is reported by its signal; nobody wants the file.
void LeaveNoCore()
{
    const rlimit noCores = {0, 0};
    setrlimit(RLIMIT_CORE, &noCores);
}

std::string SignalName(int signal)
{
    const char* name = sigabbrev_np(signal);
    return name ? "SIG" + std::string(name) : "signal " + std::to_string(signal);
}

} // namespace

// It goes on where this one stands, so it has the commands.
std::intptr_t SessionProcess::Start(const SessionWork& work)
{
    std::cout.flush();
    std::fflush(nullptr);
    const pid_t process = fork();
    if (process == 0) {
        LeaveNoCore();
        DoSessionWork(work);
        std::exit(EXIT_SUCCESS);
    }
    return std::max(process, 0);
}

bool SessionProcess::HasEnded()
{
    int status = 0;
    if (m_Process != 0 && waitpid(static_cast<pid_t>(m_Process), &status, WNOHANG) != 0) {
        m_Status = status;
        m_Process = 0;
    }
    return m_Process == 0;
}

void SessionProcess::Wait()
{
    if (m_Process == 0)
        return;

    int status = 0;
    waitpid(static_cast<pid_t>(m_Process), &status, 0);
    m_Status = status;
    m_Process = 0;
}

void SessionProcess::End()
{
    if (m_Process != 0)
        kill(static_cast<pid_t>(m_Process), SIGKILL);
}

std::string SessionProcess::HowItFailed() const
{
    const int status = static_cast<int>(m_Status);
    if (!WIFEXITED(status))
        return "crashed with " + SignalName(WTERMSIG(status));
    return ExitStatus() == EXIT_SUCCESS ? "" : "ended with exit status " + std::to_string(ExitStatus());
}

int SessionProcess::ExitStatus() const
{
    const int status = static_cast<int>(m_Status);
    return WIFEXITED(status) ? WEXITSTATUS(status) : EXIT_FAILURE;
}
