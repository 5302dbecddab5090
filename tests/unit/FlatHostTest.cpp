#include "teskara/flat/FlatHost.h"
#include "teskara/element/TeskElement.h"
#include "teskara/flat/FlatType.h"
#include "teskara/flat/FlatValue.h"
#include "tests/unit/FlatProgram.h"
#include "tests/unit/ToolkitTest.h"

#include <array>

// What a host of a program in C hands to the program's table, and what it answers.

namespace {

constexpr tagRECT Box = {1, 2, 3, -4};

TeskDrawRecord Record()
{
    TeskDrawRecord record;
    record.Flags = 23;
    record.Destination = Box;
    record.Source = {5, 6, 7, 8};
    record.TextureID = 9;
    record.Alpha = 250;
    record.Orientation = 3;
    record.ColorMask = 0xff10a0b0;
    return record;
}

constexpr const char* RecordText = "{23 1,2,3,-4 5,6,7,8 9 250 3 ff10a0b0}";

class FlatHostTest : public testing::Test
{
protected:
    FlatHostTest()
    {
        const teskara_host table = Program.Host();
        EXPECT_EQ(TESKARA_OK, Host.SetTable(&table));
        Program.Type = ToFlat(&Type);
        Self.Type = &Type;
        Self.Value.Integer = 77;
    }

    void ExpectCalls(const std::string& calls) { EXPECT_EQ(calls, Program.TakeCalls()); }

    FlatProgram Program;
    FlatHost Host;
    FlatType Type{"mine", {}};
    _MvTypeVar Self;
    std::array<char, 5> One = {'o', 'n', 'e'};
    std::array<char, 5> Two = {'t', 'w', 'o'};
    std::array<char*, 2> Arguments = {One.data(), Two.data()};
    std::array<char, 64> Text = {'?'};
};

} // namespace

TEST_F(FlatHostTest, DrawsThroughTheTable)
{
    const TeskDrawRecord records[] = {Record(), Record()};
    Host.DrawRect(Box, 0x80ffffff);
    EXPECT_TRUE(Host.DrawTexturedRect(records[0]));
    EXPECT_TRUE(Host.DrawTexturedRects(2, records));
    EXPECT_TRUE(Host.DrawLine(records[0], 4));
    EXPECT_EQ(41u, Host.DrawText(11, "Words", Box, 255, DrawTextCenter));
    const std::string record = RecordText;
    ExpectCalls("draw_rect 1,2,3,-4 2164260863\ndraw_texture " + record + "\ndraw_textures 2 " + record + ' ' + record
        + "\ndraw_line " + record + " 4\ndraw_text 11 Words 1,2,3,-4 255 33\n");
}

TEST_F(FlatHostTest, MeasuresThroughTheTable)
{
    int width = 0;
    int height = 0;
    Host.MeasureText(11, "four", width);
    EXPECT_EQ(28, width);
    float before = 0;
    float glyph = 0;
    float behind = 0;
    EXPECT_TRUE(Host.GetGlyphMetrics(11, 65, 65, &before, &glyph, &behind));
    EXPECT_EQ(8, before + glyph + behind);
    EXPECT_TRUE(Host.GetDisplaySize(width, height));
    EXPECT_EQ(320, width);
    EXPECT_EQ(200, height);
    ExpectCalls("measure_text 11 four\nglyph_metrics 11 65 65\ndisplay_size\n");
}

TEST_F(FlatHostTest, MakesFontsAndImagesThroughTheTable)
{
    _Point2i size;
    EXPECT_EQ(11u, Host.CreateFontResource("Sans", 16, true, false));
    Host.ReleaseFontResource(11);
    EXPECT_EQ(12u, Host.LoadTextureResource("a.png", 255));
    EXPECT_TRUE(Host.GetTextureResourceSize(12, size));
    EXPECT_EQ(64, size.x);
    EXPECT_EQ(32, size.y);
    Host.ReleaseTextureResource(12);
    ExpectCalls("create_font Sans 16 true false\nrelease_font 11\nload_texture a.png 255\ntexture_size 12\n"
                "release_texture 12\n");
}

TEST_F(FlatHostTest, FindsFilesThroughTheTable)
{
    std::array<char, 4096> path = {};
    EXPECT_TRUE(Host.LocateFile("it.xml", path.data()));
    EXPECT_STREQ("/where/it/lies.xml", path.data());
    EXPECT_TRUE(Host.FindResourceFile("it.png", path.data()));
    EXPECT_STREQ("/where/it/lies.png", path.data());
    ExpectCalls("locate_file it.xml 512\nfind_resource it.png 4096\n");
}

