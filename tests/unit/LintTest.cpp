#include "host/files/WholeFile.h"
#include "host/lint/LintReport.h"
#include "host/lint/LintRule.h"
#include "host/lint/Linter.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

using host::Finding;

std::vector<Finding> Lint(const std::string& text)
{
    host::Linter linter;
    linter.AddText("test.xml", text);
    return linter.Look({.Strict = true});
}

std::string Report(const std::string& text)
{
    return FindingsAsText(Lint(text));
}

std::filesystem::path PageOf(std::string_view rule)
{
    return std::filesystem::path(TESKARA_DOCS) / "lint" / (std::string(rule) + ".md");
}

// The markup behind a line of a page; empty if there is none.
std::string ExampleBehind(const std::string& page, const std::string& line)
{
    const std::string begin = "```xml\n";
    const std::size_t label = page.find("\n" + line + "\n");
    const std::size_t at = label == page.npos ? label : page.find(begin, label);
    if (at == page.npos)
        return {};
    return page.substr(at + begin.size(), page.find("```", at + begin.size()) - at - begin.size());
}

void ExpectPageToHold(std::string_view rule)
{
    SCOPED_TRACE(rule);
    const auto page = host::ReadWholeFile(PageOf(rule));
    ASSERT_TRUE(page);
    const std::string bad = ExampleBehind(*page, "Bad:");
    const std::string good = ExampleBehind(*page, "Good:");
    ASSERT_FALSE(bad.empty());
    ASSERT_FALSE(good.empty());

    const std::vector<Finding> found = Lint(bad);
    EXPECT_FALSE(found.empty());
    for (const Finding& finding : found)
        EXPECT_EQ(finding.Rule, rule) << finding.Message;
    EXPECT_EQ(Report(good), "");
}

TEST(Lint, ThePageOfEachRuleHasABadAndAGoodExample)
{
    ExpectPageToHold(host::MarkupRule.Name);
    for (const host::LintRule& rule : host::LintRules())
        ExpectPageToHold(rule.Name);
}

TEST(Lint, SaysWhereAValueStandsAndWhatWasMeant)
{
    EXPECT_EQ(Report("<Tesk>\n  <frame name=\"A\">\n    <Width>12px</Width>\n  </frame>\n</Tesk>"),
        "test.xml:3:5: what stands behind the number in '12px' is not read; meant: 12 (number)\n");
}

TEST(Lint, SaysWhereAnAttributeStands)
{
    EXPECT_EQ(Report("<Tesk>\n  <frame name=\"A\"\n         Width=\"5\"/>\n</Tesk>"),
        "test.xml:3:10: 'Width' is a child element, and is not read as an attribute; meant: <Width>5</Width> "
        "(attribute-for-child)\n");
}

TEST(Lint, CountsColumnsInCharactersAndNoByteOrderMark)
{
    EXPECT_EQ(Report("\xef\xbb\xbf<Tesk><!-- \xc3\xa4\xe2\x82\xac --><nothing name=\"A\"/></Tesk>"),
        "test.xml:1:18: there is no kind 'nothing': the element is left out (unknown-kind)\n");
}

TEST(Lint, SaysInWhichLineOfAScriptTheMistakeIs)
{
    EXPECT_EQ(
        Lint("<Tesk><frame name=\"A\"><OnLoad>\n  Count = 1\n  Count = = 2\n</OnLoad></frame></Tesk>").at(0).Place.Line,
        3u);
}

TEST(Lint, ReadsATemplateAsThoseThatUseIt)
{
    EXPECT_EQ(
        Report("<Tesk><Template name=\"A\"><Range>5</Range></Template><gauge name=\"G\" Template=\"A\"/></Tesk>"), "");
    EXPECT_EQ(Report("<Tesk><Template name=\"A\"><Range>5</Range></Template><text name=\"T\" Template=\"A\"/></Tesk>"),
        "test.xml:1:26: nobody reads 'Range' in a text (unknown-tag)\n");
}

TEST(Lint, ReadsATemplateThatNobodyUsesAsAnything)
{
    EXPECT_EQ(Report("<Tesk><Template name=\"A\"><Range>5</Range><ItemHeight>5</ItemHeight></Template></Tesk>"), "");
}

TEST(Lint, FollowsWhatMembersGive)
{
    EXPECT_EQ(Report("<Tesk><text name=\"A\"><OnLoad>this.Parent:Hide()</OnLoad></text></Tesk>"), "");
    const std::vector<Finding> found =
        Lint("<Tesk><text name=\"A\"><OnLoad>Text = 1 .. UIElement(\"A\").Parent.Nothing</OnLoad></text></Tesk>");
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].Rule, "unknown-member");
}

TEST(Lint, LooksAtNothingInTextsAndCommentsOfScripts)
{
    EXPECT_EQ(
        Report("<Tesk><frame name=\"A\"><OnLoad>-- this:nothing()\nText = \"this:nothing()\"</OnLoad></frame></Tesk>"),
        "");
}

// Interfaces as people write them: dialogs, lists, maps, scripts, templates of other files. What is found in one that is
// right is a fault of the rule.
TEST(Lint, FindsNothingInWhatIsRight)
{
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(TESKARA_LINT)) {
        host::Linter linter;
        std::string why;
        ASSERT_TRUE(linter.AddFile(entry.path().string(), why)) << entry.path() << why;
        EXPECT_EQ(FindingsAsText(linter.Look({.Strict = true})), "");
        ++files;
    }
    EXPECT_GE(files, 20u);
}

