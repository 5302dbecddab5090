#include "tests/unit/XMLParsing.h"

#include "teskara/core/Limits.h"
#include "teskara/markup/XMLArena.h"
#include "teskara/markup/XMLAttribute.h"

#include <algorithm>
#include <ctime>

#include <pthread.h>

namespace {

std::string Repeated(std::string_view text, std::size_t count)
{
    std::string all;
    all.reserve(text.size() * count);
    for (; count > 0; --count)
        all += text;
    return all;
}

bool Parses(const std::string& text)
{
    XMLDocument document;
    return document.ParseBuffer(text.data(), text.size());
}

double SecondsFor(const std::string& text)
{
    const std::clock_t start = std::clock();
    Parses(text);
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

// Sixteen times the input may take at most so many times as long as once, where that is long enough to be measured. On
// Windows the clock also counts what other processes take, so that once in three times is enough.
void ExpectLinear(const std::string& unit, const std::string& before = "<a>", const std::string& after = "</a>")
{
    constexpr std::size_t Once = 256 * 1024;
    bool isLinear = false;
    for (int attempt = 0; attempt < 3 && !isLinear; ++attempt) {
        const double once = SecondsFor(before + Repeated(unit, Once / unit.size()) + after);
        const double often = SecondsFor(before + Repeated(unit, 16 * Once / unit.size()) + after);
        isLinear = often < 40 * std::max(once, 0.005);
    }
    EXPECT_TRUE(isLinear) << unit.substr(0, 20);
}

} // namespace

TEST(XMLLimits, SoManyElementsMayBeOpen)
{
    for (const std::size_t depth : {Limits::MarkupNesting - 1, Limits::MarkupNesting, Limits::MarkupNesting + 1}) {
        const std::string text = Repeated("<a>", depth) + Repeated("</a>", depth);
        EXPECT_EQ(ParseError(text), depth <= Limits::MarkupNesting ? "parsed" : "Unknown Error") << depth;
        // An element that closes itself is not open.
        const std::string closed = Repeated("<a>", depth) + "<b/>" + Repeated("</a>", depth);
        EXPECT_EQ(Parses(closed), depth <= Limits::MarkupNesting) << depth;
    }
    EXPECT_TRUE(Parses(Repeated("<a></a>", 3 * Limits::MarkupNesting)));
}

TEST(XMLLimits, AnAttributeValueMayHaveSoManyBytes)
{
    for (std::size_t length = 4094; length <= 4097; ++length) {
        const bool fits = length <= Limits::AttributeValueBytes;
        const std::string text(length, 'x');
        EXPECT_EQ(ParseError("<a b='" + text + "'/>"), fits ? "parsed" : "Unknown Error") << length;
        EXPECT_EQ(Parses("<a b='&lt;" + text.substr(1) + "'/>"), fits) << length;
        EXPECT_EQ(Parses("<a b='" + text.substr(1) + "&#65;'/>"), fits) << length;
        EXPECT_EQ(Parses("<a b='" + text.substr(2) + "\xC3\xA4'/>"), fits) << length;
        EXPECT_EQ(Parses("<?a b='" + text + "'?>"), fits) << length;
        EXPECT_EQ(Parses("<!DOCTYPE a SYSTEM \"" + text + "\">"), fits) << length;

        XMLDocument document;
        document.AddEntity("long", text.c_str());
        EXPECT_EQ(document.ParseBuffer("<a b='&long;'/>"), fits) << length;
    }
    EXPECT_EQ(ParseError("<a b='" + std::string(5000000, 'x') + "'/>"), "Memory allocation failed");
    EXPECT_EQ(ParseError("<a b='" + Repeated("xx ", 1000000) + "'/>"), "Unknown Error");
}

TEST(XMLLimits, ANodeMayHaveSoManyAttributes)
{
    for (const u32 count : {Limits::NodeAttributes - 1, Limits::NodeAttributes, Limits::NodeAttributes + 1}) {
        std::string text = "<a";
        for (u32 index = 0; index < count; ++index)
            text += " n" + std::to_string(index) + "=''";
        // One that is there already doesn't count.
        EXPECT_EQ(ParseError(text + " N0='x'/>"), count <= Limits::NodeAttributes ? "parsed" : "Unknown Error")
            << count;
    }
}

TEST(XMLLimits, ARepeatedAttributeIsFoundAmongManyAndFew)
{
    for (const u32 count : {1u, 2u, 15u, 16u, 17u, 18u, 200u}) {
        std::string text = "<a";
        std::string expected = ".1 'a'";
        for (u32 index = 0; index < count; ++index) {
            text += " Name" + std::to_string(index) + "='x'";
            expected += " Name" + std::to_string(index) + "=" + std::to_string(index);
        }
        for (u32 index = 0; index < count; ++index)
            text += " nAME" + std::to_string(index) + "='" + std::to_string(index) + "'";
        EXPECT_EQ(Parsed(text + "/>"), expected + "\n") << count;
        EXPECT_EQ(Parsed(text + "/><b name0='y' NAME0='z'/>"), expected + "\n.1 'b' name0=z\n") << count;
    }
}

TEST(XMLLimits, EntitiesMayGiveSoManyBytes)
{
    const std::string reference = "&e;";
    constexpr std::size_t Count = 1000;
    const std::string text = "<a>" + Repeated(reference, Count) + "</a>";
    const std::size_t most = text.size() * Limits::EntityOutputFactor + Limits::EntityOutputBytes;
    for (const std::size_t size : {most / Count - 1, most / Count, most / Count + 1}) {
        XMLDocument document;
        document.AddEntity("e", std::string(size, 'x').c_str());
        EXPECT_EQ(document.ParseBuffer(text.c_str()), size * Count <= most) << size;
        EXPECT_STREQ(document.ErrorText, "Unknown Error");
    }
}

TEST(XMLLimits, ManyReferencesToALongEntityEnd)
{
    XMLDocument document;
    document.AddEntity("filepath", std::string(512, 'x').c_str());
    const std::string text = "<a>" + Repeated("&filepath;", 100000) + "</a>";
    EXPECT_TRUE(document.ParseBuffer(text.c_str(), text.size()));
    document.Reset();
    document.AddEntity("filepath", std::string(5000, 'x').c_str());
    EXPECT_FALSE(document.ParseBuffer(text.c_str(), text.size()));
}

TEST(XMLLimits, MarkupMayMakeATreeThatIsManyTimesItsSize)
{
    for (const char* unit : {"<b/>x", "<b/> ", "<b>1</b> ", "<b/>"})
        EXPECT_TRUE(Parses("<a>" + Repeated(unit, 200000) + "</a>")) << unit;
}

TEST(XMLLimits, TenMebibytesOfOpeningTagsFailAtOnce)
{
    const std::string text = Repeated("<a>", 10 * 1024 * 1024 / 3);
    EXPECT_LT(SecondsFor(text), 1.0);
    EXPECT_EQ(ParseError(text), "Unknown Error");
}

TEST(XMLLimits, TimeGrowsWithTheInputAndNoFaster)
{
    ExpectLinear("<b/>");
    ExpectLinear("<b>x</b>");
    ExpectLinear(" ");
    ExpectLinear("x ");
    ExpectLinear("&lt;");
    ExpectLinear("\xE2\x82\xAC");
    ExpectLinear("<![CDATA[x]]>");
    ExpectLinear("<!--x-->");
    ExpectLinear("- ", "<!--", "-->");
    ExpectLinear("b='1' ", "<a ", "/>");
    ExpectLinear("<b " + Repeated("xxxxxxx1='' xxxxxxx2='' ", 30) + "/>");
    ExpectLinear("< ");
    ExpectLinear("]] ", "<a><![CDATA[", "]]></a>");
}

TEST(XMLLimits, ManyTagsOfManyAttributesAreNoSlower)
{
    std::string tag = "<b";
    for (u32 index = 0; index < 10000; ++index)
        tag += " n" + std::to_string(index) + "=''";
    EXPECT_LT(SecondsFor("<a>" + Repeated(tag + "/>", 50) + "</a>"), 5.0);
}

TEST(XMLLimits, SmallTokensBehindALargeOneAreNoSlower)
{
    const std::string text = "<a>" + std::string(500000, 'x') + Repeated(" ;", 8 * 1024 * 1024) + "</a>";
    EXPECT_LT(SecondsFor(text), 5.0);
    EXPECT_TRUE(Parses(text));
}

// The parser counts open elements and calls itself for none of them.
TEST(XMLLimits, TheDeepestDocumentParsesOnASmallStack)
{
    const std::string text = Repeated("<a>", Limits::MarkupNesting) + Repeated("</a>", Limits::MarkupNesting);
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, 512 * 1024);
    pthread_t thread;
    std::string result = text;
    const auto run = [](void* argument) -> void* {
        std::string& inOut = *static_cast<std::string*>(argument);
        XMLDocument document;
        const bool parsed = document.ParseBuffer(inOut.data(), inOut.size());
        const XMLTree copy(parsed ? document.Root->Clone(nullptr) : nullptr);
        inOut = copy ? "parsed and copied" : document.ErrorText;
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, run, &result), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
    EXPECT_EQ(result, "parsed and copied");
}