TEST_F(FlatHostTest, PrintsLinesAsTheyAreToBeRead)
{
    Host.PrintLine("%s has %d of %u", "it", -1, 2u);
    const std::string longest(8000, 'x');
    Host.PrintLine("%s", longest.c_str());
    ExpectCalls("print_line it has -1 of 2\nprint_line " + longest + '\n');
}

TEST_F(FlatHostTest, RunsAtomsThroughTheTable)
{
    EXPECT_EQ(21u, Host.CompileAtom("atom it", 7));
    EXPECT_EQ(22, Host.ExecuteAtom(21, 0, 2, Arguments.data(), &Self));
    EXPECT_EQ(22, Host.ExecuteAtom(21, 0, 0, nullptr, nullptr));
    EXPECT_EQ(23, Host.ExecuteAtomForText(21, 1, Arguments.data(), &Self, 0, Text.data(), 64));
    EXPECT_STREQ("answer", Text.data());
    EXPECT_EQ(24u, Host.FindAtom("named"));
    Host.ReleaseAtom(21);
    ExpectCalls("compile_atom atom it 7\nexecute_atom 21 [one,two] <mine 77>\nexecute_atom 21 [] nothing\n"
                "execute_atom_for_text 21 [one] <mine 77> 64\nfind_atom named\nrelease_atom 21\n");
}

TEST_F(FlatHostTest, EvaluatesSequencesThroughTheTable)
{
    EXPECT_EQ(31, Host.DataParse("${It}", Text.data(), 64));
    EXPECT_STREQ("expanded", Text.data());
    EXPECT_EQ(32u, Host.PreParseSequence("${It}", 1));
    EXPECT_TRUE(Host.RetrieveOriginalText(32, Text.data(), 64));
    EXPECT_STREQ("as it was", Text.data());
    EXPECT_TRUE(Host.RetrieveProcessedText(32, Text.data(), 64));
    EXPECT_STREQ("as it is", Text.data());
    _MvTypeVar result;
    EXPECT_TRUE(Host.RetrieveProcessedResult(32, result));
    EXPECT_EQ(&Type, result.Type);
    EXPECT_EQ(33, result.Value.Integer);
    Host.FreeSequence(32);
    double number = 0;
    EXPECT_TRUE(Host.Calculate("1 + 1", number));
    EXPECT_EQ(34.5, number);
    ExpectCalls("parse_data ${It} 64\nprepare_sequence ${It} true\nsequence_source 32 64\nsequence_text 32 64\n"
                "sequence_value 32\nrelease_sequence 32\ncalculate 1 + 1\n");
}

TEST_F(FlatHostTest, TellsTheTableOfCommandsAndObjects)
{
    Host.AddCommand(
        "Greet", [](int, char**) { return 5; }, 1, 0);
    EXPECT_EQ(41, Host.ExecuteCommand("anything"));
    EXPECT_EQ(5, Host.Commands().Run("greet")) << "the toolkit's own list knows it too";
    EXPECT_STREQ("completed", Host.CompleteCommandLine("gr", true));
    Host.RemoveCommand("Greet");
    EXPECT_EQ(-1, Host.Commands().Run("greet"));
    Host.AddTopLevelObject("Thing", [](int, char**, _MvTypeVar&) { return true; });
    Host.RemoveTopLevelObject("Thing");
    ExpectCalls("add_command Greet\nexecute_command anything\ncomplete_command gr true\nremove_command Greet\n"
                "add_object Thing\nremove_object Thing\n");
}

TEST_F(FlatHostTest, TellsTheTableOfTypes)
{
    Host.AddType(&Type);
    Host.SetTypeObjectClass(&Type, 51);
    Host.RemoveType(&Type);
    EXPECT_EQ(&Type, Host.FindType("string"));
    ExpectCalls("add_type mine\nset_type_class mine 51\nremove_type mine\nfind_type string\n");
}

