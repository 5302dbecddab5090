#include "teskara/text/TeskTextEdit.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TeskTextEdit& MakeEdit()
{
    return dynamic_cast<TeskTextEdit&>(MakeElement("textedit", "E"));
}

std::string TextOf(const TeskTextEdit& edit)
{
    std::string text;
    for (const CTextEditLine* line = edit.Lines.First(); line; line = line->Next)
        text.append(line->Bytes()) += '|';
    return text;
}

} // namespace

TEST(TeskTextEditTypeDeathTest, TheFontIsItsOnlyMember)
{
    WithToolkit([](ScriptHost&) {
        TeskTextEdit& edit = MakeEdit();
        const ScriptObject object(edit);
        EXPECT_STREQ("tesktextedit", object.Type().GetName());
        EXPECT_EQ("failed", object.Get("Font"));
        edit.Font.reset(TeskFixedFont::New(&edit, "Face", 12, false));
        EXPECT_EQ(edit.Font.get(), object.Follow("Font").Value().Object);
        EXPECT_EQ("unknown", object.Get("BackgroundColor")) << "what frames answer is not for it";
        EXPECT_EQ("unknown", object.Get("Text"));
    });
}

TEST(TeskTextEditTypeDeathTest, TextsAndLinesAreSetAndAdded)
{
    WithToolkit([](ScriptHost&) {
        TeskTextEdit& edit = MakeEdit();
        const ScriptObject object(edit);
        EXPECT_TRUE(object.Do("SetText", {"a\nb", "ignored"}));
        EXPECT_TRUE(object.Do("AddText", {"c\nd"}));
        EXPECT_TRUE(object.Do("AddLine", {"e\nf"}));
        EXPECT_EQ("a|b|c|d|e\nf|", TextOf(edit));
        EXPECT_TRUE(object.Do("Clear"));
        EXPECT_EQ("|", TextOf(edit));
    });
}

TEST(TeskTextEditTypeDeathTest, WithoutATextNothingIsDone)
{
    WithToolkit([](ScriptHost&) {
        TeskTextEdit& edit = MakeEdit();
        edit.SetText("a");
        const ScriptObject object(edit);
        for (const char* method : {"SetText", "AddText", "AddLine"})
            EXPECT_FALSE(object.Do(method)) << method;
        EXPECT_EQ("a|", TextOf(edit));
    });
}

TEST(TeskTextEditTypeDeathTest, ItsNameIsCutToTheBuffer)
{
    WithToolkit([](ScriptHost&) {
        const ScriptObject object(MakeElement("textedit", "LongName"));
        char text[5] = "....";
        EXPECT_TRUE(object.Type().ToText(object.Value(), text, sizeof(text)));
        EXPECT_STREQ("long", text);
    });
}
