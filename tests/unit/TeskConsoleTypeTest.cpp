#include "teskara/core/CUIManager.h"
#include "teskara/text/TeskConsole.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

// A console of 10 columns.
TeskConsole& MakeConsole()
{
    auto& console = dynamic_cast<TeskConsole&>(MakeElement("console", "Console"));
    console.Font.reset(TeskFixedFont::New(&console, "Mono", 9, false));
    console.Width = 60;
    return console;
}

} // namespace

TEST(TeskConsoleTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        TeskConsole& console = MakeConsole();
        const ScriptObject object(console);
        EXPECT_EQ("failed", object.Get("Texture"));
        EXPECT_EQ("failed", object.Get("ScrollbackTexture"));
        console.Texture.reset(TeskTexture::New("t"));
        console.ScrollbackTexture.reset(TeskTexture::New("s"));
        console.Border = 1;
        console.BorderColor = 2;
        console.ScrollbackColor = 3;
        console.BackgroundColor = 4;
        console.SelectionColor = 5;
        EXPECT_EQ(console.Font.get(), object.Follow("Font").Value().Object);
        EXPECT_EQ(console.Texture.get(), object.Follow("Texture").Value().Object);
        EXPECT_EQ(console.ScrollbackTexture.get(), object.Follow("ScrollbackTexture").Value().Object);
        EXPECT_EQ("int 1", object.Get("Border"));
        EXPECT_EQ("int 2", object.Get("BorderColor"));
        EXPECT_EQ("int 3", object.Get("ScrollbackColor"));
        EXPECT_EQ("int 4", object.Get("BackgroundColor"));
        EXPECT_EQ("int 5", object.Get("SelectionColor"));
        console.Font.reset();
        EXPECT_EQ("failed", object.Get("Font"));
    });
}

TEST(TeskConsoleTypeDeathTest, MethodsSetTheColors)
{
    WithToolkit([](ScriptHost&) {
        TeskConsole& console = MakeConsole();
        const ScriptObject object(console);
        EXPECT_TRUE(object.Do("SetBorderColor", {"ff000001"}));
        EXPECT_TRUE(object.Do("SetScrollbackColor", {"ff000002"}));
        EXPECT_TRUE(object.Do("SetBackgroundColor", {"ff000003"}));
        EXPECT_TRUE(object.Do("SetSelectionColor", {"ff000004"}));
        EXPECT_EQ(0xff000001u, console.BorderColor);
        EXPECT_EQ(0xff000002u, console.ScrollbackColor);
        EXPECT_EQ(0xff000003u, console.BackgroundColor);
        EXPECT_EQ(0xff000004u, console.SelectionColor);
        EXPECT_FALSE(object.Do("SetBorderColor"));
        EXPECT_TRUE(object.Do("SetBorderColor", {"no color"}));
        EXPECT_EQ(0xff000001u, console.BorderColor);
    });
}

TEST(TeskConsoleTypeDeathTest, EchoPrintsAndClearForgets)
{
    WithToolkit([](ScriptHost&) {
        TeskConsole& console = MakeConsole();
        const ScriptObject object(console);
        EXPECT_FALSE(object.Do("Echo"));
        EXPECT_TRUE(object.Do("Echo", {"ten columns", "not this"}));
        EXPECT_EQ(1, console.Lines.Newest());
        EXPECT_STREQ("ten", console.Lines.At(0));
        EXPECT_STREQ("columns", console.Lines.At(1));
        EXPECT_TRUE(object.Do("Clear"));
        EXPECT_EQ(-1, console.Lines.Newest());
    });
}

TEST(TeskConsoleTypeDeathTest, AFramesMembersHaveNoAnswer)
{
    WithToolkit([](ScriptHost&) {
        const ScriptObject object(MakeConsole());
        EXPECT_EQ("string Console", object.Get("FullName"));
        EXPECT_FALSE(object.Do("SetBorder", {"3"}));
        EXPECT_FALSE(object.Do("SetTexture", {"<T/>"}));
    });
}
