#include "teskara/element/MarkupTable.h"

#include "teskara/core/BoundedText.h"

std::string DefaultText(std::string_view form, const MarkupDefault& value, std::span<const MarkupWord> words)
{
    char text[32] = "";
    if (*value.Text)
        return value.Text;
    if (form == "integer" || form == "toggle" || form == "position")
        WriteInteger(text, sizeof(text), value.Number);
    else if (form == "hex")
        FormatBounded(text, sizeof(text), "%08x", value.Number);
    else if (form == "float")
        WriteFixed(text, sizeof(text), static_cast<double>(value.Real), 1);
    for (const MarkupWord& word : words) {
        if (word.Value == value.Number)
            return std::string(word.Word);
    }
    return text;
}
