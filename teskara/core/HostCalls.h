#pragma once

#include "teskara/core/HostInterface.h"
#include "teskara/core/Types.h"

#include <cstddef>
#include <string>

// Every call to the host goes through here: without a host, and when an operation throws, the result is that
// operation's failure. Results are preset, so an operation that writes nothing leaves a value that can be used.
namespace Host {

// The object given to F1 and its second table; null until then.
extern HostObject* g_Host;
extern HostScriptInterface* g_ScriptHost;

// While the host is in an operation from which it is not to call back, nothing is deleted, loaded, drawn or routed and
// no script runs, whatever it calls all the same: whoever asked stands on what the host could take away.
extern u32 g_Answering;

inline bool IsAnswering()
{
    return g_Answering != 0;
}

class AnsweringScope
{
public:
    AnsweringScope() { ++g_Answering; }
    ~AnsweringScope() { --g_Answering; }
    AnsweringScope(const AnsweringScope&) = delete;
    AnsweringScope& operator=(const AnsweringScope&) = delete;
};

// Calls an operation of a table from which the host may call back; failure is what stands for "it did not work".
template <class Table, class Result, class Operation>
inline Result CallOut(Table* table, Result failure, Operation&& operation) noexcept
{
    if (!table || IsAnswering())
        return failure;

    try {
        return operation(*table);
    } catch (...) {
        return failure;
    }
}

template <class Operation> inline void CallOut(Operation&& operation) noexcept
{
    CallOut(g_Host, false, [&](HostObject& host) {
        operation(host);
        return true; // an operation that fails without a result has no further effect
    });
}

// One from which it may not.
template <class Result, class Operation> inline Result Call(Result failure, Operation&& operation) noexcept
{
    if (!g_Host)
        return failure;

    try {
        const AnsweringScope answering;
        return operation(*g_Host);
    } catch (...) {
        return failure;
    }
}

template <class Operation> inline void Call(Operation&& operation) noexcept
{
    Call(false, [&](HostObject& host) {
        operation(host);
        return true;
    });
}

// The same for the script table.
template <class Result, class Operation> inline Result CallScripts(Result failure, Operation&& operation) noexcept
{
    if (!g_ScriptHost)
        return failure;

    try {
        const AnsweringScope answering;
        return operation(*g_ScriptHost);
    } catch (...) {
        return failure;
    }
}

// --- Lines for a person

void PrintLine(const char* format, ...) noexcept __attribute__((format(printf, 1, 2)));

// --- Scripts

u32 CompileAtom(const std::string& source) noexcept;
void ReleaseAtom(u32 atom) noexcept;
int ExecuteAtom(u32 atom, int argc, char** argv, _MvTypeVar* self) noexcept;

// size: of output, which is always terminated, and empty if the script gives no text.
int ExecuteAtomForText(u32 atom, int argc, char** argv, _MvTypeVar* self, char* output, u32 size) noexcept;
u32 FindAtom(const char* name) noexcept;
int ExecuteCommand(const char* text) noexcept;

// Null: the line stays as it is. The text is good until the next call.
const char* CompleteCommandLine(const char* text, bool shift) noexcept;

// Expands data sequences. size: of output, which is always terminated. text and output must not overlap.
void DataParse(const char* text, char* output, u32 size) noexcept;
u32 PreParseSequence(const char* text, u32 keep) noexcept;
bool RetrieveOriginalText(u32 sequence, char* buffer, u32 size) noexcept;
bool RetrieveProcessedText(u32 sequence, char* buffer, u32 size) noexcept;
bool RetrieveProcessedResult(u32 sequence, _MvTypeVar& result) noexcept;
void FreeSequence(u32 sequence) noexcept;
bool Calculate(const char* text, double& result) noexcept;
bool GetKeyName(u32 key, char* buffer, u32 size) noexcept;

// --- Files. path is filled with what the host found, cut to size bytes with the end.

bool LocateFile(const char* name, char* path, std::size_t size) noexcept;
bool FindResourceFile(const char* name, char* path, std::size_t size) noexcept;

// --- The clipboard. False: it must not be touched.

bool OpenClipboard() noexcept;

// --- Objects

void InvalidateObject(u32 classID, void* object) noexcept;
void SaveElementPosition(TeskElement* element) noexcept;
void LoadElementPosition(TeskElement* element) noexcept;

// --- The console that receives output

void GetOutputConsole(char* buffer, u32 size) noexcept;
void SetOutputConsole(const char* name) noexcept;

// --- Resources

u32 CreateFontResource(const char* name, u8 height, bool fixed, bool bold) noexcept;
void ReleaseFontResource(u32 font) noexcept;
u32 LoadTextureResource(const char* path, u32 colorKey) noexcept;
bool GetTextureResourceSize(u32 texture, _Point2i& size) noexcept;
void ReleaseTextureResource(u32 texture) noexcept;
bool GetDisplaySize(int& width, int& height) noexcept;
bool GetGlyphAdvance(u32 font, u32 character, float& advance) noexcept;

// --- Drawing; on the path of every frame

inline void DrawRect(const tagRECT& rect, u32 color) noexcept
{
    Call([&](HostObject& host) { host.DrawRect(rect, color); });
}

inline bool DrawTexturedRect(const TeskDrawRecord& record) noexcept
{
    return Call(false, [&](HostObject& host) { return host.DrawTexturedRect(record); });
}

inline bool DrawTexturedRects(u32 count, const TeskDrawRecord* records) noexcept
{
    return Call(false, [&](HostObject& host) { return host.DrawTexturedRects(count, records); });
}

inline bool DrawLine(const TeskDrawRecord& record, u32 width) noexcept
{
    return Call(false, [&](HostObject& host) { return host.DrawLine(record, width); });
}

inline u32 DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format) noexcept
{
    return Call(u32{0}, [&](HostObject& host) { return host.DrawText(font, text, box, color, format); });
}

