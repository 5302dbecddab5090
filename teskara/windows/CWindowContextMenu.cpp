#include "teskara/windows/CWindowContextMenu.h"

#include "teskara/windows/TeskWindow.h"

namespace {

enum Item : u32 {
    ItemLock = 1,
    ItemReset = 2,
    ItemClose = 3,
};

} // namespace

void CWindowContextMenu::OnCreate(unsigned int)
{
    AddItem(m_Window.Locked ? "Unlock" : "Lock", ItemLock);
    AddItem("Reset Position", ItemReset);
    AddSeparator();
    AddItem("Close", ItemClose);
}

// The window may be gone afterwards, and the menu with it.
void CWindowContextMenu::OnClick(unsigned int id)
{
    switch (id) {
    case ItemLock:
        m_Window.Locked = !m_Window.Locked;
        return;
    case ItemReset:
        m_Window.ResetWindowPosition();
        return;
    case ItemClose:
        m_Window.Show(false);
        return;
    default:
        return;
    }
}
