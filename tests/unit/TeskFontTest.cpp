#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskFixedFont.h"
#include "tests/unit/ToolkitTest.h"
#include "tests/unit/TrappingFloats.h"

#include <limits>
#include <memory>

namespace {

class TeskFontTest : public ToolkitTest
{
protected:
    TeskFontTest()
    {
        Load("<frame name='Panel'/>");
        Host.TakeCalls();
    }

    std::unique_ptr<TeskFont> MakeFont(const char* name = "Sans", u8 size = 12, bool fixed = false)
    {
        return std::unique_ptr<TeskFont>(TeskFont::New(&Element("Panel"), name, size, fixed, false));
    }

    std::unique_ptr<TeskFont> FontOf(const char* markup)
    {
        XMLNode* node = g_UIManager.AddTemplate("Holder", markup);
        return std::unique_ptr<TeskFont>(Element("Panel").FontFromXML(node, "Font", nullptr));
    }
};

// Keeps what it is told.
class Listener : public TeskElement
{
public:
    using TeskElement::TeskElement;
    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override
    {
        if (code != NotifyFontChanged)
            return;
        EXPECT_EQ(nullptr, source);
        Font = reinterpret_cast<TeskFont*>(value);
        ++Count;
    }

    int Count = 0;
    TeskFont* Font = nullptr;
};

// Answers each change of its font with another one.
class RestlessOwner : public Listener
{
public:
    using Listener::Listener;
    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override
    {
        Listener::OnNotify(source, code, value);
        if (code == NotifyFontChanged)
            Font->SetHeight(static_cast<u8>(Font->Size + 1));
    }
};

} // namespace

TEST_F(TeskFontTest, IsMadeByTheHostAtItsFirstUseAndGivenBackAtItsEnd)
{
    Host.Recorded = RecordResources;
    {
        const auto font = MakeFont();
        EXPECT_EQ("", Host.TakeCalls());
        font->Draw("a", 0, 0, 0);
        font->Draw("a", 0, 0, 0);
        EXPECT_EQ("CreateFontResource \"Sans\" 12 -> 1\n", Host.TakeCalls());
    }
    EXPECT_EQ("ReleaseFontResource 1\n", Host.TakeCalls());
}

TEST_F(TeskFontTest, AFaceThatCannotBeMadeIsAskedForAgainAndDrawsNothing)
{
    Host.Recorded = RecordResources | RecordDrawing;
    Host.RefusesFonts = true;
    const auto font = MakeFont();
    EXPECT_EQ(0u, font->Draw("a", 0, 0, 0));
    EXPECT_EQ(0u, font->Draw("a", 0, 0, 0));
    EXPECT_EQ("CreateFontResource \"Sans\" 12 -> 0\nCreateFontResource \"Sans\" 12 -> 0\n", Host.TakeCalls());
}

TEST_F(TeskFontTest, ABoxReachesToTheBottomOfTheScreenAndIsUnclippedWithoutWidth)
{
    const auto font = MakeFont();
    EXPECT_EQ(12u, font->Draw("ab", 10, 20, 0));
    font->DrawCenter("ab", 10, 20, 0);
    font->DrawRight("ab", 10, 20, 0);
    font->Draw("ab", 10, 20, 50);
    font->DrawCenter("ab", 10, 20, 50);
    font->DrawRight("ab", 10, 20, 50);
    EXPECT_EQ("DrawText \"ab\" (10,20,10,600) ffffffff format=288 font 1\n"
              "DrawText \"ab\" (10,20,10,600) ffffffff format=289 font 1\n"
              "DrawText \"ab\" (10,20,10,600) ffffffff format=290 font 1\n"
              "DrawText \"ab\" (10,20,60,600) ffffffff format=32 font 1\n"
              "DrawText \"ab\" (10,20,60,600) ffffffff format=33 font 1\n"
              "DrawText \"ab\" (10,20,60,600) ffffffff format=34 font 1\n",
        Host.TakeCalls());
}

TEST_F(TeskFontTest, TheOwnersOpacityIsPutIntoTheColor)
{
    const auto font = MakeFont();
    font->Color = 0xff102030;
    Element("Panel").AbsoluteAlpha = 0.5f;
    font->Draw("a", 0, 0, 0);
    EXPECT_EQ("DrawText \"a\" (0,0,0,600) 7f102030 format=288 font 1\n", Host.TakeCalls());
}