// Width in pixels; a host that writes nothing leaves what width held, a negative width counts as 0.
inline int MeasureText(u32 font, const char* text, int width) noexcept
{
    Call([&](HostObject& host) { host.MeasureText(font, text, width); });
    return width < 0 ? 0 : width;
}

// --- Types, objects and commands

MvTypeDefinition* FindType(const char* name) noexcept;
void AddType(MvTypeDefinition* type) noexcept;
void RemoveType(MvTypeDefinition* type) noexcept;
u32 RegisterObjectClass(const char* name) noexcept;
void SetTypeObjectClass(MvTypeDefinition* type, u32 classID) noexcept;
void AddTopLevelObject(const char* name, TopLevelObjectHandler handler) noexcept;
void RemoveTopLevelObject(const char* name) noexcept;
void AddCommand(const char* name, CommandHandler handler) noexcept;
void RemoveCommand(const char* name) noexcept;

// --- The running script, and what it tells of itself. A script whose operations throw has no name and no answer.

HostScript* GetCurrentScript() noexcept;
const char* GetScriptName(const HostScript& script) noexcept; // never null
bool IsInsideAtom(const HostScript& script) noexcept;
const char* GetUserInput(const HostScript& script) noexcept; // null: no answer
void SetUserInput(HostScript& script, const char* text) noexcept;

// --- Values

// What a script would call a reference. May run scripts. False: there is no value.
bool ParseTypedValue(const char* text, _MvTypeVar& result) noexcept;
char* MakeTempBuffer(std::size_t size, const char* text) noexcept;
u32 RegisterTransientClass2(const char* name) noexcept;
void InvalidateTransientObject2(u32 classID, void* object) noexcept;

// --- Queries over objects of a type. Making and asking one may run scripts.

u32 CreateQuery(MvTypeDefinition* type, const char* text) noexcept; // 0: it does not compile
bool EvaluateQuery(u32 query, _MvTypeVar& object) noexcept; // whether it holds
void FreeQuery(u32 query) noexcept;

} // namespace Host
