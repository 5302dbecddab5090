#include "teskara/controls/TeskFrame.h"
#include "teskara/controls/TeskHudElement.h"
#include "teskara/controls/TeskText.h"
#include "teskara/controls/TeskTooltip.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/Allocations.h"
#include "tests/unit/ToolkitTest.h"

#include <functional>

namespace {

constexpr char LongText[] = "a text that is too long to fit into the object itself";

// Every allocation of the work fails in turn, until one run of it needs no more.
void WithFailingAllocations(const std::function<void()>& work)
{
    for (std::size_t failure = 0; failure < 1000; ++failure) {
        const std::size_t before = Allocations::Count();
        Allocations::FailAfter(failure, Allocations::Failing::Once);
        EXPECT_NO_THROW(work()) << "at allocation " << failure;
        Allocations::Allow();
        if (Allocations::Count() - before <= failure)
            return;
    }
    FAIL() << "the work does not end";
}

class ResourceMemoryTest : public ToolkitTest
{
protected:
    ResourceMemoryTest()
    {
        Host.Recorded = 0;
        Load("<frame name='F'/><text name='T'/><hudelement name='H'/><tooltip name='L'/>");
        System.Files = {u"a.tga"};
        Markup = g_UIManager.AddTemplate("M",
            ("<Template><Texture Filename='a.tga'/><Font><Name>" + std::string(LongText) + "</Name></Font><Text>"
                + LongText + "</Text><AutoTooltip>" + LongText + "</AutoTooltip></Template>")
                .c_str());
    }

    XMLNode* Markup = nullptr;
};

} // namespace

TEST_F(ResourceMemoryTest, MarkupThatDoesNotFitIntoMemoryIsAFailureAndNoException)
{
    TeskElement& frame = Element("F");
    TeskElement& text = Element("T");
    WithFailingAllocations([&] { frame.FromXML(Markup, nullptr); });
    WithFailingAllocations([&] { text.FromXML(Markup, nullptr); });
    EXPECT_EQ(LongText, As<TeskText>("T").Text);
    EXPECT_EQ(LongText, As<TeskText>("T").Font->Name);
    EXPECT_TRUE(As<TeskFrame>("F").Texture);
}

TEST_F(ResourceMemoryTest, SettersWithoutMemoryLeaveWhatWasThere)
{
    auto& text = As<TeskText>("T");
    text.FromXML(Markup, nullptr);
    const std::string longer = std::string(LongText) + LongText;
    Allocations::FailAfter(0, Allocations::Failing::FromThenOn);
    text.SetText(longer.c_str());
    text.Font->SetName(longer.c_str());
    Allocations::Allow();
    EXPECT_EQ(LongText, text.Text);
    EXPECT_EQ(LongText, text.Font->Name);
}

TEST_F(ResourceMemoryTest, ObjectsWithoutMemoryAreNull)
{
    const TeskTexture source = *std::unique_ptr<TeskTexture>(TeskTexture::New(LongText));
    TeskElement& frame = Element("F");
    _CreateFont record;
    record.Name = LongText;
    WithFailingAllocations([&] {
        delete TeskTexture::New(LongText);
        delete TeskTexture::New(source);
        delete TeskFont::New(&frame, LongText, 12, false, false);
        delete TeskFont::New(&frame, record, nullptr);
    });
}

TEST_F(ResourceMemoryTest, AFrameWithoutMemoryLeavesOutWhatNeedsIt)
{
    auto& text = As<TeskText>("T");
    text.SetText(("${" + std::string(5000, 'a') + "}").c_str());
    WithFailingAllocations([] { g_UIManager.Render(); });
}

TEST_F(ResourceMemoryTest, AHudElementWithoutMemoryShowsNothingUntilItIsUpdated)
{
    auto& hud = As<TeskHudElement>("H");
    hud.SetText(LongText);
    WithFailingAllocations([&] { hud.SetText(LongText); });
    EXPECT_EQ(LongText, *hud.CurrentText);
    hud.CurrentText.reset();
    WithFailingAllocations([] { g_UIManager.Render(); });
    g_UIManager.Render();
    EXPECT_EQ(LongText, *hud.CurrentText);
}

TEST_F(ResourceMemoryTest, ATooltipLeavesOutLinesForWhichThereIsNoMemory)
{
    auto& tooltip = As<TeskTooltip>("L");
    const std::string twoLines = std::string(LongText) + "\n" + LongText;
    WithFailingAllocations([&] {
        tooltip.Print(twoLines.c_str());
        std::size_t lines = 0;
        for (std::size_t place = 0; place < tooltip.Lines.Size(); ++place)
            lines += tooltip.Lines.Get(place) != nullptr;
        EXPECT_EQ(lines, tooltip.LineCount);
        EXPECT_GE(2u, lines);
        tooltip.Reset();
    });
    tooltip.AddLine("short");
    const std::string longer = std::string(LongText) + "${x}";
    Allocations::FailAfter(0, Allocations::Failing::FromThenOn);
    tooltip.Lines.Get(0)->Set(longer.c_str());
    Allocations::Allow();
    EXPECT_EQ("short", tooltip.Lines.Get(0)->Text);
    EXPECT_FALSE(tooltip.Lines.Get(0)->HasData);
}

TEST_F(ResourceMemoryTest, AFrameWithoutMemoryLeavesOutTheLineThatNeedsIt)
{
    auto& tooltip = As<TeskTooltip>("L");
    tooltip.AddLine(("${" + std::string(5000, 'a') + "}").c_str());
    tooltip.Show(true);
    WithFailingAllocations([] { g_UIManager.Render(); });
    EXPECT_EQ(1u, tooltip.LineCount);
}
