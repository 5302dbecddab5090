#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

class MenuHandlerWatch;
class TeskContextMenu;
class XMLNode;

// Gives a context menu its rows and hears of its clicks. A program derives a handler of its own and keeps it as long as
// a menu may be open:
//
//     class FileMenu : public CContextMenuHandler
//     {
//         void OnCreate(unsigned int) override { AddItem("Open", 1); AddSubMenu("Recent", &m_Recent, 2); }
//         void OnClick(unsigned int id) override { ... }
//     };
//
// A click closes the menu and those of all handlers above it, by Parent; so does the end of the handler with its own menu
// and what was opened from it. Closing may run scripts. The handler may end in any of its operations.
class TESKARA_EXPORT CContextMenuHandler
{
public:
    CContextMenuHandler() = default;
    virtual ~CContextMenuHandler();
    CContextMenuHandler(const CContextMenuHandler&) = delete;
    CContextMenuHandler& operator=(const CContextMenuHandler&) = delete;

    // The menu has opened without rows: fill it. id: 0, or for a submenu that of the row that opened it.
    virtual void OnCreate(unsigned int id);

    // An item was picked. The menu is still open, and closes afterwards.
    virtual void OnClick(unsigned int id) = 0;

    // The menu is going. An override sets Menu to null, or calls this one.
    virtual void OnMenuDestroyed();

    // Opens the menu at a point of the screen and gives it the keyboard. False: it is open already, or could not be made.
    bool Create(int x, int y);

    // Opens the menu beside a row of another one.
    void CreateSubmenu(CContextMenuHandler& parent, unsigned int id, int x, int y);

    // Closes the menu with what was opened from it; upward, also those of the handlers above.
    void DestroyMenu(bool upward);

    // Each adds a row at the bottom and returns its id; without an open menu they return 0. An id of 0 stands for the
    // next automatic one; those count from 0 in each menu, whatever ids were given.
    unsigned int AddItem(const char* text, unsigned int id);
    unsigned int AddSeparator();

    // handler must live as long as the menu that gets the row; null for a row that opens nothing.
    unsigned int AddSubMenu(const char* text, CContextMenuHandler* handler, unsigned int id);

    // Whether an item is checked. False: there is no menu, or the first row of that id is no item.
    bool GetItemCheck(unsigned int id, bool& checked);
    void SetItemCheck(unsigned int id, bool checked);

    XMLNode* Template = nullptr; // look of the menu, borrowed; null for the template "contextmenu"
    TeskContextMenu* Menu = nullptr; // null while it is closed; belongs to the tree
    CContextMenuHandler* Child = nullptr; // of the submenu that is open
    CContextMenuHandler* Parent = nullptr; // of the menu that opened this one last; stays when both have closed

private:
    friend class MenuHandlerWatch;

    bool Open(u32 id, int x, int y);
    bool MakeMenu();
    void Fill(u32 id);
    void CloseOwn();
    void SetParent(CContextMenuHandler* parent);

    CContextMenuHandler* m_Opened = nullptr; // the first handler that names this one as its Parent
    CContextMenuHandler* m_NextOpened = nullptr; // the next one that names the same
    bool m_ClosesUpward = false;
    MenuHandlerWatch* m_Watches = nullptr;
};
