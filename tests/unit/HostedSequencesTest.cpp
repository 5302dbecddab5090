// Data sequences, typed values, queries and commands of the host with Lua.

#include "host/probe/HostTypes.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "tests/unit/Allocations.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr const char* Panel = "<frame name=\"Panel\"><Width>300</Width><Alpha>0.5</Alpha><Children>"
                              "<frame name=\"Inner\"><Width>7</Width></frame></Children></frame>";

TEST(HostedSequencesDeathTest, ShowVariablesObjectsAndExpressions)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Panel);
        ui.Run("Number = 5 Float = 0.25 Whole = 50.0 Text = 'a b' Yes = true No = false "
               "Nested = {Deep = {Value = 'x'}} function Twice(text) return text .. text end");
        constexpr struct {
            const char* Text;
            const char* Shown;
        } rows[] = {
            {"plain", "plain"},
            {"", ""},
            {"${Number}", "5"},
            {"${Float}", "0.25"},
            {"${Whole}", "50"},
            {"<${Text}>", "<a b>"},
            {"${Yes} ${No}", "TRUE FALSE"},
            {"${Nested.Deep.Value}", "x"},
            {"${Nested.Deep}", "NULL"},
            {"${Nested.None.Value}", "NULL"},
            {"${nosuch}", "NULL"},
            {"${}", "NULL"},
            {"${Number.x}", "NULL"},
            {"${Twice}", "NULL"},
            {"${Twice[ab]}", "abab"},
            {"${Number[ab]}", "NULL"},
            {"${UIElement[Panel].Width}", "300"},
            {"${UIElement[Panel].Alpha}", "0.50"},
            {"${UIElement[Panel]}", "panel"},
            {"${UIElement[Inner@Panel].Parent.Width}", "300"},
            {"${UIElement[Panel].FindChild[Inner].Width}", "7"},
            {"${UIElement[Panel].FindChild}", "NULL"},
            {"${UIElement[Panel].Foo}", "NULL"},
            {"${UIElement[nosuch].Width}", "NULL"},
            {"${UIElement}", "NULL"},
            {"${UIElement[Panel].Width.x}", "NULL"},
            {"${UIElement[Panel]:SetMetadata[\"k\",\"a,b]\"]}", "panel"},
            {"${UIElement[Panel].GetMetadata[k]}", "a,b]"},
            {"${UIElement[${= 'Pan' .. 'el'}].Width}", "300"},
            {"${UIElement[${Twice[x]}].Width}", "NULL"},
            {"${Teskara.Version}", "0.73"},
            {"${Display.Width}x${Display.Height}", "640x480"},
            {"${= Number * 2 + Float}", "10.25"},
            {"${= UIElement('Panel').Width // 7}", "42"},
            {"${= {1, 2, 3}[2] }", "NULL"},
            {"${= ({1, 2, 3})[2] }", "2"},
            {"${= nil}", "NULL"},
            {"${= 'a' .. \"}\" }", "a}"},
            {"${= 10 / 2}", "5"},
            {"${= 1 / 0}", "inf"},
            {"100% ${Number}% %s", "100% 5% %s"},
        };
        ui.Lines();
        for (const auto& row : rows)
            EXPECT_EQ(row.Shown, ui.Expand(row.Text)) << row.Text;
        EXPECT_EQ("${= {1, 2, 3}[2] }: <eof> expected near '['\n", ui.Lines());
    });
}

