#pragma once

#include "teskara/core/Types.h"

class TeskElement;

namespace host {

class InterfaceSession;

// The window with the main console, which is opened by a key and loaded when it is wanted first.
class ConsoleWindow
{
public:
    // The session is borrowed. Adds the command "console", which does what the key does.
    explicit ConsoleWindow(InterfaceSession& session);
    ~ConsoleWindow();
    ConsoleWindow(const ConsoleWindow&) = delete;
    ConsoleWindow& operator=(const ConsoleWindow&) = delete;

    // Opens or closes the window if the key is one for that. False: it is another key, or a text wants it.
    bool HandleKey(u32 key);

    // A line says why if it cannot be loaded.
    void Toggle();

private:
    void Open();
    static TeskElement* Find();
    static bool IsTyped(u32 key);

    InterfaceSession& m_Session;
};

} // namespace host