TEST_F(FlatHostTest, TellsTheTableOfObjectsThatGo)
{
    EXPECT_EQ(51u, Host.RegisterObjectClass("Teskara"));
    EXPECT_EQ(52u, Host.RegisterTransientClass("passing"));
    EXPECT_EQ(53u, Host.GetScriptInterface()->RegisterTransientClass2("held"));
    Host.InvalidateObject(1, this);
    Host.InvalidateTransientObject(2, this);
    Host.GetScriptInterface()->InvalidateTransientObject2(3, this);
    ExpectCalls("register 51 Teskara\nregister 52 passing\nregister 53 held\n"
                "invalidate 51 1 true\ninvalidate 52 2 true\ninvalidate 53 3 true\n");
}

TEST_F(FlatHostTest, AsksTheTableForReferencesAndQueries)
{
    HostScriptInterface& scripts = *Host.GetScriptInterface();
    _MvTypeVar result;
    EXPECT_TRUE(scripts.ParseTypedValue("UIElement[Main]", result, 3));
    EXPECT_EQ(&Type, result.Type);
    EXPECT_EQ(54, result.Value.Integer);
    EXPECT_EQ(55u, scripts.CreateQuery(&Type, "Text =~ a", 6));
    bool matches = false;
    EXPECT_TRUE(scripts.EvaluateQuery(55, Self, matches));
    EXPECT_TRUE(matches);
    scripts.FreeQuery(55);
    ExpectCalls("parse_value UIElement[Main] 3\ncreate_query mine Text =~ a 6\nevaluate_query 55 <mine 77>\n"
                "free_query 55\n");
}

TEST_F(FlatHostTest, AsksTheTableForTheRunningScript)
{
    bool isInside = true;
    teskara_script* script = teskara_new_script(
        "mine", [](void* user) { return *static_cast<bool*>(user); }, &isInside);
    Program.Script = script;
    HostScript* running = Host.GetCurrentScript();
    ASSERT_NE(nullptr, running);
    EXPECT_STREQ("mine", running->GetName());
    EXPECT_TRUE(running->IsInsideAtom());
    isInside = false;
    EXPECT_FALSE(running->IsInsideAtom());
    EXPECT_EQ(nullptr, teskara_user_input(script));
    running->SetUserInput("yes");
    EXPECT_STREQ("yes", teskara_user_input(script));
    running->SetUserInput(nullptr);
    EXPECT_EQ(nullptr, teskara_user_input(script));
    teskara_free_script(script);
    ExpectCalls("current_script\n");
}

TEST_F(FlatHostTest, UsesKeysClipboardAndConsolesOfTheTable)
{
    EXPECT_TRUE(Host.GetKeyName(13, Text.data(), 64));
    EXPECT_STREQ("Enter", Text.data());
    EXPECT_TRUE(Host.OpenClipboard());
    Host.GetOutputConsole(Text.data(), 64);
    EXPECT_STREQ("Log", Text.data());
    Host.SetOutputConsole("Other");
    ExpectCalls("key_name 13 64\nopen_clipboard\noutput_console 64\nselect_console Other\n");
}

// The same without a single operation.

namespace {

class FlatDefaultsTest : public FlatHostTest
{
protected:
    FlatDefaultsTest()
    {
        Table.size = sizeof(teskara_host);
        Table.version = TESKARA_TABLE_VERSION;
        Table.user = &Program;
        Refresh();
    }
    ~FlatDefaultsTest() override { ExpectCalls(""); }

    void Refresh() { EXPECT_EQ(TESKARA_OK, Host.SetTable(&Table)); }

    teskara_host Table = {};
};

} // namespace

TEST_F(FlatDefaultsTest, NothingIsDrawn)
{
    const TeskDrawRecord record = Record();
    Host.DrawRect(Box, 255);
    EXPECT_FALSE(Host.DrawTexturedRect(record));
    EXPECT_FALSE(Host.DrawTexturedRects(1, &record));
    EXPECT_FALSE(Host.DrawLine(record, 1));
    EXPECT_EQ(0u, Host.DrawText(1, "Words", Box, 255, DrawTextLeft));
}

TEST_F(FlatDefaultsTest, ManyImagesAreDrawnOneByOne)
{
    Table.draw_texture = Program.Host().draw_texture;
    Refresh();
    const TeskDrawRecord records[] = {Record(), Record()};
    EXPECT_TRUE(Host.DrawTexturedRects(2, records));
    const std::string line = std::string("draw_texture ") + RecordText + '\n';
    ExpectCalls(line + line);
}

