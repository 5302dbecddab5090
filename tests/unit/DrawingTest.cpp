#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskFont.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/element/TeskTexture.h"
#include "tests/unit/ToolkitTest.h"
#include "tests/unit/TrappingFloats.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <vector>

namespace {

class DrawingTest : public ToolkitTest
{
protected:
    DrawingTest() : Texture(TeskTexture::New("a.tga"))
    {
        Load("<frame name='Panel'><Width>100</Width><Height>50</Height></frame>");
        Panel = &Element("Panel");
        Frame();
    }

    std::string Calls() { return Host.TakeCalls(); }

    // The sources of the nine pieces of a bordered image with that orientation.
    std::vector<std::string> SourcesFor(u8 orientation)
    {
        Texture->Flags = TextureHasRect;
        Texture->Right = 30;
        Texture->Bottom = 30;
        Texture->Border = 10;
        Texture->Orientation = orientation;
        EXPECT_TRUE(Panel->TexturedRectBordered({0, 0, 100, 100}, Texture.get(), 5));
        std::vector<std::string> sources;
        for (const std::string& call : Host.Calls) {
            const std::size_t from = call.find("from=");
            if (from != std::string::npos)
                sources.push_back(call.substr(from + 5, call.find(" flags") - from - 5));
        }
        Host.Calls.clear();
        return sources;
    }

    TeskElement* Panel;
    std::unique_ptr<TeskTexture> Texture;
};

} // namespace

TEST_F(DrawingTest, OpacityScalesTheTopByteAndIsTruncated)
{
    struct Row {
        float Alpha;
        u32 Color;
        u32 Adjusted;
    };
    const Row rows[] = {
        {1.0f, 0xff123456, 0xff123456},
        {0.5f, 0xff123456, 0x7f123456},
        {0.0f, 0xff123456, 0x00123456},
        {2.0f, 0xc0123456, 0xff123456},
        {-1.0f, 0xff123456, 0x00123456},
        {1e30f, 0xff123456, 0xff123456},
        {std::numeric_limits<float>::quiet_NaN(), 0xff123456, 0x00123456},
        {std::numeric_limits<float>::infinity(), 0xff123456, 0xff123456},
    };
    for (const Row& row : rows) {
        Panel->AbsoluteAlpha = row.Alpha;
        EXPECT_EQ(row.Adjusted, Panel->AdjustColor(row.Color)) << row.Alpha;
    }
}

TEST_F(DrawingTest, WithoutAScreenNothingIsSentAndAllCountsAsDrawn)
{
    Load("<frame name='Late'><OnUnload>draw</OnUnload></frame>");
    int drawn = 0;
    Host.Scripts["draw"] = [&](TeskElement& self) {
        EXPECT_EQ(nullptr, g_UIManager.Screen);
        drawn += self.FillRect({0, 0, 10, 10}, 0xff000000);
        drawn += self.FillRectBordered({0, 0, 10, 10}, 0xff000000, 1, 0xffffffff);
    };
    g_UIManager.Reset();
    EXPECT_EQ(2, drawn);
    EXPECT_EQ("", Calls());
}

// What lies in memory where a record comes to stand must not leave the process.
TEST_F(DrawingTest, WhatARecordDoesNotSayIsZero)
{
    class RawHost : public TestHost
    {
    public:
        bool DrawTexturedRect(const TeskDrawRecord& record) override { return Keep(record); }
        bool DrawTexturedRects(u32, const TeskDrawRecord* records) override { return Keep(*records); }
        bool DrawLine(const TeskDrawRecord& record, u32) override { return Keep(record); }

        std::vector<TeskDrawRecord> Records;

    private:
        bool Keep(const TeskDrawRecord& record)
        {
            std::memcpy(&Records.emplace_back(), &record, sizeof(record));
            return true;
        }
    };

    RawHost host;
    F1(&host);
    Panel->TexturedRect({1, 2, 3, 4}, Texture.get());
    const TeskTexturedRect rect = {Texture.get(), {1, 2, 3, 4}, 0, {}, 0, 0, 0};
    Panel->TexturedRects(1, &rect);
    Panel->DrawLine({1, 2, 3, 4}, 5, 0xff123456);
    ASSERT_EQ(3u, host.Records.size());
    for (const TeskDrawRecord& record : host.Records) {
        TeskDrawRecord expected;
        std::memset(static_cast<void*>(&expected), 0, sizeof(expected));
        expected.Destination = {1, 2, 3, 4};
        expected.TextureID = record.TextureID;
        expected.ColorMask = record.ColorMask;
        expected.Alpha = record.Alpha;
        expected.Flags = record.Flags;
        EXPECT_EQ(0, std::memcmp(&expected, &record, sizeof(record)));
    }
    F1(&Host);
}

