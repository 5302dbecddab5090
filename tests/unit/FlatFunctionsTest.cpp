#include "teskara/element/TeskElement.h"
#include "teskara/host.h"
#include "tests/unit/TemporaryFile.h"
#include "tests/unit/ToolkitTest.h"

// What a program in C asks of a running toolkit.

namespace {

class FlatFunctionsTest : public ToolkitTest
{
protected:
    FlatFunctionsTest()
    {
        Load("<frame name='Main'><Width>100</Width><Height>80</Height>"
             "<Children><textentry name='Entry'><Width>50</Width><Height>20</Height></textentry></Children></frame>");
    }

    char Text[32] = "?";
};

} // namespace

TEST_F(FlatFunctionsTest, ElementsAreFoundByFullNameAndKnownById)
{
    const uint32_t entry = teskara_find("entry@MAIN");
    ASSERT_NE(0u, entry);
    EXPECT_TRUE(teskara_full_name(entry, Text, sizeof Text));
    EXPECT_STREQ("Entry@Main", Text);
    EXPECT_TRUE(teskara_full_name(entry, Text, 4));
    EXPECT_STREQ("Ent", Text);
    EXPECT_FALSE(teskara_full_name(entry, nullptr, 4));
    EXPECT_FALSE(teskara_full_name(entry, Text, 0));
    EXPECT_FALSE(teskara_full_name(0, Text, 4));
    EXPECT_EQ(0u, teskara_find("Other"));
    EXPECT_EQ(0u, teskara_find(nullptr));
}

TEST_F(FlatFunctionsTest, ElementsAreMadeAndDeleted)
{
    const uint32_t panel = teskara_create(0, "frame", "Panel");
    ASSERT_NE(0u, panel);
    EXPECT_EQ(panel, teskara_find("Panel"));
    EXPECT_NE(0u, teskara_create(panel, "frame", "Inner"));
    teskara_delete(panel);
    EXPECT_EQ(0u, teskara_find("Panel"));
    EXPECT_EQ(0u, teskara_find("Inner@Panel"));
    EXPECT_EQ(0u, teskara_create(panel, "frame", "Late")) << "the parent is gone";
    EXPECT_EQ(0u, teskara_create(0, nullptr, nullptr));
    teskara_delete(panel);
    teskara_delete(0);
    EXPECT_NE(0u, teskara_find("Main"));
}

TEST_F(FlatFunctionsTest, ElementsAreShownAndFocused)
{
    const uint32_t entry = teskara_find("Entry@Main");
    teskara_focus(entry);
    EXPECT_EQ(entry, teskara_focused());
    teskara_focus(entry + 1000);
    EXPECT_EQ(entry, teskara_focused()) << "a stale id names nothing";
    EXPECT_TRUE(teskara_show("Main", false));
    EXPECT_EQ(0u, teskara_focused());
    EXPECT_TRUE(teskara_toggle("Main"));
    EXPECT_TRUE(Element("Main").Visible);
    teskara_focus(entry);
    teskara_focus(0);
    EXPECT_EQ(0u, teskara_focused());
    EXPECT_FALSE(teskara_show("Other", true));
    EXPECT_FALSE(teskara_toggle(nullptr));
}

TEST_F(FlatFunctionsTest, ElementsKeepNamedTexts)
{
    const uint32_t main = teskara_find("Main");
    EXPECT_EQ(nullptr, teskara_metadata(main, "Note"));
    teskara_set_metadata(main, "Note", "a text");
    EXPECT_STREQ("a text", teskara_metadata(main, "note"));
    teskara_set_metadata(main, "NOTE", nullptr);
    EXPECT_EQ(nullptr, teskara_metadata(main, "Note"));
    teskara_set_metadata(main + 1000, "Note", "lost");
    EXPECT_EQ(nullptr, teskara_metadata(main + 1000, "Note"));
}

TEST_F(FlatFunctionsTest, ElementsAreValues)
{
    teskara_value value = {};
    ASSERT_TRUE(teskara_element(teskara_find("Main"), &value));
    EXPECT_STREQ("teskframe", teskara_type_name(value.type));
    EXPECT_STREQ("teskelement", teskara_type_name(teskara_type_base(value.type)));
    const char* alpha[] = {"0.5"};
    EXPECT_EQ(TESKARA_DONE, teskara_call(&value, "SetAlpha", 1, alpha));
    EXPECT_EQ(0.5F, Element("Main").Alpha);
    EXPECT_FALSE(teskara_element(0, &value));
    EXPECT_EQ(nullptr, value.type);
    EXPECT_FALSE(teskara_element(teskara_find("Main"), nullptr));
}

