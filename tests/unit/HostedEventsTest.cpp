// Events whose scripts are Lua: what they are given, and what is told when they fail.

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/FreshProcess.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// A frame "Main" of 100 by 100 pixels with one event.
std::string Main(const std::string& event, const std::string& script)
{
    return "<frame name=\"Main\"><Width>100</Width><Height>100</Height><" + event + ">" + Escaped(script) + "</" + event
        + "></frame>";
}

TEST(HostedEventsDeathTest, ParametersHaveTheTypesThatTheyWereWrittenWith)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Main("OnLeftClick", "Result = math.type(X) .. X + Y"));
        ui.Click(20, 30);
        EXPECT_EQ("integer50", ui.Expand("${Result}"));

        ui.Load(Main("OnMouseWheel", "Result = Offset * 2"));
        g_UIManager.OnMouseWheel(-120);
        EXPECT_EQ("-240", ui.Expand("${Result}"));

        ui.Load(Main("OnKeyDown", "Result = Key .. ' ' .. type(Key)"));
        g_UIManager.SetFocusElement(&ui.Element("Main"));
        g_UIManager.OnKeyDown('A');
        EXPECT_EQ("A string", ui.Expand("${Result}"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedEventsDeathTest, ACommandThatDoesNotExistIsTold)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Main("OnLeftClick", "Result = command('bogus 1 2') + command('Bogus', 1)"));
        ui.Click(20, 30);
        EXPECT_EQ("-2", ui.Expand("${Result}"));
        EXPECT_EQ("test.xml: frame \"Main\" OnLeftClick: There is no command 'bogus'\n"
                  "test.xml: frame \"Main\" OnLeftClick: There is no command 'Bogus'\n",
            ui.Lines());
    });
}

struct ParameterRow {
    const char* Type;
    const char* Text;
    const char* Value;
};

class HostedParametersDeathTest : public testing::TestWithParam<ParameterRow>
{
};

TEST_P(HostedParametersDeathTest, AreReadAsTheirType)
{
    WithInterface([](HostedInterface& ui) {
        const ParameterRow& row = GetParam();
        const std::string source = std::string("atom auto(") + row.Type
            + " A)\n{\nreturn (math.type(A) or type(A)) .. ' ' .. tostring(A)\n}\n";
        const u32 atom = ui.Host().CompileAtom(source.c_str(), static_cast<u32>(source.size()));
        std::string argument = row.Text;
        char* argv[] = {argument.data()};
        char text[256];
        EXPECT_EQ(0, ui.Host().ExecuteAtomForText(atom, 1, argv, nullptr, 0, text, sizeof text));
        EXPECT_STREQ(row.Value, text);
    });
}

INSTANTIATE_TEST_SUITE_P(All, HostedParametersDeathTest,
    testing::Values(ParameterRow{"int", "-12", "integer -12"}, ParameterRow{"int", "+7", "integer 7"},
        ParameterRow{"int", "12abc", "integer 12"}, ParameterRow{"int", "abc", "integer 0"},
        ParameterRow{"int", "99999999999999999999", "integer 0"},
        ParameterRow{"uint", "4000000000", "integer 4000000000"},
        ParameterRow{"int64", "9000000000", "integer 9000000000"}, ParameterRow{"float", "0.25", "float 0.25"},
        ParameterRow{"float", "1e3", "float 1000.0"}, ParameterRow{"bool", "true", "boolean true"},
        ParameterRow{"bool", "FALSE", "boolean false"}, ParameterRow{"bool", "2", "boolean true"},
        ParameterRow{"string", "", "string "}, ParameterRow{"string", "a\tb", "string a\tb"},
        ParameterRow{"", "x", "string x"}, ParameterRow{"point3f", "1,2,3", "string 1,2,3"}));