TEST_F(FlatDefaultsTest, TextsAreMeasuredByNobody)
{
    int width = 12;
    int height = 34;
    float advance = 0;
    Host.MeasureText(1, "Words", width);
    EXPECT_EQ(12, width);
    EXPECT_FALSE(Host.GetGlyphMetrics(1, 65, 65, &advance, &advance, &advance));
    EXPECT_FALSE(Host.GetDisplaySize(width, height));
}

TEST_F(FlatDefaultsTest, GlyphsAreAsWideAsTheirTexts)
{
    Table.measure_text = Program.Host().measure_text;
    Refresh();
    float before[2] = {9, 9};
    float glyph[2] = {};
    float behind[2] = {9, 9};
    EXPECT_TRUE(Host.GetGlyphMetrics(1, 0x7f, 0x80, before, glyph, behind));
    EXPECT_EQ(0, before[0] + before[1] + behind[0] + behind[1]);
    EXPECT_EQ(7, glyph[0]);
    EXPECT_EQ(14, glyph[1]) << "a character of two bytes";
    EXPECT_FALSE(Host.GetGlyphMetrics(1, 2, 1, before, glyph, behind));
    ExpectCalls("measure_text 1 \x7f\nmeasure_text 1 \u0080\n");
}

TEST_F(FlatDefaultsTest, OneFontStandsForAllAndThereAreNoImages)
{
    Table.release_font = Program.Host().release_font;
    Refresh();
    _Point2i size;
    EXPECT_EQ(1u, Host.CreateFontResource("Sans", 16, false, false));
    Host.ReleaseFontResource(1); // which the program never made
    EXPECT_EQ(0u, Host.LoadTextureResource("a.png", 0));
    EXPECT_FALSE(Host.GetTextureResourceSize(1, size));
    Host.ReleaseTextureResource(1);
}

TEST_F(FlatDefaultsTest, TheNameOfAFileIsItsPath)
{
    std::array<char, 4096> path = {};
    EXPECT_TRUE(Host.LocateFile("folder/it.xml", path.data()));
    EXPECT_STREQ("folder/it.xml", path.data());
    EXPECT_TRUE(Host.LocateFile(std::string(511, 'a').c_str(), path.data()));
    EXPECT_FALSE(Host.LocateFile(std::string(512, 'a').c_str(), path.data()));
    EXPECT_FALSE(Host.FindResourceFile("it.png", path.data()));
}

TEST_F(FlatDefaultsTest, LinesGoToTheSystem)
{
    TestPlatform system;
    SetPlatform(&system);
    Host.PrintLine("%s has %d", "it", 1);
    SetPlatform(nullptr);
    EXPECT_EQ("it has 1\n", system.DebugOutput);
}

TEST_F(FlatDefaultsTest, NoScriptIsCompiled)
{
    EXPECT_EQ(0u, Host.CompileAtom("atom it", 7));
    Host.ReleaseAtom(1);
    EXPECT_EQ(0, Host.ExecuteAtom(1, 0, 2, Arguments.data(), &Self));
    EXPECT_EQ(0, Host.ExecuteAtomForText(1, 2, Arguments.data(), &Self, 0, Text.data(), 64));
    EXPECT_STREQ("", Text.data());
    EXPECT_EQ(0u, Host.FindAtom("named"));
    EXPECT_EQ(nullptr, Host.GetCurrentScript());
}

TEST_F(FlatDefaultsTest, TextsStayAsTheyAre)
{
    Host.DataParse("${It}", Text.data(), 64);
    EXPECT_STREQ("${It}", Text.data());
    Host.DataParse(Text.data(), Text.data(), 3);
    EXPECT_STREQ("${", Text.data());

    const u32 first = Host.PreParseSequence("${It}", 1);
    const u32 second = Host.PreParseSequence("Two", 0);
    EXPECT_NE(first, second);
    EXPECT_TRUE(Host.RetrieveOriginalText(first, Text.data(), 64));
    EXPECT_STREQ("${It}", Text.data());
    EXPECT_TRUE(Host.RetrieveProcessedText(second, Text.data(), 64));
    EXPECT_STREQ("Two", Text.data());
    EXPECT_FALSE(Host.RetrieveProcessedResult(first, Self));
    Host.FreeSequence(first);
    EXPECT_FALSE(Host.RetrieveOriginalText(first, Text.data(), 64));
    EXPECT_FALSE(Host.RetrieveProcessedText(first, Text.data(), 64));
}

