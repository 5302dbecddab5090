#pragma once

#include "host/Console.h"
#include "host/FrameState.h"
#include "host/OverlayConsole.h"
#include "host/display/Canvas.h"
#include "host/files/CommandHistory.h"
#include "host/files/SearchPaths.h"
#include "host/files/StoredPositions.h"
#include "host/files/UsedFiles.h"
#include "host/script/CommandCompletion.h"
#include "host/script/ScriptEngine.h"
#include "host/script/ScriptNames.h"
#include "teskara/core/HostInterface.h"

#include <filesystem>
#include <string>

namespace host {

// How much of the host's the toolkit holds.
struct LentThings {
    std::size_t Fonts = 0;
    std::size_t Images = 0;
    std::size_t Scripts = 0;
    std::size_t Sequences = 0;

    bool operator==(const LentThings&) const = default;
};

// The object that is handed to the toolkit: each operation goes to the part of the host that knows it.
class ReferenceHost : public HostObject
{
public:
    // The renderer is borrowed. positions: the file of stored positions; empty to store none.
    ReferenceHost(SDL_Renderer* renderer, const std::filesystem::path& positions, ScriptTrust trust);

    Console& Output() { return m_Console; }
    SearchPaths& Paths() { return m_Paths; }
    ScriptEngine& Scripts() { return m_Scripts; }
    const UsedFiles& Files() const { return m_Files; }

    LentThings Lent() const;

    // An image's file has changed: the elements that are made from now on show what it holds.
    void ReadImageAnew(const std::string& path) { m_Canvas.Textures().ReadAnew(path); }

    // Keeps the commands that are typed in a file, with those of earlier runs.
    void KeepCommands(const std::filesystem::path& file) { m_History = CommandHistory(file); }
    const CommandHistory& TypedCommands() const { return m_History; }

    // Begins a frame of a size in pixels of the interface, each scale pixels of the target.
    void BeginFrame(const FrameState& state, float scale);

    // Ends it. True if it has to be presented.
    bool EndFrame();

    // The target lost its pixels; or the device lost its textures.
    void Invalidate() { m_Canvas.Invalidate(); }
    void ResetDevice() { m_Canvas.ResetDevice(); }

    HostScript* GetCurrentScript() override;
    void AddCommand(const char* name, CommandHandler handler, int parse, int hidden) override;
    void RemoveCommand(const char* name) override;
    int ExecuteCommand(const char* text) override;
    int DataParse(const char* text, char* output, u32 size) override;
    void AddTopLevelObject(const char* name, TopLevelObjectHandler handler) override;
    void RemoveTopLevelObject(const char* name) override;
    void AddType(MvTypeDefinition* type) override;
    void RemoveType(MvTypeDefinition* type) override;
    MvTypeDefinition* FindType(const char* name) override;
    void InvalidateTransientObject(u32 classID, void* object) override;
    u32 RegisterTransientClass(const char* name) override;
    const char* CompleteCommandLine(const char* text, bool shift) override;
    bool Calculate(const char* text, double& result) override;
    void PrintLine(const char* format, ...) override;
    HostScriptInterface* GetScriptInterface() override;

    u32 CompileAtom(const char* source, u32 length) override;
    void ReleaseAtom(u32 atom) override;
    int ExecuteAtomForText(
        u32 atom, int argc, char** argv, _MvTypeVar* self, u32 unused, char* output, u32 size) override;
    int ExecuteAtom(u32 atom, u32 unused, int argc, char** argv, _MvTypeVar* self) override;
    u32 FindAtom(const char* name) override;

    u32 PreParseSequence(const char* text, u32 keep) override;
    bool RetrieveOriginalText(u32 sequence, char* buffer, u32 size) override;
    bool RetrieveProcessedText(u32 sequence, char* buffer, u32 size) override;
    bool RetrieveProcessedResult(u32 sequence, _MvTypeVar& result) override;
    void FreeSequence(u32 sequence) override;

    u32 RegisterObjectClass(const char* name) override;
    void InvalidateObject(u32 classID, void* object) override;
    void SetTypeObjectClass(MvTypeDefinition* type, u32 classID) override;

    bool FindResourceFile(const char* name, char* path) override;
    bool LocateFile(const char* name, char* path) override;

    bool OpenClipboard() override;
    void SaveElementPosition(TeskElement* element) override;
    void LoadElementPosition(TeskElement* element) override;
    bool GetKeyName(u32 key, char* buffer, u32 size) override;
    void GetOutputConsole(char* buffer, u32 size) override;
    void SetOutputConsole(const char* name) override;

    void DrawRect(const tagRECT& rect, u32 color) override;
    bool DrawTexturedRect(const TeskDrawRecord& record) override;
    bool DrawTexturedRects(u32 count, const TeskDrawRecord* records) override;
    bool DrawLine(const TeskDrawRecord& record, u32 width) override;
    u32 CreateFontResource(const char* name, u8 height, bool fixed, bool bold) override;
    void ReleaseFontResource(u32 font) override;
    u32 DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format) override;
    void MeasureText(u32 font, const char* text, int& width) override;
    bool GetGlyphMetrics(u32 font, u32 first, u32 last, float* before, float* glyph, float* after) override;
    bool GetDisplaySize(int& width, int& height) override;
    u32 LoadTextureResource(const char* path, u32 colorKey) override;
    bool GetTextureResourceSize(u32 texture, _Point2i& size) override;
    void ReleaseTextureResource(u32 texture) override;

private:
    int RunScriptFile(int argc, char** argv);

    Console m_Console;
    OverlayConsole m_Overlay;
    FrameState m_Frame;
    Canvas m_Canvas;
    SearchPaths m_Paths;
    UsedFiles m_Files;
    StoredPositions m_Positions;
    CommandHistory m_History{{}};
    ScriptEngine m_Scripts;
    ScriptNames m_Names{m_Scripts};
    CommandCompletion m_Completion{m_Names};
    u32 m_LastClass = 0;
};

} // namespace host
