#include "tests/unit/reentrancy/Collections.h"

#include "teskara/collections/TeskComboBox.h"
#include "teskara/collections/TeskListBox.h"
#include "teskara/collections/TeskTabControl.h"
#include "teskara/collections/TeskTree.h"
#include "teskara/controls/TeskTooltip.h"
#include "teskara/core/CUIManager.h"
#include "teskara/text/TeskConsole.h"
#include "teskara/text/TeskTextEdit.h"
#include "teskara/text/TeskTextEntry.h"
#include "teskara/windows/CContextMenuHandler.h"
#include "teskara/windows/TeskContextMenu.h"
#include "teskara/windows/TeskMap.h"
#include "teskara/windows/TeskMapView.h"
#include "tests/unit/reentrancy/Scene.h"

namespace {

constexpr int Many = 3;
constexpr const char* Texts[Many] = {"new", "newer", "newest"};

// Null once the element under test is of another class, or gone.
template <class Control> Control* SelfAs()
{
    return dynamic_cast<Control*>(Self());
}

// Does something with the element for each text, looking it up each time.
template <class Control, class Step> bool ForEachText(Step&& step)
{
    bool isThere = false;
    for (const char* text : Texts) {
        if (Control* control = SelfAs<Control>()) {
            step(*control, text);
            isThere = true;
        }
    }
    return isThere;
}

TeskListBox* List()
{
    auto* combo = SelfAs<TeskComboBox>();
    return combo ? combo->List : SelfAs<TeskListBox>();
}

bool EmptyTabs()
{
    const bool isThere = SelfAs<TeskTabControl>() != nullptr;
    for (u32 id = 1; id <= Many + 1; ++id) {
        if (auto* tabs = SelfAs<TeskTabControl>())
            tabs->RemoveTab(id);
    }
    return isThere;
}

bool EmptyMapView()
{
    if (!SelfAs<TeskMapView>())
        return false;
    for (const char* name : {"Town@Other", "Hill@Other"}) {
        const TeskElement* blip = g_UIManager.FindElement(name);
        if (auto* view = SelfAs<TeskMapView>(); view && blip)
            view->RemoveBlipView(blip->ID);
    }
    return true;
}

bool EmptyMenu()
{
    bool isThere = false;
    while (SelfAs<TeskContextMenu>() && SelfAs<TeskContextMenu>()->Nodes) {
        delete SelfAs<TeskContextMenu>()->Nodes; // which leaves its menu
        isThere = true;
    }
    return isThere;
}

bool FillTabs()
{
    return ForEachText<TeskTabControl>(
        [](TeskTabControl& tabs, const char* text) { tabs.AddTab(text, nullptr, text, nullptr); });
}

bool FillMapView()
{
    if (!SelfAs<TeskMapView>())
        return false;
    for (const char* name : {"Hill@Other", "Town@Other"}) {
        auto* blip = dynamic_cast<TeskMapBlip*>(g_UIManager.FindElement(name));
        if (auto* view = SelfAs<TeskMapView>())
            view->AddBlipView(blip);
    }
    return true;
}

template <class Control, class Step> bool Do(Step&& step)
{
    Control* control = SelfAs<Control>();
    if (control)
        step(*control);
    return control != nullptr;
}

} // namespace

bool EmptyCollection()
{
    if (TeskListBox* list = List()) {
        list->ClearItems();
        return true;
    }
    return EmptyTabs() || EmptyMapView() || EmptyMenu()
        || Do<TeskTree>([](TeskTree& tree) { tree.Root ? tree.Root->RemoveChildren() : void(); })
        || Do<TeskMap>([](TeskMap& map) { map.ClearBlips(); })
        || Do<TeskConsole>([](TeskConsole& console) { console.Clear(); })
        || Do<TeskTextEdit>([](TeskTextEdit& edit) { edit.SetText(""); })
        || Do<TeskTextEntry>([](TeskTextEntry& entry) { entry.SetText(""); })
        || Do<TeskTooltip>([](TeskTooltip& tooltip) { tooltip.Reset(); });
}

bool FillCollection()
{
    if (List()) {
        for (const char* text : Texts) {
            if (TeskListBox* list = List())
                list->AddItem(text, text, 0);
        }
        return true;
    }
    return FillTabs() || FillMapView() || ForEachText<TeskContextMenu>([](TeskContextMenu& menu, const char* text) {
        if (menu.pHandler)
            menu.pHandler->AddItem(text, 0);
    }) || ForEachText<TeskTree>([](TeskTree& tree, const char* text) {
        if (tree.Root)
            tree.Root->AddChild(text, 0);
    }) || ForEachText<TeskMap>([](TeskMap& map, const char* text) {
        map.AddBlip(text, {10, 10, 0}, 8, text, "Blip", nullptr);
    }) || ForEachText<TeskConsole>([](TeskConsole& console, const char* text) { console.Print(text); })
        || ForEachText<TeskTextEdit>([](TeskTextEdit& edit, const char* text) { edit.AddLine(text); })
        || ForEachText<TeskTextEntry>([](TeskTextEntry& entry, const char* text) { entry.SetText(text); })
        || ForEachText<TeskTooltip>([](TeskTooltip& tooltip, const char* text) { tooltip.AddLine(text); });
}
