#include "tests/unit/XMLParsing.h"

#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLStream.h"

namespace {

constexpr const char* NoMessage = "Unknown Error";

}

TEST(XMLDocument, ANewOneIsEmptyAndKnowsFiveEntities)
{
    const XMLDocument document(true);
    EXPECT_STREQ(document.ErrorText, NoMessage);
    EXPECT_EQ(document.Root, nullptr);
    EXPECT_EQ(document.Stream, nullptr);
    EXPECT_TRUE(document.KeepTree);
    EXPECT_EQ(document.Entities.size(), 5u);
    EXPECT_EQ(document.Entities.at("lt"), "<");
    EXPECT_EQ(document.Entities.at("gt"), ">");
    EXPECT_EQ(document.Entities.at("amp"), "&");
    EXPECT_EQ(document.Entities.at("apos"), "'");
    EXPECT_EQ(document.Entities.at("quot"), "\"");
}

TEST(XMLDocument, ResetMakesItEmptyAgain)
{
    XMLDocument document;
    document.AddEntity("mine", "x");
    EXPECT_FALSE(document.ParseBuffer("<a>&mine;</b>"));
    EXPECT_NE(document.Root, nullptr);
    document.Reset();
    EXPECT_EQ(document.Root, nullptr);
    EXPECT_EQ(document.Current, nullptr);
    EXPECT_STREQ(document.ErrorText, NoMessage);
    EXPECT_EQ(document.Entities.count("mine"), 0u);
    EXPECT_EQ(document.Entities.size(), 5u);
    EXPECT_TRUE(document.ParseBuffer("<a/>"));
}

TEST(XMLDocument, ATreeThatIsKeptOutlivesIt)
{
    XMLNode* root = nullptr;
    {
        XMLDocument document(true);
        EXPECT_TRUE(document.ParseBuffer("<a b='c'>d</a>"));
        root = document.Root;
        document.Reset();
        EXPECT_EQ(document.Root, nullptr);
    }
    EXPECT_EQ(DumpTree(root), "0 'DOCUMENT ROOT'\n.1 'a' b=c\n..3 'd'\n");
    XMLNode::Delete(root);
}

TEST(XMLDocument, ParsesOnceAndThenRefusesWithoutAMessage)
{
    XMLDocument document;
    EXPECT_TRUE(document.ParseBuffer("<a/>"));
    EXPECT_FALSE(document.ParseBuffer("<b/>"));
    EXPECT_FALSE(document.ParseFile("nowhere.xml"));
    EXPECT_STREQ(document.ErrorText, NoMessage);
    EXPECT_STREQ(document.Root->FirstChild->Name, "a");
    EXPECT_EQ(document.Root->FirstChild->Next, nullptr);
}

TEST(XMLDocument, HasAStreamOnlyDuringAParse)
{
    XMLDocument document;
    EXPECT_TRUE(document.ParseBuffer("<a/>"));
    EXPECT_EQ(document.Stream, nullptr);
    document.Reset();
    EXPECT_FALSE(document.ParseBuffer("<a>"));
    EXPECT_EQ(document.Stream, nullptr);
}

TEST(XMLDocument, ALengthOfZeroMeansUpToTheTerminator)
{
    XMLDocument document;
    EXPECT_TRUE(document.ParseBuffer("<a/><b/>", 0));
    EXPECT_NE(document.Root->FirstChild->Next, nullptr);
    document.Reset();
    EXPECT_TRUE(document.ParseBuffer("<a/><b/>", 4));
    EXPECT_EQ(document.Root->FirstChild->Next, nullptr);
    document.Reset();
    EXPECT_FALSE(document.ParseBuffer(nullptr));
    EXPECT_FALSE(document.ParseBuffer(nullptr, 7));
}

TEST(XMLDocument, NodesAreLinkedBothWays)
{
    XMLDocument document;
    ASSERT_TRUE(document.ParseBuffer("<a><b/>x<c/></a>"));
    const XMLNode* const root = document.Root;
    const XMLNode* const a = root->FirstChild;
    const XMLNode* const b = a->FirstChild;
    EXPECT_EQ(root->Type, u32{XMLRootNode});
    EXPECT_STREQ(root->Name, "DOCUMENT ROOT");
    EXPECT_EQ(root->Parent, nullptr);
    EXPECT_EQ(root->LastChild, a);
    EXPECT_EQ(a->Parent, root);
    EXPECT_EQ(b->Prev, nullptr);
    EXPECT_EQ(b->Next->Prev, b);
    EXPECT_EQ(b->Next->Next, a->LastChild);
    EXPECT_EQ(a->LastChild->Next, nullptr);
    EXPECT_EQ(a->LastChild->Prev, b->Next);
    EXPECT_EQ(document.Current, root);
}

