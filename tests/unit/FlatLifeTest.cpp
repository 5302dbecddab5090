#include "teskara/core/CUIManager.h"
#include "teskara/flat/FlatTable.h"
#include "tests/unit/FlatProgram.h"
#include "tests/unit/FreshProcess.h"
#include "tests/unit/ToolkitTest.h"

#include <cstdio>
#include <string>

// The whole life of the toolkit in a program in C: plain functions alone.

namespace {

constexpr char Markup[] = "<Tesk><button name='Ok'><X>10</X><Y>10</Y><Width>60</Width><Height>20</Height>"
                          "<BackgroundColor>ff102030</BackgroundColor><Text>Press</Text>"
                          "<OnLeftClick>pressed</OnLeftClick></button></Tesk>";

teskara_host Nothing()
{
    teskara_host host = {};
    host.size = sizeof(teskara_host);
    host.version = TESKARA_TABLE_VERSION;
    return host;
}

// A host that draws, runs scripts and measures; all else is the toolkit's.
teskara_host SmallHost(FlatProgram& program)
{
    const teskara_host all = program.Host();
    teskara_host host = Nothing();
    host.user = &program;
    host.draw_rect = all.draw_rect;
    host.draw_text = all.draw_text;
    host.measure_text = [](void*, uint32_t, const char*) { return int32_t{10}; };
    host.compile_atom = all.compile_atom;
    host.execute_atom = all.execute_atom;
    return host;
}

// An interface out of the memory of the program, and a clock that stands still.
teskara_platform MarkupInMemory()
{
    teskara_platform platform = {};
    platform.size = sizeof(teskara_platform);
    platform.version = TESKARA_TABLE_VERSION;
    platform.tick_count = [](void*) { return uint32_t{5000}; };
    platform.open_file = [](void*, const char* path) {
        FILE* file = std::string(path) == "memory.xml" ? std::tmpfile() : nullptr;
        if (file) {
            std::fputs(Markup, file);
            std::rewind(file);
        }
        return file;
    };
    return platform;
}

void Click(int x, int y)
{
    teskara_mouse_move(x, y);
    EXPECT_TRUE(teskara_left_down());
    EXPECT_TRUE(teskara_left_up());
}

} // namespace

TEST(FlatLifeDeathTest, AnInterfaceRunsFromStartToEnd)
{
    InFreshProcess([] {
        FlatProgram program;
        const teskara_platform platform = MarkupInMemory();
        const teskara_host host = SmallHost(program);
        ASSERT_EQ(TESKARA_OK, teskara_set_platform(&platform));
        ASSERT_EQ(TESKARA_OK, teskara_start(&host));
        ASSERT_TRUE(teskara_load("memory.xml", true, nullptr));
        EXPECT_EQ("compile_atom atom auto(int X, int Y)\n{\npressed\n}\n 36\n", program.TakeCalls());
        teskara_render();
        EXPECT_EQ(
            "draw_rect 10,10,70,30 4279246896\ndraw_text 1 Press 10,14,70,600 4294967295 33\n", program.TakeCalls());
        Click(15, 15);
        EXPECT_EQ(0u, program.TakeCalls().find("execute_atom 21 [15,15] <teskbutton "));
        teskara_stop();
        EXPECT_EQ(0u, teskara_find("Ok"));
    });
}

TEST(FlatLifeDeathTest, MembersCommandsAndObjectsNeedNoOperation)
{
    InFreshProcess([] {
        FlatProgram program;
        teskara_platform platform = MarkupInMemory();
        platform.user = &program;
        platform.write_debug = program.Platform().write_debug;
        const teskara_host host = Nothing();
        teskara_set_platform(&platform);
        ASSERT_EQ(TESKARA_OK, teskara_start(&host));
        ASSERT_TRUE(teskara_load("memory.xml", true, nullptr));
        EXPECT_EQ("write_debug OnLeftClick embedded script failed to load\n\n", program.TakeCalls());

        teskara_value value = {};
        teskara_value width = {};
        char text[32] = "";
        const char* name[] = {"Ok"};
        ASSERT_TRUE(teskara_ask("UIElement", 1, name, &value));
        EXPECT_EQ(TESKARA_DONE, teskara_get(&value, "Width", 0, nullptr, &width));
        EXPECT_STREQ("int", teskara_type_name(width.type));
        EXPECT_EQ(60, width.as.integer32);
        EXPECT_EQ(TESKARA_DONE, teskara_get(&value, "Name", 0, nullptr, &value));
        EXPECT_TRUE(teskara_text(&value, text, sizeof text));
        EXPECT_STREQ("ok", text);
        EXPECT_FALSE(teskara_ask("UIElement", 0, nullptr, nullptr));
        EXPECT_FALSE(teskara_ask("Nothing", 0, nullptr, &value));

        EXPECT_NE(-1, teskara_run("UIElement -hide Ok"));
        teskara_mouse_move(15, 15);
        EXPECT_NE(teskara_find("Ok"), teskara_mouse_over());
        const char* show[] = {"uielement", "-show", "Ok"};
        EXPECT_NE(-1, teskara_run_words(3, show));
        teskara_mouse_move(16, 15);
        EXPECT_EQ(teskara_find("Ok"), teskara_mouse_over());
        EXPECT_EQ(-1, teskara_run("nothing"));
        EXPECT_EQ(-1, teskara_run(nullptr));
        EXPECT_EQ(-1, teskara_run_words(0, show));
        teskara_reset();
        EXPECT_EQ(0u, teskara_find("Ok"));
        teskara_stop();
        EXPECT_EQ(-1, teskara_run("UIElement -hide Ok"));
    });
}

