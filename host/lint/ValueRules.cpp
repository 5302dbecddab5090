// Rules about the texts of values: what the toolkit takes for a number, a toggle or a word, and what it does not.

#include "host/lint/LintContext.h"
#include "host/lint/LintName.h"
#include "host/lint/LintRule.h"
#include "host/lint/NearestName.h"
#include "host/lint/NumberText.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/markup/XMLHelper.h"

#include <algorithm>

namespace host {

using namespace NumberText;

namespace {

// The length of what is read in a text of that form; nothing if the form is no number's.
std::optional<std::size_t> NumberLength(std::string_view form, std::string_view text)
{
    if (form == "integer" || form == "toggle")
        return IntegerLength(text);
    if (form == "float")
        return FloatLength(text);
    if (form == "position")
        return PositionLength(text);
    if (form == "hex")
        return HexLength(text);
    return std::nullopt;
}

// Values that are read, with something in them.
template <class Check> void ForEachText(LintContext& context, Check check)
{
    for (const LintValue& value : context.Values()) {
        const std::string_view text = LintContext::TextOf(value);
        const bool isComment =
            !value.Attribute && value.Node->FirstChild && value.Node->FirstChild->Type != XMLTextNode;
        if (value.Value && !isComment && !Trim(text).empty())
            check(value, text);
    }
}

bool IsHexNumber(std::string_view text)
{
    return HexLength(Trim(text)) != 0;
}

bool BeginsWithBlank(std::string_view text)
{
    return text.data() != Trim(text).data();
}

bool IsPlainText(const SchemaValue& value)
{
    return value.Form == "string" || value.Form == "sequence" || value.Form == "word" || value.Form == "file"
        || value.Form == "variable" || value.Form == "template";
}

bool IsNumeric(const SchemaValue& value)
{
    return NumberLength(value.Form, "").has_value();
}

} // namespace

void LintChecks::Toggle(LintContext& context)
{
    constexpr std::string_view yes[] = {"true", "yes", "on"};
    ForEachText(context, [&](const LintValue& value, std::string_view text) {
        if (value.Value->Form != "toggle" || IntegerLength(Trim(text)) != 0)
            return;
        const bool isYes = std::any_of(
            std::begin(yes), std::end(yes), [text](std::string_view word) { return IsSameName(word, Trim(text)); });
        context.Report(value, Quoted(Trim(text)) + " is no number, so " + LintContext::NameOf(value) + " is off",
            isYes ? "1" : "0");
    });
}

void LintChecks::Hex(LintContext& context)
{
    ForEachText(context, [&](const LintValue& value, std::string_view text) {
        if (value.Value->Form != "hex" || IsHexNumber(text))
            return;
        const std::string_view digits = Trim(text).substr(1);
        const bool isMarked = Trim(text).starts_with('#') && HexLength(digits) == digits.size() && !digits.empty();
        std::string meant = isMarked ? std::string(digits) : "eight digits: alpha, red, green, blue";
        if (isMarked && digits.size() == 6)
            meant = "ff" + meant;
        context.Report(value, Quoted(Trim(text)) + " is no hexadecimal number, and counts as 0", meant);
    });
}

void LintChecks::Number(LintContext& context)
{
    ForEachText(context, [&](const LintValue& value, std::string_view text) {
        text = Trim(text);
        const auto length = NumberLength(value.Value->Form, text);
        const bool isForOthers = (value.Value->Form == "toggle" && IntegerLength(text) == 0)
            || (value.Value->Form == "hex" && !IsHexNumber(text));
        if (!length || *length == text.size() || isForOthers)
            return;
        if (*length == 0) {
            context.Report(value, Quoted(text) + " is no number, and counts as 0");
            return;
        }
        context.Report(value, "what stands behind the number in " + Quoted(text) + " is not read",
            std::string(text.substr(0, *length)));
    });
}

void LintChecks::Word(LintContext& context)
{
    ForEachText(context, [&](const LintValue& value, std::string_view text) {
        const std::vector<std::string>& words = value.Value->Words;
        const bool isKnown = std::any_of(
            words.begin(), words.end(), [text](const std::string& word) { return IsSameName(word, Trim(text)); });
        if (value.Value->Form == "word" && !words.empty() && !isKnown)
            context.Report(value,
                std::string(LintContext::NameOf(value)) + " does not know the word " + Quoted(Trim(text)),
                NearestName(Trim(text), words));
    });
}

void LintChecks::FarShare(LintContext& context)
{
    ForEachText(context, [&](const LintValue& value, std::string_view text) {
        const bool isFar = text.starts_with('r') || text.starts_with('R');
        if (value.Value->Form == "position" && isFar && text.find_first_of("%.") != text.npos)
            context.Report(value,
                "a share does not count from the far edge: the letter of " + Quoted(text) + " is lost",
                std::string(text.substr(1)));
    });
}

void LintChecks::EmptyValue(LintContext& context)
{
    for (const LintValue& value : context.Values()) {
        if (!value.Value || value.Attribute || value.Node->FirstChild)
            continue;
        if (value.Value->Form == "toggle")
            context.Report(
                value, "an empty " + std::string(value.Node->Name) + " is on, not what it is by default", "1");
        else if (IsNumeric(*value.Value) || value.Value->Form == "word")
            context.Report(value, "an empty " + std::string(value.Node->Name) + " is 0, not what it is by default");
    }
}

void LintChecks::ValueBegin(LintContext& context)
{
    for (const LintValue& value : context.Values()) {
        const XMLNode* first = value.Attribute || !value.Value ? nullptr : value.Node->FirstChild;
        if (!first || !(IsNumeric(*value.Value) || IsPlainText(*value.Value) || value.Value->Form == "script"))
            continue;
        const std::string_view text = LintContext::TextOf(value);
        const bool isFar =
            value.Value->Form == "position" && Trim(text).size() > 0 && FoldAscii(Trim(text).front()) == 'r';
        if (first->Type == XMLCommentNode)
            context.Report(value, "the comment is read as the value of " + std::string(value.Node->Name),
                "the comment before the tag");
        else if (first->Type == XMLTextNode && BeginsWithBlank(text) && (IsPlainText(*value.Value) || isFar))
            context.Report(value, "the blank before the value of " + std::string(value.Node->Name) + " belongs to it",
                "the value directly behind the tag");
    }
}

void LintChecks::ValueEnd(LintContext& context)
{
    for (const LintValue& value : context.Values()) {
        const XMLNode* first = value.Attribute || !value.Value ? nullptr : value.Node->FirstChild;
        if (!first || !first->Next || first->Type != XMLTextNode)
            continue;
        if (IsNumeric(*value.Value) || IsPlainText(*value.Value) || value.Value->Form == "script")
            context.Report(first->Next, "the value of " + std::string(value.Node->Name) + " ends here",
                "one text without anything in it");
    }
}

} // namespace host
