#include "host/script/SequenceParser.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using host::Sequence;
using host::SequenceParser;
using host::SequencePart;
using host::SequenceStep;

std::string Describe(const Sequence& sequence);

std::string Describe(const std::vector<SequenceStep>& path)
{
    std::string text;
    for (const SequenceStep& step : path) {
        if (step.StepKind != SequenceStep::Kind::Name)
            text += step.StepKind == SequenceStep::Kind::Member ? '.' : ':';
        text += step.Name;
        for (const Sequence& argument : step.Arguments)
            text += '[' + Describe(argument) + ']';
        text += step.IsConstant ? "" : "~";
    }
    return text;
}

// Texts in quotes, paths in angle brackets, expressions behind a "=", what is neither as "!".
std::string Describe(const Sequence& sequence)
{
    std::string text;
    for (const SequencePart& part : sequence.Parts) {
        if (part.PartKind == SequencePart::Kind::Text)
            text += '\'' + part.Text + '\'';
        else if (part.PartKind == SequencePart::Kind::Path)
            text += '<' + Describe(part.Path) + '>';
        else
            text += (part.PartKind == SequencePart::Kind::Expression ? '=' : '!') + part.Text + ';';
    }
    return text;
}

TEST(SequenceParser, ReadsTheFormsOfParts)
{
    constexpr struct {
        const char* Text;
        const char* Parts;
    } rows[] = {
        {"", ""},
        {"plain", "'plain'"},
        {"${Volume}", "<Volume>"},
        {"Volume ${Volume}%", "'Volume '<Volume>'%'"},
        {"${a}${b}", "<a><b>"},
        {"${ Volume }", "<Volume>"},
        {"${Mouse.X}", "<Mouse.X>"},
        {"${UIElement[Ok@Main].Width}", "<UIElement['Ok@Main'].Width>"},
        {"${UIElement[Ok]:SetMetadata[a,b]}", "<UIElement['Ok']:SetMetadata['a']['b']>"},
        {"${a[]}", "<a[]>"},
        {"${a[,]}", "<a[][]>"},
        {"${a[ b ]}", "<a[' b ']>"},
        {"${a[\"x,]}\"]}", "<a['x,]}']>"},
        {"${a[\"q\\\"\\\\\\n\\tz\"]}", "<a['q\"\\\n\tz']>"},
        {"${a[\"${b}\"]}", "<a['${b}']>"},
        {"${a[${b}]}", "<a[<b>]~>"},
        {"${a[x${b[${c}]}y,z]}", "<a['x'<b[<c>]~>'y']['z']~>"},
        {"${= 1 + 2}", "= 1 + 2;"},
        {"${={1, 2}[1]}", "={1, 2}[1];"},
        {"${='}'}", "='}';"},
        {"${=\"\\\"}\"}", "=\"\\\"}\";"},
        {"${a[${= {1}[1] }]}", "<a[= {1}[1] ;]~>"},
        {"${}", "!;"},
        {"${.a}", "!.a;"},
        {"${a.}", "!a.;"},
        {"${a..b}", "!a..b;"},
        {"${a]}", "!a];"},
        {"${a[}", "!a[;"},
        {"${a[\"x}", "!a[\"x;"},
        {"${a[x]y}", "!a[x]y;"},
        {"${", "'${'"},
        {"${a", "'${a'"},
        {"x ${a} ${b", "'x '<a>' ${b'"},
        {"$a {b} $", "'$a {b} $'"},
        {"${= {", "'${= {'"},
        {"${= '}", "'${= '}'"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.Parts, Describe(SequenceParser::Read(row.Text))) << row.Text;
}

TEST(SequenceParser, NestsAsDeepAsItsLimitAndLeavesTheRestAsText)
{
    const auto nested = [](int depth) {
        std::string text = "x";
        for (int level = 0; level < depth; ++level)
            text = "${a[" + text + "]}";
        return text;
    };
    EXPECT_EQ(SequencePart::Kind::Path, SequenceParser::Read(nested(60)).Parts.at(0).PartKind);
    EXPECT_EQ(SequencePart::Kind::Text, SequenceParser::Read(nested(100)).Parts.at(0).PartKind);
    EXPECT_EQ("'" + nested(2000) + "'", Describe(SequenceParser::Read(nested(2000))));
}

TEST(SequenceParser, ReadsPathsWithoutTheirBrackets)
{
    EXPECT_EQ("UIElement['Main'].Texture", Describe(SequenceParser::ReadPath("UIElement[Main].Texture")));
    EXPECT_EQ("", Describe(SequenceParser::ReadPath("")));
    EXPECT_EQ("", Describe(SequenceParser::ReadPath("a b]")));
}

TEST(SequenceParser, KnowsTextsThatStandForThemselves)
{
    EXPECT_EQ("", *SequenceParser::Read("").Constant());
    EXPECT_EQ("plain", *SequenceParser::Read("plain").Constant());
    EXPECT_EQ(nullptr, SequenceParser::Read("${a}").Constant());
    EXPECT_EQ(nullptr, SequenceParser::Read("x${a}").Constant());
}

} // namespace