TEST(XMLDocument, EmptyInputFailsWithoutATree)
{
    EXPECT_EQ(Parsed(""), "failed: Unknown Error\n");
    EXPECT_EQ(Parsed(std::string_view("\0<a/>", 5)), "failed: Unknown Error\n");
}

TEST(XMLDocument, SpaceCommentsAndInstructionsAreADocument)
{
    EXPECT_EQ(Parsed(" \t\r\n"), "");
    EXPECT_EQ(Parsed(" <!-- a-b -->\n<?xml version='1'?> "), ".2 'ab '\n.4 'xml' version=1\n");
}

TEST(XMLDocument, TextOutsideElementsIsRefused)
{
    EXPECT_EQ(ParseError("x<a/>"), "Bad text outside elements: x");
    EXPECT_EQ(Parsed("<a/> & "), "failed: Bad text outside elements: &\n.1 'a'\n");
    EXPECT_EQ(ParseError("<![CDATA[x]]> "), "Bad text outside elements: <![CDATA[x");
    EXPECT_EQ(ParseError("\xEF\xBB\xBF<a/>"), "Bad text outside elements: \xEF\xBB\xBF");
    EXPECT_EQ(ParseError("%n%s%1000000d<a/>"), "Bad text outside elements: %n%s%1000000d");
}

TEST(XMLDocument, SeveralTopLevelElementsAreKept)
{
    EXPECT_EQ(Parsed("<a/><b></b>\n<c>x</c>"), ".1 'a'\n.1 'b'\n.1 'c'\n..3 'x'\n");
}

TEST(XMLDocument, SpaceMayFollowAnOpeningBracket)
{
    EXPECT_EQ(Parsed("< \n a>x< /a>"), ".1 'a'\n..3 'x'\n");
    EXPECT_EQ(Parsed("< ? a ?>< ! -- b -->"), "failed: Unknown Error\n.4 'a'\n");
}

TEST(XMLDocument, ATagOfNothingFailsWithoutAMessage)
{
    for (const char* text : {"<>", "<\"a\">", "<=", "<", "< ", "<&amp;>", "<<a>", "<[a>", "<;"})
        EXPECT_EQ(ParseError(text), NoMessage) << text;
}

TEST(XMLDocument, NamesCompareWithoutCaseAndKeepTheirSpelling)
{
    EXPECT_EQ(Parsed("<FRame Name='1' nAME='2'></frAME>"), ".1 'FRame' Name=2\n");
}

TEST(XMLDocument, ATagMayCloseItselfAnywhereBeforeItsEnd)
{
    EXPECT_EQ(Parsed("<a / b='1'/ / ><c/>"), ".1 'a' b=1\n.1 'c'\n");
}

TEST(XMLDocument, AnotherTokenInATagIsRefused)
{
    EXPECT_EQ(Parsed("<a-b/>"), "failed: Bad token '-' in tag\n.1 'a'\n");
    EXPECT_EQ(ParseError("<a &amp;>"), "Bad token '&' in tag");
    EXPECT_EQ(ParseError("<a <b/>"), "Bad token '<' in tag");
    EXPECT_EQ(ParseError("<a 'b'>"), "Bad token ''' in tag");
    EXPECT_EQ(ParseError("<a"), NoMessage);
    EXPECT_EQ(ParseError("<a "), NoMessage);
    EXPECT_EQ(ParseError("<a /"), NoMessage);
}

TEST(XMLDocument, AnEndTagNeedsItsStartTag)
{
    EXPECT_EQ(ParseError("</a>"), NoMessage);
    EXPECT_EQ(ParseError("<a/></a>"), NoMessage);
    EXPECT_EQ(Parsed("<a><b></a>"), "failed: Closing element a, expected b\n.1 'a'\n..1 'b'\n");
    EXPECT_EQ(ParseError("<a></ a>"), "Closing element  , expected a");
    EXPECT_EQ(ParseError("<a></"), NoMessage);
    EXPECT_EQ(ParseError("<ab></a\xC3\xA4>"), "Closing element a\xC3\xA4, expected ab");
    EXPECT_EQ(ParseError("<\xC3\xA4></\xC3\x83\xC2\xA4>"), "Closing element \xC3\x83\xC2\xA4, expected \xC3\xA4");
}

TEST(XMLDocument, WhateverFollowsAnEndTagsNameIsTakenForItsBracket)
{
    EXPECT_EQ(Parsed("<a></a"), ".1 'a'\n");
    EXPECT_EQ(Parsed("<a></a <b/>"), ".1 'a'\n.1 'b'\n");
    EXPECT_EQ(ParseError("<a></a >"), "Bad text outside elements: >");
}