TEST(HostedEventsDeathTest, ArgumentsThatAreMissingAreNilAndOthersAreDropped)
{
    WithInterface([](HostedInterface& ui) {
        const std::string source = "atom auto(int A, string B)\n{\nreturn tostring(A) .. tostring(B)\n}\n";
        const u32 atom = ui.Host().CompileAtom(source.c_str(), static_cast<u32>(source.size()));
        char one[] = "1";
        char* argv[] = {one, one, one};
        char text[64];
        ui.Host().ExecuteAtomForText(atom, 1, argv, nullptr, 0, text, sizeof text);
        EXPECT_STREQ("1nil", text);
        ui.Host().ExecuteAtomForText(atom, 3, argv, nullptr, 0, text, sizeof text);
        EXPECT_STREQ("11", text);
        ui.Host().ExecuteAtomForText(atom, 3, argv, nullptr, 0, text, 2);
        EXPECT_STREQ("1", text);
        EXPECT_EQ(-1, ui.Host().ExecuteAtomForText(atom + 100, 0, nullptr, nullptr, 0, text, sizeof text));
        EXPECT_STREQ("", text);
    });
}

TEST(HostedEventsDeathTest, NamedAtomsAreFoundUntilTheyAreReleased)
{
    WithInterface([](HostedInterface& ui) {
        const std::string source = "atom Compare(string A, string B)\n{\nreturn A < B\n}\n";
        const u32 atom = ui.Host().CompileAtom(source.c_str(), static_cast<u32>(source.size()));
        EXPECT_NE(0u, atom);
        EXPECT_EQ(atom, ui.Host().FindAtom("Compare"));
        EXPECT_EQ(0u, ui.Host().FindAtom("auto"));
        ui.Host().ReleaseAtom(atom);
        EXPECT_EQ(0u, ui.Host().FindAtom("Compare"));
        EXPECT_EQ(0u, ui.Host().CompileAtom("x = 1", 5));
    });
}

TEST(HostedEventsDeathTest, ThisIsTheElement)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Main("OnLeftClick", "Result = this.FullName .. (this == UIElement('Main') and ' same' or ' other')"));
        ui.Click(5, 5);
        EXPECT_EQ("Main same", ui.Expand("${Result}"));

        const char* source = "atom auto()\n{\nreturn type(this)\n}\n";
        char text[64];
        ui.Host().ExecuteAtomForText(ui.Host().CompileAtom(source, static_cast<u32>(std::string(source).size())), 0,
            nullptr, nullptr, 0, text, sizeof text);
        EXPECT_STREQ("nil", text);
    });
}

TEST(HostedEventsDeathTest, AFailingScriptEndsWithOneLine)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Main("OnLeftClick", "\nlocal nothing\nnothing.x = 1"));
        ui.Click(5, 5);
        EXPECT_EQ(
            "test.xml: frame \"Main\" OnLeftClick: 3: attempt to index a nil value (local 'nothing')\n", ui.Lines());
        ui.Click(5, 5);
        EXPECT_EQ(
            "test.xml: frame \"Main\" OnLeftClick: 3: attempt to index a nil value (local 'nothing')\n", ui.Lines());
    });
}

TEST(HostedEventsDeathTest, AFailingScriptIsNamedAfterTheEventOfItsControl)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load("<slider name=\"Main\"><Width>100</Width><Height>100</Height><Range>9</Range>"
                "<OnChange>local nothing; nothing.x = 1</OnChange></slider>");
        ui.Click(50, 5);
        EXPECT_EQ(
            "test.xml: slider \"Main\" OnChange: 1: attempt to index a nil value (local 'nothing')\n", ui.Lines());
    });
}

TEST(HostedEventsDeathTest, AScriptThatDoesNotCompileEndsWithOneLine)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Main("OnLeftClick", "if then") + "<frame name=\"Other\"><OnMouseEnter>\n\n) x</OnMouseEnter></frame>");
        EXPECT_EQ("test.xml: frame \"Main\" OnLeftClick: 1: unexpected symbol near 'then'\n"
                  "test.xml: frame \"Other\" OnMouseEnter: 3: unexpected symbol near ')'\n",
            ui.Lines());
        ui.Click(5, 5);
        EXPECT_EQ("", ui.Lines());
        EXPECT_NE(nullptr, g_UIManager.FindElement("Main"));
    });
}