TEST(Lint, LeavesForeignScriptsAlone)
{
    host::Linter linter;
    linter.AddText(
        "test.xml", "<Tesk><button name=\"A\"><Text>${a</Text><OnLeftClick>say hello</OnLeftClick></button></Tesk>");
    EXPECT_EQ(linter.Look({.Scripts = true}).size(), 2u);
    EXPECT_EQ(FindingsAsText(linter.Look({.Scripts = false})), "");
}

TEST(Lint, FollowsTheSkinInForce)
{
    const std::string files = "<Template name=\"Low\"><ItemHeight>0</ItemHeight></Template>"
                              "<Template name=\"High\"><ItemHeight>18</ItemHeight></Template>"
                              "<tree name=\"T\" Template=\"Low\"/></Tesk>";
    const std::string line = "<SkinTemplate Base=\"Low\" Skin=\"High\"/>";
    EXPECT_EQ(Report("<Tesk><Skin name=\"slate\">" + line + "</Skin>" + files), "");
    EXPECT_EQ(Report("<Tesk><Template name=\"Lines\">" + line + "</Template><Skin name=\"slate\" Template=\"Lines\"/>"
                  + files),
        "");
    EXPECT_EQ(Lint("<Tesk><Skin name=\"another\">" + line + "</Skin>" + files).size(), 1u);
}

TEST(Lint, TellsOfLinesOfSkinsThatAreLeftOut)
{
    EXPECT_EQ(Report("<Tesk><Skin name=\"night\"><SkinTemplate Skin=\"button\"/></Skin></Tesk>"),
        "test.xml:1:26: a line of a skin without a Base is left out; meant: Base=\"...\" (skin-template)\n");
}

TEST(Lint, ACommentBehindAValueDoesNoHarm)
{
    EXPECT_EQ(Report("<Tesk><frame name=\"A\"><Width>5 <!-- pixels --> </Width></frame></Tesk>"), "");
}

TEST(Lint, TellsOnceOfTemplatesThatBuildUponEachOther)
{
    EXPECT_EQ(Report("<Tesk><Template name=\"A\" Template=\"B\"/><Template name=\"B\" Template=\"A\"/></Tesk>"),
        "test.xml:1:7: the template 'A' builds upon itself, over 1 other; meant: another base (template-cycle)\n");
}

TEST(Lint, FollowsChainsOfTemplatesAsLongAsAFile)
{
    constexpr int length = 20000;
    std::string text = "<Tesk>";
    for (int at = 0; at < length; ++at)
        text += "<Template name=\"T" + std::to_string(at) + "\" Template=\"T" + std::to_string(at + 1) + "\"/>";
    text += "<Template name=\"T" + std::to_string(length) + "\"/><text name=\"A\" Template=\"T0\"/></Tesk>";
    EXPECT_EQ(Lint(text).size(), static_cast<std::size_t>(length)); // each is used before it stands
}

TEST(Lint, AsksTemplatesOfListsOnce)
{
    std::string text = "<Tesk><Template name=\"T64\"/>";
    for (int at = 63; at >= 0; --at) {
        const std::string base = "T" + std::to_string(at + 1);
        text += "<Template name=\"T" + std::to_string(at) + "\" Template=\"" + base + "," + base + ",\"/>";
    }
    text += "<tree name=\"A\" Template=\"T0\"/></Tesk>";
    EXPECT_EQ(Lint(text).size(), 1u); // no row height
}

TEST(Lint, ReadsWhatIsNestedInScriptsAndTextsOnce)
{
    std::string script, text;
    for (int at = 0; at < 50000; ++at) {
        script += "this(";
        text += "${";
    }
    const std::vector<Finding> found =
        Lint("<Tesk><text name=\"A\"><Text>" + text + "</Text><OnLoad>" + script + "</OnLoad></text></Tesk>");
    EXPECT_EQ(found.size(), 3u); // the text is too long as well
}

TEST(Lint, BoundsCyclesOfTemplates)
{
    const std::vector<Finding> found =
        Lint("<Tesk><Template name=\"A\" Template=\"B\"/><Template name=\"B\" Template=\"A\"/>"
             "<text name=\"T\" Template=\"A\"><Font Template=\"A\"/></text></Tesk>");
    EXPECT_FALSE(found.empty());
}

TEST(Lint, TakesWhatIsNoMarkup)
{
    EXPECT_EQ(Report(""), "test.xml:1:1: this is no markup: The file is empty (markup)\n");
    EXPECT_EQ(Lint("PNG").at(0).Rule, "markup");
    EXPECT_EQ(Lint("<html></html>").at(0).Rule, "markup");
    EXPECT_EQ(Lint("<Tesk><frame name=\"A\">").size(), 1u);
}

TEST(Lint, RefusesFoldersAndFilesThatAreNotThere)
{
    host::Linter linter;
    std::string why;
    EXPECT_FALSE(linter.AddFile("/", why));
    EXPECT_EQ(why, "this is a folder");
    why.clear();
    EXPECT_FALSE(linter.AddFile("/nowhere/at/all.xml", why));
    EXPECT_EQ(why, "there is no such file");
}

TEST(Lint, GivesFindingsAsJson)
{
    EXPECT_EQ(host::FindingsAsJson({}), "{\n  \"findings\": []\n}\n");
    EXPECT_NE(host::FindingsAsJson({{"a\xff.xml", {2, 3}, "number", "wrong", "right"}}).find("\"line\": 2"),
        std::string::npos);
}

} // namespace
