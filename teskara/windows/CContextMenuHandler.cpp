#include "teskara/windows/CContextMenuHandler.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/Limits.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/windows/MenuHandlerWatch.h"
#include "teskara/windows/TeskContextMenu.h"
#include "teskara/windows/TeskContextMenuItem.h"
#include "teskara/windows/TeskContextMenuSeparator.h"
#include "teskara/windows/TeskContextMenuSubmenu.h"

#include <memory>
#include <utility>

namespace {

// 0: there is no menu, or no memory.
template <class Node, class... Arguments> u32 AddNode(TeskContextMenu* menu, u32 id, Arguments... arguments)
try {
    if (!menu)
        return 0;
    if (id == 0)
        id = menu->NextItemID++;
    menu->Append(std::make_unique<Node>(*menu, id, arguments...));
    return id;
} catch (...) {
    return 0;
}

} // namespace

// A menu that is being deleted just now cannot be closed. It lives on without a handler.
CContextMenuHandler::~CContextMenuHandler()
{
    DestroyMenu(false);
    if (Menu)
        Menu->pHandler = nullptr;
    SetParent(nullptr);
    while (m_Opened)
        m_Opened->SetParent(nullptr);
    for (MenuHandlerWatch* watch = m_Watches; watch; watch = watch->m_Outer)
        watch->m_Handler = nullptr;
}

void CContextMenuHandler::OnCreate(unsigned int) { }

void CContextMenuHandler::OnMenuDestroyed()
{
    Menu = nullptr;
}

bool CContextMenuHandler::Create(int x, int y)
{
    return Open(0, x, y);
}

// A second submenu closes the first one, and with it the menu that both belong to. So does the first one itself where
// its menu went without being closed.
void CContextMenuHandler::CreateSubmenu(CContextMenuHandler& parent, unsigned int id, int x, int y)
{
    if (Menu || &parent == this)
        return;

    const MenuHandlerWatch self(this);
    const MenuHandlerWatch opener(&parent);
    if (Parent != &parent)
        SetParent(&parent);
    if (parent.Child)
        parent.DestroyMenu(false);
    if (!self.Exists())
        return;
    if (opener.Exists())
        parent.Child = this;
    Open(id, x, y);
}

// A menu whose template is missing opens all the same, and shows nothing but its frame.
bool CContextMenuHandler::Open(u32 id, int x, int y)
{
    if (!MakeMenu())
        return false;

    TeskContextMenu& menu = *Menu;
    const MenuHandlerWatch self(this);
    const ElementWatch watch(menu);
    menu.Load(*this, Template);
    if (!self.Exists() || !watch.Exists())
        return false;

    menu.X = x;
    menu.Y = y;
    menu.PositionX = {};
    menu.PositionY = {};
    Fill(id);
    if (watch.Exists())
        g_UIManager.SetFocusElement(&menu);
    return true;
}

bool CContextMenuHandler::MakeMenu()
{
    if (Menu || !g_UIManager.Screen)
        return false;

    char name[Limits::TextBuffer512];
    FormatBounded(name, sizeof(name), "Context Menu 0x%X", g_UIManager.NextElementID);
    Menu = TeskElementFactory::New<TeskContextMenu>("contextmenu", g_UIManager.Screen, name);
    return Menu != nullptr;
}

// What a program's handler throws goes no further; the menu shows what was added before.
void CContextMenuHandler::Fill(u32 id)
try {
    OnCreate(id);
} catch (...) {
    return;
}

// Menus that open each other in a circle end where the way up began.
void CContextMenuHandler::DestroyMenu(bool upward)
{
    const MenuHandlerWatch self(this);
    const MenuHandlerWatch parent(Parent);
    CloseOwn();
    if (!upward || !parent.Exists() || (self.Exists() && std::exchange(m_ClosesUpward, true)))
        return;

    parent.Get()->DestroyMenu(true);
    if (self.Exists())
        m_ClosesUpward = false;
}

void CContextMenuHandler::CloseOwn()
{
    if (Parent)
        Parent->Child = nullptr;
    const MenuHandlerWatch self(this);
    if (Child)
        std::exchange(Child, nullptr)->DestroyMenu(false);
    if (self.Exists() && Menu && Menu->Parent)
        Menu->Parent->DeleteChild(Menu);
}

void CContextMenuHandler::SetParent(CContextMenuHandler* parent)
{
    if (Parent) {
        if (Parent->Child == this)
            Parent->Child = nullptr;
        CContextMenuHandler** link = &Parent->m_Opened;
        while (*link && *link != this)
            link = &(*link)->m_NextOpened;
        if (*link)
            *link = m_NextOpened;
    }
    Parent = parent;
    m_NextOpened = parent ? std::exchange(parent->m_Opened, this) : nullptr;
}

unsigned int CContextMenuHandler::AddItem(const char* text, unsigned int id)
{
    return AddNode<TeskContextMenuItem>(Menu, id, TextOrEmpty(text));
}

unsigned int CContextMenuHandler::AddSeparator()
{
    return AddNode<TeskContextMenuSeparator>(Menu, 0);
}

unsigned int CContextMenuHandler::AddSubMenu(const char* text, CContextMenuHandler* handler, unsigned int id)
{
    return AddNode<TeskContextMenuSubmenu>(Menu, id, TextOrEmpty(text), handler);
}

bool CContextMenuHandler::GetItemCheck(unsigned int id, bool& checked)
{
    TeskContextMenuNode* node = Menu ? Menu->Nodes : nullptr;
    while (node && node->ID != id)
        node = node->Next;
    const auto* item = dynamic_cast<TeskContextMenuItem*>(node);
    if (!item)
        return false;

    checked = item->Checked;
    return true;
}

void CContextMenuHandler::SetItemCheck(unsigned int id, bool checked)
{
    for (TeskContextMenuNode* node = Menu ? Menu->Nodes : nullptr; node; node = node->Next) {
        auto* item = dynamic_cast<TeskContextMenuItem*>(node);
        if (item && item->ID == id)
            item->Checked = checked;
    }
}