TEST_F(TeskFontTest, ANullTextIsDrawnAsAnEmptyOneAndHasNoWidth)
{
    const auto font = MakeFont();
    font->Draw(nullptr, 0, 0, 0);
    EXPECT_EQ("DrawText \"\" (0,0,0,600) ffffffff format=288 font 1\n", Host.TakeCalls());
    EXPECT_EQ(0u, font->GetTextWidth(nullptr));
    EXPECT_EQ(0u, font->GetTextWidth(nullptr, 5));
    EXPECT_EQ(0u, font->GetCharByOffset(nullptr, 5));
}

TEST_F(TeskFontTest, AFontThatCannotBeMadeIsTwelveWideForEachByte)
{
    Host.RefusesFonts = true;
    const auto font = MakeFont();
    EXPECT_EQ(36u, font->GetTextWidth("abc"));
    EXPECT_EQ(24u, font->GetTextWidth("abc", 2));
    EXPECT_EQ(0u, font->GetCharByOffset("abc", 100));
    EXPECT_FALSE(font->IsFixedFont());
}

TEST_F(TeskFontTest, WidthOfAPartIsMeasuredUpToItsLength)
{
    const auto font = MakeFont();
    EXPECT_EQ(18u, font->GetTextWidth("abc"));
    EXPECT_EQ(12u, font->GetTextWidth("abc", 2));
    EXPECT_EQ(18u, font->GetTextWidth("abc", 100));
}

TEST_F(TeskFontTest, From4097BytesOnTheWholeTextIsMeasured)
{
    const auto font = MakeFont();
    const std::string text(5000, 'a');
    EXPECT_EQ(4095u * 6, font->GetTextWidth(text.c_str(), 4095));
    EXPECT_EQ(4096u * 6, font->GetTextWidth(text.c_str(), 4096));
    EXPECT_EQ(5000u * 6, font->GetTextWidth(text.c_str(), 4097));
}

TEST_F(TeskFontTest, AMeasureThatTheHostDoesNotWriteIsTwelve)
{
    Host.RefusesMeasures = true;
    EXPECT_EQ(12u, MakeFont()->GetTextWidth("abc"));
}

TEST_F(TeskFontTest, CharByOffsetSkipsCharactersThatFitIntoIt)
{
    Host.Widths = {{'i', 2.9f}, {'w', 10.0f}};
    const auto font = MakeFont();
    struct Row {
        u64 Offset;
        u32 Index;
    };
    constexpr Row rows[] = {
        {0, 0}, {1, 0}, {2, 1}, {11, 1}, {12, 2}, {13, 2}, {14, 3}, {1000, 3}, {std::numeric_limits<u64>::max(), 3}};
    for (const Row& row : rows)
        EXPECT_EQ(row.Index, font->GetCharByOffset("iwi", row.Offset)) << row.Offset;
}

TEST_F(TeskFontTest, CharByOffsetOfAFixedFontDividesByTheSpace)
{
    const auto font = MakeFont("Mono", 12, true);
    EXPECT_EQ(0u, font->GetCharByOffset("abc", 5));
    EXPECT_EQ(2u, font->GetCharByOffset("abc", 17));
    EXPECT_EQ(3u, font->GetCharByOffset("abc", std::numeric_limits<u64>::max()));
    Host.Widths[' '] = 0;
    EXPECT_EQ(1u, font->GetCharByOffset("abc", 23));
    Host.Widths[' '] = -4;
    EXPECT_EQ(2u, font->GetCharByOffset("abc", 24));
    Host.Widths[' '] = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(2u, font->GetCharByOffset("abc", 24));
}

TEST_F(TeskFontTest, AFixedFontIsAlwaysMadeFixedAndKnowsItsCharacterWidth)
{
    Host.Recorded = RecordResources;
    const std::unique_ptr<TeskFixedFont> font(TeskFixedFont::New(&Element("Panel"), "Mono", 10, true));
    font->Fixed = false;
    EXPECT_EQ(6u, font->GetCharWidthA());
    EXPECT_EQ("CreateFontResource \"Mono\" 10 fixed bold -> 1\n", Host.TakeCalls());
    Host.Widths[' '] = 8.9f;
    EXPECT_EQ(8u, font->GetCharWidthA());
    Host.Widths[' '] = 0;
    EXPECT_EQ(12u, font->GetCharWidthA());
    Host.RefusesMeasures = true;
    EXPECT_EQ(12u, font->GetCharWidthA());
}