TEST(FlatLifeDeathTest, ATableIsRefusedWithAnAnswer)
{
    InFreshProcess([] {
        EXPECT_EQ(TESKARA_NO_TABLE, teskara_start(nullptr));
        teskara_host host = Nothing();
        host.size = 4;
        EXPECT_EQ(TESKARA_WRONG_SIZE, teskara_start(&host));
        host = Nothing();
        host.version = TESKARA_TABLE_VERSION + 1;
        EXPECT_EQ(TESKARA_WRONG_VERSION, teskara_start(&host));
        teskara_platform platform = MarkupInMemory();
        platform.size = 1;
        EXPECT_EQ(TESKARA_WRONG_SIZE, teskara_set_platform(&platform));
        EXPECT_FALSE(teskara_load("memory.xml", true, nullptr)) << "nothing has begun";

        host = Nothing();
        EXPECT_EQ(TESKARA_OK, teskara_start(&host));
        EXPECT_EQ(TESKARA_RUNNING, teskara_start(&host));
        teskara_stop();
        EXPECT_EQ(TESKARA_STOPPED, teskara_start(&host));
        teskara_stop();
    });
}

TEST(FlatLifeDeathTest, FunctionsDoNothingBeforeTheStart)
{
    InFreshProcess([] {
        teskara_value value = {};
        EXPECT_EQ(18u, teskara_version());
        EXPECT_EQ(TESKARA_OK, teskara_set_platform(nullptr));
        teskara_stop();
        teskara_render();
        teskara_reset();
        teskara_mouse_move(1, 1);
        EXPECT_FALSE(teskara_left_down());
        EXPECT_FALSE(teskara_right_down());
        EXPECT_FALSE(teskara_mouse_wheel(120));
        EXPECT_FALSE(teskara_key_down(65));
        EXPECT_FALSE(teskara_load("memory.xml", true, nullptr));
        EXPECT_FALSE(teskara_load_into(0, "memory.xml", "Ok", nullptr, true, nullptr));
        EXPECT_FALSE(teskara_unload("memory.xml"));
        EXPECT_EQ(0u, teskara_create(0, "frame", "Main"));
        EXPECT_EQ(0u, teskara_find("Ok"));
        EXPECT_EQ(0u, teskara_mouse_over());
        EXPECT_FALSE(teskara_element(1, &value));
        EXPECT_FALSE(teskara_ask("UIElement", 0, nullptr, &value));
        EXPECT_EQ(-1, teskara_run("UI -load memory.xml"));
    });
}

TEST(FlatLifeDeathTest, AProgramMayStopTheToolkitFromItsScripts)
{
    InFreshProcess([] {
        FlatProgram program;
        const teskara_platform platform = MarkupInMemory();
        teskara_host host = SmallHost(program);
        host.execute_atom = [](void*, uint32_t, int, const char* const*, const teskara_value*) {
            teskara_stop();
            return 0;
        };
        teskara_set_platform(&platform);
        ASSERT_EQ(TESKARA_OK, teskara_start(&host));
        ASSERT_TRUE(teskara_load("memory.xml", true, nullptr));
        Click(15, 15);
        program.TakeCalls();
        teskara_render();
        EXPECT_EQ("", program.TakeCalls());
        EXPECT_EQ(TESKARA_STOPPED, teskara_start(&host));
    });
}

TEST(FlatLifeDeathTest, AProgramMayStopTheToolkitWhileItStarts)
{
    InFreshProcess([] {
        teskara_host host = Nothing();
        host.add_command = [](void*, const char*) { teskara_stop(); };
        EXPECT_EQ(TESKARA_STOPPED, teskara_start(&host));
        teskara_render();
    });
}

TEST(FlatLifeDeathTest, AProgramThatEndsWithoutAStopIsNotCalledAnyMore)
{
    InFreshProcess([] {
        static bool hasEnded = false;
        static teskara_host host = Nothing();
        host.invalidate_object = [](void*, uint32_t, void*) {
            if (hasEnded)
                std::abort();
        };
        const teskara_platform platform = MarkupInMemory();
        teskara_set_platform(&platform);
        ASSERT_EQ(TESKARA_OK, teskara_start(&host));
        EXPECT_NE(0u, teskara_create(0, "frame", "Main"));
        hasEnded = true;
    });
}

TEST(FlatLifeDeathTest, TimesOfInputCanBeSet)
{
    InFreshProcess([] {
        teskara_set_double_click_time(400);
        teskara_set_tooltip_delay(500);
        teskara_set_key_repeat(600, 70);
        EXPECT_EQ(400u, g_UIManager.DoubleClickTime);
        EXPECT_EQ(500u, g_UIManager.TooltipDelay);
        EXPECT_EQ(600u, g_UIManager.KeyRepeatDelay);
        EXPECT_EQ(70u, g_UIManager.KeyRepeatRate);
    });
}

namespace {

class FlatBesideAHost : public ToolkitTest
{
};

} // namespace

TEST_F(FlatBesideAHost, ASecondHostIsRefusedAndDoesNotStopTheFirst)
{
    const teskara_host host = Nothing();
    EXPECT_EQ(TESKARA_RUNNING, teskara_start(&host));
    EXPECT_EQ(-1, teskara_run("UI"));
    teskara_stop();
    Load("<frame name='Main'/>");
    EXPECT_NE(0u, teskara_find("Main"));
}
