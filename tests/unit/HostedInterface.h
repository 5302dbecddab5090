#pragma once

#include "host/InterfaceSession.h"
#include "host/display/Picture.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

class TeskElement;

// An interface in the reference host, with its scripts in Lua and no display. The clock stands still.
class HostedInterface
{
public:
    explicit HostedInterface(host::ScriptTrust trust);
    ~HostedInterface();
    HostedInterface(const HostedInterface&) = delete;
    HostedInterface& operator=(const HostedInterface&) = delete;

    // Loads a file test.xml with the elements.
    void Load(const std::string& markup);

    // Writes a file beside it. The result is its path.
    std::string Write(const std::string& name, const std::string& text) const;

    // Lets a frame pass.
    void Frame(u32 milliseconds = 16);

    // Moves the mouse there, presses and releases.
    void Click(int x, int y);

    // Runs a script as the OnLoad of a new element, "Tester"; what it returns in the variable Result, as a text. A test
    // that expects no lines sees the ones of its errors.
    std::string Run(const std::string& script);

    std::string Expand(const std::string& text);
    TeskElement& Element(const char* name);

    // The lines for a person since the last question, each with a line end.
    std::string Lines();

    host::InterfaceSession& Session() { return m_Session; }
    host::ReferenceHost& Host() { return m_Session.Host(); }
    host::ScriptEngine& Scripts() { return Host().Scripts(); }

private:
    host::Picture m_Picture;
    host::InterfaceSession m_Session;
    std::filesystem::path m_Folder;
    std::string m_Lines;
};

// A script as it stands in markup.
std::string Escaped(const std::string& script);

// Runs a body with a hosted interface in a process of its own. The test's suite is named "...DeathTest".
void WithInterface(
    const std::function<void(HostedInterface&)>& body, host::ScriptTrust trust = host::ScriptTrust::None);
