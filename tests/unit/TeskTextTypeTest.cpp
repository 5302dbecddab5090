#include "teskara/controls/TeskText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

TEST(TeskTextTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        auto& text = dynamic_cast<TeskText&>(MakeElement("text", "T"));
        const ScriptObject object(text);
        EXPECT_EQ("failed", object.Get("Text"));
        EXPECT_EQ("failed", object.Get("Font"));
        EXPECT_EQ("uint 1", object.Get("NumLines"));
        EXPECT_EQ("bool false", object.Get("Wrap"));

        text.Font.reset(TeskFont::New(&text, "Face", 12, false, false));
        text.NumLines = 0x100000007;
        text.Wrap = true;
        EXPECT_EQ(text.Font.get(), object.Follow("Font").Value().Object);
        EXPECT_STREQ("teskfont", object.Follow("Font").Type().GetName());
        EXPECT_EQ("uint 7", object.Get("NumLines"));
        EXPECT_EQ("bool true", object.Get("Wrap"));
    });
}

TEST(TeskTextTypeDeathTest, TheTextIsTheArgumentOrEmpty)
{
    WithToolkit([](ScriptHost&) {
        const ScriptObject object(MakeElement("text", "T"));
        EXPECT_TRUE(object.Do("SetText", {"a ${b}", "ignored"}));
        EXPECT_EQ("string a ${b}", object.Get("Text"));
        EXPECT_TRUE(object.Do("SetText"));
        EXPECT_EQ("string ", object.Get("Text"));
    });
}

TEST(TeskTextTypeDeathTest, AlignmentsAreWordsAndTheVerticalOnesAreHorizontalToo)
{
    struct Row {
        const char* Method;
        const char* Word;
        eTextAlign Alignment;
    };
    constexpr Row rows[] = {
        {"SetHorizontalAlignment", "CENTER", AlignCenter},
        {"SetHorizontalAlignment", "right", AlignRight},
        {"SetHorizontalAlignment", "middle", AlignLeft},
        {"SetVerticalAlignment", "Center", AlignVerticalCenter},
        {"SetVerticalAlignment", "bottom", AlignBottom},
        {"SetVerticalAlignment", "", AlignTop},
    };
    WithToolkit([&](ScriptHost&) {
        auto& text = dynamic_cast<TeskText&>(MakeElement("text", "T"));
        for (const Row& row : rows) {
            EXPECT_TRUE(ScriptObject(text).Do(row.Method, {row.Word})) << row.Word;
            EXPECT_EQ(row.Alignment, text.Alignment) << row.Word;
            EXPECT_EQ(AlignTop, text.VerticalAlignment) << row.Word;
        }
        EXPECT_FALSE(ScriptObject(text).Do("SetHorizontalAlignment"));
        EXPECT_FALSE(ScriptObject(text).Do("SetVerticalAlignment"));
    });
}

TEST(TeskTextTypeDeathTest, WrappingIsWhatTheHostCalculates)
{
    WithToolkit([](ScriptHost& host) {
        auto& text = dynamic_cast<TeskText&>(MakeElement("text", "T"));
        const ScriptObject object(text);
        host.OnCalculate = [](const std::string& expression, double& result) {
            result = expression == "2-1";
            return expression != "nonsense";
        };
        EXPECT_TRUE(object.Do("SetWrap", {"2-1"}));
        EXPECT_TRUE(text.Wrap);
        EXPECT_TRUE(object.Do("SetWrap", {"1-1"}));
        EXPECT_FALSE(text.Wrap);
        text.Wrap = true;
        EXPECT_TRUE(object.Do("SetWrap", {"nonsense"}));
        EXPECT_FALSE(text.Wrap);
        EXPECT_FALSE(object.Do("SetWrap"));
    });
}

TEST(TeskTextTypeDeathTest, ATextMayEndWhileTheHostCalculates)
{
    WithToolkit([](ScriptHost& host) {
        TeskElement& text = MakeElement("text", "T");
        host.OnCalculate = [&](const std::string&, double&) {
            g_UIManager.Screen->DeleteChild(&text);
            return true;
        };
        EXPECT_TRUE(ScriptObject(text).Do("SetWrap", {"1"}));
        EXPECT_EQ(nullptr, g_UIManager.FindElement("T"));
    });
}
