#include "teskara/core/HostCalls.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/Limits.h"
#include "teskara/core/QuietFloats.h"

#include <cmath>
#include <cstdarg>
#include <cstdio>

namespace Host {

HostObject* g_Host = nullptr;
HostScriptInterface* g_ScriptHost = nullptr;
u32 g_Answering = 0;

namespace {

constexpr std::size_t HostPathSize = 4096;

using FindFile = bool (HostInterface::*)(const char* name, char* path);

// Gives the host a buffer larger than it needs, and takes of the answer what fits.
bool FindPath(FindFile find, const char* name, char* path, std::size_t size) noexcept
{
    char answer[HostPathSize + 1] = {};
    if (!Call(false, [&](HostObject& host) { return (host.*find)(name, answer); }))
        return false;

    answer[HostPathSize] = 0;
    CopyBounded(path, size, answer);
    return true;
}

// Calls an operation that writes a text: the buffer is empty if it writes nothing, and terminated in any case.
template <class Caller> bool FillText(char* buffer, u32 size, Caller&& call) noexcept
{
    if (!buffer || size == 0)
        return false;

    buffer[0] = 0;
    const bool done = call();
    buffer[size - 1] = 0;
    return done;
}

template <class Operation> bool CallForText(char* buffer, u32 size, Operation&& operation) noexcept
{
    return FillText(buffer, size, [&] { return Call(false, operation); });
}

// The same from where the host may call back.
template <class Operation> bool CallOutForText(char* buffer, u32 size, Operation&& operation) noexcept
{
    return FillText(buffer, size, [&] { return CallOut(g_Host, false, operation); });
}

} // namespace

void PrintLine(const char* format, ...) noexcept
{
    if (!g_Host)
        return;

    char line[8192];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof(line), format, arguments);
    va_end(arguments);
    CallOut([&](HostObject& host) { host.PrintLine("%s", line); });
}

u32 CompileAtom(const std::string& source) noexcept
{
    return Call(
        u32{0}, [&](HostObject& host) { return host.CompileAtom(source.c_str(), static_cast<u32>(source.size())); });
}

void ReleaseAtom(u32 atom) noexcept
{
    Call([&](HostObject& host) { host.ReleaseAtom(atom); });
}

int ExecuteAtom(u32 atom, int argc, char** argv, _MvTypeVar* self) noexcept
{
    return CallOut(g_Host, 0, [&](HostObject& host) { return host.ExecuteAtom(atom, 0, argc, argv, self); });
}

int ExecuteAtomForText(u32 atom, int argc, char** argv, _MvTypeVar* self, char* output, u32 size) noexcept
{
    int result = 0;
    CallOutForText(output, size, [&](HostObject& host) {
        result = host.ExecuteAtomForText(atom, argc, argv, self, 0, output, size);
        return true;
    });
    return result;
}

u32 FindAtom(const char* name) noexcept
{
    return Call(u32{0}, [&](HostObject& host) { return host.FindAtom(name); });
}

int ExecuteCommand(const char* text) noexcept
{
    return CallOut(g_Host, 0, [&](HostObject& host) { return host.ExecuteCommand(text); });
}

const char* CompleteCommandLine(const char* text, bool shift) noexcept
{
    return CallOut(g_Host, static_cast<const char*>(nullptr),
        [&](HostObject& host) { return host.CompleteCommandLine(text, shift); });
}

void DataParse(const char* text, char* output, u32 size) noexcept
{
    CallOutForText(output, size, [&](HostObject& host) {
        host.DataParse(text, output, size);
        return true;
    });
}

u32 PreParseSequence(const char* text, u32 keep) noexcept
{
    return Call(u32{0}, [&](HostObject& host) { return host.PreParseSequence(text, keep); });
}

bool RetrieveOriginalText(u32 sequence, char* buffer, u32 size) noexcept
{
    return CallForText(
        buffer, size, [&](HostObject& host) { return host.RetrieveOriginalText(sequence, buffer, size); });
}