TEST_F(FlatFunctionsTest, InputReachesElements)
{
    const uint32_t entry = teskara_find("Entry@Main");
    teskara_mouse_move(5, 5);
    EXPECT_EQ(entry, teskara_mouse_over());
    EXPECT_TRUE(teskara_left_down());
    EXPECT_TRUE(teskara_left_up());
    EXPECT_EQ(entry, teskara_focused());
    System.KeyTexts[65] = "a";
    EXPECT_TRUE(teskara_key_down(65));
    EXPECT_TRUE(teskara_key_up(65));
    EXPECT_FALSE(teskara_key_up(65));
    teskara_right_down();
    teskara_forget_mouse();
    EXPECT_FALSE(teskara_right_up()) << "of a press that was forgotten";
    teskara_mouse_wheel(120);
}

TEST_F(FlatFunctionsTest, FilesAreLoadedBelowAParentAndUnderAnotherName)
{
    Host.Located["file"] = "/no/such/file";
    EXPECT_FALSE(teskara_load("file", true, nullptr));
    EXPECT_FALSE(teskara_load(nullptr, true, "no skin"));
    EXPECT_FALSE(teskara_load_into(teskara_find("Main"), "file", nullptr, nullptr, false, nullptr));
    EXPECT_FALSE(teskara_unload("file"));
    Host.TakeCalls();

    const TemporaryFile file("<Tesk><frame name='A'/><frame name='B'/></Tesk>");
    Host.Located["file"] = file.Path();
    const uint32_t main = teskara_find("Main");
    EXPECT_TRUE(teskara_load_into(main, "file", nullptr, nullptr, false, nullptr));
    EXPECT_NE(0u, teskara_find("A@Main"));
    EXPECT_NE(0u, teskara_find("B@Main"));
    EXPECT_TRUE(teskara_load_into(0, "file", "b", "C", false, nullptr));
    EXPECT_NE(0u, teskara_find("C"));
    EXPECT_EQ(0u, teskara_find("A"));
    EXPECT_TRUE(teskara_load_into(0, "file", "A", nullptr, false, nullptr));
    EXPECT_NE(0u, teskara_find("A"));
    EXPECT_TRUE(teskara_unload("file"));
    EXPECT_EQ(0u, teskara_find("A"));
}

TEST_F(FlatFunctionsTest, TemplatesAreKeptByName)
{
    EXPECT_TRUE(teskara_add_template("Wide", "<Template><Width>300</Width></Template>"));
    EXPECT_FALSE(teskara_add_template("Wide", "no markup"));
    EXPECT_FALSE(teskara_add_template(nullptr, nullptr));
    Load("<frame name='A' template='Wide'/>");
    EXPECT_EQ(300u, Element("A").Width);
    teskara_remove_template("Wide");
    Load("<frame name='B' template='Wide'/>");
    EXPECT_NE(300u, Element("B").Width);
    teskara_remove_template(nullptr);
    teskara_remove_skin(nullptr);
}

TEST(FlatFunctions, AnswersHaveWords)
{
    EXPECT_STREQ("The toolkit took the table.", teskara_answer_text(TESKARA_OK));
    EXPECT_STREQ("There was not enough memory to start the toolkit.", teskara_answer_text(TESKARA_NO_MEMORY));
}

TEST(FlatFunctions, TheBodyOfAnAtomIsFound)
{
    const auto body = [](const char* source) {
        uint32_t length = 99;
        const char* text = teskara_atom_body(source, &length);
        return std::string(text, length);
    };
    EXPECT_EQ("say { it }", body("atom Name(one, two)\n{\n  say { it }\n}\n"));
    EXPECT_EQ("", body("atom Name()\n{\n\n}\n"));
    EXPECT_EQ("no atom", body(" no atom "));
    EXPECT_EQ("} {", body("} {"));
    EXPECT_EQ("", body(""));
    EXPECT_EQ("", body(nullptr));
    EXPECT_STREQ("x}", teskara_atom_body("{x}", nullptr));
}