TEST_F(TeskFontTest, AChangeReleasesTheFaceAndTellsTheOwner)
{
    Host.Recorded = RecordResources;
    Listener owner("", nullptr, "Owner");
    const std::unique_ptr<TeskFont> font(TeskFont::New(&owner, "Sans", 12, false, false));
    font->Prepare();
    Host.TakeCalls();

    font->SetName("SANS");
    font->SetHeight(12);
    font->SetBold(false);
    EXPECT_EQ("", Host.TakeCalls());
    EXPECT_EQ(0, owner.Count);

    font->SetName("Serif");
    EXPECT_EQ("ReleaseFontResource 1\n", Host.TakeCalls());
    EXPECT_EQ(1, owner.Count);
    EXPECT_EQ(font.get(), owner.Font);
    font->SetHeight(13);
    font->SetBold(true);
    font->SetName(nullptr);
    EXPECT_EQ(4, owner.Count);
    EXPECT_TRUE(font->Prepare());
    EXPECT_EQ("CreateFontResource \"\" 13 bold -> 2\n", Host.TakeCalls());
}

TEST_F(TeskFontTest, ACopyLoadsItsOwnFace)
{
    const auto font = MakeFont("Sans", 9, true);
    font->Color = 0x11223344;
    font->Prepare();
    const std::unique_ptr<TeskFont> copy(TeskFont::New(&Element("Panel"), *font));
    EXPECT_EQ(0u, copy->FontID);
    EXPECT_EQ("Sans", copy->Name);
    EXPECT_EQ(9, copy->Size);
    EXPECT_EQ(0x11223344u, copy->Color);
    EXPECT_TRUE(copy->Fixed);
}

TEST_F(TeskFontTest, AFixedCopyOfAnyFontIsFixedAndDeletesItself)
{
    const auto font = MakeFont("Sans", 9, false);
    font->Color = 0x11223344;
    TeskFixedFont* const copy = TeskFixedFont::New(&Element("Panel"), *font);
    EXPECT_EQ("Sans", copy->Name);
    EXPECT_EQ(9, copy->Size);
    EXPECT_EQ(0x11223344u, copy->Color);
    Host.TakeCalls();
    Host.Recorded = RecordResources;
    EXPECT_TRUE(copy->Prepare());
    copy->Delete();
    EXPECT_EQ("CreateFontResource \"Sans\" 9 fixed -> 1\nReleaseFontResource 1\n", Host.TakeCalls());
}

TEST_F(TeskFontTest, ARecordWithoutATemplateIsWhiteAndNamelessByDefault)
{
    const std::unique_ptr<TeskFont> font(TeskFont::New(&Element("Panel"), _CreateFont{}, nullptr));
    EXPECT_EQ("", font->Name);
    EXPECT_EQ(0, font->Size);
    EXPECT_EQ(0xffffffffu, font->Color);
}

TEST_F(TeskFontTest, ARecordTakesTheNameOfATemplateFromAChildAndTheRestFromAttributes)
{
    XMLNode* node = g_UIManager.AddTemplate(
        "F", "<Template Color='ff00ff00' Size='14'><Name>Sans</Name><Size>9</Size><Color>ff0000ff</Color></Template>");
    const std::unique_ptr<TeskFont> font(TeskFont::New(&Element("Panel"), _CreateFont{}, node));
    EXPECT_EQ("Sans", font->Name);
    EXPECT_EQ(14, font->Size);
    EXPECT_EQ(0xff00ff00u, font->Color);

    _CreateFont record;
    record.Name = "Own";
    record.Size = 300;
    record.Color = 0x12;
    record.Bold = true;
    const std::unique_ptr<TeskFixedFont> own(TeskFixedFont::New(&Element("Panel"), record, node));
    EXPECT_EQ("Own", own->Name);
    EXPECT_EQ(44, own->Size);
    EXPECT_EQ(0x12u, own->Color);
    EXPECT_TRUE(own->Bold);
    EXPECT_TRUE(own->Fixed);
}

TEST_F(TeskFontTest, AMissingTagMakesAWhiteFontOfSizeTwelve)
{
    const auto font = FontOf("<Template/>");
    EXPECT_EQ("", font->Name);
    EXPECT_EQ(12, font->Size);
    EXPECT_EQ(0xffffffffu, font->Color);
}

