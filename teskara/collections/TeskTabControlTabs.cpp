// What a tab control holds. Elements of a tab run scripts as they come and go, and a script may remove the tab that is
// being filled, or end the control.

#include "teskara/collections/TeskTabControl.h"
#include "teskara/controls/TeskFrame.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/MarkupReading.h"
#include "teskara/core/Messages.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/markup/MarkupNames.h"

#include <algorithm>
#include <string_view>

namespace {

// Beside the name: room on both sides, and between two tabs.
constexpr u32 CaptionMargin = 12;
constexpr u32 Gap = 4;

constexpr char FrameKind[] = "frame";

// Room for the text of any 32-bit number.
constexpr u32 NumberTextSize = 32;

void LoadIntoFrame(TeskFrame& frame, XMLNode* node)
{
    const ElementWatch watch(frame);
    const char* name = XMLHelper::GetStringAttribute(node, NameAttribute, "");
    if (!g_UIManager.LoadElement(&frame, node->Name, name, node, nullptr) && watch.Exists())
        Host::PrintLine(Messages::ChildFailed, node->Name, name, frame.Name.c_str());
}

// Stops where the frame ends.
void FillFrame(TeskFrame& frame, XMLNode* firstChild)
{
    const ElementWatch watch(frame);
    for (XMLNode* node = firstChild; node && watch.Exists(); node = node->Next) {
        if (node->Type == XMLElementNode)
            LoadIntoFrame(frame, node);
    }
}

} // namespace

u32 TeskTabControl::AddTab(const char* name, XMLNode* firstChild, const char* frameName, const char*)
{
    const CTeskTab* tab = MakeTab(name, frameName);
    if (!tab)
        return 0;

    const MarkupReading reading;
    const u32 id = tab->ID;
    const u64 serial = tab->Serial;
    TeskFrame& frame = *tab->Frame;
    const ElementWatch self(*this);
    const ElementWatch watchedFrame(frame);
    DressFrame(frame);
    if (watchedFrame.Exists())
        FillFrame(frame, firstChild);
    if (self.Exists())
        SizeRecalculated(true);
    if (watchedFrame.Exists())
        frame.OnCreate();
    if (watchedFrame.Exists())
        RunScript(frame.Events.OnLoad);
    return self.Exists() && IsTab(id, serial) ? id : 0;
}

// A tab with an empty frame. Null: there is one of that name, or there is no memory, or the control takes no children.
CTeskTab* TeskTabControl::MakeTab(const char* name, const char* frameName)
{
    CTeskTab* tab = GetTabFromName(name) ? nullptr : EnterTab(name);
    if (!tab)
        return nullptr;

    const u32 id = tab->ID;
    const u64 serial = tab->Serial;
    const ElementWatch self(*this);
    auto* frame = TeskElementFactory::New<TeskFrame>(FrameKind, this, frameName);
    if (!self.Exists())
        return nullptr;
    if (!IsTab(id, serial)) {
        if (frame)
            DeleteChild(frame);
        return nullptr;
    }
    tab->Frame = frame;
    if (frame)
        return tab;

    DropTab(*tab);
    --TabCount;
    return nullptr;
}

// A tab without a frame, behind the others. Null: there is no memory.
CTeskTab* TeskTabControl::EnterTab(const char* name) noexcept
try {
    auto slot = std::find(Tabs.begin(), Tabs.end(), nullptr);
    if (slot == Tabs.end())
        slot = Tabs.insert(slot, nullptr);
    const u32 id = static_cast<u32>(slot - Tabs.begin()) + 1;
    *slot = std::make_unique<CTeskTab>(this, id, name, WidthFor(name));
    if (!OrderedTabs.Add(**slot)) {
        slot->reset();
        return nullptr;
    }

    ++TabCount;
    return slot->get();
} catch (...) {
    return nullptr;
}

u32 TeskTabControl::WidthFor(const char* name) const
{
    const u64 textWidth = Font ? Font->GetTextWidth(name) : 0;
    return static_cast<u32>(textWidth) + CaptionMargin + 2 * TabBorder + Gap;
}

// Puts the frame on top, and with it everything around it.
void TeskTabControl::DressFrame(TeskFrame& frame)
{
    if (FrameTexture)
        frame.Texture.reset(TeskTexture::New(*FrameTexture));

    _CreateFrame record;
    record.Y = static_cast<i32>(TabHeight);
    record.Visible = false;
    record.BackgroundColor = FrameBackgroundColor;
    record.Border = FrameBorder;
    record.BorderColor = FrameBorderColor;
    frame.Create(record);
}

// Scripts that hear of it find the tab gone, and its id free, but still count it.
void TeskTabControl::RemoveTab(u32 id)
{
    if (DragTab == id)
        DragTab = 0;
    if (SelectedTab == id)
        SelectedTab = 0;
    CTeskTab* tab = RetrieveTab(id);
    if (!tab)
        return;

    TeskFrame* frame = tab->Frame;
    DropTab(*tab);
    const ElementWatch self(*this);
    if (frame)
        DeleteChild(frame);
    if (self.Exists())
        --TabCount;
}

void TeskTabControl::DropTab(const CTeskTab& tab)
{
    OrderedTabs.Remove(tab);
    Tabs[tab.ID - 1].reset();
}

// Whether that very tab is still there.
bool TeskTabControl::IsTab(u32 id, u64 serial) const
{
    const CTeskTab* tab = RetrieveTab(id);
    return tab && tab->Serial == serial;
}

CTeskTab* TeskTabControl::GetTabFromName(const char* name) const
{
    const std::string_view wanted = TextOrEmpty(name);
    for (const auto& tab : Tabs) {
        if (tab && EqualsNoCase(tab->Name, wanted))
            return tab.get();
    }
    return nullptr;
}

void TeskTabControl::MoveTab(CTeskTab* tab, u32 order)
{
    if (tab && tab->pTabControl == this)
        OrderedTabs.Move(*tab, std::min(order, TabCount - 1));
}

void TeskTabControl::SelectTab(u32 id)
{
    if (id == SelectedTab)
        return;

    ShowFrame(SelectedTab, false);
    SelectedTab = 0;
    if (!RetrieveTab(id))
        return;

    ShowFrame(id, true);
    SelectedTab = id;
    char text[NumberTextSize];
    WriteInteger(text, sizeof(text), id);
    RunScript(OnSelect, text);
}

void TeskTabControl::ClearSelection()
{
    SelectTab(0);
}

// No script hears of it.
void TeskTabControl::SelectFront()
{
    const CTeskTab* tab = OrderedTabs.Front();
    if (!tab)
        return;

    SelectedTab = tab->ID;
    ShowFrame(tab->ID, true);
}

void TeskTabControl::ShowFrame(u32 id, bool show)
{
    const CTeskTab* tab = RetrieveTab(id);
    if (tab && tab->Frame)
        tab->Frame->Show(show);
}