TEST_F(FlatDefaultsTest, TextsAreExpandedAtEachUseIfTheProgramCan)
{
    Table.parse_data = Program.Host().parse_data;
    Table.release_sequence = Program.Host().release_sequence;
    Table.sequence_value = Program.Host().sequence_value;
    Refresh();
    const u32 sequence = Host.PreParseSequence("${It}", 0);
    EXPECT_TRUE(Host.RetrieveProcessedText(sequence, Text.data(), 64));
    EXPECT_STREQ("expanded", Text.data());
    EXPECT_FALSE(Host.RetrieveProcessedResult(sequence, Self));
    Host.FreeSequence(sequence); // of which the program has never heard
    ExpectCalls("parse_data ${It} 64\n");
}

TEST_F(FlatDefaultsTest, NumbersAreRead)
{
    double number = 0;
    for (const auto& [text, value] : {std::pair{"12", 12.0}, {"-0.5", -0.5}, {"1e3", 1000.0}}) {
        EXPECT_TRUE(Host.Calculate(text, number)) << text;
        EXPECT_EQ(value, number);
    }
    for (const char* text : {"", "-", "1 + 1", "one", "nan", "0x10"})
        EXPECT_FALSE(Host.Calculate(text, number)) << text;
}

TEST_F(FlatDefaultsTest, CommandLinesAreTheToolkitsOwn)
{
    static std::vector<std::string> words;
    words.clear();
    Host.AddCommand(
        "Greet",
        [](int argc, char** argv) {
            words.assign(argv, argv + argc);
            return 5;
        },
        1, 0);
    EXPECT_EQ(5, Host.ExecuteCommand("  greet  you \"and me\" \"\" \"open"));
    EXPECT_EQ((std::vector<std::string>{"greet", "you", "and me", "", "open"}), words);
    EXPECT_EQ(5, Host.Commands().Run(2, Arguments.data()) == -1 ? 5 : 0) << "one is no command";
    EXPECT_EQ(-1, Host.ExecuteCommand("greet2"));
    EXPECT_EQ(-1, Host.ExecuteCommand(" "));
    EXPECT_EQ(nullptr, Host.CompleteCommandLine("gr", false));
}

TEST_F(FlatDefaultsTest, ObjectsCanBeAsked)
{
    Host.AddTopLevelObject("Thing", [](int argc, char**, _MvTypeVar& result) {
        result.Value.Integer = argc;
        return true;
    });
    _MvTypeVar result;
    EXPECT_TRUE(Host.Commands().Ask("thing", 2, Arguments.data(), result));
    EXPECT_EQ(2, result.Value.Integer);
    Host.RemoveTopLevelObject("THING");
    EXPECT_FALSE(Host.Commands().Ask("thing", 0, nullptr, result));
}

TEST_F(FlatDefaultsTest, PlainTypesKnowTheTextsOfTheirValues)
{
    const auto text = [this](const char* name, auto set) {
        MvTypeDefinition* type = Host.FindType(name);
        if (!type)
            return std::string("no type");
        MvValue value;
        set(value);
        EXPECT_STREQ(name, type->GetName());
        EXPECT_TRUE(type->ToText(value, Text.data(), 64));
        return std::string(Text.data());
    };
    _Point3f point = {1, -2.5F, 0};
    EXPECT_EQ("words", text("string", [](MvValue& value) { value.Text = "words"; }));
    EXPECT_EQ("", text("string", [](MvValue& value) { value.Text = nullptr; }));
    EXPECT_EQ("-7", text("int", [](MvValue& value) { value.Integer = -7; }));
    EXPECT_EQ("-7", text("int64", [](MvValue& value) { value.Integer64 = -7; }));
    EXPECT_EQ("4294967295", text("uint", [](MvValue& value) { value.Unsigned = UINT32_MAX; }));
    EXPECT_EQ("TRUE", text("bool", [](MvValue& value) { value.Bool = true; }));
    EXPECT_EQ("0.25", text("float", [](MvValue& value) { value.Float = 0.25F; }));
    EXPECT_EQ("1,-2.5,0", text("point3f", [&](MvValue& value) { value.Object = &point; }));
    std::u16string path = u"\u00e4.png";
    EXPECT_EQ("\u00e4.png", text("filepath", [&](MvValue& value) { value.Object = path.data(); }));
    EXPECT_EQ(nullptr, Host.FindType("string2"));
    EXPECT_EQ(nullptr, Host.FindType(nullptr));
}

