#include "teskara/controls/TeskTooltipLine.h"

#include "teskara/core/BoundedText.h"
#include "teskara/element/DataText.h"

namespace {

DataText::Buffer g_Parsed;

} // namespace

TeskTooltipLine::TeskTooltipLine(const char* text) : TeskTooltipLine(std::string_view(TextOrEmpty(text))) { }

TeskTooltipLine::TeskTooltipLine(std::string_view text) : Text(text), HasData(DataText::HasSequences(Text)) { }

// What is evaluated meanwhile, by a script, must not show up in this text.
const char* TeskTooltipLine::Parse() const
{
    if (!HasData)
        return Text.c_str();

    DataText::Buffer parsed;
    DataText::Evaluate(Text, parsed);
    CopyBounded(g_Parsed, sizeof(g_Parsed), parsed);
    return g_Parsed;
}

void TeskTooltipLine::Set(const char* text)
{
    if (TryAssign(Text, text))
        HasData = DataText::HasSequences(Text);
}