TEST(HostedEventsDeathTest, ARunawayScriptEndsWithOneLineAndTheInterfaceGoesOn)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Main("OnLeftClick", "while true do end"));
        ui.Click(5, 5);
        EXPECT_EQ("test.xml: frame \"Main\" OnLeftClick: 1: stopped, since it ran too many instructions\n", ui.Lines());
        ui.Load(Main("OnLeftClick", "local t = {}\nwhile true do\nt[#t + 1] = 'x' .. #t end"));
        ui.Click(5, 5);
        EXPECT_EQ("test.xml: frame \"Main\" OnLeftClick: 3: stopped, since it took too much memory\n", ui.Lines());
        EXPECT_EQ("ok", ui.Run("Result = 'ok'"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedEventsDeathTest, WhatRunsAwayInsideAnotherScriptIsToldOfOnce)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Main("OnLeftClick", "while true do end")
            + "<frame name=\"Outer\"><OnLoad>UIElement('Main'):LeftClick() Result = 'went on' while true do end"
              "</OnLoad></frame>");
        EXPECT_EQ("test.xml: frame \"Main\" OnLeftClick: 1: stopped, since it ran too many instructions\n", ui.Lines());
    });
}

TEST(HostedEventsDeathTest, AFailureInEveryFrameIsToldOfOnce)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Main("OnRender", "local x = nothing.x"));
        for (int frame = 0; frame < 10; ++frame)
            ui.Frame();
        EXPECT_EQ(
            "test.xml: frame \"Main\" OnRender: 1: attempt to index a nil value (global 'nothing')\n", ui.Lines());

        ui.Load(Main("OnRender", "Count = (Count or 0) + 1 if Count % 2 == 0 then error('even', 0) end"));
        for (int frame = 0; frame < 4; ++frame)
            ui.Frame();
        EXPECT_EQ(
            "test.xml: frame \"Main\" OnRender: 1: even\ntest.xml: frame \"Main\" OnRender: 1: even\n", ui.Lines());
    });
}

TEST(HostedEventsDeathTest, AFunctionOfAnotherScriptIsNamedWhenItFails)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load("<frame name=\"Library\"><OnLoad>\nfunction Fail()\nerror('why')\nend</OnLoad></frame>"
            + Main("OnLeftClick", "Fail()"));
        ui.Click(5, 5);
        EXPECT_EQ("test.xml: frame \"Main\" OnLeftClick: in test.xml: frame \"Library\" OnLoad: 3: why\n", ui.Lines());
    });
}

TEST(HostedEventsDeathTest, PrintedLinesSayWhoItWas)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Main("OnLeftClick", "print('a', 1, 2.5, true, nil, this, print ~= nil)"));
        ui.Click(5, 5);
        EXPECT_EQ("test.xml: frame \"Main\" OnLeftClick: a 1 2.5 TRUE nil main TRUE\n", ui.Lines());
    });
}

TEST(HostedEventsDeathTest, PrintedLinesAreCut)
{
    WithInterface([](HostedInterface& ui) {
        ui.Run("print(('x'):rep(100000), 'more')");
        EXPECT_EQ("test.xml: frame \"Tester\" OnLoad: " + std::string(4096, 'x') + '\n', ui.Lines());
    });
}

TEST(HostedEventsDeathTest, LinesOfTheToolkitSayWhoItWas)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Main("OnLeftClick", "command('ui -load nosuch.xml')"));
        ui.Click(5, 5);
        const std::string lines = ui.Lines();
        EXPECT_NE(std::string::npos,
            lines.find("test.xml: frame \"Main\" OnLeftClick: Could not load interface file 'nosuch.xml'\n"))
            << lines;

        EXPECT_EQ(-1, ui.Host().ExecuteCommand("ui -load nosuch.xml"));
        EXPECT_NE(std::string::npos,
            ui.Lines().find("command ui -load nosuch.xml: Could not load interface file 'nosuch.xml'\n"));

        const std::string broken = ui.Write("broken.xml", "<Tesk><frame name=\"F\"></Tesk>");
        ui.Host().ExecuteCommand(("ui -load " + broken).c_str());
        EXPECT_EQ(0u, ui.Lines().find("broken.xml: "));
    });
}

