#pragma once

#include "teskara/core/HostInterface.h"
#include "teskara/flat/FlatCommands.h"
#include "teskara/flat/FlatScripts.h"
#include "teskara/flat/FlatTable.h"
#include "teskara/flat/FlatTypes.h"
#include "teskara/host.h"

#include <map>
#include <string>

// A host that is a flat table of functions. What the table does not have, it does itself, as teskara/host.h says.
class FlatHost : public HostObject
{
public:
    // Keeps a copy. Unless the answer is TESKARA_OK, the table before stays.
    teskara_answer SetTable(const teskara_host* table) { return TakeTable(table, m_Table); }

    const FlatCommands& Commands() const { return m_Commands; }

    // --- Scripts, commands and objects

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
    HostScriptInterface* GetScriptInterface() override { return &m_Scripts; }

    // --- Atoms and data sequences

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

    // --- References

    u32 RegisterObjectClass(const char* name) override;
    void InvalidateObject(u32 classID, void* object) override;
    void SetTypeObjectClass(MvTypeDefinition* type, u32 classID) override;

    // --- Files, places, keyboard, console

    bool FindResourceFile(const char* name, char* path) override;
    bool LocateFile(const char* name, char* path) override;
    bool OpenClipboard() override;
    void SaveElementPosition(TeskElement* element) override;
    void LoadElementPosition(TeskElement* element) override;
    bool GetKeyName(u32 key, char* buffer, u32 size) override;
    void GetOutputConsole(char* buffer, u32 size) override;
    void SetOutputConsole(const char* name) override;

    // --- Drawing

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
    const std::string* KeptText(u32 sequence) const;

    teskara_host m_Table = {};
    FlatScripts m_Scripts{m_Table};
    FlatCommands m_Commands;
    FlatTypes m_Types;
    std::map<u32, std::string> m_Texts; // of sequences that the table does not prepare
    u32 m_LastSequence = 0;
    std::string m_OutputConsole;
};
