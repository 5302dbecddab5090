#pragma once

#include "teskara/core/Export.h"
#include "teskara/text/LineStore.h"

#include <optional>
#include <string>

// The part of an edited text between two positions, either of which may come first.
class TESKARA_EXPORT EditSelection
{
public:
    // Bytes of one line, from the first up to the one behind the last.
    struct Columns {
        bool operator==(const Columns&) const = default;

        u64 Begin;
        u64 End;
    };

    explicit EditSelection(LineStore& lines) : SelectionStart(lines), SelectionEnd(lines) { }

    bool Exists() const;
    void Clear();

    // Puts both ends on a position.
    void Collapse(const TextEditPos& position);

    // What is selected of a line; nothing if the line lies outside. A line that is touched may give an empty part.
    std::optional<Columns> On(const CTextEditLine& line) const;

    // What is selected, its lines divided by CR LF. Throws if there is no memory.
    std::string Text() const;

    LivePosition SelectionStart; // where selecting began
    LivePosition SelectionEnd;
};