TEST(XMLDocument, ARunBetweenTagsIsOneText)
{
    EXPECT_EQ(Parsed("<a> b 'c' \"d\" / = ; # ! - ? [ ] > e<f/> </a>"),
        ".1 'a'\n..3 ' b 'c' \"d\" / = ; # ! - ? [ ] > e'\n..1 'f'\n..3 ' '\n");
    EXPECT_EQ(Parsed("<a>\n\t<b/>\r\n</a>"), ".1 'a'\n..3 '\n\t'\n..1 'b'\n..3 '\r\n'\n");
}

TEST(XMLDocument, AnElementThatIsNotClosedFailsWithoutAMessage)
{
    EXPECT_EQ(Parsed("<a>"), "failed: Unknown Error\n.1 'a'\n");
    EXPECT_EQ(Parsed("<a>text"), "failed: Unknown Error\n.1 'a'\n");
    EXPECT_EQ(Parsed("<a>text<"), "failed: Unknown Error\n.1 'a'\n..3 'text'\n");
    EXPECT_EQ(Parsed(std::string_view("<a>te\0xt</a>", 12)), "failed: Unknown Error\n.1 'a'\n");
}

TEST(XMLDocument, AnEntityStandsForItsText)
{
    EXPECT_EQ(Parsed("<a b='&lt;&gt;&amp;&apos;&quot;'>x&lt;y&gt;</a>"), ".1 'a' b=<>&'\"\n..3 'x<y>'\n");
    EXPECT_EQ(Parsed("<a b='&nope;'>&LT;&a b;</a>"), "failed: Unknown Error\n.1 'a' b=UNKNOWN-ENTITY\n");
    EXPECT_EQ(Parsed("<a>&nope;</a>"), ".1 'a'\n..3 'UNKNOWN-ENTITY'\n");
    EXPECT_EQ(Parsed("<a>&Lt;&<;</a>"), ".1 'a'\n..3 'UNKNOWN-ENTITYUNKNOWN-ENTITY'\n");
}

TEST(XMLDocument, AnEntityCanBeAddedAndIsNotExpandedAgain)
{
    XMLDocument document;
    document.AddEntity("mine", "&lt;<b/>");
    document.AddEntity("amp", "and");
    document.AddEntity("none", nullptr);
    ASSERT_TRUE(document.ParseBuffer("<a>&mine;&amp;&none;</a>"));
    EXPECT_STREQ(document.Root->FirstChild->FirstChild->Name, "&lt;<b/>and");
}

TEST(XMLDocument, ANumberStandsForTheByteOfItsLow8Bits)
{
    EXPECT_EQ(Parsed("<a>&#65;&#x41;&#321;&#x141;&#4294967361;</a>"), ".1 'a'\n..3 'AAAAA'\n");
    EXPECT_EQ(Parsed("<a>&#228;</a>"), ".1 'a'\n..3 '\xE4'\n");
    EXPECT_EQ(Parsed("<a>x&#0;&#256;&#x;&#zz;&#X41;y</a>"), ".1 'a'\n..3 'xy'\n");
    EXPECT_EQ(Parsed("<a>&#x4g;&#65z;</a>"),
        ".1 'a'\n..3 '\x04"
        "A'\n");
    EXPECT_EQ(Parsed("<a>&#;;x</a>"), ".1 'a'\n..3 'x'\n");
    EXPECT_EQ(Parsed("<a>&#x" + std::string(126, '0') + "41ff;</a>"), ".1 'a'\n..3 'A'\n");
}

TEST(XMLDocument, AReferenceNeedsItsSemicolon)
{
    for (const char* text : {"<a>&lt</a>", "<a>&lt ;</a>", "<a>&#65</a>", "<a>&", "<a>&lt", "<a>&#", "<a>&#65"})
        EXPECT_EQ(ParseError(text), NoMessage) << text;
    EXPECT_EQ(ParseError("<a><b c='&lt '/></a>"), "b@a@DOCUMENT ROOT: Expected ; in XML entity in attribute c");
    EXPECT_EQ(ParseError("<b c='&#65"), "b@DOCUMENT ROOT: Unexpected end in attribute c");
    EXPECT_EQ(ParseError("<b c='&"), "b@DOCUMENT ROOT: Unexpected end in attribute c");
}

TEST(XMLDocument, AnAttributeTakesEitherQuoteAndHoldsTheOther)
{
    EXPECT_EQ(Parsed("<a b='\"<>&amp;/= ' c = \"'\"\td\n=\n''/>"), ".1 'a' b=\"<>&/=  c=' d=\n");
}

