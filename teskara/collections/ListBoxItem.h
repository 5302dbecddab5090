#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"
#include "teskara/core/utf8string.h"
#include "teskara/element/ScriptHold.h"

#include <memory>
#include <optional>

class TeskListBox;

// One row of a list box. The list owns it, and knows it by an id that stays the same while the row lives. Kept small,
// since lists may have very many rows.
class TESKARA_EXPORT ListBoxItem
{
public:
    // A null text or value is empty. Throws when there is no memory.
    ListBoxItem(TeskListBox* list, u32 id, const char* text, const char* value, u32 color);

    // Null after the text was taken away.
    const char* GetText() const { return Text ? Text->c_str() : nullptr; }

    // Empty if there is none.
    const char* GetValue() const { return Value ? Value->c_str() : ""; }

    // Null takes the text away. Text and value stay as they were if memory runs out. Rows in order stay where they are.
    void SetText(const char* text) noexcept;
    void SetValue(const char* value) noexcept;

    u32 ID; // from 1
    std::optional<utf8string> Text;
    u32 Color; // ARGB
    u32 Order = 0; // from 0; RowOrder keeps it, and tells it
    std::unique_ptr<utf8string> Value; // null: none, as in most rows
    TeskListBox* pListBox;
    u64 Serial; // of all rows that there ever were; never used twice
    ScriptHold<ListBoxItem> Hold;
};
