#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/windows/TeskWindow.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

namespace {

// With a title bar of 60 by 20, and nothing else.
TeskWindow& MakeWindow()
{
    auto& window = dynamic_cast<TeskWindow&>(MakeElement("window", "W"));
    _CreateWindow record;
    record.Width = 200;
    record.Height = 150;
    record.Border = 5;
    window.Create(record,
        g_UIManager.AddTemplate(
            "bar", "<Template><TitleBar><Width>60</Width><Height>20</Height></TitleBar></Template>"));
    return window;
}

} // namespace

TEST(TeskWindowTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        TeskWindow& window = MakeWindow();
        const ScriptObject object(window);
        EXPECT_STREQ("teskwindow", object.Type().GetName());
        EXPECT_EQ("string w", object.Get("Title"));
        EXPECT_EQ("string ", object.Get("ClickFocus"));
        EXPECT_EQ("int 0", object.Get("Minimized"));
        window.Minimized = true;
        EXPECT_EQ("int 1", object.Get("Minimized"));
        window.Title.reset();
        window.ClickFocus.reset();
        EXPECT_EQ("failed", object.Get("Title"));
        EXPECT_EQ("failed", object.Get("ClickFocus"));
        EXPECT_EQ("int 5", object.Get("Border"));
    });
}

TEST(TeskWindowTypeDeathTest, FlagsAreToldAsTheyAre)
{
    WithToolkit([](ScriptHost&) {
        TeskWindow& window = MakeWindow();
        const ScriptObject object(window);
        const char* const members[] = {
            "IsClosable", "IsMinimizable", "IsWidthResizable", "IsHeightResizable", "IsResizable"};
        for (const char* member : members)
            EXPECT_EQ("int 0", object.Get(member)) << member;
        window.WindowFlags = 0xff;
        EXPECT_EQ("int 1", object.Get("IsClosable"));
        EXPECT_EQ("int 2", object.Get("IsMinimizable"));
        EXPECT_EQ("int 8", object.Get("IsWidthResizable"));
        EXPECT_EQ("int 16", object.Get("IsHeightResizable"));
        window.WindowFlags = WindowResizesWidth | WindowResizesHeight;
        EXPECT_EQ("int 0", object.Get("IsResizable"));
        window.WindowFlags = WindowHasClose;
        EXPECT_EQ("int 1", object.Get("IsResizable"));
    });
}

TEST(TeskWindowTypeDeathTest, TextsMayBeSetAndTakenAway)
{
    WithToolkit([](ScriptHost&) {
        TeskWindow& window = MakeWindow();
        const ScriptObject object(window);
        EXPECT_TRUE(object.Do("SetTitle", {"A title"}));
        EXPECT_EQ("string A title", object.Get("Title"));
        EXPECT_TRUE(object.Do("SetTitle"));
        EXPECT_EQ("failed", object.Get("Title"));
        EXPECT_TRUE(object.Do("SetClickFocus", {"Entry"}));
        EXPECT_EQ("Entry", *window.ClickFocus);
        EXPECT_TRUE(object.Do("SetClickFocus"));
        EXPECT_EQ("failed", object.Get("ClickFocus"));
    });
}

TEST(TeskWindowTypeDeathTest, ItIsMinimisedAndBroughtBack)
{
    WithToolkit([](ScriptHost&) {
        TeskWindow& window = MakeWindow();
        const ScriptObject object(window);
        EXPECT_TRUE(object.Do("Minimize"));
        EXPECT_TRUE(window.Minimized);
        EXPECT_EQ(70u, window.Width);
        EXPECT_TRUE(object.Do("Unminimize"));
        EXPECT_FALSE(window.Minimized);
        EXPECT_EQ(210u, window.Width);
        EXPECT_TRUE(object.Do("ToggleMinimize"));
        EXPECT_TRUE(window.Minimized);
        EXPECT_TRUE(object.Do("ToggleMinimize"));
        EXPECT_FALSE(window.Minimized);
    });
}

TEST(TeskWindowTypeDeathTest, AWindowThatNeverWasMinimisedHasNoSizeToGoBackTo)
{
    WithToolkit([](ScriptHost&) {
        TeskWindow& window = MakeWindow();
        EXPECT_TRUE(ScriptObject(window).Do("Unminimize"));
        EXPECT_EQ(0u, window.Width);
        EXPECT_EQ(0u, window.Height);
    });
}

TEST(TeskWindowTypeDeathTest, ASizeIsTheOuterOneAndLaysOutTheInside)
{
    WithToolkit([](ScriptHost&) {
        TeskWindow& window = MakeWindow();
        TeskElement& child = MakeElement("frame", "Child", &window);
        child.PositionWidth.Type = child.PositionHeight.Type = PositionFarEdge;
        const ScriptObject object(window);
        EXPECT_TRUE(object.Do("SetWidth", {"300"}));
        EXPECT_TRUE(object.Do("SetHeight", {"250"}));
        EXPECT_EQ(300u, window.Width);
        EXPECT_EQ(250u, window.Height);
        EXPECT_EQ(290u, child.Width);
        EXPECT_EQ(240u, child.Height);
        EXPECT_FALSE(object.Do("SetWidth"));
        EXPECT_FALSE(object.Do("SetHeight"));
    });
}

TEST(TeskWindowTypeDeathTest, ResetGoesBackToMarkup)
{
    WithToolkit([](ScriptHost&) {
        TeskWindow& window = MakeWindow();
        window.StartX = 50;
        window.StartWidth = 90;
        EXPECT_TRUE(ScriptObject(window).Do("Reset"));
        EXPECT_EQ(45, window.X);
        EXPECT_EQ(100u, window.Width);
    });
}
