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

bool IsOneText(const SchemaValue& value)
{
    return IsNumeric(value) || IsPlainText(value) || value.Form == "script";
}

bool IsWhole(std::string_view form, std::string_view text)
{
    return !text.empty() && NumberLength(form, text) == text.size();
}

// The number that was probably meant by a text that begins with one: without blanks in it, with a point for a comma, a
// share where no percent sign is known; else as much as is read.
std::string MeantNumber(std::string_view form, std::string_view text)
{
    std::string mended;
    for (const char character : text) {
        if (character != ' ')
            mended += character == ',' ? '.' : character;
    }
    if (IsWhole(form, mended))
        return mended;
    if (form == "float" && mended.ends_with('%'))
        return ShareText(mended);
    return std::string(text.substr(0, *NumberLength(form, text)));
}

// "left, center or right"
std::string Listed(const std::vector<std::string>& words)
{
    std::string list;
    for (const std::string& word : words) {
        if (&word != &words.front())
            list += &word == &words.back() ? " or " : ", ";
        list += word;
    }
    return list;
}

// What a value counts as that has nothing but blanks in it.
std::string BlankMeaning(const SchemaValue& value)
{
    if (value.Form == "toggle")
        return " is off";
    return value.Form == "word" ? " is no word" : " is 0";
}

// A value of nothing at all that is not what it is by default; empty if there is no harm in it.
std::string EmptyMeaning(const SchemaValue& value)
{
    if (value.Form == "toggle")
        return " is on, not what it is by default";
    if (value.Form == "position")
        return " is as good as none";
    return IsNumeric(value) || value.Form == "word" ? " is 0, not what it is by default" : "";
}

bool IsBlankOrComment(const XMLNode& node)
{
    return node.Type == XMLCommentNode || (node.Type == XMLTextNode && Trim(node.Name).empty());
}

// Whether something is lost behind the first text of a value.
bool LosesSomething(const XMLNode* first)
{
    const XMLNode* node = first->Next;
    while (node && IsBlankOrComment(*node))
        node = node->Next;
    return node != nullptr;
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
    constexpr std::size_t digitsOfColor = 6; // as others write colours
    constexpr std::size_t mostDigits = 8;
    constexpr const char* wanted = "eight digits: alpha, red, green, blue";
    ForEachText(context, [&](const LintValue& value, std::string_view text) {
        text = Trim(text);
        if (value.Value->Form != "hex")
            return;
        const std::size_t length = HexLength(text);
        const std::string_view digits = text.substr(length == 0 ? 1 : 0);
        const bool isWhole = HexLength(digits) == digits.size();
        if (length == 0) {
            const bool isMarked = text.starts_with('#') && isWhole && !digits.empty();
            const std::string alpha = digits.size() == digitsOfColor ? "ff" : "";
            context.Report(value, Quoted(text) + " is no hexadecimal number, and counts as 0",
                isMarked ? alpha + std::string(digits) : wanted);
        } else if (isWhole && HexDigitsIn(text) > mostDigits) {
            context.Report(value, "of " + Quoted(text) + " only the last eight digits count", wanted);
        } else if (isWhole && HexDigitsIn(text) == digitsOfColor && length == digitsOfColor) {
            context.Report(
                value, "the colour " + Quoted(text) + " has no alpha, which makes it clear", "ff" + std::string(text));
        }
    });
}

void LintChecks::Number(LintContext& context)
{
    ForEachText(context, [&](const LintValue& value, std::string_view text) {
        text = Trim(text);
        const std::string& form = value.Value->Form;
        const auto length = NumberLength(form, text);
        const bool isForOthers =
            (form == "toggle" && IntegerLength(text) == 0) || (form == "hex" && !IsHexNumber(text));
        if (!length || isForOthers)
            return;
        if (*length == 0)
            context.Report(value, Quoted(text) + " is no number, and counts as 0");
        else if (*length < text.size())
            context.Report(
                value, "what stands behind the number in " + Quoted(text) + " is not read", MeantNumber(form, text));
        else if (form == "integer" && !IsIn32Bits(text))
            context.Report(value, Quoted(text) + " does not fit into 32 bits");
    });
}

void LintChecks::Word(LintContext& context)
{
    ForEachText(context, [&](const LintValue& value, std::string_view text) {
        const std::vector<std::string>& words = value.Value->Words;
        const bool isKnown = std::any_of(
            words.begin(), words.end(), [text](const std::string& word) { return IsSameName(word, Trim(text)); });
        if (value.Value->Form != "word" || words.empty() || isKnown)
            return;
        const std::string nearest = NearestName(Trim(text), words);
        context.Report(value, std::string(LintContext::NameOf(value)) + " does not know the word " + Quoted(Trim(text)),
            nearest.empty() ? Listed(words) : nearest);
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
        if (!value.Value || value.Attribute)
            continue;
        const XMLNode* first = value.Node->FirstChild;
        const std::string name = value.Node->Name;
        const bool isBlank = first && !first->Next && first->Type == XMLTextNode && Trim(first->Name).empty();
        const std::string meaning = EmptyMeaning(*value.Value);
        if (meaning.empty() || (first && !isBlank))
            continue;
        const std::string meant = value.Value->Form == "toggle" ? "1" : "";
        if (isBlank)
            context.Report(value, "with nothing but blanks in it " + name + BlankMeaning(*value.Value), meant);
        else
            context.Report(value, ("an empty " + name).append(meaning), meant);
    }
}

void LintChecks::ValueBegin(LintContext& context)
{
    for (const LintValue& value : context.Values()) {
        const XMLNode* first = value.Attribute || !value.Value ? nullptr : value.Node->FirstChild;
        if (!first || !IsOneText(*value.Value))
            continue;
        const std::string_view text = LintContext::TextOf(value);
        const bool isFar =
            value.Value->Form == "position" && Trim(text).size() > 0 && FoldAscii(Trim(text).front()) == 'r';
        if (first->Type == XMLTextNode && text.starts_with(LintContext::LiteralMark))
            context.Report(value,
                Quoted(LintContext::LiteralMark) + " is read as a part of " + std::string(value.Node->Name),
                "&lt; and &amp; for single characters");
        else if (first->Type == XMLCommentNode)
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
        const bool isCut = first && first->Type == XMLTextNode && LosesSomething(first);
        if (isCut && IsOneText(*value.Value))
            context.Report(first->Next, "the value of " + std::string(value.Node->Name) + " ends here",
                "one text without anything in it");
    }
}

} // namespace host
