#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "host/probe/SessionProcess.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace fs = std::filesystem;

namespace {

// A system that is much loaded may not have a process to give at once.
constexpr int StartsAgain = 10;
constexpr DWORD PauseBeforeStart = 500; // milliseconds

std::wstring OwnProgram()
{
    constexpr std::size_t LongestPath = 32768;
    std::wstring path(LongestPath, 0);
    path.resize(GetModuleFileNameW(nullptr, path.data(), LongestPath));
    return path;
}

// No path has a quotation mark in it.
std::wstring CommandLineFor(const SessionWork& work)
{
    const fs::path folder = work.Folder;
    const fs::path path = work.Path;
    return L"\"" + OwnProgram() + L"\" probe --session \"" + folder.wstring() + L"\" \"" + path.wstring() + L"\"";
}

// Null: it could not be started.
HANDLE StartProcess(std::wstring line)
{
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process))
        return nullptr;

    CloseHandle(process.hThread);
    return process.hProcess;
}

HANDLE AsHandle(std::intptr_t process)
{
    return reinterpret_cast<HANDLE>(process);
}

} // namespace

// It is this program anew, which reads the commands again. A crash is told of here, and nobody wants a window about it.
std::intptr_t SessionProcess::Start(const SessionWork& work)
{
    std::cout.flush();
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    const std::wstring line = CommandLineFor(work);
    HANDLE process = StartProcess(line);
    for (int again = 0; !process && again < StartsAgain; ++again) {
        Sleep(PauseBeforeStart);
        process = StartProcess(line);
    }
    return reinterpret_cast<std::intptr_t>(process);
}

bool SessionProcess::HasEnded()
{
    if (m_Process != 0 && WaitForSingleObject(AsHandle(m_Process), 0) == WAIT_OBJECT_0)
        Wait();
    return m_Process == 0;
}

void SessionProcess::Wait()
{
    if (m_Process == 0)
        return;

    DWORD status = 0;
    WaitForSingleObject(AsHandle(m_Process), INFINITE);
    GetExitCodeProcess(AsHandle(m_Process), &status);
    CloseHandle(AsHandle(m_Process));
    m_Status = status;
    m_Process = 0;
}

void SessionProcess::End()
{
    if (m_Process != 0)
        TerminateProcess(AsHandle(m_Process), EXIT_FAILURE);
}

std::string SessionProcess::HowItFailed() const
{
    constexpr std::int64_t FirstException = 0x80000000;
    if (m_Status < FirstException)
        return m_Status == EXIT_SUCCESS ? "" : "ended with exit status " + std::to_string(m_Status);

    char text[32];
    std::snprintf(text, sizeof(text), "crashed with %08llx", static_cast<unsigned long long>(m_Status));
    return text;
}

int SessionProcess::ExitStatus() const
{
    return static_cast<int>(m_Status);
}
