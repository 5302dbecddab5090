#include "teskara/collections/ListBoxItem.h"

#include "teskara/core/BoundedText.h"

namespace {

u64 g_LastSerial = 0;

} // namespace

ListBoxItem::ListBoxItem(TeskListBox* list, u32 id, const char* text, const char* value, u32 color)
    : ID(id), Text(TextOrEmpty(text)), Color(color), Value(TextOrEmpty(value)), pListBox(list), Serial(++g_LastSerial)
{
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
{
    TryAssign(Value, value);
}