TEST(HostedSequencesDeathTest, SetVariables)
{
    WithInterface([](HostedInterface& ui) {
        constexpr struct {
            const char* Text;
            const char* Type;
            const char* Shown;
        } rows[] = {
            {"0.5", "float", "0.5"},
            {"5", "integer", "5"},
            {"-5", "integer", "-5"},
            {"007", "string", "007"},
            {"1.50", "string", "1.50"},
            {"1.500000", "float", "1.5"},
            {"3.000000", "integer", "3"},
            {"-0.250000", "float", "-0.25"},
            {"1.2.345678", "string", "1.2.345678"},
            {".500000", "string", ".500000"},
            {"1.500000x", "string", "1.500000x"},
            {"1e3", "string", "1e3"},
            {"TRUE", "boolean", "TRUE"},
            {"true", "string", "true"},
            {"FALSE", "boolean", "FALSE"},
            {"a b", "string", "a b"},
            {"", "string", ""},
            {"99999999999999999999", "string", "99999999999999999999"},
        };
        for (const auto& row : rows) {
            EXPECT_EQ(row.Shown, ui.Expand(std::string("${Volume:Set[") + row.Text + "]}")) << row.Text;
            EXPECT_EQ(row.Shown, ui.Expand("${Volume}")) << row.Text;
            EXPECT_EQ(row.Type, ui.Run("Result = math.type(Volume) or type(Volume)")) << row.Text;
        }
        EXPECT_EQ("7 14", ui.Expand("${A:Set[7]} ${B:Set[${= A * 2}]}"));
        EXPECT_EQ("NULL", ui.Expand("${A:Get[7]}"));
        EXPECT_EQ("NULL", ui.Expand("${A:Set}"));
        EXPECT_EQ("", ui.Lines());
        EXPECT_EQ("NULL", ui.Expand("${print:Set[7]}"));
        EXPECT_EQ("${print:Set[7]}: 'print' belongs to the host and cannot be assigned\n", ui.Lines());
    });
}

TEST(HostedSequencesDeathTest, TextsOfOneUseAreSoonForgottenAndPlainOnesNotRemembered)
{
    WithInterface([](HostedInterface& ui) {
        ui.Run("Volume = 0");
        const host::DataSequences& sequences = ui.Scripts().Sequences;
        const std::size_t atFirst = sequences.RecentCount();
        for (int value = 0; value < 100; ++value)
            ui.Host().ExecuteCommand(("echo plain" + std::to_string(value)).c_str());
        EXPECT_EQ(atFirst, sequences.RecentCount());

        for (int value = 0; value < 3000; ++value) {
            ui.Expand("${Volume:Set[" + std::to_string(value) + "]}");
            ASSERT_LE(sequences.RecentCount(), 2 * host::DataSequences::MostRecent);
        }
        EXPECT_EQ("2999", ui.Expand("${Volume}"));
    });
}

TEST(HostedSequencesDeathTest, SetAFieldOfATable)
{
    WithInterface([](HostedInterface& ui) {
        ui.Run("Mix = {Low = {Level = 1}}");
        EXPECT_EQ("0.5", ui.Expand("${Mix.Low.Level:Set[0.500000]}"));
        EXPECT_EQ("0.5", ui.Run("Result = Mix.Low.Level"));
        EXPECT_EQ("a b", ui.Expand("${Mix.Name:Set[a b]}"));
        EXPECT_EQ("a b", ui.Run("Result = Mix.Name"));

        EXPECT_EQ("NULL", ui.Expand("${Mix.Low.Level:Set}"));
        EXPECT_EQ("NULL", ui.Expand("${Mix.High.Level:Set[1]}"));
        EXPECT_EQ("NULL", ui.Expand("${Mix.Name.Level:Set[1]}"));
        EXPECT_EQ("NULL", ui.Expand("${Mix:Name:Set[1]}"));
        EXPECT_EQ("", ui.Lines());
        EXPECT_EQ("NULL", ui.Expand("${math.pi:Set[3]}"));
        EXPECT_EQ("FALSE", ui.Run("Result = math.pi == 3"));
    });
}

