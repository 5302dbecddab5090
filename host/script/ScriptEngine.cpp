#include "host/script/ScriptEngine.h"

#include "host/Console.h"
#include "host/SignedNumber.h"
#include "host/record/ToolkitCalls.h"
#include "host/script/CommandLineWords.h"
#include "host/script/MapFunctions.h"
#include "host/script/SequenceParser.h"
#include "teskara/script/MvTypeDefinition.h"

#include <algorithm>
#include <cstring>

namespace host {

namespace {

// Temporary texts live at least until so many others were made; of long ones there are fewer.
constexpr std::size_t MostTempTexts = 256;
constexpr std::size_t FewestTempTexts = 16;
constexpr std::size_t MostTempBytes = 1024 * 1024;

constexpr std::size_t LongestLine = 4096; // that print writes

// What only bounds harm is no matter of the user's own scripts.
ScriptLimits LimitsFor(ScriptTrust trust, ScriptLimits limits)
{
    if (trust == ScriptTrust::Full)
        limits.SourceBytes = limits.TextBytes = limits.CallBytes;
    return limits;
}

bool IsWord(std::string_view text, std::string_view lowerWord)
{
    return text.size() == lowerWord.size()
        && std::equal(text.begin(), text.end(), lowerWord.begin(),
            [](char left, char right) { return (left >= 'A' && left <= 'Z' ? left - 'A' + 'a' : left) == right; });
}

// A number of Lua's, a truth value as one.
bool ReadNumber(const _MvTypeVar& value, const HostTypes& types, double& number)
{
    const HostValueType* own = types.AsOwn(value.Type);
    if (!own)
        return false;

    switch (own->Kind()) {
    case HostValueKind::Int:
        number = value.Value.Integer;
        return true;
    case HostValueKind::Int64:
        number = static_cast<double>(value.Value.Integer64);
        return true;
    case HostValueKind::Uint:
        number = value.Value.Unsigned;
        return true;
    case HostValueKind::Bool:
        number = value.Value.Bool;
        return true;
    case HostValueKind::Float:
        number = static_cast<double>(value.Value.Float);
        return true;
    default:
        return false;
    }
}

} // namespace

ScriptEngine::ScriptEngine(Console& console, ScriptTrust trust, const ScriptLimits& limits)
    : m_Console(console),
      m_Objects(
          m_State, [this](lua_State* thread, MvTypeDefinition& type) { FillMetatable(thread, type); },
          [this](const _MvTypeVar& value) { return Indexes.ShareOf(value.Value.Object); }),
      m_State(LimitsFor(trust, limits)), Indexes(m_State, Types), Values(Types, m_Objects), Globals(m_State, trust),
      Scripts(m_State, Values, console, m_Frame), Tasks(m_State, console, Commands, Scripts.Depth()),
      m_Evaluator({m_State, Globals, Values, TopLevel, Scripts, console}), Sequences(m_Evaluator), m_Access(Values),
      m_IndexType(Indexes, Types), m_IndexAccess(Indexes, m_IndexType, Values), m_FrameVariables(m_State, Globals)
{
    m_State.SetRelief([this] { MakeRoom(); });
    Types.Add(&m_IndexType);
    Globals.Add([this](lua_State* thread) {
        AddFunctions(thread);
        m_Access.AddFunctions(thread);
        m_IndexAccess.AddFunctions(thread);
        Tasks.AddFunctions(thread);
    });
}

// The indexes of scripts end while all that hears of it is still there.
ScriptEngine::~ScriptEngine()
{
    RemoveType(&m_IndexType);
}

void ScriptEngine::SetFrame(const FrameState& frame)
{
    m_Frame = frame;
    m_FrameVariables.Set(frame);
}

void ScriptEngine::BeginFrame(const FrameState& frame)
{
    Scripts.SayRefusal({});
    m_State.Budget().BeginFrame();
    SetFrame(frame);
    Tasks.Advance(frame.Ticks);
}

int ScriptEngine::ExecuteCommand(const char* line)
{
    const CommandStep step(m_Console.Trail(), line);
    std::vector<std::string> words;
    for (CommandWord& word : SplitCommandLine(line))
        words.push_back(word.IsQuoted ? std::move(word.Text) : Sequences.Expand(word.Text));
    return ExecuteWords(std::move(words));
}

int ScriptEngine::ExecuteWords(std::vector<std::string> words)
{
    if (!words.empty() && !Commands.Has(words[0]))
        m_Console.PrintText("There is no command '" + words[0] + "'", LineWeight::Error);
    return Commands.Execute(std::move(words));
}

bool ScriptEngine::Calculate(const char* text, double& result)
{
    const std::string_view given = text;
    if (const std::size_t read = ReadSignedNumber(given, result); read > 0 && read == given.size())
        return true;
    if (IsWord(given, "true") || IsWord(given, "false")) {
        result = IsWord(given, "true");
        return true;
    }

    const std::string expanded = Sequences.Expand(given);
    const auto sequence = Sequences.Parse("${=" + expanded + '}');
    const bool isExpression =
        sequence->Parts.size() == 1 && sequence->Parts[0].PartKind == SequencePart::Kind::Expression;
    bool isNumber = false;
    if (isExpression)
        m_Evaluator.Evaluate(*sequence, [&](const _MvTypeVar& value) { isNumber = ReadNumber(value, Types, result); });
    return isNumber;
}

bool ScriptEngine::RetrieveResult(u32 sequence, _MvTypeVar& result)
{
    const std::shared_ptr<const Sequence> kept = Sequences.Find(sequence);
    return kept && ReadValue(*kept, result);
}

bool ScriptEngine::RunText(std::string_view prefix, std::string_view text, const TakeValue& take, std::string& why)
{
    const ScriptCall call(m_State);
    const LuaReference function(m_State, m_State.Compile(prefix, text, "=script"));
    const bool ran = function.Number() != LUA_NOREF
        && m_State.Protect([&](lua_State* thread) { function.Push(thread); }) && m_State.Call(0, 1);
    if (!ran) {
        why = m_State.Error();
        return false;
    }
    take(m_State.Thread());
    lua_pop(m_State.Thread(), 1);
    return true;
}

// What has a value without an index is that value for scripts; anything else is a function of its index.
void ScriptEngine::AddTopLevelObject(const char* name, TopLevelObjectHandler handler)
{
    TopLevel.Add(name, handler);
    Globals.Add([&](lua_State* thread) {
        char* noArguments[] = {nullptr};
        _MvTypeVar value;
        if (Toolkit::AskTopLevelObject(handler, 0, noArguments, value) && value.Type && !Types.AsOwn(value.Type)) {
            Values.Push(thread, value);
        } else {
            lua_pushlightuserdata(thread, this);
            lua_pushstring(thread, name);
            lua_pushcclosure(thread, GetObject, 2);
        }
        lua_setfield(thread, -2, name);
    });
}

void ScriptEngine::RemoveTopLevelObject(const char* name)
{
    TopLevel.Remove(name);
    Globals.Add([&](lua_State* thread) {
        lua_pushnil(thread);
        lua_setfield(thread, -2, name);
    });
}

void ScriptEngine::RemoveType(MvTypeDefinition* type)
{
    Types.Remove(type);
    m_Objects.ForgetType(type);
    Scripts.ForgetType(type);
    m_Evaluator.ForgetType(type);
}

void ScriptEngine::Invalidate(void* object)
{
    m_Objects.Invalidate(object);
    Scripts.Invalidate(object);
    m_Evaluator.Invalidate(object);
    Indexes.Forget(object);
}

bool ScriptEngine::ParseTypedValue(const char* text, _MvTypeVar& result, u32)
{
    const auto sequence = Sequences.Parse("${" + std::string(text) + '}');
    const bool isPath = sequence->Parts.size() == 1 && sequence->Parts[0].PartKind == SequencePart::Kind::Path;
    return isPath && ReadValue(*sequence, result);
}

MvTypeDefinition* ScriptEngine::FindTypeByName(const char* name, u32, u32)
{
    return Types.Find(name);
}

char* ScriptEngine::MakeTempBuffer(std::size_t size, const char* text)
{
    std::string& kept = m_TempTexts.emplace_back(text ? text : "");
    kept.resize(std::max(size, kept.size() + 1));
    m_TempBytes += kept.size();
    while (
        m_TempTexts.size() > MostTempTexts || (m_TempBytes > MostTempBytes && m_TempTexts.size() > FewestTempTexts)) {
        m_TempBytes -= m_TempTexts.front().size();
        m_TempTexts.pop_front();
    }
    return kept.data();
}

u32 ScriptEngine::RegisterTransientClass2(const char*)
{
    return ++m_LastClass;
}

void ScriptEngine::InvalidateTransientObject2(u32, void* object)
{
    Invalidate(object);
}

u32 ScriptEngine::CreateQuery(MvTypeDefinition*, const char* text, u32)
{
    auto query = std::make_shared<ScriptQuery>(m_State, Values);
    if (!query->Compile(text)) {
        SayError("query");
        return 0;
    }
    m_Queries[++m_LastQuery] = std::move(query);
    return m_LastQuery;
}

// The query may be freed by what it runs.
bool ScriptEngine::EvaluateQuery(u32 id, _MvTypeVar& object, bool& result)
{
    const auto found = m_Queries.find(id);
    if (found == m_Queries.end())
        return false;

    const std::shared_ptr<ScriptQuery> query = found->second;
    if (query->Ask(object, result))
        return true;
    if (query->TakeNews())
        SayError("query");
    return false;
}

void ScriptEngine::FreeQuery(u32 query)
{
    m_Queries.erase(query);
}

void ScriptEngine::AddFunctions(lua_State* thread)
{
    LuaState::AddFunction(thread, "print", Print, this);
    LuaState::AddFunction(thread, "command", RunCommand, this);
    LuaState::AddFunction(thread, "expand", ExpandText, this);
    AddMapFunctions(thread);
}

void ScriptEngine::FillMetatable(lua_State* thread, MvTypeDefinition& type)
{
    m_Access.FillMetatable(thread, type);
    if (&type == &m_IndexType)
        m_IndexAccess.FillMetatable(thread);
}

// Scripts keep too much. Whose it is nobody knows; if it stayed, all of them would fail for ever.
void ScriptEngine::MakeRoom()
{
    m_Console.PrintText("scripts keep too much memory: their variables are cleared", LineWeight::Error);
    Globals.ClearVariables();
    Sequences.ForgetRecent();
    if (!m_State.Collect())
        Tasks.EndAll();
}

bool ScriptEngine::ReadValue(const Sequence& sequence, _MvTypeVar& result)
{
    return m_Evaluator.Evaluate(sequence, [&](const _MvTypeVar& value) {
        result = value;
        if (value.Type == &Types.Own(HostValueKind::String))
            result.Value.Text = MakeTempBuffer(0, value.Value.Text);
    });
}

// "query:1: why" is "query: why".
void ScriptEngine::SayError(const std::string& subject)
{
    const std::string chunk = subject + ":1: ";
    const std::string& why = m_State.Error();
    m_Console.PrintText(subject + ": " + (why.starts_with(chunk) ? why.substr(chunk.size()) : why), LineWeight::Error);
}

// print(value, ...) writes a line, with a blank between values.
int ScriptEngine::Print(lua_State* thread)
{
    auto& engine = LuaState::OwnerOf<ScriptEngine>(thread);
    std::string line;
    const int count = lua_gettop(thread);
    for (int index = 1; index <= count && line.size() < LongestLine; ++index) {
        if (index > 1)
            line += ' ';
        if (engine.Values.AppendText(thread, index, line))
            continue;
        line += luaL_tolstring(thread, index, nullptr);
        lua_pop(thread, 1);
    }
    engine.m_Console.PrintText(line.substr(0, LongestLine));
    return 0;
}

// command(line), or command(name, argument, ...) with arguments as they are. The result is the command's number.
int ScriptEngine::RunCommand(lua_State* thread)
{
    auto& engine = LuaState::OwnerOf<ScriptEngine>(thread);
    luaL_checkstring(thread, 1);
    ArgumentTexts words(thread, engine.Values, 1);
    const RunningThread running(thread);
    if (words.Count() == 1) {
        lua_pushinteger(thread, engine.ExecuteCommand(words.Texts()[0]));
        return 1;
    }
    const CommandStep step(engine.m_Console.Trail(), words.Texts()[0]);
    lua_pushinteger(
        thread, engine.ExecuteWords(std::vector<std::string>(words.Texts(), words.Texts() + words.Count())));
    return 1;
}

// expand(text) evaluates the data sequences in a text.
int ScriptEngine::ExpandText(lua_State* thread)
{
    auto& engine = LuaState::OwnerOf<ScriptEngine>(thread);
    luaL_checkstring(thread, 1);
    lua_settop(thread, 1);
    ArgumentTexts text(thread, engine.Values, 1);
    const RunningThread running(thread);
    const std::string expanded = engine.Sequences.Expand(text.Texts()[0]);
    lua_pushlstring(thread, expanded.data(), expanded.size());
    return 1;
}

// UIElement(name) and its like; nil if there is none.
int ScriptEngine::GetObject(lua_State* thread)
{
    auto& engine = LuaState::OwnerOf<ScriptEngine>(thread);
    ArgumentTexts index(thread, engine.Values, 1);
    const RunningThread running(thread);
    const TopLevelObjectHandler handler = engine.TopLevel.Find(lua_tostring(thread, lua_upvalueindex(2)));
    _MvTypeVar value;
    if (!handler || !Toolkit::AskTopLevelObject(handler, index.Count(), index.Texts(), value))
        value = {};
    engine.Values.Push(thread, value);
    return 1;
}

} // namespace host
