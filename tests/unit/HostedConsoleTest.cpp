#include "host/ConsoleWindow.h"
#include "host/OverlayConsole.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/element/TeskConsoleSelector.h"
#include "teskara/text/TeskCommandEntry.h"
#include "teskara/text/TeskConsole.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

// What stands in the consoles of the interface.

namespace {

constexpr char Main[] =
    "<frame name='Console'><Width>800</Width><Height>400</Height><Children><console name='output'><Width>800</Width>"
    "<Height>400</Height><ScrollBar><Width>16</Width></ScrollBar></console></Children></frame>";

std::string LinesOf(HostedInterface& interface, const char* name)
{
    std::string text;
    const LineRing& lines = dynamic_cast<TeskConsole&>(interface.Element(name)).Lines;
    lines.VisitRows(lines.Newest(), lines.Size(), [&](i64, const char* line) { text += std::string(line) + '\n'; });
    return text;
}

std::string MainLines(HostedInterface& interface)
{
    return LinesOf(interface, host::OverlayConsole::MainName);
}

std::string Completed(HostedInterface& interface, const char* line)
{
    const char* completed = interface.Host().CompleteCommandLine(line, false);
    return completed ? completed : "(none)";
}

} // namespace

TEST(HostedConsoleDeathTest, LinesStandThereAndOnTheStandardErrorStream)
{
    WithInterface([](HostedInterface& interface) {
        interface.Load(Main);
        interface.Host().PrintLine("%d lines", 2);
        EXPECT_EQ("2 lines\n", interface.Lines());
        EXPECT_EQ("2 lines\n", MainLines(interface));
    });
}

TEST(HostedConsoleDeathTest, WarningsAndErrorsHaveTheirColor)
{
    WithInterface([](HostedInterface& interface) {
        interface.Load(Main);
        interface.Host().PrintLine("WARNING: careful");
        interface.Host().ExecuteCommand("nonsense");
        EXPECT_EQ("WARNING: careful\ncommand nonsense: There is no command 'nonsense'\n", interface.Lines());
        EXPECT_EQ("\ayWARNING: careful\n\arcommand nonsense: There is no command 'nonsense'\n", MainLines(interface));
    });
}

TEST(HostedConsoleDeathTest, AFailedExpressionHasTheColorOfErrors)
{
    WithInterface([](HostedInterface& interface) {
        interface.Load(Main);
        interface.Expand("${= nothing + 1}");
        EXPECT_EQ(0u, MainLines(interface).find("\ar${= nothing + 1}: ")) << MainLines(interface);
    });
}

TEST(HostedConsoleDeathTest, EachLineThatAnErrorIsBrokenIntoHasTheColor)
{
    WithInterface([](HostedInterface& interface) {
        interface.Load(Main);
        const std::string word(200, 'x');
        interface.Host().ExecuteCommand(word.c_str());
        std::string lines = MainLines(interface);
        lines.pop_back();
        for (std::size_t end = lines.find('\n'); end != lines.npos; end = lines.find('\n', end + 1))
            EXPECT_EQ("\ar", lines.substr(end + 1, 2)) << lines;
        EXPECT_NE(lines.npos, lines.find('\n'));
    });
}

TEST(HostedConsoleDeathTest, ColorsAreForTheInterfaceAndControlCharactersForNobody)
{
    WithInterface([](HostedInterface& interface) {
        interface.Load(Main);
        interface.Run("print('a\\agb\\axc \\27[1m')");
        EXPECT_NE(std::string::npos, MainLines(interface).find("a\agb\axc ?[1m\n")) << MainLines(interface);
        EXPECT_NE(std::string::npos, interface.Lines().find("abc ?[1m\n"));
    });
}

TEST(HostedConsoleDeathTest, EarlierLinesStandInAConsoleThatIsOpenedLaterOrAgain)
{
    WithInterface([](HostedInterface& interface) {
        interface.Host().PrintLine("early");
        interface.Load(Main);
        interface.Frame();
        EXPECT_EQ("early\n", MainLines(interface));
        interface.Host().PrintLine("later");
        g_UIManager.Reset();
        interface.Host().PrintLine("between");
        interface.Load(Main);
        interface.Host().PrintLine("again");
        EXPECT_EQ("early\nlater\nbetween\nagain\n", MainLines(interface));
        for (int line = 0; line < 600; ++line)
            interface.Host().PrintLine("%d", line);
        g_UIManager.Reset();
        interface.Load(Main);
        interface.Frame();
        EXPECT_EQ(0u, MainLines(interface).find("500\n")); // of the 500 lines a console keeps a hundred
        interface.Lines();
    });
}