TEST(HostedSequencesDeathTest, TellOfAFailureOnce)
{
    WithInterface([](HostedInterface& ui) {
        for (int time = 0; time < 3; ++time)
            EXPECT_EQ("NULL", ui.Expand("${= nothing.x}"));
        EXPECT_EQ("${= nothing.x}: attempt to index a nil value (global 'nothing')\n", ui.Lines());
        EXPECT_EQ("NULL NULL", ui.Expand("${= (function() while true do end end)()} ${= 1 +}"));
        const std::string lines = ui.Lines();
        EXPECT_NE(std::string::npos, lines.find("${= 1 +}: unexpected symbol near <eof>\n")) << lines;
        EXPECT_NE(std::string::npos, lines.find("stopped, since it ran too many instructions\n")) << lines;
        EXPECT_EQ("3", ui.Expand("${= 1 + 2}"));
    });
}

TEST(HostedSequencesDeathTest, MayFreeOrDeleteWhatTheyShow)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Panel);
        ui.Run("function Kill() UIElement('Panel'):Destroy() return 'Width' end");
        EXPECT_EQ("NULL", ui.Expand("${UIElement[Panel].FindChild[${= Kill() }]}"));
        EXPECT_EQ("NULL", ui.Expand("${UIElement[Panel].Width}"));

        ui.Load(Panel);
        EXPECT_EQ("NULL", ui.Expand("${UIElement[Panel]:Destroy}"));
        EXPECT_EQ(nullptr, g_UIManager.FindElement("Panel"));
    });
}

TEST(HostedSequencesDeathTest, DoNotEvaluateEachOtherWithoutEnd)
{
    WithInterface([](HostedInterface& ui) {
        ui.Run("function Again() return expand('${= Again() }') end");
        EXPECT_EQ("NULL", ui.Expand("${= Again() }"));
        ui.Lines();
        EXPECT_EQ("ok", ui.Run("Result = 'ok'"));
    });
}

TEST(HostedSequencesDeathTest, ManyTextsAreNotAllKept)
{
    WithInterface([](HostedInterface& ui) {
        ui.Run("Value = 1");
        const std::string tail(1000, 'x');
        for (int text = 0; text < 2000; ++text)
            EXPECT_EQ(std::to_string(text) + " 1" + tail, ui.Expand(std::to_string(text) + " ${Value}" + tail));
        const std::string longText(3000, 'y');
        EXPECT_EQ(longText + "1", ui.Expand(longText + "${Value}"));
        _MvTypeVar value;
        EXPECT_TRUE(ui.Scripts().ParseTypedValue("Time", value, 0));
        const std::string first = value.Value.Text;
        const char* kept = value.Value.Text;
        for (int text = 0; text < 15; ++text)
            EXPECT_TRUE(ui.Scripts().MakeTempBuffer(1024 * 1024, "other"));
        EXPECT_EQ(first, kept) << "the last few are there whatever their size";
    });
}

TEST(HostedSequencesDeathTest, AreKeptByTheirId)
{
    WithInterface([](HostedInterface& ui) {
        host::ReferenceHost& host = ui.Host();
        ui.Expand("${Volume:Set[0.5]}");
        const u32 id = host.PreParseSequence("Volume ${Volume}", 1);
        char text[64];
        EXPECT_TRUE(host.RetrieveOriginalText(id, text, sizeof text));
        EXPECT_STREQ("Volume ${Volume}", text);
        EXPECT_TRUE(host.RetrieveProcessedText(id, text, sizeof text));
        EXPECT_STREQ("Volume 0.5", text);
        EXPECT_TRUE(host.RetrieveProcessedText(id, text, 9));
        EXPECT_STREQ("Volume 0", text);
        host.FreeSequence(id);
        EXPECT_FALSE(host.RetrieveOriginalText(id, text, sizeof text));
        EXPECT_FALSE(host.RetrieveProcessedText(id, text, sizeof text));
        host.FreeSequence(0);

        char shared[64] = "a ${Volume} b";
        host.DataParse(shared, shared, sizeof shared);
        EXPECT_STREQ("a 0.5 b", shared);
        char cut[] = "\xc3\xa9\xc3\xa9 ${Volume}";
        host.DataParse(cut, cut, 4);
        EXPECT_STREQ("\xc3\xa9", cut);
    });
}

