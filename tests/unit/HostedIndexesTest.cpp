// Script indexes in the hands of Lua: those that scripts make, and those that a program hands over.

#include "teskara/core/CUIManager.h"
#include "teskara/script/MvIndex.h"
#include "teskara/script/MvTypeDefinition.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

// In these, n is an index of the numbers 10, 20 and 30, and w one of the words "a" and "b".
constexpr const char* Given = "local n, w = Index('int'), Index('string') for i = 1, 3 do n:Add(i * 10) end w:Add('a') "
                              "w:Add('b') ";

struct Row {
    const char* Body; // a script that returns something
    const char* Result; // as a text; or why it failed
};

void ExpectResults(std::initializer_list<Row> rows)
{
    WithInterface([&](HostedInterface& ui) {
        for (const Row& row : rows) {
            std::string result = ui.Run(std::string(Given) + "local ok, result = pcall(function() " + row.Body
                + " end) Result = tostring(result)");
            const std::size_t place = result.find(":1: ");
            EXPECT_EQ(row.Result, place == std::string::npos ? result : result.substr(place + 4)) << row.Body;
        }
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedIndexesDeathTest, AnIndexIsMadeOfTypesWhoseValuesAreTexts)
{
    ExpectResults({
        {"local i = Index('int') i:Add('7') return math.type(i[1])", "integer"},
        {"local i = Index('int64') i:Add(1 << 40) return i[1]", "1099511627776"},
        {"local i = Index('uint') i:Add(4000000000) return i[1]", "4000000000"},
        {"local i = Index('bool') i:Add(true) return i[1]", "true"},
        {"local i = Index('float') i:Add(0.3) return i[1] == 0.3", "true"},
        {"local i = Index('string') i:Add('a b') return i[1]", "a b"},
        {"local i = Index('string') i:Add('a', 'b', 3) return i[1]", "a b 3"},
        {"return Index('point3f')", "there is no index of type 'point3f'"},
        {"return Index('filepath')", "there is no index of type 'filepath'"},
        {"return Index('teskframe')", "there is no index of type 'teskframe'"},
        {"return Index('index')", "there is no index of type 'index'"},
        {"return Index('nosuch')", "there is no index of type 'nosuch'"},
        {"return type(Index('int'))", "userdata"},
        {"Index = 5", "'Index' belongs to the host and cannot be assigned"},
    });
}

TEST(HostedIndexesDeathTest, PositionsCountFromOneAndMayBeEmpty)
{
    ExpectResults({
        {"return n[1] .. ' ' .. n[2] .. ' ' .. n[3]", "10 20 30"},
        {"return n.Get(2)", "20"},
        {"return n[0]", "nil"},
        {"return n[4]", "nil"},
        {"return n[-1]", "nil"},
        {"return n[1.5]", "nil"},
        {"return n['1']", "an index has no member or method '1'"},
        {"return n.Count .. ' ' .. n.Size .. ' ' .. #n", "3 10 3"},
        {"return n.Type .. ' ' .. tostring(n.Locked)", "int false"},
        {"return n", "10, 20, 30"},
        {"return Index('int')", ""},
        {"return n.nosuch", "an index has no member or method 'nosuch'"},
    });
}

TEST(HostedIndexesDeathTest, AddGivesThePositionOrNil)
{
    ExpectResults({
        {"return n:Add(40)", "4"},
        {"n:Remove(2) return n:Add(40) .. ' ' .. tostring(n)", "2 10, 40, 30"},
        {"return n:Add('x')", "nil"},
        {"return n:Add(1 << 40)", "nil"},
        {"return n:Add(1.5)", "nil"},
        {"return n:Add()", "Add needs 1 argument"},
        {"return w:Add(('x'):rep(4095)) .. ' ' .. #w[3]", "3 4095"},
        {"return w:Add(('x'):rep(4096))", "nil"},
    });
}

TEST(HostedIndexesDeathTest, EntriesAreAssignedAndRemoved)
{
    ExpectResults({
        {"n[2] = 25 return n", "10, 25, 30"},
        {"n[5] = 50 return n[5] .. ' ' .. #n", "50 4"},
        {"n[2] = nil return tostring(n[2]) .. ' ' .. #n", "nil 2"},
        {"n[9] = nil return #n", "3"},
        {"n[99] = nil return #n", "3"},
        {"n[11] = 1", "the index has no position 11: Add and Resize make more"},
        {"n[0] = 1", "the index has no position 0: Add and Resize make more"},
        {"n[1] = 'x'", "'x' is no int"},
        {"n.Count = 5", "'Count' cannot be assigned"},
        {"n[true] = 5", "'true' cannot be assigned"},
        {"return n:Set(2, 25) and n", "10, 25, 30"},
        {"return n:Set(11, 25)", "false"},
        {"return n:Set(2, 'x')", "false"},
        {"return w:Set(1, 'x', 'y') and w[1]", "x y"},
        {"return n:Remove(2) and n", "10, 30"},
        {"return n:Remove(4)", "false"},
    });
}

TEST(HostedIndexesDeathTest, EntriesAreMovedAboutAndCleared)
{
    ExpectResults({
        {"return n:Swap(1, 3) and n", "30, 20, 10"},
        {"return n:Swap(1, 11)", "false"},
        {"return n:Swap('x', 1)", "false"},
        {"return n:Move(1, 3) and tostring(n[1]) .. ' ' .. n[3]", "nil 10"},
        {"return n:Move(1, 11)", "false"},
        {"n:Remove(1) n:Remove(2) return n:Collapse() and n[1]", "30"},
        {"return n:Resize(20) and n.Size", "20"},
        {"return n:Resize(10)", "false"},
        {"return n:Resize(0)", "false"},
        {"return n:Clear() and #n .. ' ' .. n.Size", "0 10"},
    });
}

TEST(HostedIndexesDeathTest, PairsWalkTheEntriesInOrder)
{
    ExpectResults({
        {"local t = {} for k, v in pairs(n) do t[#t + 1] = k .. '=' .. v end return table.concat(t, ' ')",
            "1=10 2=20 3=30"},
        {"n:Move(1, 8) local t = {} for k, v in pairs(n) do t[#t + 1] = k .. '=' .. v end return table.concat(t, ' ')",
            "2=20 3=30 8=10"},
        {"for k in pairs(n) do return math.type(k) end", "integer"},
        {"for k in pairs(Index('int')) do return k end return 'none'", "none"},
        {"for k in pairs(n) do n:Remove(k) end return #n", "0"},
        {"local c = 0 for k in pairs(n) do c = c + 1 n:Clear() end return c", "1"},
        {"local c = 0 for k, v in pairs(n) do c = c + 1 if c < 20 then n:Add(v) end end return c", "22"},
        {"local c = 0 for k in pairs(n) do for j in pairs(n) do c = c + k * j end end return c", "36"},
        {"local step = pairs(n) return step() .. step() .. step() .. tostring(step())", "123nil"},
    });
}

TEST(HostedIndexesDeathTest, AWalkKeepsWhatItWalksAlive)
{
    ExpectResults({
        {"local function make() local i = Index('int') for k = 1, 50 do i:Add(k) end return i end local sum = 0 "
         "for k, v in pairs(make()) do sum = sum + v local waste = ('x'):rep(100000) end return sum",
            "1275"},
    });
}

TEST(HostedIndexesDeathTest, TextsShowAndChangeIndexes)
{
    WithInterface([](HostedInterface& ui) {
        ui.Run("N = Index('int') N:Add(5) N:Add(6) Game = {Scores = N}");
        EXPECT_EQ("5, 6", ui.Expand("${N}"));
        EXPECT_EQ("2 5 6 NULL", ui.Expand("${N.Count} ${N[1]} ${N.Get[2]} ${N[3]}"));
        EXPECT_EQ("3 7", ui.Expand("${N.Add[7]} ${N[3]}"));
        EXPECT_EQ("NULL", ui.Expand("${N.Add[x]}"));
        EXPECT_EQ("5, 9, 7", ui.Expand("${N:Set[2,9]}"));
        EXPECT_EQ("9, 7", ui.Expand("${N:Remove[1]}"));
        EXPECT_EQ("9, 7 2", ui.Expand("${Game.Scores} ${Game.Scores.Count}"));
        EXPECT_EQ("1, 7", ui.Expand("${Game.Scores:Set[2,1]}"));
        EXPECT_EQ("7", ui.Expand("${N[${= 1 + 2}]}"));
        EXPECT_EQ("NULL", ui.Expand("${N[]}"));
        EXPECT_EQ("NULL", ui.Expand("${N:Nosuch}"));
        EXPECT_EQ("4", ui.Expand("${N:Set[4]}")) << "with one value it is the variable that is set";
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedIndexesDeathTest, AnIndexEndsWhenNoScriptHoldsItAnyLonger)
{
    WithInterface([](HostedInterface& ui) {
        EXPECT_EQ(
            "done", ui.Run("for i = 1, 6000 do local s = Index('string') s:Add(('x'):rep(4000)) end Result = 'done'"));
        ui.Run("Kept = Index('string') Kept:Add('here') Weak = setmetatable({Index('int')}, {__mode = 'v'})");
        EXPECT_EQ("nil here",
            ui.Run(
                "for i = 1, 100 do local waste = ('x'):rep(1000000) end Result = tostring(Weak[1]) .. ' ' .. Kept[1]"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedIndexesDeathTest, WhatScriptsPutIntoAnIndexCountsWithTheirMemory)
{
    WithInterface([](HostedInterface& ui) {
        for (const char* greedy : {"local s = Index('string') local t = ('x'):rep(4000) while true do s:Add(t) end",
                 "local s = Index('int') s:Resize(1000000) while true do s:Add(1) end",
                 "local i = Index('int') local size = 1000 while true do size = size * 2 i:Resize(size) end",
                 "local all = {} while true do all[#all + 1] = Index('int') end",
                 "local i = Index('int') local all = {} while true do all[#all + 1] = pairs(i) end",
                 "local s = Index('string') s:Add('x') while true do s[1] = ('x'):rep(4000) s:Add(s[1]) end",
                 "local s, t = Index('string'), ('x'):rep(2000) local function add() while s:Add(t) do end end "
                 "while true do pcall(add) end"}) {
            ui.Run(greedy);
            ui.Frame();
            const std::string lines = ui.Lines();
            EXPECT_NE(std::string::npos, lines.find("stopped, since it took too much memory")) << greedy << lines;
        }
        EXPECT_EQ("10", ui.Run("local i = Index('int') for k = 1, 10 do i:Add(k) end Result = #i"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedIndexesDeathTest, MemoryThatIsGivenBackCanBeTakenAgain)
{
    WithInterface([](HostedInterface& ui) {
        EXPECT_EQ("done",
            ui.Run("local s, t = Index('string'), ('x'):rep(4000) for i = 1, 5000 do s:Add(t) s:Remove(1) end "
                   "s:Add(t) for i = 1, 5000 do s:Set(1, t) end s:Resize(20) for i = 1, 5000 do s:Add(t) "
                   "s:Move(1, 2) end for i = 1, 10 do for j = 1, 500 do s:Add(t) end s:Clear() end Result = 'done'"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedIndexesDeathTest, WalksAndChangesOfLongIndexesTakeTheirTime)
{
    WithInterface([](HostedInterface& ui) {
        for (const char* endless : {"while true do for k in pairs(i) do end end", "while true do i:Collapse() end",
                 "while true do i:Clear() end", "while true do local text = tostring(i) end"}) {
            ui.Run(std::string("local i = Index('int') i:Resize(1000000) ") + endless);
            ui.Frame();
            EXPECT_NE(std::string::npos, ui.Lines().find("stopped, since it ran too")) << endless;
        }
    });
}

// --- Indexes of a program's

// An index that a program hands over as the object Scores.
std::unique_ptr<MvIndex> g_Scores;
MvTypeDefinition* g_IndexType = nullptr;

void HandOver(HostedInterface& ui, MvTypeDefinition& elementType)
{
    g_IndexType = ui.Scripts().FindTypeByName("index", 0, 0);
    g_Scores = std::make_unique<MvIndex>(&elementType);
    ui.Host().AddTopLevelObject("Scores", [](int, char**, _MvTypeVar& result) {
        result.Type = g_IndexType;
        result.Value.Object = g_Scores.get();
        return g_Scores != nullptr;
    });
}

TEST(HostedIndexesDeathTest, AProgramHandsAnIndexOver)
{
    WithInterface([](HostedInterface& ui) {
        HandOver(ui, *ui.Host().FindType("int"));
        char text[] = "5";
        char* argv[] = {text};
        g_Scores->Add(1, argv);
        EXPECT_EQ("5 6", ui.Run("Scores:Add(6) Result = Scores[1] .. ' ' .. Scores[2]"));
        EXPECT_EQ("5, 6 2", ui.Expand("${Scores} ${Scores.Count}"));
        EXPECT_EQ("TRUE", ui.Run("Held = Scores Result = Held == Scores"));
        g_Scores->Clear();
        EXPECT_EQ("0", ui.Run("Result = #Held"));
        ui.Host().RemoveTopLevelObject("Scores");
        g_Scores.reset();
    });
}

TEST(HostedIndexesDeathTest, ALockedIndexIsOnlyRead)
{
    WithInterface([](HostedInterface& ui) {
        HandOver(ui, *ui.Host().FindType("int"));
        ui.Run("Scores:Add(5) Scores:Add(6)");
        g_Scores->Locked = true;
        EXPECT_EQ("TRUE 5 2", ui.Expand("${Scores.Locked} ${Scores.Get[1]} ${Scores.Count}"));
        EXPECT_EQ("nil false false false false",
            ui.Run("Result = tostring(Scores:Add(7)) for _, name in ipairs{'Remove', 'Resize', 'Clear', 'Collapse'} do "
                   "Result = Result .. ' ' .. tostring(Scores[name](Scores, 1)) end"));
        for (const char* change : {"Scores[1] = 7", "Scores[1] = nil"}) {
            ui.Run(change);
            EXPECT_EQ("test.xml: frame \"Tester\" OnLoad: 1: the index is locked\n", ui.Lines());
        }
        EXPECT_EQ("5, 6", ui.Expand("${Scores}"));
        g_Scores.reset();
    });
}

TEST(HostedIndexesDeathTest, AnIndexThatIsGoneIsGoneForWhoeverHeldIt)
{
    WithInterface([](HostedInterface& ui) {
        HandOver(ui, *ui.Host().FindType("int"));
        ui.Run("Held = Scores Held:Add(1) Add = Held.Remove Step = pairs(Held)");
        g_Scores.reset();
        EXPECT_EQ("NULL NULL NULL", ui.Expand("${Held} ${Held.Count} ${Held[1]}"));
        for (const char* use : {"return Held[1]", "Held[1] = 2", "Held[1] = nil", "return #Held", "pairs(Held)",
                 "Held:Clear()", "Add(Held, 1)", "return Scores.Count"}) {
            ui.Run(use);
            EXPECT_EQ("test.xml: frame \"Tester\" OnLoad: 1: the object is gone\n", ui.Lines()) << use;
        }
        EXPECT_EQ("nil gone", ui.Run("Result = tostring(Step()) .. ' ' .. tostring(Held)"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedIndexesDeathTest, AnIndexMayGoInTheMiddleOfAWalk)
{
    WithInterface([](HostedInterface& ui) {
        HandOver(ui, *ui.Host().FindType("int"));
        ui.Host().AddCommand(
            "drop",
            [](int, char**) {
                g_Scores.reset();
                return 0;
            },
            1, 0);
        EXPECT_EQ("1",
            ui.Run("for i = 1, 5 do Scores:Add(i) end local count = 0 for k in pairs(Scores) do count = count + 1 "
                   "command('drop') end Result = count"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedIndexesDeathTest, WhatScriptsPutIntoAProgramsIndexIsLimited)
{
    WithInterface([](HostedInterface& ui) {
        HandOver(ui, *ui.Host().FindType("string"));
        EXPECT_EQ("TRUE",
            ui.Run("local t = ('x'):rep(4000) local count = 0 while Scores:Add(t) do count = count + 1 end "
                   "Result = count > 3000 and count < 5000 and not Scores:Resize(16000000)"));
        EXPECT_EQ("nil", ui.Run("Result = tostring(Scores:Add(('x'):rep(4000)))")) << "in no later call either";
        EXPECT_EQ("1", ui.Run("Scores:Clear() Result = Scores:Add('again')"));
        EXPECT_EQ("", ui.Lines());
        g_Scores.reset();
        HandOver(ui, *ui.Host().FindType("string"));
        EXPECT_EQ("1", ui.Run("Result = Scores:Add('anew')"));
        g_Scores.reset();
    });
}

// A type that deletes the index while that works on it.
class DroppingType : public MvTypeDefinition
{
public:
    DroppingType() : MvTypeDefinition("dropping") { }
    bool FromText(MvValue&, const char* text) override
    {
        if (std::string_view(text) == "drop")
            g_Scores.reset();
        return true;
    }
    void FreeValue(MvValue&) override
    {
        if (DropsWhenFreed)
            g_Scores.reset();
    }
    bool DropsWhenFreed = false;
};

TEST(HostedIndexesDeathTest, AnIndexMayGoInTheMiddleOfAChange)
{
    WithInterface([](HostedInterface& ui) {
        DroppingType type;
        for (const char* change : {"S:Add('drop')", "S:Set(1, 'drop')", "S[1] = 'drop'", "S:Set(1, 'x')", "S[1] = nil",
                 "S:Remove(1)", "S:Move(1, 2)", "S:Clear()"}) {
            HandOver(ui, type);
            EXPECT_EQ("2", ui.Run("S = Scores S:Add('a') S:Add('b') Result = #S"));
            type.DropsWhenFreed = true;
            ui.Run(change);
            EXPECT_EQ("gone", ui.Run("Result = tostring(S)")) << change;
            EXPECT_EQ("", ui.Lines()) << change;
            type.DropsWhenFreed = false;
        }
    });
}

TEST(HostedIndexesDeathTest, WhatIsMeantForIndexesRefusesOtherObjects)
{
    WithInterface(
        [](HostedInterface& ui) {
            EXPECT_EQ("0",
                ui.Run("local done = 0 local meta = debug.getmetatable(Index('int')) for _, name in ipairs{'__len', "
                       "'__pairs', '__newindex'} do for _, object in ipairs{UIElement('Tester'), Teskara, 5} do if "
                       "pcall(meta[name], object, 1, 1) then done = done + 1 end end end Result = done"));
            EXPECT_EQ("", ui.Lines());
        },
        host::ScriptTrust::Full);
}

TEST(HostedIndexesDeathTest, AProgramMayTakeAnIndexFromTheScriptThatMadeIt)
{
    WithInterface([](HostedInterface& ui) {
        ui.Run("Kept = Index('int') Kept:Add(1) Step = pairs(Kept)");
        _MvTypeVar kept;
        ASSERT_TRUE(ui.Scripts().ParseTypedValue("Kept", kept, 0));
        ui.Host().InvalidateTransientObject(1, kept.Value.Object);
        EXPECT_EQ("gone nil", ui.Run("Result = tostring(Kept) .. ' ' .. tostring(Step())"));
        EXPECT_EQ("1", ui.Run("local again = Index('int') Result = again:Add(1)"));
    });
}

TEST(HostedIndexesDeathTest, IndexesOfScriptsEndWithTheirEngine)
{
    WithInterface([](HostedInterface& ui) {
        ui.Run("Kept = Index('string') Kept:Add('here') Step = pairs(Kept)");
        EXPECT_EQ("here", ui.Expand("${Kept}"));
        g_UIManager.Shutdown();
        EXPECT_EQ("here", ui.Expand("${Kept}"));
    });
}

} // namespace
