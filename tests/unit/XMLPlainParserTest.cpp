#include "tests/unit/XMLPlainParser.h"

#include "teskara/markup/XMLDocument.h"

#include <gtest/gtest.h>

#include <random>

namespace {

std::string Result(bool parsed, std::string_view error, const std::string& tree)
{
    return (parsed ? "true " : "false ") + std::string(error) + "\n" + tree;
}

std::string Plain(std::string_view text)
{
    XMLPlainParser parser(text);
    const bool parsed = parser.Parse();
    return Result(parsed, parser.ErrorText, parser.Dump());
}

std::string Fast(const std::string& text)
{
    XMLDocument document;
    const bool parsed = document.ParseBuffer(text.data(), text.size());
    return Result(parsed, document.ErrorText, DumpTree(document.Root));
}

constexpr const char* Documents[] = {
    "<?xml version=\"1.0\"?>\n<!DOCTYPE a SYSTEM \"x\">\n<a b='1' c=\"two &amp; 3\">text &lt;<b/><!-- no-te --></a>",
    "<a><b>x<![CDATA[ <raw> & ]]>y</b><c d='&#65;&#x42;'/></a> <e></e >",
    ("<Tesk>\n  <Frame name=\"Main\">\n    <X>10%</X>\n    <Text>A 'b' \"c\" / = ; ? # - ! [ ]</Text>\n  "
     "</Frame>\n</Tesk>\n"),
    "<!DOCTYPE a PUBLIC \"p\" s.dtd\" NDATA n><a/>",
    "<a \xC3\xA4='\xE2\x82\xAC'>\xF0\x9F\x98\x80\xFF\xC3</a>",
};

// Pieces that markup is made of, so that a random sequence of them gets somewhere.
constexpr const char* Pieces[] = {"<", ">", "/", "</", "/>", "<a", "<b>", "</a>", "</b>", "<a b='", "\"", "'", "=", "&",
    "&amp;", "&#65;", "&#x", ";", "#", "-", "--", "<!--", "-->", "<![CDATA[", "]]>", "]", "[", "!", "?", "<?", "?>",
    " ", "\n", "a", "B", "name", "<!DOCTYPE ", "PUBLIC", "SYSTEM ", "\xC3\xA4", "\xF0\x9F\x98\x80", "\xE2\x82", "\xFF",
    "<c d='1' e=\"2\">", "text and more text"};

} // namespace

TEST(XMLPlainParser, AgreesOnEveryDocumentCutAtEveryByte)
{
    for (const std::string document : Documents)
        for (std::size_t size = 0; size <= document.size(); ++size)
            ASSERT_EQ(Plain(document.substr(0, size)), Fast(document.substr(0, size))) << document.substr(0, size);
}

TEST(XMLPlainParser, AgreesWithAnyByteReplaced)
{
    constexpr char Bytes[] = "<>='\"&/#;!-?[] \n\tx\x80\xC3";
    for (const std::string document : Documents)
        for (std::size_t place = 0; place < document.size(); ++place)
            for (const char byte : Bytes) {
                std::string changed = document;
                changed[place] = byte;
                ASSERT_EQ(Plain(changed), Fast(changed)) << changed;
            }
}

TEST(XMLPlainParser, AgreesOnRandomPieces)
{
    std::mt19937 random(1);
    for (int round = 0; round < 20000; ++round) {
        std::string text = round % 2 ? "<a>" : "";
        for (auto count = random() % 24; count > 0; --count)
            text += Pieces[random() % std::size(Pieces)];
        ASSERT_EQ(Plain(text), Fast(text)) << text;
    }
}

// The buffer holds 4096 units: whatever stands at its end is read in two parts.
TEST(XMLPlainParser, AgreesWhereverTheBufferEnds)
{
    for (const std::string document : Documents)
        for (std::size_t ahead = 4000; ahead <= 4110; ++ahead) {
            const std::string inContent = "<a>" + std::string(ahead, 'x') + document + "</a>";
            ASSERT_EQ(Plain(inContent), Fast(inContent)) << ahead;
            const std::string inSpace = std::string(ahead, ' ') + document;
            ASSERT_EQ(Plain(inSpace), Fast(inSpace)) << ahead;
            const std::string inValue = "<a v='" + std::string(ahead - 20, 'x') + " " + document;
            ASSERT_EQ(Plain(inValue), Fast(inValue)) << ahead;
        }
}

TEST(XMLPlainParser, AgreesOnRandomPiecesAroundBufferEnds)
{
    std::mt19937 random(2);
    for (int round = 0; round < 1500; ++round) {
        std::string text = "<a>";
        while (text.size() < 9000) {
            const auto kind = random() % 8;
            if (kind == 0)
                text.append(random() % 900, 'x');
            else if (kind == 1)
                text.append(random() % 300, ' ');
            else if (kind < 4)
                text += "<b>\xC3\xA4 &lt; \xE2\x82\xAC</b>";
            else if (kind < 6)
                text += "<c d='1' e=\"a b\">\xF0\x9F\x98\x80</c>";
            else if (kind == 6)
                text += "<![CDATA[ x ]]>";
            else
                text += Pieces[random() % std::size(Pieces)];
        }
        ASSERT_EQ(Plain(text), Fast(text)) << round;
    }
}

TEST(XMLPlainParser, ReferencesTakeBlanksSignsAndPrefixesAsAnyNumberDoes)
{
    const std::string document = "<a>&#\f65;&#\v+65;&#x+0x41;&#x0x+41;</a>";
    EXPECT_NE(Fast(document).find("3 'AAA'"), std::string::npos);
    EXPECT_EQ(Plain(document), Fast(document));
}
