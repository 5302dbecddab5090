#pragma once

#include "host/FrameState.h"
#include "host/probe/HostTypes.h"
#include "host/script/Atoms.h"
#include "host/script/CommandTable.h"
#include "host/script/DataSequences.h"
#include "host/script/FrameVariables.h"
#include "host/script/IndexAccess.h"
#include "host/script/IndexType.h"
#include "host/script/ObjectAccess.h"
#include "host/script/ScriptGlobals.h"
#include "host/script/ScriptIndexes.h"
#include "host/script/ScriptObjects.h"
#include "host/script/ScriptQuery.h"
#include "host/script/ScriptTasks.h"
#include "host/script/ScriptValues.h"
#include "host/script/TopLevelObjects.h"
#include "teskara/core/HostInterface.h"

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace host {

class Console;

// Everything that has to do with scripts, in Lua: its parts are public, since the host hands on to them what the toolkit
// asks.
class ScriptEngine : public HostScriptInterface
{
public:
    // The console is borrowed.
    ScriptEngine(Console& console, ScriptTrust trust, const ScriptLimits& limits = {});
    ~ScriptEngine() override;

    // Scripts see these values of a frame from now on.
    void SetFrame(const FrameState& frame);

    // A frame begins: its values can be seen, and scripts that wait go on. now: milliseconds.
    void BeginFrame(const FrameState& frame);

    // Runs a command line: its words without quotes are evaluated first. -1: there is no such command, which is told.
    int ExecuteCommand(const char* line);

    // Evaluates an arithmetic expression of Lua's. False: it gives no number.
    bool Calculate(const char* text, double& result);

    bool RetrieveResult(u32 sequence, _MvTypeVar& result);

    // Runs a prefix and a text, as one script, at once and within the limits of one call. take gets the thread on top of
    // whose stack its value lies, nil if it gives none. False: it failed, and why says so.
    using TakeValue = std::function<void(lua_State* thread)>;
    bool RunText(std::string_view prefix, std::string_view text, const TakeValue& take, std::string& why);

    void AddTopLevelObject(const char* name, TopLevelObjectHandler handler);
    void RemoveTopLevelObject(const char* name);
    void RemoveType(MvTypeDefinition* type);

    // An object is going away: nothing refers to it any longer.
    void Invalidate(void* object);

    bool ParseTypedValue(const char* text, _MvTypeVar& result, u32 flag) override;
    MvTypeDefinition* FindTypeByName(const char* name, u32 unused1, u32 unused2) override;
    char* MakeTempBuffer(std::size_t size, const char* text) override;
    u32 RegisterTransientClass2(const char* name) override;
    void InvalidateTransientObject2(u32 classID, void* object) override;
    u32 CreateQuery(MvTypeDefinition* owner, const char* text, u32 extra) override;
    bool EvaluateQuery(u32 query, _MvTypeVar& object, bool& result) override;
    void FreeQuery(u32 query) override;

private:
    int ExecuteWords(std::vector<std::string> words);
    void AddFunctions(lua_State* thread);
    void FillMetatable(lua_State* thread, MvTypeDefinition& type);
    void MakeRoom();
    bool ReadValue(const Sequence& sequence, _MvTypeVar& result);
    void SayError(const std::string& subject);
    static int Print(lua_State* thread);
    static int RunCommand(lua_State* thread);
    static int ExpandText(lua_State* thread);
    static int GetObject(lua_State* thread);

    Console& m_Console;
    FrameState m_Frame;
    ScriptObjects m_Objects; // stays until the state has collected them all
    LuaState m_State;

public:
    HostTypes Types;
    ScriptIndexes Indexes;
    TopLevelObjects TopLevel;
    CommandTable Commands;
    ScriptValues Values;
    ScriptGlobals Globals;
    Atoms Scripts;
    ScriptTasks Tasks;

private:
    SequenceEvaluator m_Evaluator;

public:
    DataSequences Sequences;

private:
    ObjectAccess m_Access;
    IndexType m_IndexType;
    IndexAccess m_IndexAccess;
    FrameVariables m_FrameVariables;
    std::unordered_map<u32, std::shared_ptr<ScriptQuery>> m_Queries;
    std::deque<std::string> m_TempTexts; // the latest ones
    std::size_t m_TempBytes = 0;
    u32 m_LastQuery = 0;
    u32 m_LastClass = 0;
};

} // namespace host