TEST(HostedConsoleDeathTest, OutputGoesToTheConsoleThatIsSelected)
{
    WithInterface([](HostedInterface& interface) {
        interface.Load(std::string(Main)
            + "<console name='Other'><Width>400</Width><ScrollBar><Width>16</Width></ScrollBar></console>");
        {
            const TeskConsoleSelector selector("Other");
            interface.Host().PrintLine("there");
        }
        {
            const TeskConsoleSelector selector("Nowhere");
            interface.Host().PrintLine("here");
        }
        interface.Host().PrintLine("and here");
        EXPECT_EQ("there\n", LinesOf(interface, "Other"));
        EXPECT_EQ("here\nand here\n", MainLines(interface));
        EXPECT_EQ("there\nhere\nand here\n", interface.Lines());
    });
}

TEST(HostedConsoleDeathTest, EchoWritesItsWordsAndHelpTheCommands)
{
    WithInterface([](HostedInterface& interface) {
        interface.Run("Volume = 7");
        interface.Host().ExecuteCommand("echo it is ${Volume}  \"${Volume} as such\"");
        EXPECT_EQ("it is 7 ${Volume} as such\n", interface.Lines());
        interface.Host().ExecuteCommand("help");
        EXPECT_EQ("Commands: echo help inputbox messagebox run ui uielement\n", interface.Lines());
    });
}

TEST(HostedConsoleDeathTest, CommandLinesAreCompletedWithWhatThereIs)
{
    WithInterface([](HostedInterface& interface) {
        interface.Load("<text name='Words'><Text>x</Text></text>");
        interface.Run("Volume = 7");
        EXPECT_EQ("messagebox", Completed(interface, "mess"));
        EXPECT_EQ("echo ${Volume", Completed(interface, "echo ${vol"));
        EXPECT_EQ("echo ${UserInput", Completed(interface, "echo ${us"));
        EXPECT_EQ("echo ${Display", Completed(interface, "echo ${disp"));
        EXPECT_EQ("echo ${UIElement[Words].NumLines", Completed(interface, "echo ${UIElement[Words].numl"));
        EXPECT_EQ("echo ${UIElement[Words].Visible", Completed(interface, "echo ${UIElement[Words].vis"));
        EXPECT_EQ("echo ${UIElement[Words]:SetWrap", Completed(interface, "echo ${UIElement[Words]:setwr"));
        EXPECT_EQ("echo ${Teskara.APIVersion", Completed(interface, "echo ${Teskara.api"));
        EXPECT_EQ("(none)", Completed(interface, "echo ${UIElement[Nobody].w"));
        EXPECT_EQ("(none)", Completed(interface, "echo ${print"));
        EXPECT_EQ("", interface.Lines());
    });
}

TEST(HostedConsoleDeathTest, KeysOpenAndCloseItsWindow)
{
    WithInterface([](HostedInterface& interface) {
        interface.Load(Main);
        interface.Load(
            "<frame name='F'><Children><textentry name='Field'><MaxLength>9</MaxLength></textentry></Children>"
            "</frame>");
        host::ConsoleWindow window(interface.Session());
        const TeskElement& console = interface.Element("Console");
        EXPECT_TRUE(window.HandleKey(112));
        EXPECT_FALSE(console.Visible);
        EXPECT_TRUE(window.HandleKey(192));
        EXPECT_TRUE(console.Visible);
        EXPECT_FALSE(window.HandleKey(113));
        g_UIManager.ShiftDown = true;
        EXPECT_FALSE(window.HandleKey(192));
        g_UIManager.ShiftDown = false;
        g_UIManager.SetFocusElement(&interface.Element("Field@F"));
        EXPECT_FALSE(window.HandleKey(192)); // it is typed there
        EXPECT_TRUE(window.HandleKey(112));
        EXPECT_FALSE(console.Visible);
        interface.Host().ExecuteCommand("console");
        EXPECT_TRUE(console.Visible);
    });
}

TEST(HostedConsoleDeathTest, TheConsoleOfTheHostRunsWhatIsTypedAndKeepsIt)
{
    WithInterface([](HostedInterface& interface) {
        ASSERT_TRUE(interface.Session().Open({}, ""));
        const std::string file = interface.Write("commands.txt", "earlier\n");
        interface.Host().KeepCommands(file);
        host::ConsoleWindow window(interface.Session());
        window.Toggle();
        interface.Frame();
        auto& entry = dynamic_cast<TeskCommandEntry&>(interface.Element("input@Console"));
        EXPECT_EQ(&entry, g_UIManager.GetFocusElement());
        const std::string greeting = MainLines(interface);
        g_UIManager.OnKeyDown(38); // up
        EXPECT_STREQ("earlier", entry.Text.From(0));
        entry.SetText("echo 1 2");
        g_UIManager.OnKeyDown(13);
        entry.SetText("nonsense");
        g_UIManager.OnKeyDown(13);
        EXPECT_STREQ("", entry.Text.From(0));
        EXPECT_EQ(
            greeting + "\at> echo 1 2\n1 2\n\at> nonsense\n\arThere is no command 'nonsense'\n", MainLines(interface));
        EXPECT_EQ("1 2\nThere is no command 'nonsense'\n", interface.Lines());
        EXPECT_EQ((std::deque<std::string>{"earlier", "echo 1 2", "nonsense"}), host::CommandHistory(file).Lines());
    });
}
