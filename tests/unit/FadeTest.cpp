#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "tests/unit/ToolkitTest.h"

namespace {

class FadeTest : public ToolkitTest
{
protected:
    FadeTest()
    {
        Load("<frame name='F'><Width>50</Width><Height>50</Height><FadeAlpha>0.2</FadeAlpha><FadeDelay>1000</FadeDelay>"
             "<FadeDuration>2000</FadeDuration></frame>");
        Fading = &Element("F");
    }

    float AlphaAt(u32 ticks)
    {
        System.Ticks = ticks;
        g_UIManager.FrameTick = ticks;
        return Fading->GetCurrentAlpha();
    }

    void FrameAt(u32 ticks)
    {
        System.Ticks = ticks;
        Frame();
    }

    TeskElement* Fading;
};

} // namespace

TEST_F(FadeTest, GoesFromAlphaToFadeAlphaAfterTheDelay)
{
    Fading->FadeStart = 0;
    EXPECT_EQ(1.0f, AlphaAt(0));
    EXPECT_EQ(1.0f, AlphaAt(1000));
    EXPECT_EQ(FadeDelaying, Fading->FadeState);
    EXPECT_FLOAT_EQ(0.6f, AlphaAt(2000));
    EXPECT_EQ(FadeFading, Fading->FadeState);
    EXPECT_FLOAT_EQ(0.2004f, AlphaAt(2999));
    EXPECT_EQ(0.2f, AlphaAt(3000));
    EXPECT_EQ(FadeFaded, Fading->FadeState);
    EXPECT_EQ(0.2f, AlphaAt(9000));
}

TEST_F(FadeTest, CrossesTheWrapOfTheClockInTheMiddleOfTheRamp)
{
    Fading->FadeState = FadeFading;
    Fading->FadeStart = 0xffffffffu - 1499;
    EXPECT_FLOAT_EQ(0.6f, AlphaAt(500));
}

TEST_F(FadeTest, WithoutADelayIsOverBeforeItBegins)
{
    Fading->FadeDelay = 0;
    Fading->FadeState = FadeDelaying;
    EXPECT_EQ(1.0f, AlphaAt(50000));
    EXPECT_EQ(FadeNormal, Fading->FadeState);
}

TEST_F(FadeTest, WithoutADurationEndsAtOnce)
{
    Fading->FadeStart = 0;
    Fading->FadeDuration = 0;
    EXPECT_EQ(1.0f, AlphaAt(1000));
    EXPECT_EQ(0.2f, AlphaAt(1001));
    EXPECT_EQ(FadeFaded, Fading->FadeState);
}

TEST_F(FadeTest, AnUnknownStateCountsAsNormal)
{
    Fading->FadeState = 77;
    EXPECT_EQ(1.0f, AlphaAt(50000));
    EXPECT_EQ(77u, Fading->FadeState);
}

TEST_F(FadeTest, FollowsTheMouse)
{
    g_UIManager.MousePosition = {10, 10};
    FrameAt(20000);
    EXPECT_EQ(FadeNormal, Fading->FadeState);
    FrameAt(30000);
    EXPECT_EQ(1.0f, Fading->AbsoluteAlpha);

    g_UIManager.MousePosition = {60, 10};
    FrameAt(40000);
    EXPECT_EQ(FadeDelaying, Fading->FadeState);
    EXPECT_EQ(40000u, Fading->FadeStart);
    FrameAt(42000);
    EXPECT_FLOAT_EQ(0.6f, Fading->AbsoluteAlpha);
    FrameAt(43000);
    EXPECT_EQ(0.2f, Fading->AbsoluteAlpha);

    g_UIManager.MousePosition = {10, 10};
    FrameAt(43001);
    EXPECT_EQ(FadeNormal, Fading->FadeState);
    EXPECT_EQ(1.0f, Fading->AbsoluteAlpha);
}

TEST_F(FadeTest, ANewElementStartsItsDelayWhenItIsMade)
{
    EXPECT_EQ(10000u, Fading->FadeStart);
    EXPECT_EQ(FadeDelaying, Fading->FadeState);
    FrameAt(12000);
    EXPECT_FLOAT_EQ(0.6f, Fading->AbsoluteAlpha);
}