bool RetrieveProcessedText(u32 sequence, char* buffer, u32 size) noexcept
{
    return CallOutForText(
        buffer, size, [&](HostObject& host) { return host.RetrieveProcessedText(sequence, buffer, size); });
}

bool RetrieveProcessedResult(u32 sequence, _MvTypeVar& result) noexcept
{
    return CallOut(g_Host, false, [&](HostObject& host) { return host.RetrieveProcessedResult(sequence, result); });
}

void FreeSequence(u32 sequence) noexcept
{
    Call([&](HostObject& host) { host.FreeSequence(sequence); });
}

bool Calculate(const char* text, double& result) noexcept
{
    result = 0;
    return CallOut(g_Host, false, [&](HostObject& host) { return host.Calculate(text, result); });
}

bool GetKeyName(u32 key, char* buffer, u32 size) noexcept
{
    return CallForText(buffer, size, [&](HostObject& host) { return host.GetKeyName(key, buffer, size); });
}

bool LocateFile(const char* name, char* path, std::size_t size) noexcept
{
    return FindPath(&HostInterface::LocateFile, name, path, size);
}

bool FindResourceFile(const char* name, char* path, std::size_t size) noexcept
{
    return FindPath(&HostInterface::FindResourceFile, name, path, size);
}

bool OpenClipboard() noexcept
{
    return Call(false, [](HostObject& host) { return host.OpenClipboard(); });
}

void InvalidateObject(u32 classID, void* object) noexcept
{
    CallOut([&](HostObject& host) { host.InvalidateObject(classID, object); });
}

void SaveElementPosition(TeskElement* element) noexcept
{
    CallOut([&](HostObject& host) { host.SaveElementPosition(element); });
}

void LoadElementPosition(TeskElement* element) noexcept
{
    CallOut([&](HostObject& host) { host.LoadElementPosition(element); });
}

void GetOutputConsole(char* buffer, u32 size) noexcept
{
    CallForText(buffer, size, [&](HostObject& host) {
        host.GetOutputConsole(buffer, size);
        return true;
    });
}

void SetOutputConsole(const char* name) noexcept
{
    CallOut([&](HostObject& host) { host.SetOutputConsole(name); });
}

u32 CreateFontResource(const char* name, u8 height, bool fixed, bool bold) noexcept
{
    return Call(u32{0}, [&](HostObject& host) { return host.CreateFontResource(name, height, fixed, bold); });
}

void ReleaseFontResource(u32 font) noexcept
{
    Call([&](HostObject& host) { host.ReleaseFontResource(font); });
}

u32 LoadTextureResource(const char* path, u32 colorKey) noexcept
{
    return Call(u32{0}, [&](HostObject& host) { return host.LoadTextureResource(path, colorKey); });
}

bool GetTextureResourceSize(u32 texture, _Point2i& size) noexcept
{
    return Call(false, [&](HostObject& host) { return host.GetTextureResourceSize(texture, size); });
}

void ReleaseTextureResource(u32 texture) noexcept
{
    Call([&](HostObject& host) { host.ReleaseTextureResource(texture); });
}

bool GetDisplaySize(int& width, int& height) noexcept
{
    width = 0;
    height = 0;
    return Call(false, [&](HostObject& host) { return host.GetDisplaySize(width, height); });
}

bool GetGlyphAdvance(u32 font, u32 character, float& advance) noexcept
{
    float before = 0;
    float glyph = 0;
    float after = 0;
    const bool done = Call(false,
        [&](HostObject& host) { return host.GetGlyphMetrics(font, character, character, &before, &glyph, &after); });
    const QuietFloats quiet;
    advance = before + glyph + after;
    return done && !std::isnan(advance);
}

MvTypeDefinition* FindType(const char* name) noexcept
{
    return CallOut(
        g_Host, static_cast<MvTypeDefinition*>(nullptr), [&](HostObject& host) { return host.FindType(name); });
}