#ifdef __GLIBC__
TEST_F(DrawingTest, AHostThatTrapsInvalidNumbersIsNotTrapped)
{
    Load("<frame name='Huge'><Width>1e38%</Width><X>1e38%</X></frame>"
         "<gauge name='G'><Range>1e-38</Range><Value>1e38</Value><Filler/></gauge>");
    const TrappingFloats traps;
    for (const float alpha : {3e38f, -3e38f, std::numeric_limits<float>::infinity(), std::nanf("")}) {
        g_UIManager.Screen->Alpha = Panel->Alpha = Panel->FadeAlpha = alpha;
        g_UIManager.Render();
        Panel->AdjustColor(0x00ffffff);
        Element("Huge").RecalculateSize(true);
    }
    EXPECT_TRUE(traps.AreStillSet());
    g_UIManager.Screen->Alpha = 1;
}
#endif

TEST_F(DrawingTest, ARectangleOffTheScreenIsNotSentButCountsAsDrawn)
{
    struct Row {
        tagRECT Rect;
        bool Sent;
    };
    const Row rows[] = {
        {{800, 600, 810, 610}, true},
        {{801, 0, 810, 10}, false},
        {{0, 601, 10, 610}, false},
        {{-10, -10, 0, 0}, true},
        {{-10, 0, -1, 10}, false},
        {{0, -10, 10, -1}, false},
        {{-2147483647 - 1, 0, 2147483647, 10}, true},
    };
    for (const Row& row : rows) {
        EXPECT_TRUE(Panel->FillRect(row.Rect, 0xff000000));
        EXPECT_EQ(row.Sent, !Calls().empty()) << row.Rect.left << "," << row.Rect.top;
        EXPECT_TRUE(Panel->FillRectBordered(row.Rect, 0xff000000, 1, 0xffffffff));
        EXPECT_EQ(row.Sent, !Calls().empty()) << row.Rect.left << "," << row.Rect.top;
    }
}

TEST_F(DrawingTest, ABorderIsFourBarsAroundTheInside)
{
    Panel->AbsoluteAlpha = 0.5f;
    EXPECT_TRUE(Panel->FillRectBordered({10, 20, 20, 30}, 0xff0000ff, 3, 0xffff0000));
    EXPECT_EQ("DrawRect (10,20,20,23) 7fff0000\n"
              "DrawRect (10,23,13,27) 7fff0000\n"
              "DrawRect (17,23,20,27) 7fff0000\n"
              "DrawRect (10,27,20,30) 7fff0000\n"
              "DrawRect (13,23,17,27) 7f0000ff\n",
        Calls());
    EXPECT_TRUE(Panel->FillRectBordered({10, 20, 20, 30}, 0xff0000ff, 0, 0xffff0000));
    EXPECT_EQ("DrawRect (10,20,20,30) 7f0000ff\n", Calls());
}

TEST_F(DrawingTest, ABorderAloneIsDrawnAlsoOffTheScreen)
{
    EXPECT_TRUE(Panel->DrawBorder({900, 0, 910, 10}, 1, 0xff00ff00));
    EXPECT_EQ("DrawRect (900,0,910,1) ff00ff00\n"
              "DrawRect (900,1,901,9) ff00ff00\n"
              "DrawRect (909,1,910,9) ff00ff00\n"
              "DrawRect (900,9,910,10) ff00ff00\n",
        Calls());
}

