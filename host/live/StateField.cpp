#include "host/live/StateField.h"

#include "teskara/collections/CTeskTab.h"
#include "teskara/collections/ListBoxItem.h"
#include "teskara/collections/TeskComboBox.h"
#include "teskara/collections/TeskListBox.h"
#include "teskara/collections/TeskTabControl.h"
#include "teskara/collections/TeskTree.h"
#include "teskara/collections/TeskTreeNode.h"
#include "teskara/controls/TeskCheckBox.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/controls/TeskSlider.h"
#include "teskara/controls/TeskVariableSlider.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/text/TeskTextEdit.h"
#include "teskara/text/TeskTextEntry.h"
#include "teskara/windows/TeskWindow.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <string_view>
#include <vector>

namespace host {

namespace {

using Value = std::optional<std::string>;

constexpr char Separator = '\x1f'; // between the parts of a value
constexpr char RowEnd = '\x1e';
constexpr u32 MostNodes = 10000; // of a tree whose state is kept

i64 ToNumber(std::string_view text)
{
    i64 number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

std::vector<std::string_view> Parts(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    while (true) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == text.npos)
            return parts;
        text.remove_prefix(end + 1);
    }
}

template <class... Numbers> std::string Join(Numbers... numbers)
{
    std::string text;
    ((text += (text.empty() ? "" : std::string(1, Separator)) + std::to_string(numbers)), ...);
    return text;
}

// The element as what it is, unless it is a part of another control that looks after it.
template <class Kind> Kind* OwnKind(TeskElement& element)
{
    const bool isPart = dynamic_cast<TeskComboBox*>(element.Parent) || dynamic_cast<TeskScrollBar*>(element.Parent)
        || dynamic_cast<TeskTabControl*>(element.Parent);
    return isPart ? nullptr : dynamic_cast<Kind*>(&element);
}

// Parts of controls come and go by themselves, and so does what floats over the rest.
Value ReadVisible(TeskElement& element)
{
    if (!OwnKind<TeskElement>(element) || dynamic_cast<TeskScrollBar*>(&element) || element.IsTypeOf("tooltip")
        || element.IsTypeOf("contextmenu"))
        return std::nullopt;
    return Join(int{element.Visible});
}

void WriteVisible(TeskElement& element, const std::string& value)
{
    element.Show(ToNumber(value) != 0);
}

Value ReadPlace(TeskElement& element)
{
    const auto* window = dynamic_cast<TeskWindow*>(&element);
    if (window && window->Minimized)
        return Join(element.X, element.Y, window->RestoreWidth, window->RestoreHeight);
    if (window || element.IsTypeOf("hudelement"))
        return Join(element.X, element.Y, element.Width, element.Height);
    return std::nullopt;
}

void WritePlace(TeskElement& element, const std::string& value)
{
    const auto parts = Parts(value, Separator);
    element.X = static_cast<i32>(ToNumber(parts[0]));
    element.Y = static_cast<i32>(ToNumber(parts[1]));
    element.Width = static_cast<u32>(ToNumber(parts[2]));
    element.Height = static_cast<u32>(ToNumber(parts[3]));
    if (auto* window = dynamic_cast<TeskWindow*>(&element))
        window->OnResize();
}

Value ReadMinimized(TeskElement& element)
{
    const auto* window = dynamic_cast<TeskWindow*>(&element);
    return window ? Value(Join(int{window->Minimized})) : std::nullopt;
}

void WriteMinimized(TeskElement& element, const std::string& value)
{
    dynamic_cast<TeskWindow&>(element).Minimize(ToNumber(value) != 0);
}

Value ReadChecked(TeskElement& element)
{
    const auto* box = dynamic_cast<TeskCheckBox*>(&element);
    return box ? Value(Join(int{box->Checked})) : std::nullopt;
}

void WriteChecked(TeskElement& element, const std::string& value)
{
    dynamic_cast<TeskCheckBox&>(element).Checked = ToNumber(value) != 0;
}

// A variable slider has its value from elsewhere.
Value ReadSlider(TeskElement& element)
{
    const auto* slider = OwnKind<TeskSlider>(element);
    return slider && !dynamic_cast<const TeskVariableSlider*>(slider) ? Value(Join(slider->Value)) : std::nullopt;
}

void WriteSlider(TeskElement& element, const std::string& value)
{
    dynamic_cast<TeskSlider&>(element).SetValue(static_cast<u32>(ToNumber(value)));
}

Value ReadChoice(TeskElement& element)
{
    const auto* combo = dynamic_cast<TeskComboBox*>(&element);
    return combo && combo->List ? Value(Join(combo->Selection)) : std::nullopt;
}

void WriteChoice(TeskElement& element, const std::string& value)
{
    auto& combo = dynamic_cast<TeskComboBox&>(element);
    if (combo.List)
        combo.List->SelectItem(static_cast<u32>(ToNumber(value)));
}

Value ReadRows(TeskElement& element)
{
    auto* list = OwnKind<TeskListBox>(element);
    if (!list)
        return std::nullopt;

    std::string rows;
    for (u32 order = 0; order < list->GetItemCount(); ++order) {
        const ListBoxItem* item = list->RetrieveOrdered(order);
        rows += item->GetText() ? item->GetText() : "";
        rows += Separator + std::string(item->GetValue()) + Separator + std::to_string(item->Color) + RowEnd;
    }
    return rows;
}

void WriteRows(TeskElement& element, const std::string& value)
{
    auto& list = dynamic_cast<TeskListBox&>(element);
    const ElementWatch watch(element);
    list.ClearItems();
    auto rows = Parts(value, RowEnd);
    rows.pop_back();
    for (const std::string_view row : rows) {
        const auto parts = Parts(row, Separator);
        if (!watch.Exists() || parts.size() != 3)
            return;
        list.AddItem(
            std::string(parts[0]).c_str(), std::string(parts[1]).c_str(), static_cast<u32>(ToNumber(parts[2])));
    }
}

Value ReadSelection(TeskElement& element)
{
    auto* list = OwnKind<TeskListBox>(element);
    if (!list)
        return std::nullopt;

    std::string orders;
    for (u32 id = list->SelectedItems.FirstAfter(0); id != 0; id = list->SelectedItems.FirstAfter(id))
        if (const ListBoxItem* item = list->RetrieveItem(id))
            orders += std::to_string(list->OrderOf(*item)) + RowEnd;
    return orders;
}

void WriteSelection(TeskElement& element, const std::string& value)
{
    auto& list = dynamic_cast<TeskListBox&>(element);
    const ElementWatch watch(element);
    list.ClearSelection();
    for (const std::string_view order : Parts(value, RowEnd)) {
        const ListBoxItem* item =
            watch.Exists() && !order.empty() ? list.RetrieveOrdered(static_cast<u32>(ToNumber(order))) : nullptr;
        if (item)
            list.SelectItem(item->ID);
    }
}

Value ReadEntry(TeskElement& element)
{
    const auto* entry = dynamic_cast<TeskTextEntry*>(&element);
    if (!entry)
        return std::nullopt;
    return Join(entry->Text.Caret()) + Separator + entry->Text.From(0);
}

void WriteEntry(TeskElement& element, const std::string& value)
{
    auto& entry = dynamic_cast<TeskTextEntry&>(element);
    const ElementWatch watch(element);
    entry.SetText(value.c_str() + value.find(Separator) + 1);
    if (watch.Exists())
        entry.Text.CaretPos = static_cast<u64>(ToNumber(value));
}

Value ReadLines(TeskElement& element)
{
    const auto* edit = dynamic_cast<TeskTextEdit*>(&element);
    if (!edit)
        return std::nullopt;

    std::string text;
    for (const CTextEditLine* line = edit->Lines.First(); line; line = line->Next)
        text += std::string(line->Bytes()) + (line->Next ? "\n" : "");
    return text;
}

void WriteLines(TeskElement& element, const std::string& value)
{
    dynamic_cast<TeskTextEdit&>(element).SetText(value.c_str());
}

Value ReadCaret(TeskElement& element)
{
    const auto* edit = dynamic_cast<TeskTextEdit*>(&element);
    if (!edit || !edit->View.Caret.Line)
        return std::nullopt;
    return Join(edit->View.Caret.Line->GetNumber(), edit->View.HeldColumn());
}

void WriteCaret(TeskElement& element, const std::string& value)
{
    EditView& view = dynamic_cast<TeskTextEdit&>(element).View;
    const auto parts = Parts(value, Separator);
    view.MoveToStart();
    view.MoveDown(static_cast<u64>(ToNumber(parts[0])));
    for (i64 column = ToNumber(parts[1]); column > 0 && view.MoveRight(); --column) { }
}

// The nodes of a tree by their texts and those of their parents; of namesakes the first. Nothing if there are too many to
// be looked at in each state.
using NodesByPath = std::map<std::string, TeskTreeNode*>;

NodesByPath NodesOf(const TeskTree& tree)
{
    NodesByPath nodes;
    if (!tree.Root || tree.GetNodeCount() > MostNodes)
        return nodes;

    std::string path;
    TeskTreeNode* node = tree.Root->FirstChild;
    while (node) {
        const std::string own = path + Separator + node->Text.c_str();
        nodes.emplace(own, node);
        if (node->FirstChild) {
            path = own;
            node = node->FirstChild;
            continue;
        }
        while (!node->Next && node->Parent != tree.Root) {
            node = node->Parent;
            path.resize(path.size() - 1 - node->Text.size());
        }
        node = node->Next;
    }
    return nodes;
}

Value ReadNodes(TeskElement& element)
{
    const auto* tree = dynamic_cast<TeskTree*>(&element);
    if (!tree)
        return std::nullopt;

    std::string value;
    for (const auto& [path, node] : NodesOf(*tree))
        if (node->FirstChild)
            value += path + Separator + std::to_string(int{node->IsExpanded()}) + RowEnd;
    return value;
}

void WriteNodes(TeskElement& element, const std::string& value)
{
    const NodesByPath nodes = NodesOf(dynamic_cast<TeskTree&>(element));
    for (const std::string_view row : Parts(value, RowEnd)) {
        const std::size_t end = row.rfind(Separator);
        const auto node = nodes.find(std::string(row.substr(0, end)));
        if (end != row.npos && node != nodes.end())
            node->second->SetExpanded(row.ends_with('1'));
    }
}

Value ReadNode(TeskElement& element)
{
    const auto* tree = dynamic_cast<TeskTree*>(&element);
    if (!tree)
        return std::nullopt;

    for (const auto& [path, node] : NodesOf(*tree))
        if (node->IsSelected())
            return path;
    return std::string();
}

void WriteNode(TeskElement& element, const std::string& value)
{
    const NodesByPath nodes = NodesOf(dynamic_cast<TeskTree&>(element));
    const auto node = nodes.find(value);
    if (node != nodes.end())
        node->second->Select();
}

// By its name: tabs that come before it may be new.
Value ReadTab(TeskElement& element)
{
    const auto* control = dynamic_cast<TeskTabControl*>(&element);
    if (!control)
        return std::nullopt;

    const CTeskTab* tab = control->RetrieveTab(control->SelectedTab);
    return tab ? std::string(tab->Name.c_str()) : std::string();
}

void WriteTab(TeskElement& element, const std::string& value)
{
    auto& control = dynamic_cast<TeskTabControl&>(element);
    if (const CTeskTab* tab = control.GetTabFromName(value.c_str()))
        control.SelectTab(tab->ID);
}

// How far it is from its high end, the top of what it scrolls: that stays right when there is more to scroll. The bar of
// a text edit follows the caret.
Value ReadScroll(TeskElement& element)
{
    auto* bar = dynamic_cast<TeskScrollBar*>(&element);
    if (!bar || dynamic_cast<TeskTextEdit*>(element.Parent))
        return std::nullopt;
    return Join(bar->Range - std::min(bar->Range, bar->GetValue()));
}

void WriteScroll(TeskElement& element, const std::string& value)
{
    auto& bar = dynamic_cast<TeskScrollBar&>(element);
    bar.SetValue(bar.Range - std::min(bar.Range, static_cast<u32>(ToNumber(value))));
}

constexpr StateField Fields[] = {
    {"visible", false, ReadVisible, WriteVisible},
    {"place", false, ReadPlace, WritePlace},
    {"minimized", false, ReadMinimized, WriteMinimized},
    {"checked", false, ReadChecked, WriteChecked},
    {"slider", false, ReadSlider, WriteSlider},
    {"choice", false, ReadChoice, WriteChoice},
    {"rows", false, ReadRows, WriteRows},
    {"selection", false, ReadSelection, WriteSelection},
    {"tab", false, ReadTab, WriteTab},
    {"nodes", false, ReadNodes, WriteNodes},
    {"node", false, ReadNode, WriteNode},
    {"entry", false, ReadEntry, WriteEntry},
    {"lines", false, ReadLines, WriteLines},
    {"caret", true, ReadCaret, WriteCaret},
    {"scroll", true, ReadScroll, WriteScroll},
};

} // namespace

std::span<const StateField> StateFields()
{
    return Fields;
}

} // namespace host
