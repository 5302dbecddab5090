#pragma once

#include "teskara/windows/CContextMenuHandler.h"

class TeskWindow;

// The menu of a window's title bar.
class TESKARA_EXPORT CWindowContextMenu : public CContextMenuHandler
{
public:
    // The window is the one that the menu belongs to.
    explicit CWindowContextMenu(TeskWindow& window) : m_Window(window) { }

    void OnCreate(unsigned int id) override;
    void OnClick(unsigned int id) override;

private:
    TeskWindow& m_Window;
};
