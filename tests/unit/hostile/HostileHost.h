#pragma once

#include "tests/unit/ScriptHost.h"
#include "tests/unit/hostile/HostileScripts.h"
#include "tests/unit/hostile/Hostility.h"
#include "tests/unit/hostile/Ledger.h"

#include <initializer_list>
#include <map>
#include <string>

// A host that works, with everything that a program can have, until it is told otherwise. It keeps books of what it
// lends, also by wrong answers.
class HostileHost final : public ScriptHost
{
public:
    HostileHost();

    Ledger Books;
    HostileScript Running;
    std::map<std::string, std::string> Files; // what can be located, and where it is

    // Runs a command, asks an object, if the toolkit has registered it.
    void TryCommand(std::initializer_list<const char*> line);
    void TryObject(const char* name, const char* argument);

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

    // A wrong typed value, of a type that the answer calls for. Whether the operation claims to have done it.
    bool SpoilValue(Answer answer, _MvTypeVar& result);

    // Null while there is no such type.
    MvTypeDefinition* TypeOf(const char* name) const;

private:
    HostileScripts m_Scripts;
    std::string m_Completed;
    std::string m_Console;
    u32 m_LastNumber = 0; // of what was lent
};