std::string ResultOf(HostedInterface& ui, const char* text)
{
    const u32 id = ui.Host().PreParseSequence(text, 1);
    _MvTypeVar value;
    const bool has = ui.Host().RetrieveProcessedResult(id, value);
    ui.Host().FreeSequence(id);
    if (!has)
        return "none";
    std::string shown = std::string(value.Type->GetName()) + ' ';
    const HostValueType* own = ui.Scripts().Types.AsOwn(value.Type);
    return shown + (own ? own->TextOf(value.Value) : "object");
}

TEST(HostedSequencesDeathTest, HaveTypedValues)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Panel);
        ui.Run("I = 5 F = 0.5 B = true T = 'text' Big = 1 << 40 P = UIElement('Panel')");
        EXPECT_EQ("int 5", ResultOf(ui, "${I}"));
        EXPECT_EQ("float 0.50", ResultOf(ui, "${F}"));
        EXPECT_EQ("bool TRUE", ResultOf(ui, "${B}"));
        EXPECT_EQ("string text", ResultOf(ui, "${T}"));
        EXPECT_EQ("int64 1099511627776", ResultOf(ui, "${Big}"));
        EXPECT_EQ("teskframe object", ResultOf(ui, "${P}"));
        EXPECT_EQ("int 300", ResultOf(ui, "${P.Width}"));
        EXPECT_EQ("int 300", ResultOf(ui, "${UIElement[Panel].Width}"));
        EXPECT_EQ("float 2.50", ResultOf(ui, "${= F * 5}"));
        EXPECT_EQ("string 5 0.5", ResultOf(ui, "${I} ${F}"));
        EXPECT_EQ("string plain", ResultOf(ui, "plain"));
        EXPECT_EQ("none", ResultOf(ui, "${nosuch}"));
        EXPECT_EQ("none", ResultOf(ui, "${= {}}"));
    });
}

TEST(HostedSequencesDeathTest, ReferencesInTextsAreParsed)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Panel);
        _MvTypeVar value;
        EXPECT_TRUE(ui.Scripts().ParseTypedValue("UIElement[Panel]", value, 0));
        EXPECT_EQ(&ui.Element("Panel"), value.Value.Object);
        EXPECT_TRUE(ui.Scripts().ParseTypedValue("UIElement[Panel].Name", value, 0));
        EXPECT_STREQ("panel", value.Value.Text);
        EXPECT_FALSE(ui.Scripts().ParseTypedValue("UIElement[nosuch]", value, 0));
        EXPECT_FALSE(ui.Scripts().ParseTypedValue("", value, 0));
        EXPECT_FALSE(ui.Scripts().ParseTypedValue("a} ${b", value, 0));
        EXPECT_FALSE(ui.Scripts().ParseTypedValue("= 1", value, 0));
        EXPECT_EQ("tester", ui.Run("Result = expand('${this}')"));
    });
}

TEST(HostedSequencesDeathTest, ExpressionsAreCalculated)
{
    WithInterface([](HostedInterface& ui) {
        ui.Run("Volume = 0.5 Flag = true Text = 'x'");
        constexpr struct {
            const char* Text;
            double Value;
        } rows[] = {
            {"5", 5},
            {"-0.5", -0.5},
            {"1e3", 1000},
            {"1 + 2 * 3", 7},
            {"(1 + 2) * 3", 9},
            {"2 ^ 10", 1024},
            {"7 // 2", 3},
            {"7 % 4", 3},
            {"0x10", 16},
            {"Volume * 4", 2},
            {"${Volume} * 4", 2},
            {"math.max(1, 9)", 9},
            {"TRUE", 1},
            {"false", 0},
            {"Flag", 1},
            {"1 < 2", 1},
            {"1 << 40", 1099511627776.0},
        };
        for (const auto& row : rows) {
            double value = -1;
            EXPECT_TRUE(ui.Host().Calculate(row.Text, value)) << row.Text;
            EXPECT_EQ(row.Value, value) << row.Text;
        }
        double value = 0;
        for (const char* text : {"", "abc", "Text", "1 +", "1; 2", "}", "1} ${= 2", "nil", "{}", "error('x')"})
            EXPECT_FALSE(ui.Host().Calculate(text, value)) << text;
    });
}