TEST_F(DrawingTest, ABorderWiderThanTheRectangleIsHandedOnInverted)
{
    Panel->DrawBorder({0, 0, 4, 4}, 3, 0xff000000);
    EXPECT_EQ("DrawRect (0,0,4,3) ff000000\n"
              "DrawRect (0,3,3,1) ff000000\n"
              "DrawRect (1,3,4,1) ff000000\n"
              "DrawRect (0,1,4,4) ff000000\n",
        Calls());
}

TEST_F(DrawingTest, ALineAloneHasItsColorAsGivenAndOneOfAListAdjusted)
{
    const _Line lines[] = {{0, 1, 2, 3}, {4, 5, 6, 7}};
    EXPECT_TRUE(Panel->DrawLine(lines[0], 0xffff0000, 2));
    EXPECT_EQ("DrawLine (0,1)-(2,3) width=2 texture 1 flags=6 alpha=1 orientation=0 mask=ffff0000\n", Calls());
    Panel->AbsoluteAlpha = 0.5f;
    EXPECT_TRUE(Panel->DrawLine(lines[0], 0xffff0000, 2));
    EXPECT_EQ("DrawLine (0,1)-(2,3) width=2 texture 1 flags=6 alpha=129 orientation=0 mask=ffff0000\n", Calls());
    EXPECT_TRUE(Panel->DrawLines(lines, 2, 0xffff0000, 1));
    EXPECT_EQ("DrawLine (0,1)-(2,3) width=1 texture 1 flags=4 alpha=0 orientation=0 mask=7fff0000\n"
              "DrawLine (4,5)-(6,7) width=1 texture 1 flags=4 alpha=0 orientation=0 mask=7fff0000\n",
        Calls());
}

TEST_F(DrawingTest, NoLinesAreDrawnAtOnce)
{
    EXPECT_TRUE(Panel->DrawLines(nullptr, 0, 0xffff0000, 1));
    EXPECT_TRUE(Panel->DrawLines(nullptr, 0, Texture.get(), 1));
    EXPECT_FALSE(Panel->DrawLines(nullptr, 0, nullptr, 1));
    EXPECT_FALSE(Panel->DrawLines(nullptr, 1, 0xffff0000, 1));
    EXPECT_EQ("", Calls());
}

TEST_F(DrawingTest, ATexturedLineIsTheRecordOfATexturedRectangle)
{
    Texture->Flags = TextureHasRect;
    Texture->Right = 8;
    Texture->Alpha = 0.5f;
    Texture->ColorMask = 0xff00ff00;
    Texture->Orientation = 1;
    const _Line line = {1, 2, 3, 4};
    EXPECT_TRUE(Panel->DrawLine(line, Texture.get(), 5));
    EXPECT_EQ("DrawLine (1,2)-(3,4) width=5 texture 1 flags=3 alpha=127 orientation=1 mask=ff00ff00\n", Calls());
    EXPECT_TRUE(Panel->TexturedRect({1, 2, 3, 4}, Texture.get()));
    EXPECT_EQ("DrawTexturedRect texture 1 to=(1,2,3,4) from=(0,0,8,0) flags=3 alpha=127 orientation=1 mask=ff00ff00\n",
        Calls());
    EXPECT_FALSE(Panel->DrawLine(line, nullptr, 5));
}

