#pragma once

#include "tests/unit/HostBooks.h"
#include "tests/unit/TestHost.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

// The second table: a reference always leads to the texture of the element under test.
class MatrixScripts final : public HostScriptInterface
{
public:
    bool ParseTypedValue(const char* text, _MvTypeVar& result, u32 flag) override;
    MvTypeDefinition* FindTypeByName(const char*, u32, u32) override { return nullptr; }
    char* MakeTempBuffer(std::size_t, const char*) override { return nullptr; }
    u32 RegisterTransientClass2(const char*) override { return 1; }
    void InvalidateTransientObject2(u32, void*) override { }
    u32 CreateQuery(MvTypeDefinition* owner, const char* text, u32 extra) override;
    bool EvaluateQuery(u32 query, _MvTypeVar& object, bool& result) override;
    void FreeQuery(u32) override { }
};

// A host that tells the bomb where the toolkit calls out, and keeps books of what it lends. The body of a script is the
// name of the place that it is, and may be among Scripts too.
class MatrixHost : public TestHost
{
public:
    MatrixHost();
    ~MatrixHost() override; // removes its files

    // Writes a file that the toolkit can load.
    void WriteFile(const char* name, const std::string& markup);

    int ExecuteCommand(const char* text) override;
    const char* CompleteCommandLine(const char* text, bool shift) override;
    int DataParse(const char* text, char* output, u32 size) override;
    bool Calculate(const char* text, double& result) override;
    void PrintLine(const char* format, ...) override;
    HostScriptInterface* GetScriptInterface() override { return &m_Scripts; }
    u32 CompileAtom(const char* source, u32 length) override;
    void ReleaseAtom(u32 atom) override;
    int ExecuteAtom(u32 atom, u32 unused, int argc, char** argv, _MvTypeVar* self) override;
    u32 PreParseSequence(const char* text, u32 keep) override;
    bool RetrieveProcessedText(u32 sequence, char* buffer, u32 size) override;
    void FreeSequence(u32 sequence) override;
    void SaveElementPosition(TeskElement* element) override;
    void LoadElementPosition(TeskElement* element) override;
    void SetOutputConsole(const char* name) override;
    u32 CreateFontResource(const char* name, u8 height, bool fixed, bool bold) override;
    void ReleaseFontResource(u32 font) override;
    u32 LoadTextureResource(const char* path, u32 colorKey) override;
    void ReleaseTextureResource(u32 texture) override;

    HostBooks Books;

private:
    MatrixScripts m_Scripts;
    std::set<std::string, std::less<>> m_Places;
    std::vector<const std::string*> m_PlacesOfAtoms; // of all that ever were
    u32 m_LastSequence = 0;
};
