#include "tests/fuzz/DialogActs.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/windows/CContextMenuHandler.h"
#include "teskara/windows/TeskScriptInputBox.h"
#include "teskara/windows/TeskScriptMessageBox.h"
#include "tests/fuzz/HostileActs.h"

#include <memory>
#include <optional>
#include <string>

namespace {

class FuzzScript final : public HostScript
{
public:
    const char* GetName() const override { return "script"; }
    bool IsInsideAtom() const override { return false; }
    const char* GetUserInput() const override { return m_Answer ? m_Answer->c_str() : nullptr; }

    void SetUserInput(const char* text) override
    {
        if (text)
            m_Answer = text;
        else
            m_Answer.reset();
    }

private:
    std::optional<std::string> m_Answer;
};

// A menu with a row for each kind of row. The first names the second, which names itself.
class FuzzMenu final : public CContextMenuHandler
{
public:
    explicit FuzzMenu(CContextMenuHandler* submenu) : m_Submenu(submenu ? submenu : this) { }

    void OnCreate(unsigned int id) override
    {
        AddItem("item", id);
        AddSeparator();
        AddSubMenu("submenu", m_Submenu, 0);
        SetItemCheck(id, true);
    }

    void OnClick(unsigned int id) override { SetItemCheck(id, false); }

private:
    CContextMenuHandler* m_Submenu;
};

std::unique_ptr<FuzzMenu> g_First;
std::unique_ptr<FuzzMenu> g_Second;
std::unique_ptr<FuzzScript> g_Script;

FuzzMenu& Menu(u8 argument)
{
    if (!g_Second)
        g_Second = std::make_unique<FuzzMenu>(nullptr);
    if (!g_First)
        g_First = std::make_unique<FuzzMenu>(g_Second.get());
    return argument % 2 ? *g_First : *g_Second;
}

// The values of all kinds, or none.
XMLNode* Look(u8 argument)
{
    return argument & 2u ? g_UIManager.FindTemplate("all") : nullptr;
}

template <class Box> Box* MakeBox(const char* kind)
{
    auto* box = dynamic_cast<Box*>(g_UIManager.LoadElement(g_UIManager.Screen, kind, kind));
    if (!box)
        return nullptr;

    box->pScript.Open(*FuzzScriptOfBoxes(), box->ID);
    return box;
}

} // namespace

void OpenFuzzMenu(u8 argument)
{
    FuzzMenu& menu = Menu(argument);
    const _Point2i place = PointFrom(argument);
    menu.Template = Look(argument);
    menu.Create(place.x, place.y);
    if (g_First)
        g_First->Template = nullptr; // which may go
    if (g_Second)
        g_Second->Template = nullptr;
}

void CloseFuzzMenu(u8 argument)
{
    Menu(argument).DestroyMenu(argument & 4u);
}

void ShowFuzzBox(u8 argument)
{
    if (argument % 4 == 0) {
        if (auto* box = MakeBox<TeskScriptInputBox>("scriptinputbox"))
            box->Create("title", "a ${x} b", "default", Look(argument));
    } else if (auto* box = MakeBox<TeskScriptMessageBox>("scriptmessagebox")) {
        box->Create("title", "a ${x} b", static_cast<eMessageBoxType>(argument % 4), Look(argument));
    }
}

// A menu goes before the one that its rows name.
void EndFuzzMenus()
{
    g_First.reset();
    g_Second.reset();
}

HostScript* FuzzScriptOfBoxes()
{
    if (!g_Script)
        g_Script = std::make_unique<FuzzScript>();
    return g_Script.get();
}

void EndFuzzScript()
{
    g_Script.reset();
}