TEST(XMLDocument, AMalformedAttributeNamesItselfAndItsPlace)
{
    EXPECT_EQ(Parsed("<a><b c/></a>"), "failed: Unknown Error\n.1 'a'\n..1 'b'\n");
    EXPECT_EQ(ParseError("<a b c='1'/>"), NoMessage);
    EXPECT_EQ(ParseError("<a><b c=1/></a>"), "b@a@DOCUMENT ROOT: Invalid quote type in attribute c");
    EXPECT_EQ(ParseError("<a b=>"), "a@DOCUMENT ROOT: Invalid quote type in attribute b");
    EXPECT_EQ(ParseError("<?a b=1?>"), "a@DOCUMENT ROOT: Invalid quote type in attribute b");
    for (const char* text : {"<a b", "<a b ", "<a b=", "<a b= ", "<a b='", "<a b='x", "<a b='x\"", "<a b='&lt;"})
        EXPECT_EQ(ParseError(text), "a@DOCUMENT ROOT: Unexpected end in attribute b") << text;
}

TEST(XMLDocument, AMessageIsCutToItsBuffer)
{
    for (const std::size_t length : {2040u, 2047u, 2048u, 5000u}) {
        const std::string name(length, 'n');
        EXPECT_EQ(ParseError("<" + name + " b=1/>"),
            (name.substr(0, 2047) + "@DOCUMENT ROOT").substr(0, 2047).append(": Invalid quote").substr(0, 2047));
        EXPECT_EQ(ParseError("<a></" + name + ">"), ("Closing element " + name).substr(0, 2047));
    }
}

TEST(XMLDocument, NamesThatHoldFormatsArePrintedAsTheyAre)
{
    EXPECT_EQ(ParseError("<%s%n b=1/>"), "%s%n@DOCUMENT ROOT: Invalid quote type in attribute b");
    EXPECT_EQ(ParseError("<a %d=1/>"), "a@DOCUMENT ROOT: Invalid quote type in attribute %d");
    EXPECT_EQ(ParseError("<%s></%n%d>"), "Closing element %n%d, expected %s");
}

TEST(XMLDocument, ACharacterSectionKeepsItsOpeningMarker)
{
    EXPECT_EQ(Parsed("<a><![CDATA[<b>&amp;]]></a>"), ".1 'a'\n..3 '<![CDATA[<b>&amp;'\n");
    EXPECT_EQ(Parsed("<a>x<![CDATA[]]>y<![CDATA[]]]>z</a>"), ".1 'a'\n..3 'x<![CDATA[y<![CDATA[]z'\n");
    EXPECT_EQ(Parsed("<a b='<![CDATA['>]]>'/>"), ".1 'a' b=<![CDATA['>\n");
    EXPECT_EQ(Parsed("<a><![cdata[x]]></a>"), "failed: Unrecognized <![ tag: cdata\n.1 'a'\n");
}

TEST(XMLDocument, ASectionsEndIsSeenOnlyBeforeAnotherCharacter)
{
    EXPECT_EQ(ParseError("<a><![CDATA[x"), "No end to CDATA tag");
    EXPECT_EQ(ParseError("<a><![CDATA[x]]>"), "No end to CDATA tag");
    EXPECT_EQ(ParseError("<a><![CDATA[x]]> "), NoMessage);
    EXPECT_EQ(ParseError("<a/><![CDATA[x"), "No end to CDATA tag");
    EXPECT_EQ(ParseError("<a b='<![CDATA[x'"), "No end to CDATA tag");
    EXPECT_EQ(ParseError("<a></a<![CDATA[x"), "No end to CDATA tag");
}

TEST(XMLDocument, ASectionIsRecognisedWithAnyLengthBehindIt)
{
    for (std::size_t length = 0; length <= 16; ++length) {
        const std::string text = "<a><![CDATA[" + std::string(length, 'x');
        EXPECT_EQ(ParseError(text), "No end to CDATA tag") << length;
        EXPECT_EQ(Parsed(text + "]]></a>"), ".1 'a'\n..3 '<![CDATA[" + std::string(length, 'x') + "'\n") << length;
        EXPECT_EQ(Parsed("<a>" + std::string(length, 'x') + "</a>").substr(0, 7), ".1 'a'\n") << length;
    }
}

TEST(XMLDocument, ATreeBuiltBeforeTheFailureStays)
{
    EXPECT_EQ(Parsed("<a b='1'>x<c/></d>"), "failed: Closing element d, expected a\n.1 'a' b=1\n..3 'x'\n..1 'c'\n");
}