TEST_F(DrawingTest, AnImageThatCannotBeLoadedDrawsNothing)
{
    Host.RefusesImages = true;
    const TeskTexturedRect record = {Texture.get(), {}, 0, {}, 0, 0, 0};
    EXPECT_FALSE(Panel->TexturedRect({0, 0, 1, 1}, Texture.get()));
    EXPECT_FALSE(Panel->TexturedRectBordered({0, 0, 1, 1}, Texture.get(), 1));
    EXPECT_FALSE(Panel->TexturedRects(1, &record));
    EXPECT_FALSE(Panel->DrawLine({0, 0, 1, 1}, Texture.get(), 1));
    EXPECT_FALSE(Panel->TexturedRect({0, 0, 1, 1}, nullptr));
    EXPECT_FALSE(Panel->TexturedRectBordered({0, 0, 1, 1}, nullptr, 1));
    EXPECT_EQ("", Calls());
}

TEST_F(DrawingTest, TheAlphaByteOfAnImageStaysInItsBounds)
{
    struct Row {
        float Alpha;
        const char* Byte;
    };
    const Row rows[] = {{1.0f, "255"}, {-1.0f, "0"}, {1e30f, "255"}, {std::numeric_limits<float>::quiet_NaN(), "0"}};
    for (const Row& row : rows) {
        Texture->Alpha = row.Alpha;
        Panel->TexturedRect({0, 0, 1, 1}, Texture.get());
        EXPECT_NE(std::string::npos, Calls().find(" alpha=" + std::string(row.Byte) + " ")) << row.Alpha;
    }
}

TEST_F(DrawingTest, APlainImageGoesOutWithoutARectangleAndABorderedOneWithIts)
{
    EXPECT_TRUE(Panel->TexturedRect({0, 0, 10, 10}, Texture.get()));
    EXPECT_EQ(
        "DrawTexturedRect texture 1 to=(0,0,10,10) from=(0,0,0,0) flags=2 alpha=255 orientation=0 mask=00000000\n",
        Calls());
    EXPECT_TRUE(Panel->TexturedRectBordered({0, 0, 10, 10}, Texture.get(), 0));
    EXPECT_EQ(
        "DrawTexturedRect texture 1 to=(0,0,10,10) from=(0,0,64,64) flags=3 alpha=255 orientation=0 mask=00000000\n",
        Calls());
    EXPECT_TRUE(Panel->TexturedRectBordered({0, 0, 10, 10}, Texture.get(), 2));
    EXPECT_EQ(
        "DrawTexturedRect texture 1 to=(0,0,10,10) from=(0,0,64,64) flags=3 alpha=255 orientation=0 mask=00000000\n",
        Calls());
}

TEST_F(DrawingTest, ABorderedImageIsNinePiecesInOneCall)
{
    Texture->Border = 10;
    Texture->ColorMask = 0x80ffffff;
    EXPECT_TRUE(Panel->TexturedRectBordered({100, 200, 200, 300}, Texture.get(), 5));
    const std::string rest = " flags=3 alpha=255 orientation=0 mask=80ffffff\n";
    EXPECT_EQ("DrawTexturedRects 9\n"
              "- texture 1 to=(100,200,105,205) from=(0,0,10,10)"
            + rest + "- texture 1 to=(100,205,105,295) from=(0,10,10,54)" + rest
            + "- texture 1 to=(195,200,200,205) from=(54,0,64,10)" + rest
            + "- texture 1 to=(105,295,195,300) from=(10,54,54,64)" + rest
            + "- texture 1 to=(105,200,195,205) from=(10,0,54,10)" + rest
            + "- texture 1 to=(195,205,200,295) from=(54,10,64,54)" + rest
            + "- texture 1 to=(100,295,105,300) from=(0,54,10,64)" + rest
            + "- texture 1 to=(195,295,200,300) from=(54,54,64,64)" + rest
            + "- texture 1 to=(105,205,195,295) from=(10,10,54,54)" + rest,
        Calls());
}

