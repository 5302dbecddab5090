// One mistake, one finding: at its place, and with what was meant.

#include "host/lint/LintReport.h"
#include "host/lint/Linter.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// The findings of a file with a button in it, without its name. What is in it begins at column 24.
std::string ReportOn(const std::string& inside)
{
    host::Linter linter;
    linter.AddText("a", "<Tesk><button name=\"B\">" + inside + "</button></Tesk>");
    return FindingsAsText(linter.Look({.Strict = true}));
}

struct Mistake {
    const char* Inside;
    const char* Report;
};

class LintMistake : public testing::TestWithParam<Mistake>
{
};

TEST_P(LintMistake, GivesOneFinding)
{
    EXPECT_EQ(std::string("a:1:") + GetParam().Report + "\n", ReportOn(GetParam().Inside));
}

// clang-format off
constexpr Mistake InTags[] = {
    {"<Widht>5</Widht>", "24: nobody reads 'Widht' in a button; meant: Width (unknown-tag)"},
    {"<OnClick>A = 1</OnClick>", "24: nobody reads 'OnClick' in a button; meant: OnLeftClick (unknown-tag)"},
    {"<Childs/>", "24: nobody reads 'Childs' in a button; meant: Children (unknown-tag)"},
    {"<Filename>a.png</Filename>", "24: nobody reads 'Filename' in a button (unknown-tag)"},
    {"Press", "24: nobody reads the text 'Press' in 'button'; meant: <Text>Press</Text> (stray-text)"},
    {"<Children><buton name=\"C\"/></Children>",
        "34: there is no kind 'buton': the element is left out; meant: button (unknown-kind)"},
    {"<Children><button/></Children>",
        "34: an element without a name is left out; meant: name=\"...\" (no-name)"},
    {"<Children><button nmae=\"C\"/></Children>",
        "34: an element without a name is left out; meant: name=\"C\" (no-name)"},
    {"<Children><messagebox name=\"C\"><Width>5</Width></messagebox></Children>",
        "34: 'messagebox' is made by programs, not by markup (misplaced-kind)"},
    {"<Children><button name=\"C\"/><text name=\"c\"/></Children>",
        "52: there is an element 'c' here already: this one is left out; meant: a name of its own (same-name)"},
    {"<Children><frame name=\"C\" Width=\"5\"/></Children>",
        "50: 'Width' is a child element, and is not read as an attribute; meant: <Width>5</Width> (attribute-for-child)"},
    {"<Children><frame name=\"C\" visble=\"0\"/></Children>",
        "50: nobody reads the attribute 'visble' of 'frame'; meant: <Visible>0</Visible> (unknown-attribute)"},
    {"<ColorMask>ff102030</ColorMask>",
        "24: 'ColorMask' is an attribute, and is not read as a child element; meant: ColorMask=\"ff102030\" "
        "(child-for-attribute)"},
    {"<Children><window name=\"C\"><MinWidth>9</MinWidth></window></Children>",
        "51: 'MinWidth' is an attribute of another element; meant: <Resizable MinWidth=\"9\"> (child-for-attribute)"},
    {"<Children><window name=\"C\"><Resizable MinWith=\"9\">1</Resizable></window></Children>",
        "62: nobody reads the attribute 'MinWith' of 'Resizable'; meant: MinWidth (unknown-attribute)"},
    {"<Children><scrollbar name=\"C\"><UpButton/></scrollbar></Children>",
        "54: 'UpButton' is read in a template only; meant: a template with <UpButton>...</UpButton> (unknown-tag)"},
    {"<Children><text name=\"C\" Template=\"Crad\"/></Children>",
        "49: there is no template 'Crad'; meant: Card (unknown-template)"},
    {"<Children><text name=\"C\" Template=\"Card,Chip,\"/></Children>",
        "49: only a template can build upon a list: this is one name with a comma in it; meant: a template that builds "
        "upon the list (template-list)"},
};