TEST_F(TeskFontTest, ATagWithoutColorMakesAFontOfColorZero)
{
    const auto font = FontOf("<Template><Font><Name>Sans</Name><Size>-1</Size><Bold/></Font></Template>");
    EXPECT_EQ("Sans", font->Name);
    EXPECT_EQ(255, font->Size);
    EXPECT_EQ(0u, font->Color);
    EXPECT_TRUE(font->Bold);
    EXPECT_FALSE(font->Fixed);
}

TEST_F(TeskFontTest, ATemplateFillsWhatTheTagLeavesOut)
{
    g_UIManager.AddTemplate("Big", "<Template><Size>30</Size><Color>ff010203</Color><Fixed>1</Fixed></Template>");
    g_UIManager.AddTemplate("Default Font", "<Template><Size>8</Size></Template>");
    const auto big = FontOf("<Template><Font Template='Big'><Color>ff000000</Color></Font></Template>");
    EXPECT_EQ(30, big->Size);
    EXPECT_EQ(0xff000000u, big->Color);
    EXPECT_TRUE(big->Fixed);
    EXPECT_EQ(8, FontOf("<Template><Font Template='None'/></Template>")->Size);
    EXPECT_EQ(8, FontOf("<Template><Font/></Template>")->Size);
}

TEST_F(TeskFontTest, AnOwnerThatAnswersAChangeByAChangeIsNotToldForEver)
{
    RestlessOwner owner("", nullptr, "Owner");
    const std::unique_ptr<TeskFont> font(TeskFont::New(&owner, "Sans", 12, false, false));
    font->SetHeight(13);
    EXPECT_EQ(256, owner.Count);
    EXPECT_EQ(static_cast<u8>(13 + 256), font->Size);
}

TEST_F(TeskFontTest, ASpaceWithoutAWidthCountsAsTwelveInAFixedFont)
{
    for (const float width :
        {0.0f, -5.0f, std::numeric_limits<float>::quiet_NaN(), -std::numeric_limits<float>::max()}) {
        Host.Widths[' '] = width;
        g_UIManager.Reset();
        Load("<frame name='Owner'/>");
        const std::unique_ptr<TeskFont> font(TeskFont::New(&Element("Owner"), "Mono", 12, true, false));
        EXPECT_EQ(0u, font->GetCharByOffset("abcd", 11)) << width;
        EXPECT_EQ(1u, font->GetCharByOffset("abcd", 12)) << width;
        EXPECT_EQ(4u, font->GetCharByOffset("abcd", std::numeric_limits<u64>::max())) << width;
        EXPECT_EQ(0u, font->GetCharByOffset("", std::numeric_limits<u64>::max())) << width;
    }
}

#ifdef __GLIBC__
TEST_F(TeskFontTest, AHostThatTrapsSumsBeyondAllNumbersIsNotTrapped)
{
    const auto font = MakeFont();
    const auto fixed = MakeFont("Mono", 12, true);
    const TrappingFloats traps;
    Host.GlyphMargin = 3e38f;
    EXPECT_EQ(3u, font->GetCharByOffset("abc", 100));
    EXPECT_EQ(0u, fixed->GetCharByOffset("abc", 100));
    Host.GlyphMargin = -3e38f;
    EXPECT_EQ(3u, font->GetCharByOffset("abc", 100));
    Host.Widths['a'] = std::numeric_limits<float>::infinity();
    Host.GlyphMargin = -std::numeric_limits<float>::infinity();
    EXPECT_EQ(0u, font->GetCharByOffset("abc", 11));
    EXPECT_TRUE(traps.AreStillSet());
}
#endif

TEST_F(TeskFontTest, BytesWithoutAWidthDoNotHoldUpASearchForAnOffset)
{
    for (const float width : {0.0f, -5.0f, std::numeric_limits<float>::infinity()}) {
        Host.Widths['i'] = width;
        const auto font = MakeFont();
        EXPECT_EQ(3u, font->GetCharByOffset("iii", 5)) << width;
    }
    Host.Widths['i'] = std::numeric_limits<float>::quiet_NaN(); // as if it were not measured
    EXPECT_EQ(1u, MakeFont()->GetCharByOffset("iii", 12));
    Host.Widths['i'] = 2e9f;
    EXPECT_EQ(0u, MakeFont()->GetCharByOffset("iii", 5));
}
