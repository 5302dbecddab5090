#pragma once

#include "teskara/core/HostInterface.h"
#include "teskara/core/platform/Platform.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

class TeskElement;

// Which calls a test host writes down. Printed lines always are.
enum : unsigned {
    RecordDrawing = 1,
    RecordResources = 2,
    RecordMeasures = 4,
    RecordSequences = 8,
    RecordScripts = 16,
    RecordCommands = 32, // and where output goes
};

// A host that works: every byte of text is 6 pixels wide, fonts and images can be made and count from 1, images are 64 by
// 64, the surface is 800 by 600. What is asked of it stands in Calls, a line each.
class TestHost : public HostObject
{
public:
    HostScript* GetCurrentScript() override { return nullptr; }
    void AddCommand(const char*, CommandHandler, int, int) override { }
    void RemoveCommand(const char*) override { }
    int ExecuteCommand(const char* text) override;
    int DataParse(const char* text, char* output, u32 size) override;
    void AddTopLevelObject(const char*, TopLevelObjectHandler) override { }
    void RemoveTopLevelObject(const char*) override { }
    void AddType(MvTypeDefinition*) override { }
    void RemoveType(MvTypeDefinition*) override { }
    MvTypeDefinition* FindType(const char*) override { return nullptr; }
    void InvalidateTransientObject(u32, void*) override { }
    u32 RegisterTransientClass(const char*) override { return 1; }
    const char* CompleteCommandLine(const char* text, bool shift) override;
    bool Calculate(const char* text, double& result) override;
    void PrintLine(const char* format, ...) override;
    HostScriptInterface* GetScriptInterface() override { return nullptr; }

    u32 CompileAtom(const char* source, u32 length) override;
    void ReleaseAtom(u32 atom) override;
    int ExecuteAtomForText(
        u32 atom, int argc, char** argv, _MvTypeVar* self, u32 unused, char* output, u32 size) override;
    int ExecuteAtom(u32 atom, u32 unused, int argc, char** argv, _MvTypeVar* self) override;
    u32 FindAtom(const char* name) override;

    u32 PreParseSequence(const char* text, u32 keep) override;
    bool RetrieveOriginalText(u32 sequence, char* buffer, u32 size) override;
    bool RetrieveProcessedText(u32 sequence, char* buffer, u32 size) override;
    bool RetrieveProcessedResult(u32, _MvTypeVar&) override { return false; }
    void FreeSequence(u32 sequence) override;

    u32 RegisterObjectClass(const char*) override { return 1; }
    void InvalidateObject(u32, void*) override { }
    void SetTypeObjectClass(MvTypeDefinition*, u32) override { }

    bool FindResourceFile(const char* name, char* path) override;
    bool LocateFile(const char* name, char* path) override;

    bool OpenClipboard() override { return OpensClipboard && CurrentPlatform().OpenClipboard(); }
    void SaveElementPosition(TeskElement* element) override;
    void LoadElementPosition(TeskElement* element) override;
    bool GetKeyName(u32 key, char* name, u32 size) override;
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

    // The recorded lines since the last question, each with a line end.
    std::string TakeCalls();

    std::vector<std::string> Calls;
    unsigned Recorded = RecordDrawing;

    // What is refused from now on.
    bool RefusesFonts = false;
    bool RefusesImages = false;
    bool RefusesImageSizes = false;
    bool RefusesMeasures = false;
    bool RefusesScripts = false;
    bool RefusesDrawing = false;
    bool RefusesSequences = false;
    bool RefusesValues = false; // of sequences that were parsed

    // Whether texts may be copied.
    bool OpensClipboard = false;

    // Widths of bytes other than 6.
    std::map<char, float> Widths;

    // What is kept free on either side of a byte, where it is asked for by itself.
    float GlyphMargin = 0;

    // What a text with data sequences becomes; unset, the text itself.
    std::function<std::string(const std::string& text)> Expand;

    // What the body of a script does. A body that is not here does nothing.
    std::map<std::string, std::function<void(TeskElement& self)>> Scripts;

    // What the last script was given.
    std::vector<std::string> ScriptArguments;

    // The scripts that have names, and what they answer to their arguments.
    std::map<std::string, std::function<std::string(const std::vector<std::string>& arguments)>> NamedScripts;

    // What a command line does. One that is not here is unknown.
    std::map<std::string, std::function<void()>> Commands;

    // What a command line is completed to; unset, it stays.
    std::function<std::string(const std::string& line, bool shift)> Complete;

    // What a text calculates to. One that is not here has no value.
    std::map<std::string, double> Values;
    std::function<void()> OnCalculate;

    // Where output goes, and what happens as it is turned.
    std::string Console;
    std::function<void(const std::string& name)> OnConsole;

    // Where the host finds files, and what it does to an element whose position was kept.
    std::map<std::string, std::string> Located;
    std::map<std::string, std::string> FoundResources;
    std::function<void(TeskElement& element)> RestorePosition;
    std::function<void()> OnLocateFile;
    std::function<void(TeskElement& element)> KeepPosition;

    // Whether keys have names, which are their characters.
    bool NamesKeys = false;

private:
    void Record(unsigned group, const char* format, ...) __attribute__((format(printf, 3, 4)));
    float WidthOf(char byte) const;
    int WidthOf(const char* text) const;

    std::string m_Completed;
    std::map<u32, std::string> m_Atoms;
    std::map<u32, std::string> m_Sequences;
    u32 m_LastAtom = 0;
    u32 m_LastSequence = 0;
    u32 m_LastFont = 0;
    u32 m_LastTexture = 0;
};

// The system's platform, but with a clock that stands still, and with files, keys and a clipboard that a test names.
class TestPlatform : public Platform
{
public:
    u32 GetTickCount() override { return Ticks; }
    bool IsKeyToggled(u32 key) override { return ToggledKeys.count(key) != 0; }
    int ToAscii(u32 key, const u8* keyState, char* characters) override;
    char16_t AnsiToWide(u8 character) override { return character; }
    std::FILE* OpenFile(const char16_t* path) override { return SystemPlatform().OpenFile(path); }
    bool FileExists(const char16_t* path) override { return Files.count(path) != 0; }
    std::string GetModulePath() override { return {}; }
    void WriteDebugOutput(const char* text) override { DebugOutput += text; }
    void RangeFailure() override { ++RangeFailures; }
    bool OpenClipboard() override { return ClipboardIsOpen = !RefusesClipboard; }
    void CloseClipboard() override { ClipboardIsOpen = false; }
    bool EmptyClipboard() override;
    bool SetClipboardText(const std::string& text) override;
    bool GetClipboardText(std::string& text) override;

    u32 Ticks = 10000;
    std::set<std::u16string> Files;
    std::set<u32> ToggledKeys;
    std::string DebugOutput;
    int RangeFailures = 0;

    // What keys give. One that is not here gives no character.
    std::map<u32, std::string> KeyTexts;

    std::optional<std::string> Clipboard;
    bool ClipboardIsOpen = false;
    bool RefusesClipboard = false;
};