constexpr Mistake InValues[] = {
    {"<Visible>true</Visible>", "24: 'true' is no number, so Visible is off; meant: 1 (toggle-word)"},
    {"<Visible>off</Visible>", "24: 'off' is no number, so Visible is off; meant: 0 (toggle-word)"},
    {"<Visible/>", "24: an empty Visible is on, not what it is by default; meant: 1 (empty-value)"},
    {"<Visible> </Visible>", "24: with nothing but blanks in it Visible is off; meant: 1 (empty-value)"},
    {"<Border></Border>", "24: an empty Border is 0, not what it is by default (empty-value)"},
    {"<Width/>", "24: an empty Width is as good as none (empty-value)"},
    {"<Width>5px</Width>", "24: what stands behind the number in '5px' is not read; meant: 5 (number)"},
    {"<Width>50 %</Width>", "24: what stands behind the number in '50 %' is not read; meant: 50% (number)"},
    {"<Width>2,5%</Width>", "24: what stands behind the number in '2,5%' is not read; meant: 2.5% (number)"},
    {"<Width>wide</Width>", "24: 'wide' is no number, and counts as 0 (number)"},
    {"<Alpha>0,5</Alpha>", "24: what stands behind the number in '0,5' is not read; meant: 0.5 (number)"},
    {"<Alpha>80%</Alpha>", "24: what stands behind the number in '80%' is not read; meant: 0.8 (number)"},
    {"<Border>1.5</Border>", "24: what stands behind the number in '1.5' is not read; meant: 1 (number)"},
    {"<Border>99999999999</Border>", "24: '99999999999' does not fit into 32 bits (number)"},
    {"<X>r50%</X>", "24: a share does not count from the far edge: the letter of 'r50%' is lost; meant: 50% (far-share)"},
    {"<X> r5</X>", "24: the blank before the value of X belongs to it; meant: the value directly behind the tag "
                   "(value-begin)"},
    {"<X><!-- left -->5</X>", "24: the comment is read as the value of X; meant: the comment before the tag (value-begin)"},
    {"<Text>a<b/>c</Text>", "31: the value of Text ends here; meant: one text without anything in it (value-end)"},
    {"<BackgroundColor>#102030</BackgroundColor>",
        "24: '#102030' is no hexadecimal number, and counts as 0; meant: ff102030 (hex-value)"},
    {"<BackgroundColor>102030</BackgroundColor>",
        "24: the colour '102030' has no alpha, which makes it clear; meant: ff102030 (hex-value)"},
    {"<BackgroundColor>ff102030ff</BackgroundColor>",
        "24: of 'ff102030ff' only the last eight digits count; meant: eight digits: alpha, red, green, blue (hex-value)"},
    {"<BackgroundColor>red</BackgroundColor>",
        "24: 'red' is no hexadecimal number, and counts as 0; meant: eight digits: alpha, red, green, blue (hex-value)"},
    {"<Children><text name=\"C\"><Alignment>rihgt</Alignment></text></Children>",
        "49: Alignment does not know the word 'rihgt'; meant: right (word)"},
    {"<Children><text name=\"C\"><Alignment>middle</Alignment></text></Children>",
        "49: Alignment does not know the word 'middle'; meant: left, center or right (word)"},
    {"<Texture Filename=\"crad.png\"/>",
        "33: there is no image 'crad.png', so nothing is drawn; meant: card.png (texture-file)"},
    {"<Texture><Border>2</Border></Texture>",
        "24: the image has no Filename, so nothing is drawn; meant: Filename=\"...\" (texture-file)"},
    {"<FadeAlpha>0.5</FadeAlpha>",
        "7: without a FadeDelay the element never fades; meant: <FadeDelay>1</FadeDelay> (fade-delay)"},
    {"<AutoTooltip>What</AutoTooltip>",
        "24: no element named 'Auto Tooltip' is there to show it; meant: <tooltip name=\"Auto Tooltip\"/> in the file or "
        "beside it (tooltip-element)"},
};

constexpr Mistake InScripts[] = {
    {"<OnLeftClick><![CDATA[A = 1]]></OnLeftClick>",
        "24: '<![CDATA[' is read as a part of OnLeftClick; meant: &lt; and &amp; for single characters (value-begin)"},
    {"<OnLeftClick>A = = 1</OnLeftClick>", "37: the script does not compile: unexpected symbol near '=' (script-error)"},
    {"<OnLeftClick>this:Hied()</OnLeftClick>",
        "42: a teskbutton has no member or method 'Hied'; meant: Hide (unknown-member)"},
    {"<OnLeftClick>A = this.Widht</OnLeftClick>",
        "46: a teskbutton has no member or method 'Widht'; meant: Width (unknown-member)"},
    {"<OnLeftClick>A = this:Width()</OnLeftClick>",
        "46: 'Width' is a member, not a method; meant: .Width (unknown-member)"},
    {"<OnLeftClick>this.Width = 5</OnLeftClick>",
        "42: a script cannot assign to 'Width'; meant: :SetWidth(...) (unknown-member)"},
    {"<OnLeftClick>UIElement('x').Parent:Hied()</OnLeftClick>",
        "59: no type has a member or method 'Hied'; meant: Hide (unknown-member)"},
    {"<Text>${Teskara.Verson}</Text>",
        "40: a teskara has no member or method 'Verson'; meant: Version (unknown-member)"},
    {"<Text>in ${Count</Text>", "33: '${' has no end, and is shown as it stands; meant: ${...} (sequence)"},
    {"<Text>${= Count + }</Text>", "30: '${= Count + }' does not compile: unexpected symbol near <eof> (sequence)"},
    {"<Children><variableslider name=\"C\"><Data>${Volume}</Data></variableslider></Children>",
        "59: '${Volume}' is no name of a variable; meant: Volume (sequence)"},
    {"<Children><variablegauge name=\"C\"><Data>Volume</Data></variablegauge></Children>",
        "58: 'Volume' is a text that never changes; meant: ${Volume} (sequence)"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(InTags, LintMistake, testing::ValuesIn(InTags));
INSTANTIATE_TEST_SUITE_P(InValues, LintMistake, testing::ValuesIn(InValues));
INSTANTIATE_TEST_SUITE_P(InScripts, LintMistake, testing::ValuesIn(InScripts));

} // namespace
