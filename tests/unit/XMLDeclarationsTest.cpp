#include "tests/unit/XMLParsing.h"

namespace {

constexpr const char* NoMessage = "Unknown Error";

}

TEST(XMLDeclarations, AnInstructionHasANameAndAttributes)
{
    EXPECT_EQ(Parsed("<? xml version=\"1.0\" encoding='x' ?><a><?b?></a>"),
        ".4 'xml' version=1.0 encoding=x\n.1 'a'\n..4 'b'\n");
    EXPECT_EQ(Parsed("<?a?b='1'? >"), ".4 'a' b=1\n");
}

TEST(XMLDeclarations, AMalformedInstructionFails)
{
    EXPECT_EQ(ParseError("<?a/>"), "Bad token in ? Tag: /");
    EXPECT_EQ(ParseError("<?a<b?>"), "Bad token in ? Tag: <");
    EXPECT_EQ(ParseError("<?a b?>"), NoMessage);
    for (const char* text : {"<?", "<? ", "<?\?>", "<?=a?>", "<?a", "<?a ", "<?a?", "<?a b='1'"})
        EXPECT_EQ(ParseError(text), NoMessage) << text;
}

TEST(XMLDeclarations, ACommentLosesItsHyphens)
{
    EXPECT_EQ(Parsed("<!--a-b-->"), ".2 'ab'\n");
    EXPECT_EQ(Parsed("<!-- \n a - b -->"), ".2 'a  b '\n");
    EXPECT_EQ(Parsed("<!---->"), ".2 ''\n");
    EXPECT_EQ(Parsed("<!--a--b-->"), ".2 'ab'\n");
    EXPECT_EQ(Parsed("<!--<a b='&amp;'>-->"), ".2 '<a b='&amp;'>'\n");
}

TEST(XMLDeclarations, OnlyTwoHyphensAndABracketEndAComment)
{
    EXPECT_EQ(Parsed("<!--a-> b-- > c--->d-->"), ".2 'a> b > c->d'\n");
    EXPECT_EQ(Parsed("<!----->-->"), ".2 '->'\n");
}

TEST(XMLDeclarations, ACommentStandsUnderTheOpenElement)
{
    EXPECT_EQ(Parsed("<a>x<!--c-->y</a>"), ".1 'a'\n..3 'x'\n..2 'c'\n..3 'y'\n");
}

TEST(XMLDeclarations, AMalformedCommentFails)
{
    EXPECT_EQ(ParseError("<!-a-->"), "Badly formed comment");
    EXPECT_EQ(ParseError("<!->"), "Badly formed comment");
    for (const char* text : {"<!-", "<!--", "<!-- a", "<!-- a -", "<!-- a --", "<!--a-- >"})
        EXPECT_EQ(ParseError(text), NoMessage) << text;
}

TEST(XMLDeclarations, ADoctypeNamesItsRootAndItsSystem)
{
    EXPECT_EQ(Parsed("<!DOCTYPE a SYSTEM \"x y'<>\">"), ".6 'a' type=SYSTEM SystemLiteral=x y'<>\n");
    EXPECT_EQ(Parsed("<!doctype\na\tsystem\n\"\"  >"), ".6 'a' type=SYSTEM SystemLiteral=\n");
}

TEST(XMLDeclarations, TheSecondPublicLiteralHasNoOpeningQuote)
{
    EXPECT_EQ(Parsed("<!DOCTYPE a Public \"p\" s t\">"), ".6 'a' type=PUBLIC PubidLiteral=p SystemLiteral=s t\n");
    EXPECT_EQ(Parsed("<!DOCTYPE a PUBLIC \"p\" \"s\">"),
        "failed: Unknown Error\n.6 'a' type=PUBLIC PubidLiteral=p SystemLiteral=\n");
}

TEST(XMLDeclarations, ADoctypeMayEndWithItsData)
{
    EXPECT_EQ(Parsed("<!DOCTYPE a SYSTEM \"s\" NDATA n>"), ".6 'a' type=SYSTEM SystemLiteral=s NDATA=n\n");
    for (const char* end : {"NDATA", "NDATA ", "NDATA >", "NDATA n", "NDATA n m>", "ndata n>", "x>", "[", ""})
        EXPECT_EQ(ParseError(std::string("<!DOCTYPE a SYSTEM \"s\" ") + end), NoMessage) << end;
}

TEST(XMLDeclarations, AMalformedDoctypeFails)
{
    EXPECT_EQ(ParseError("<!DOCTYPE a [<!ELEMENT b>]>"), "DOCTYPE internal subset not currently supported");
    EXPECT_EQ(ParseError("<!DOCTYPE a>"), "DOCTYPE Unknown DTD type: >");
    EXPECT_EQ(ParseError("<!DOCTYPE a PRIVATE \"x\">"), "DOCTYPE Unknown DTD type: PRIVATE");
    EXPECT_EQ(ParseError("<!DOCTYPE a SYSTEM 'x'>"), "Badly formed DOCTYPE tag");
    EXPECT_EQ(ParseError("<!DOCTYPE a PUBLIC x>"), "Badly formed DOCTYPE tag");
    for (const char* text : {"<!DOCTYPE", "<!DOCTYPE ", "<!DOCTYPE >", "<!DOCTYPE a", "<!DOCTYPE a SYSTEM",
             "<!DOCTYPE a SYSTEM \"", "<!DOCTYPE a SYSTEM \"x", "<!DOCTYPE a SYSTEM \"x\"", "<!DOCTYPE a PUBLIC \"x\"",
             "<!DOCTYPE a PUBLIC \"x\" y"})
        EXPECT_EQ(ParseError(text), NoMessage) << text;
}

TEST(XMLDeclarations, TheOthersAreRefusedByName)
{
    EXPECT_EQ(ParseError("<!ATTLIST a>"), "ParseExAttlist not implemented");
    EXPECT_EQ(ParseError("<!entity a>"), "ParseExEntity not implemented");
    EXPECT_EQ(ParseError("<!Element a>"), "ParseExElement not implemented");
    EXPECT_EQ(ParseError("<!NOTATION a>"), "ParseExNotation not implemented");
    EXPECT_EQ(ParseError("<!WHAT a>"), "Unrecognized <! tag: WHAT");
    EXPECT_EQ(ParseError("<![WHAT["), "Unrecognized <![ tag: WHAT");
    EXPECT_EQ(ParseError("<![["), "Unrecognized <![ tag: [");
    for (const char* text : {"<!", "<! ", "<!>", "<! DOCTYPE a>", "<![", "<![CDATA>", "<![CDATA"})
        EXPECT_EQ(ParseError(text), NoMessage) << text;
}
