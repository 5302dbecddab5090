#include "teskara/core/CUIManager.h"
#include "teskara/flat/FlatTable.h"
#include "tests/unit/FlatProgram.h"
#include "tests/unit/FreshProcess.h"
#include "tests/unit/ToolkitTest.h"

#include <cstdio>
#include <initializer_list>
#include <set>
#include <sstream>
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

constexpr char Everything[] = R"(<Tesk>
    <frame name="Main">
        <X>10</X><Y>10</Y><Width>300</Width><Height>150</Height>
        <OnLoad>loaded</OnLoad><OnKeyDown>key</OnKeyDown>
        <Children>
            <frame name="Picture">
                <X>0</X><Y>0</Y><Width>30</Width><Height>30</Height><Texture Filename="it.png"/>
            </frame>
            <hudelement name="Words">
                <X>40</X><Y>0</Y><Width>90</Width><Height>30</Height><Text>${It}</Text>
            </hudelement>
            <commandcheckbox name="Check">
                <X>0</X><Y>40</Y><Width>50</Width><Height>10</Height><Data>${It}</Data>
            </commandcheckbox>
            <commandbutton name="Run">
                <X>60</X><Y>40</Y><Width>50</Width><Height>10</Height><Command>it</Command>
            </commandbutton>
            <commandentry name="Line">
                <X>0</X><Y>60</Y><Width>90</Width><Height>20</Height><Console>Log</Console><Font><Name>Sans</Name></Font>
            </commandentry>
        </Children>
    </frame>
    <window name="Kept">
        <X>200</X><Y>20</Y><Width>60</Width><Height>40</Height><StorePosition/>
        <OnUnload>gone</OnUnload>
    </window>
</Tesk>)";

void Press(std::initializer_list<uint32_t> keys)
{
    for (const uint32_t key : keys)
        teskara_key_down(key);
    for (const uint32_t key : keys)
        teskara_key_up(key);
}

void CopyTexture(const char* element, const char* reference)
{
    teskara_value value = {};
    ASSERT_TRUE(teskara_element(teskara_find(element), &value));
    ASSERT_EQ(TESKARA_DONE, teskara_get(&value, "Texture", 0, nullptr, &value));
    EXPECT_EQ(TESKARA_NO_VALUE, teskara_call(&value, "Copy", 1, &reference));
}

void UseEverything()
{
    constexpr uint32_t Tab = 9;
    constexpr uint32_t Enter = 13;
    constexpr uint32_t Control = 17;
    ASSERT_TRUE(teskara_load("it.xml", true, nullptr));
    teskara_render();
    Click(75, 55);
    teskara_focus(teskara_find("Line@Main"));
    Press({'A'});
    Press({Tab});
    Press({Enter});
    Press({Control, 'V'});
    teskara_focus(teskara_find("Main"));
    Press({'A'});
    CopyTexture("Picture@Main", "UIElement[Main].Texture");
    teskara_run("MessageBox Are you there");
    teskara_render();
    teskara_reset();
}

// What it asks for at least.
constexpr const char* Used[] = {"add_command", "add_object", "add_type", "ansi_to_wide", "calculate", "clipboard_text",
    "close_clipboard", "compile_atom", "complete_command", "create_font", "current_script", "display_size", "draw_rect",
    "draw_text", "draw_texture", "execute_atom", "execute_command", "file_exists", "find_resource", "find_type",
    "invalidate", "is_key_toggled", "key_name", "load_place", "load_texture", "locate_file", "measure_text",
    "open_clipboard", "output_console", "parse_data", "parse_value", "prepare_sequence", "print_line", "register",
    "release_atom", "release_font", "release_sequence", "release_texture", "remove_command", "remove_object",
    "remove_type", "save_place", "select_console", "sequence_text", "set_type_class", "tick_count", "to_ascii"};

std::set<std::string> OperationsOf(const std::string& calls)
{
    std::set<std::string> operations;
    std::istringstream lines(calls);
    for (std::string line; std::getline(lines, line);)
        operations.insert(line.substr(0, line.find(' ')));
    return operations;
}

} // namespace

TEST(FlatLifeDeathTest, AProgramWithEachOperationServesAnInterface)
{
    InFreshProcess([] {
        FlatProgram program;
        teskara_platform platform = program.Platform();
        platform.open_file = [](void*, const char*) {
            FILE* file = std::tmpfile();
            std::fputs(Everything, file);
            std::rewind(file);
            return file;
        };
        program.Script = teskara_new_script("asking", nullptr, nullptr);
        const teskara_host host = program.Host();
        ASSERT_EQ(TESKARA_OK, teskara_set_platform(&platform));
        ASSERT_EQ(TESKARA_OK, teskara_start(&host));
        UseEverything();
        teskara_stop();
        teskara_free_script(program.Script);
        const std::set<std::string> operations = OperationsOf(program.TakeCalls());
        for (const char* operation : Used)
            EXPECT_EQ(1u, operations.count(operation)) << operation;
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