TEST_F(FlatDefaultsTest, ReferencesAndQueriesAreNotKnown)
{
    HostScriptInterface& scripts = *Host.GetScriptInterface();
    Host.AddType(&Type);
    Host.RemoveType(&Type);
    Host.SetTypeObjectClass(&Type, 0);
    Host.InvalidateObject(0, this);
    Host.InvalidateTransientObject(0, this);
    scripts.InvalidateTransientObject2(0, this);
    scripts.FreeQuery(1);
    EXPECT_EQ(0u, Host.RegisterObjectClass("Teskara"));
    EXPECT_EQ(0u, Host.RegisterTransientClass("passing"));
    EXPECT_EQ(0u, scripts.RegisterTransientClass2("held"));
    bool matches = false;
    EXPECT_FALSE(scripts.ParseTypedValue("UIElement[Main]", Self, 0));
    EXPECT_EQ(77, Self.Value.Integer);
    EXPECT_EQ(0u, scripts.CreateQuery(&Type, "it", 0));
    EXPECT_FALSE(scripts.EvaluateQuery(1, Self, matches));
    EXPECT_EQ(nullptr, scripts.FindTypeByName("string", 0, 0));
}

TEST_F(FlatDefaultsTest, TextsOfValuesAreKeptForAWhile)
{
    HostScriptInterface& scripts = *Host.GetScriptInterface();
    char* first = scripts.MakeTempBuffer(0, "first");
    char* large = scripts.MakeTempBuffer(100, nullptr);
    large[99] = 'x';
    EXPECT_STREQ("", large);
    for (int count = 0; count < 100; ++count)
        scripts.MakeTempBuffer(6, "other");
    EXPECT_STREQ("first", first);
}

TEST_F(FlatDefaultsTest, KeysHaveNoNamesAndTheConsoleIsTheOneLastSelected)
{
    EXPECT_FALSE(Host.GetKeyName(13, Text.data(), 64));
    EXPECT_EQ(CurrentPlatform().OpenClipboard(), Host.OpenClipboard());
    Host.GetOutputConsole(Text.data(), 64);
    EXPECT_STREQ("", Text.data());
    Host.SetOutputConsole("Log");
    Host.GetOutputConsole(Text.data(), 64);
    EXPECT_STREQ("Log", Text.data());
}

// Places of elements need elements.

namespace {

class FlatPlacesTest : public ToolkitTest
{
protected:
    FlatPlacesTest()
    {
        const teskara_host table = Program.Host();
        EXPECT_EQ(TESKARA_OK, Flat.SetTable(&table));
        Load("<window name='Main'><X>1</X><Y>2</Y><Width>30</Width><Height>40</Height></window>");
    }

    FlatProgram Program;
    FlatHost Flat;
};

} // namespace

TEST_F(FlatPlacesTest, AreHandedOverByFullName)
{
    TeskElement& main = Element("Main");
    const std::string place = " " + std::string(main.FullName) + " 1 2 30 40\n";
    Flat.SaveElementPosition(&main);
    Flat.LoadElementPosition(&main);
    EXPECT_EQ("save_place" + place + "load_place" + place, Program.TakeCalls());
    EXPECT_EQ(61, main.X);
    EXPECT_EQ(2, main.Y) << "what the program leaves alone stays";
    EXPECT_EQ(62u, main.Width);
    EXPECT_EQ(40u, main.Height);
}

TEST_F(FlatPlacesTest, AreNotWrittenToAnElementThatWentMeanwhile)
{
    teskara_host table = Program.Host();
    table.load_place = [](void*, const char* element, int32_t* x, int32_t*, uint32_t*, uint32_t*) {
        teskara_delete(teskara_find(element));
        *x = 5;
        return true;
    };
    Flat.SetTable(&table);
    Flat.LoadElementPosition(&Element("Main"));
    EXPECT_EQ(0u, teskara_find("Main"));
}

TEST_F(FlatPlacesTest, AreKeptNowhereByDefault)
{
    teskara_host table = {};
    table.size = sizeof(teskara_host);
    table.version = TESKARA_TABLE_VERSION;
    Flat.SetTable(&table);
    TeskElement& main = Element("Main");
    Flat.SaveElementPosition(&main);
    Flat.LoadElementPosition(&main);
    EXPECT_EQ(1, main.X);
    EXPECT_EQ(30u, main.Width);
}