TEST_F(DrawingTest, QuarterTurnsMoveThePartsOfTheImage)
{
    const std::string tl = "(0,0,10,10)";
    const std::string t = "(10,0,20,10)";
    const std::string tr = "(20,0,30,10)";
    const std::string l = "(0,10,10,20)";
    const std::string c = "(10,10,20,20)";
    const std::string r = "(20,10,30,20)";
    const std::string bl = "(0,20,10,30)";
    const std::string b = "(10,20,20,30)";
    const std::string br = "(20,20,30,30)";
    using Sources = std::vector<std::string>;
    EXPECT_EQ((Sources{tl, l, tr, b, t, r, bl, br, c}), SourcesFor(0));
    EXPECT_EQ((Sources{bl, b, tl, r, l, t, br, tr, c}), SourcesFor(1));
    EXPECT_EQ((Sources{br, r, bl, t, b, l, tr, tl, c}), SourcesFor(2));
    EXPECT_EQ((Sources{tr, t, br, l, r, b, tl, bl, c}), SourcesFor(3));
    EXPECT_EQ((Sources{tl, l, tr, b, t, r, bl, br, c}), SourcesFor(4));
}

TEST_F(DrawingTest, AListOfRectanglesIsSentAsGivenAndOnlyItsFirstTextureMatters)
{
    const TeskTexturedRect records[] = {
        {Texture.get(), {0, 0, 1, 1}, 5, {1, 2, 3, 4}, 77, 0x11223344, 2},
        {nullptr, {2, 2, 3, 3}, 0, {}, 0, 0, 0},
    };
    EXPECT_TRUE(Panel->TexturedRects(2, records));
    EXPECT_EQ("DrawTexturedRects 2\n"
              "- texture 1 to=(0,0,1,1) from=(1,2,3,4) flags=5 alpha=77 orientation=2 mask=11223344\n"
              "- texture 0 to=(2,2,3,3) from=(0,0,0,0) flags=0 alpha=0 orientation=0 mask=00000000\n",
        Calls());
    EXPECT_FALSE(Panel->TexturedRects(1, records + 1));
    EXPECT_FALSE(Panel->TexturedRects(1, nullptr));
    EXPECT_TRUE(Panel->TexturedRects(0, records + 1));
    EXPECT_EQ("", Calls());
}

TEST_F(DrawingTest, AHostThatRefusesIsHeard)
{
    Host.RefusesDrawing = true;
    EXPECT_FALSE(Panel->TexturedRect({0, 0, 1, 1}, Texture.get()));
    EXPECT_FALSE(Panel->DrawLine({0, 0, 1, 1}, 0xff000000, 1));
}

namespace {

class TextDrawingTest : public DrawingTest
{
protected:
    TextDrawingTest() : Font(TeskFont::New(Panel, "Sans", 12, false, false)) { Font->Color = 0xffcccccc; }

    std::unique_ptr<TeskFont> Font;
};

} // namespace

TEST_F(TextDrawingTest, WithoutAFontNothingIsDrawn)
{
    EXPECT_EQ(0u, Panel->DrawTextA(nullptr, "a", 0, 0));
    EXPECT_EQ(0u, Panel->DrawTextClipped(nullptr, "a", 0, 0));
    EXPECT_EQ(0u, Panel->DrawTextCenter(nullptr, "a", 0, 0, 10));
    EXPECT_EQ(0u, Panel->DrawTextRight(nullptr, "a", 0, 0));
    EXPECT_EQ(0u, Panel->DrawColoredText(nullptr, "a\arb", 0, 0));
    EXPECT_EQ("", Calls());
}

TEST_F(TextDrawingTest, ClippedTextsEndAtTheElementsEdgeOrAtTheirOwn)
{
    EXPECT_EQ(6u, Panel->DrawTextA(Font.get(), "a", 10, 5));
    Panel->DrawTextClipped(Font.get(), "a", 10, 5);
    Panel->DrawTextClipped(Font.get(), "a", 10, 5, 30);
    Panel->DrawTextCenter(Font.get(), "a", 10, 5);
    Panel->DrawTextCenter(Font.get(), "a", 10, 5, 30);
    Panel->DrawTextRight(Font.get(), "a", 10, 5);
    Panel->DrawTextRight(Font.get(), "a", 10, 5, 30);
    EXPECT_EQ("DrawText \"a\" (10,5,10,600) ffcccccc format=288 font 1\n"
              "DrawText \"a\" (10,5,100,600) ffcccccc format=32 font 1\n"
              "DrawText \"a\" (10,5,30,600) ffcccccc format=32 font 1\n"
              "DrawText \"a\" (10,5,100,600) ffcccccc format=33 font 1\n"
              "DrawText \"a\" (10,5,30,600) ffcccccc format=33 font 1\n"
              "DrawText \"a\" (10,5,100,600) ffcccccc format=34 font 1\n"
              "DrawText \"a\" (10,5,30,600) ffcccccc format=34 font 1\n",
        Calls());
}