TEST(HostedEventsDeathTest, AScriptMayDeleteItsElement)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Main("OnLeftClick",
            "this:Destroy() print('still here') local ok, why = pcall(function() "
            "return this.Width end) Result = why"));
        ui.Click(5, 5);
        EXPECT_EQ("test.xml: frame \"Main\" OnLeftClick: still here\n", ui.Lines());
        EXPECT_NE(std::string::npos, ui.Expand("${Result}").find("the element is gone"));
        EXPECT_EQ(nullptr, g_UIManager.FindElement("Main"));
    });
}

TEST(HostedEventsDeathTest, EventsThatCauseEventsEndSomewhere)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Main("OnLeftClick", "Depth = (Depth or 0) + 1 this:LeftMouseUp()"));
        ui.Click(5, 5);
        const int depth = std::stoi(ui.Expand("${Depth}"));
        EXPECT_GE(depth, 20);
        EXPECT_LE(depth, 200);
        ui.Load(Main("OnLeftClick", "coroutine.wrap(function() this:LeftMouseUp() end)()"));
        ui.Click(5, 5);
        ui.Lines();
        ui.Load(Main("OnLeftClick", "expand('${UIElement[Main]:LeftMouseUp}')"));
        ui.Click(5, 5);
        EXPECT_EQ("ok", ui.Run("Result = 'ok'"));
    });
}

TEST(HostedEventsDeathTest, AScriptMayResetTheInterface)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Main("OnLeftClick", "command('ui -reset') Result = 'went on'"));
        ui.Click(5, 5);
        EXPECT_EQ("went on", ui.Expand("${Result}"));
        EXPECT_EQ(nullptr, g_UIManager.FindElement("Main"));
    });
}

TEST(HostedEventsDeathTest, TheEndOfTheToolkitInsideAScriptHurtsNobody)
{
    WithInterface([](HostedInterface& ui) {
        ui.Scripts().Commands.Add("end", [](int, char**) {
            g_UIManager.Shutdown();
            return 0;
        });
        ui.Load(Main("OnLeftClick", "command('end') Result = expand('${this.Width}') .. tostring(this)"));
        ui.Click(5, 5);
        EXPECT_EQ("NULLgone", ui.Expand("${Result}"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedEventsDeathTest, ScriptsThatSayGoodbyeHaveEverything)
{
    testing::internal::CaptureStderr();
    InFreshProcess([] {
        const host::Picture picture(64, 64);
        host::InterfaceSession session(picture.Target(), {});
        const TeskElement* element = g_UIManager.LoadElement(g_UIManager.Screen, "frame", "Main");
        session.Host().Scripts().Commands.Add("see", [element](int, char**) {
            EXPECT_EQ(element, g_UIManager.FindElement("Main"));
            return 0;
        });
        session.Host().Scripts().Tasks.Start("bye.lua",
            "UIElement('Main').AddChild('frame', 'Child', '<frame><OnUnload>command(\"see\") "
            "print(UIElement(\"Child@Main\").Parent.Name)</OnUnload></frame>')");
    });
    const std::string lines = testing::internal::GetCapturedStderr();
    EXPECT_NE(std::string::npos, lines.find("OnUnload: main\n")) << lines;
}

TEST(HostedEventsDeathTest, TrustedScriptsReachFiles)
{
    constexpr const char* script = "return io.open(Path):read('a')";
    const auto run = [&](HostedInterface& ui) {
        ui.Run("Path = '" + ui.Write("file.txt", "inside") + "'");
        ui.Run("Result = (function() " + std::string(script) + " end)()");
        return ui.Expand("${Result}");
    };
    WithInterface([&](HostedInterface& ui) { EXPECT_EQ("inside", run(ui)); }, host::ScriptTrust::Full);
    WithInterface([&](HostedInterface& ui) {
        EXPECT_EQ("NULL", run(ui));
        EXPECT_EQ("test.xml: frame \"Tester\" OnLoad: 1: attempt to index a nil value (global 'io')\n", ui.Lines());
    });
}

} // namespace
