#pragma once

#include "teskara/core/HostInterface.h"
#include "teskara/core/platform/Platform.h"
#include "tests/unit/HostBooks.h"

#include <cstddef>
#include <string>

// Decisions taken from a fuzzer's bytes; zeros when they are used up.
class Decisions
{
public:
    void Take(const u8* bytes, std::size_t size);
    u8 Next();
    bool IsUsedUp() const { return m_Left == 0; }
    bool Refuses() { return Next() % 8 == 7; }

private:
    const u8* m_Bytes = nullptr;
    std::size_t m_Left = 0;
};

// Where the toolkit calls out to something that may run scripts.
enum class CallOut : u8 {
    Script,
    DataParse,
    RetrieveProcessedText,
    Calculate,
    ExecuteCommand,
    SetOutputConsole,
    SaveElementPosition,
    LoadElementPosition,
    PrintLine,
    ExecuteAtomForText,
    Query,
    CompleteCommandLine,
    Count,
};

// A host that refuses operations at random and whose scripts do something hostile to the tree: by default, as its
// choices say at each call. It keeps books of what it lends.
class ChaosHost : public HostObject
{
public:
    HostBooks Books;
    Decisions Choices;
    std::string File; // what LocateFile finds

    HostScript* GetCurrentScript() override { return nullptr; }
    void AddCommand(const char*, CommandHandler, int, int) override { }
    void RemoveCommand(const char*) override { }
    int ExecuteCommand(const char*) override;
    int DataParse(const char* text, char* output, u32 size) override;
    void AddTopLevelObject(const char*, TopLevelObjectHandler) override { }
    void RemoveTopLevelObject(const char*) override { }
    void AddType(MvTypeDefinition*) override { }
    void RemoveType(MvTypeDefinition*) override { }
    MvTypeDefinition* FindType(const char*) override { return nullptr; }
    void InvalidateTransientObject(u32, void*) override { }
    u32 RegisterTransientClass(const char*) override { return 1; }
    const char* CompleteCommandLine(const char*, bool) override;
    bool Calculate(const char*, double& result) override;
    void PrintLine(const char* format, ...) override;
    HostScriptInterface* GetScriptInterface() override { return nullptr; }
    u32 CompileAtom(const char*, u32) override;
    void ReleaseAtom(u32 atom) override { Books.TakeBack("atom", atom); }
    int ExecuteAtomForText(
        u32 atom, int argc, char** argv, _MvTypeVar* self, u32 unused, char* output, u32 size) override;
    int ExecuteAtom(u32 atom, u32, int, char**, _MvTypeVar* self) override;
    u32 FindAtom(const char*) override { return Refuses() ? 0 : 1; }
    u32 PreParseSequence(const char*, u32) override { return Lend("sequence"); }
    bool RetrieveOriginalText(u32, char*, u32) override { return false; }
    bool RetrieveProcessedText(u32 sequence, char* buffer, u32 size) override;
    bool RetrieveProcessedResult(u32, _MvTypeVar&) override { return false; }
    void FreeSequence(u32 sequence) override;
    u32 RegisterObjectClass(const char*) override { return 1; }
    void InvalidateObject(u32, void*) override { }
    void SetTypeObjectClass(MvTypeDefinition*, u32) override { }
    bool FindResourceFile(const char* name, char* path) override;
    bool LocateFile(const char* name, char* path) override;
    bool OpenClipboard() override { return false; }
    void SaveElementPosition(TeskElement* element) override;
    void LoadElementPosition(TeskElement* element) override;
    bool GetKeyName(u32, char* buffer, u32 size) override;
    void GetOutputConsole(char*, u32) override { }
    void SetOutputConsole(const char*) override;

    void DrawRect(const tagRECT&, u32) override { }
    bool DrawTexturedRect(const TeskDrawRecord&) override { return true; }
    bool DrawTexturedRects(u32 count, const TeskDrawRecord* records) override;
    bool DrawLine(const TeskDrawRecord&, u32) override { return true; }
    u32 CreateFontResource(const char*, u8, bool, bool) override { return Lend("font"); }
    void ReleaseFontResource(u32 font) override { Books.TakeBack("font", font); }
    u32 DrawText(u32, const char* text, const tagRECT&, u32, u32) override;
    void MeasureText(u32, const char* text, int& width) override;
    bool GetGlyphMetrics(u32, u32, u32, float* before, float* glyph, float* after) override;
    bool GetDisplaySize(int& width, int& height) override;
    u32 LoadTextureResource(const char*, u32) override { return Lend("texture"); }
    bool GetTextureResourceSize(u32, _Point2i& size) override;
    void ReleaseTextureResource(u32 texture) override { Books.TakeBack("texture", texture); }

protected:
    // Whether the operation that is being called fails this time.
    virtual bool Refuses();

    // A script runs, of that element if it is not null.
    virtual void CalledOut(CallOut place, TeskElement* self);

    void DoHarm(u8 act, TeskElement& self, u8 argument);

    // A new number; 0 if the host refuses.
    u32 Lend(const char* sort);

private:
    u32 m_LastID = 0;
    u32 m_HarmDepth = 0;
};

// A platform whose clock and clipboard the fuzzer moves, and that says nothing. Keys from 32 to 255 give the character
// of that number.
class QuietPlatform : public Platform
{
public:
    u32 Ticks = 10000;
    std::string Clipboard;

    u32 GetTickCount() override { return Ticks; }
    bool IsKeyToggled(u32) override { return false; }
    int ToAscii(u32 key, const u8*, char* characters) override
    {
        characters[0] = static_cast<char>(key);
        return key >= ' ' ? 1 : 0;
    }
    char16_t AnsiToWide(u8 character) override { return character; }
    std::FILE* OpenFile(const char16_t* path) override { return SystemPlatform().OpenFile(path); }
    bool FileExists(const char16_t* path) override { return SystemPlatform().FileExists(path); }
    std::string GetModulePath() override { return {}; }
    void WriteDebugOutput(const char*) override { }
    void RangeFailure() override { }
    bool OpenClipboard() override { return true; }
    void CloseClipboard() override { }
    bool EmptyClipboard() override { return SetClipboardText({}); }
    bool SetClipboardText(const std::string& text) override
    {
        Clipboard = text;
        return true;
    }
    bool GetClipboardText(std::string& text) override
    {
        text = Clipboard;
        return !text.empty();
    }
};