TEST_F(TextDrawingTest, ATextThatBeginsAtItsLimitIsNotDrawn)
{
    EXPECT_EQ(0u, Panel->DrawTextClipped(Font.get(), "a", 100, 0));
    EXPECT_EQ(0u, Panel->DrawTextClipped(Font.get(), "a", 30, 0, 30));
    EXPECT_EQ(0u, Panel->DrawTextCenter(Font.get(), "a", 100, 0));
    EXPECT_EQ(0u, Panel->DrawTextRight(Font.get(), "a", 31, 0, 30));
    EXPECT_EQ("", Calls());
}

TEST_F(TextDrawingTest, OnlyTheClippedFormWithoutALimitDrawsAnEmptyText)
{
    Panel->DrawTextClipped(Font.get(), "", 0, 0, 30);
    Panel->DrawTextCenter(Font.get(), "", 0, 0);
    Panel->DrawTextRight(Font.get(), "", 0, 0);
    EXPECT_EQ("", Calls());
    Panel->DrawTextClipped(Font.get(), "", 0, 0);
    EXPECT_EQ("DrawText \"\" (0,0,100,600) ffcccccc format=32 font 1\n", Calls());
}

TEST_F(TextDrawingTest, ColorCodesCutATextIntoPieces)
{
    EXPECT_EQ(24u, Panel->DrawColoredText(Font.get(), "\arab\axcd", 10, 0));
    EXPECT_EQ("DrawText \"ab\" (10,0,10,600) ffff0000 format=288 font 1\n"
              "DrawText \"cd\" (22,0,22,600) ffcccccc format=288 font 1\n",
        Calls());
    EXPECT_EQ(0xffccccccu, Font->Color);
}

TEST_F(TextDrawingTest, APieceBeforeTheFirstCodeHasTheFontsColor)
{
    EXPECT_EQ(18u, Panel->DrawColoredTextClipped(Font.get(), "a\agbc", 10, 0, 20));
    EXPECT_EQ("DrawText \"a\" (10,0,20,600) ffcccccc format=32 font 1\n"
              "DrawText \"bc\" (16,0,20,600) ff00ff00 format=32 font 1\n",
        Calls());
}

TEST_F(TextDrawingTest, ATextWithoutCodesIsDrawnWhole)
{
    Panel->DrawColoredText(Font.get(), "abc", 10, 0);
    Panel->DrawColoredTextClipped(Font.get(), "abc", 10, 0, 20);
    EXPECT_EQ("DrawText \"abc\" (10,0,10,600) ffcccccc format=288 font 1\n"
              "DrawText \"abc\" (10,0,20,600) ffcccccc format=32 font 1\n",
        Calls());
    EXPECT_EQ(0u, Panel->DrawColoredText(Font.get(), nullptr, 10, 0));
    EXPECT_EQ(0u, Panel->DrawColoredText(Font.get(), "", 10, 0));
    EXPECT_EQ("", Calls());
}

TEST_F(TextDrawingTest, ALongColoredTextIsCut)
{
    for (const std::size_t length : {2044u, 2045u, 2046u, 2047u}) {
        const std::string text = "\ar" + std::string(length, 'a');
        EXPECT_EQ(6 * std::min<std::size_t>(length, 2045), Panel->DrawColoredText(Font.get(), text.c_str(), 0, 0));
    }
}