TEST(HostedSequencesDeathTest, QueriesAskObjects)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Panel);
        _MvTypeVar panel;
        panel.Value.Object = &ui.Element("Panel");
        panel.Type = ui.Element("Panel").GetMvType();
        const auto holds = [&](const char* text) {
            const u32 query = ui.Scripts().CreateQuery(panel.Type, text, 0);
            bool result = false;
            const bool has = query && ui.Scripts().EvaluateQuery(query, panel, result);
            ui.Scripts().FreeQuery(query);
            return !query ? "no query" : !has ? "failed" : result ? "holds" : "no";
        };
        EXPECT_STREQ("holds", holds("this.Width == 300"));
        EXPECT_STREQ("holds", holds("this.Width"));
        EXPECT_STREQ("no", holds("this.Width > 300"));
        EXPECT_STREQ("no", holds("0"));
        EXPECT_STREQ("no", holds("nil"));
        EXPECT_EQ("", ui.Lines());
        EXPECT_STREQ("failed", holds("this.Foo"));
        EXPECT_STREQ("no query", holds("1 +"));
        EXPECT_EQ(
            "query: a teskframe has no member or method 'Foo'\nquery: unexpected symbol near <eof>\n", ui.Lines());
        bool result = false;
        EXPECT_FALSE(ui.Scripts().EvaluateQuery(1000, panel, result));
    });
}

TEST(HostedSequencesDeathTest, CommandsAreRunByNameWithTheirWordsEvaluated)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Panel);
        std::string heard;
        ui.Scripts().Commands.Add("Hear", [&](int argc, char** argv) {
            heard.clear();
            for (int index = 0; index < argc; ++index)
                heard.append("[").append(argv[index]).append("]");
            return argc;
        });
        ui.Run("Name = 'a b'");
        EXPECT_EQ(3, ui.Host().ExecuteCommand("hear  one\ttwo"));
        EXPECT_EQ("[hear][one][two]", heard);
        ui.Host().ExecuteCommand("hear ${Name} x${= 1 + 2}y \"${Name} \" \"\" a\"b c\"d");
        EXPECT_EQ("[hear][a b][x3y][${Name} ][][ab cd]", heard);
        EXPECT_EQ("2", ui.Run("Result = command('hear x')"));
        EXPECT_EQ("[hear][x]", heard);
        EXPECT_EQ("4", ui.Run("Result = command('hear', 'a b', 5, true)"));
        EXPECT_EQ("[hear][a b][5][TRUE]", heard);
        EXPECT_EQ(-1, ui.Host().ExecuteCommand(""));
        EXPECT_EQ("-1", ui.Run("Result = command('')"));
        ui.Run("command('uielement -hide Panel')");
        EXPECT_FALSE(ui.Element("Panel").Visible);
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedSequencesDeathTest, TheirCommonUsesTakeNoMemory)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Panel);
        ui.Run("Volume = 0.5");
        char text[256];
        const auto use = [&] {
            for (const char* source :
                {"Volume ${Volume}", "Width ${UIElement[Panel].Width}", "Frame ${Frame} of no end"})
                ui.Host().DataParse(source, text, sizeof text);
        };
        use();
        const std::size_t before = Allocations::Count();
        for (int frame = 0; frame < 100; ++frame)
            use();
        EXPECT_EQ(before, Allocations::Count());
    });
}

} // namespace
