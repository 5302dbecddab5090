#pragma once

class CContextMenuHandler;

// Tells whether a menu handler outlived a call into the host or into scripts, as ElementWatch does for elements. It must
// end in the scope in which it began.
class MenuHandlerWatch
{
public:
    // A watch on null says from the start that there is nothing.
    explicit MenuHandlerWatch(CContextMenuHandler* handler);
    ~MenuHandlerWatch();
    MenuHandlerWatch(const MenuHandlerWatch&) = delete;
    MenuHandlerWatch& operator=(const MenuHandlerWatch&) = delete;

    bool Exists() const { return m_Handler != nullptr; }

    // The handler, or null if it is gone.
    CContextMenuHandler* Get() const { return m_Handler; }

private:
    friend class CContextMenuHandler;

    CContextMenuHandler* m_Handler;
    MenuHandlerWatch* m_Outer = nullptr; // the watch on the same handler that began before this one
};
