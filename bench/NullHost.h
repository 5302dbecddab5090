#pragma once

#include "teskara/core/HostInterface.h"
#include "teskara/script/MvTypeDefinition.h"

// A host that does nothing: fonts and textures exist, every byte is 6 pixels wide, drawing is counted and thrown away,
// files are found where their name says, scripts do not compile, and the value of a sequence that was parsed is a word.
class NullHost : public HostObject
{
public:
    u64 Draws = 0;
    int Width = 9000;
    int Height = 4600;

    HostScript* GetCurrentScript() override { return nullptr; }
    void AddCommand(const char*, CommandHandler, int, int) override { }
    void RemoveCommand(const char*) override { }
    int ExecuteCommand(const char*) override { return -1; }
    int DataParse(const char* text, char* output, u32 size) override;
    void AddTopLevelObject(const char*, TopLevelObjectHandler) override { }
    void RemoveTopLevelObject(const char*) override { }
    void AddType(MvTypeDefinition*) override { }
    void RemoveType(MvTypeDefinition*) override { }
    MvTypeDefinition* FindType(const char*) override { return &m_Type; }
    void InvalidateTransientObject(u32, void*) override { }
    u32 RegisterTransientClass(const char*) override { return 1; }
    const char* CompleteCommandLine(const char*, bool) override { return nullptr; }
    bool Calculate(const char*, double&) override { return false; }
    void PrintLine(const char* format, ...) override;
    HostScriptInterface* GetScriptInterface() override { return nullptr; }
    u32 CompileAtom(const char*, u32) override { return 0; }
    void ReleaseAtom(u32) override { }
    int ExecuteAtomForText(u32, int, char**, _MvTypeVar*, u32, char*, u32) override { return 0; }
    int ExecuteAtom(u32, u32, int, char**, _MvTypeVar*) override { return 0; }
    u32 FindAtom(const char*) override { return 0; }
    u32 PreParseSequence(const char*, u32) override { return 1; }
    bool RetrieveOriginalText(u32, char*, u32) override { return false; }
    bool RetrieveProcessedText(u32, char* buffer, u32 size) override;
    bool RetrieveProcessedResult(u32, _MvTypeVar&) override { return false; }
    void FreeSequence(u32) override { }
    u32 RegisterObjectClass(const char*) override { return 1; }
    void InvalidateObject(u32, void*) override { }
    void SetTypeObjectClass(MvTypeDefinition*, u32) override { }
    bool FindResourceFile(const char*, char*) override { return false; }
    bool LocateFile(const char* name, char* path) override;
    bool OpenClipboard() override { return false; }
    void SaveElementPosition(TeskElement*) override { }
    void LoadElementPosition(TeskElement*) override { }
    bool GetKeyName(u32, char*, u32) override { return false; }
    void GetOutputConsole(char*, u32) override { }
    void SetOutputConsole(const char*) override { }

    void DrawRect(const tagRECT&, u32) override { ++Draws; }
    bool DrawTexturedRect(const TeskDrawRecord&) override;
    bool DrawTexturedRects(u32 count, const TeskDrawRecord*) override;
    bool DrawLine(const TeskDrawRecord&, u32) override;
    u32 CreateFontResource(const char*, u8, bool, bool) override { return 1; }
    void ReleaseFontResource(u32) override { }
    u32 DrawText(u32, const char*, const tagRECT&, u32, u32) override;
    void MeasureText(u32 font, const char* text, int& width) override;
    bool GetGlyphMetrics(u32, u32, u32, float* before, float* glyph, float* after) override;
    bool GetDisplaySize(int& width, int& height) override;
    u32 LoadTextureResource(const char*, u32) override { return 1; }
    bool GetTextureResourceSize(u32, _Point2i& size) override;
    void ReleaseTextureResource(u32) override { }

private:
    MvTypeDefinition m_Type = MvTypeDefinition("any"); // stands for all types of the host's
};
