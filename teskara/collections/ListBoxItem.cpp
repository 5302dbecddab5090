#include "teskara/collections/ListBoxItem.h"

#include "teskara/core/BoundedText.h"

namespace {

u64 g_LastSerial = 0;

} // namespace

ListBoxItem::ListBoxItem(TeskListBox* list, u32 id, const char* text, const char* value, u32 color)
    : ID(id), Text(TextOrEmpty(text)), Color(color), pListBox(list), Serial(++g_LastSerial)
{
    if (value && *value)
        Value = std::make_unique<utf8string>(value);
}

void ListBoxItem::SetText(const char* text) noexcept
{
    if (!text) {
        Text.reset();
        return;
    }

    utf8string copy;
    if (TryAssign(copy, text))
        Text = std::move(copy);
}

void ListBoxItem::SetValue(const char* value) noexcept
try {
    Value = value && *value ? std::make_unique<utf8string>(value) : nullptr;
} catch (...) {
    return; // no memory
}