void AddType(MvTypeDefinition* type) noexcept
{
    CallOut([&](HostObject& host) { host.AddType(type); });
}

void RemoveType(MvTypeDefinition* type) noexcept
{
    CallOut([&](HostObject& host) { host.RemoveType(type); });
}

u32 RegisterObjectClass(const char* name) noexcept
{
    return CallOut(g_Host, u32{0}, [&](HostObject& host) { return host.RegisterObjectClass(name); });
}

void SetTypeObjectClass(MvTypeDefinition* type, u32 classID) noexcept
{
    CallOut([&](HostObject& host) { host.SetTypeObjectClass(type, classID); });
}

void AddTopLevelObject(const char* name, TopLevelObjectHandler handler) noexcept
{
    CallOut([&](HostObject& host) { host.AddTopLevelObject(name, handler); });
}

void RemoveTopLevelObject(const char* name) noexcept
{
    CallOut([&](HostObject& host) { host.RemoveTopLevelObject(name); });
}

void AddCommand(const char* name, CommandHandler handler) noexcept
{
    constexpr int parse = 1;
    constexpr int hidden = 0;
    CallOut([&](HostObject& host) { host.AddCommand(name, handler, parse, hidden); });
}

void RemoveCommand(const char* name) noexcept
{
    CallOut([&](HostObject& host) { host.RemoveCommand(name); });
}

HostScript* GetCurrentScript() noexcept
{
    return Call<HostScript*>(nullptr, [&](HostObject& host) { return host.GetCurrentScript(); });
}

const char* GetScriptName(const HostScript& script) noexcept
{
    return TextOrEmpty(Call<const char*>(nullptr, [&](HostObject&) { return script.GetName(); }));
}

bool IsInsideAtom(const HostScript& script) noexcept
{
    return Call(false, [&](HostObject&) { return script.IsInsideAtom(); });
}

const char* GetUserInput(const HostScript& script) noexcept
{
    return Call<const char*>(nullptr, [&](HostObject&) { return script.GetUserInput(); });
}

void SetUserInput(HostScript& script, const char* text) noexcept
{
    Call([&](HostObject&) { script.SetUserInput(text); });
}

bool ParseTypedValue(const char* text, _MvTypeVar& result) noexcept
{
    constexpr u32 flag = 0;
    return CallOut(
        g_ScriptHost, false, [&](HostScriptInterface& host) { return host.ParseTypedValue(text, result, flag); });
}

char* MakeTempBuffer(std::size_t size, const char* text) noexcept
{
    return CallScripts<char*>(nullptr, [&](HostScriptInterface& host) { return host.MakeTempBuffer(size, text); });
}

u32 RegisterTransientClass2(const char* name) noexcept
{
    return CallScripts(u32{0}, [&](HostScriptInterface& host) { return host.RegisterTransientClass2(name); });
}

void InvalidateTransientObject2(u32 classID, void* object) noexcept
{
    CallScripts(false, [&](HostScriptInterface& host) {
        host.InvalidateTransientObject2(classID, object);
        return true;
    });
}

u32 CreateQuery(MvTypeDefinition* type, const char* text) noexcept
{
    constexpr u32 extra = 0;
    return CallOut(
        g_ScriptHost, u32{0}, [&](HostScriptInterface& host) { return host.CreateQuery(type, text, extra); });
}

bool EvaluateQuery(u32 query, _MvTypeVar& object) noexcept
{
    bool holds = false;
    return CallOut(g_ScriptHost, false,
        [&](HostScriptInterface& host) { return host.EvaluateQuery(query, object, holds) && holds; });
}

void FreeQuery(u32 query) noexcept
{
    CallScripts(false, [query](HostScriptInterface& host) {
        host.FreeQuery(query);
        return true;
    });
}

} // namespace Host
