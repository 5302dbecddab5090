#include "tests/unit/FaultyHost.h"

#include <cstdarg>
#include <cstdio>
#include <stdexcept>

void FaultyHost::Break(std::string_view operation, Fault fault)
{
    m_Broken = operation;
    m_Fault = fault;
}

const std::vector<const char*>& FaultyHost::Operations()
{
    static const std::vector<const char*> all = {
        "GetCurrentScript",
        "AddCommand",
        "RemoveCommand",
        "ExecuteCommand",
        "DataParse",
        "AddTopLevelObject",
        "RemoveTopLevelObject",
        "AddType",
        "RemoveType",
        "FindType",
        "InvalidateTransientObject",
        "RegisterTransientClass",
        "CompleteCommandLine",
        "Calculate",
        "PrintLine",
        "GetScriptInterface",
        "CompileAtom",
        "ReleaseAtom",
        "ExecuteAtomForText",
        "ExecuteAtom",
        "FindAtom",
        "PreParseSequence",
        "RetrieveOriginalText",
        "RetrieveProcessedText",
        "RetrieveProcessedResult",
        "FreeSequence",
        "RegisterObjectClass",
        "InvalidateObject",
        "SetTypeObjectClass",
        "FindResourceFile",
        "LocateFile",
        "OpenClipboard",
        "SaveElementPosition",
        "LoadElementPosition",
        "GetKeyName",
        "GetOutputConsole",
        "SetOutputConsole",
        "DrawRect",
        "DrawTexturedRect",
        "DrawTexturedRects",
        "DrawLine",
        "CreateFontResource",
        "ReleaseFontResource",
        "DrawText",
        "MeasureText",
        "GetGlyphMetrics",
        "GetDisplaySize",
        "LoadTextureResource",
        "GetTextureResourceSize",
        "ReleaseTextureResource",
    };
    return all;
}

bool FaultyHost::Fails(std::string_view operation)
{
    if (operation != m_Broken)
        return false;
    if (m_Fault == Fault::Throws)
        throw std::runtime_error(m_Broken);
    return true;
}

void FaultyHost::PrintLine(const char* format, ...)
{
    char line[4096];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof(line), format, arguments);
    va_end(arguments);
    if (!Fails("PrintLine"))
        TestHost::PrintLine("%s", line);
}

HostScript* FaultyHost::GetCurrentScript()
{
    return Fails("GetCurrentScript") ? nullptr : TestHost::GetCurrentScript();
}

void FaultyHost::AddCommand(const char* name, CommandHandler handler, int parse, int hidden)
{
    if (!Fails("AddCommand"))
        TestHost::AddCommand(name, handler, parse, hidden);
}

void FaultyHost::RemoveCommand(const char* name)
{
    if (!Fails("RemoveCommand"))
        TestHost::RemoveCommand(name);
}

int FaultyHost::ExecuteCommand(const char* text)
{
    return Fails("ExecuteCommand") ? 0 : TestHost::ExecuteCommand(text);
}

int FaultyHost::DataParse(const char* text, char* output, u32 size)
{
    return Fails("DataParse") ? 0 : TestHost::DataParse(text, output, size);
}

void FaultyHost::AddTopLevelObject(const char* name, TopLevelObjectHandler handler)
{
    if (!Fails("AddTopLevelObject"))
        TestHost::AddTopLevelObject(name, handler);
}

void FaultyHost::RemoveTopLevelObject(const char* name)
{
    if (!Fails("RemoveTopLevelObject"))
        TestHost::RemoveTopLevelObject(name);
}

void FaultyHost::AddType(MvTypeDefinition* type)
{
    if (!Fails("AddType"))
        TestHost::AddType(type);
}

void FaultyHost::RemoveType(MvTypeDefinition* type)
{
    if (!Fails("RemoveType"))
        TestHost::RemoveType(type);
}

MvTypeDefinition* FaultyHost::FindType(const char* name)
{
    return Fails("FindType") ? nullptr : TestHost::FindType(name);
}

void FaultyHost::InvalidateTransientObject(u32 classID, void* object)
{
    if (!Fails("InvalidateTransientObject"))
        TestHost::InvalidateTransientObject(classID, object);
}

u32 FaultyHost::RegisterTransientClass(const char* name)
{
    return Fails("RegisterTransientClass") ? 0 : TestHost::RegisterTransientClass(name);
}

const char* FaultyHost::CompleteCommandLine(const char* text, bool shift)
{
    return Fails("CompleteCommandLine") ? nullptr : TestHost::CompleteCommandLine(text, shift);
}

bool FaultyHost::Calculate(const char* text, double& result)
{
    return Fails("Calculate") ? false : TestHost::Calculate(text, result);
}

HostScriptInterface* FaultyHost::GetScriptInterface()
{
    return Fails("GetScriptInterface") ? nullptr : TestHost::GetScriptInterface();
}

u32 FaultyHost::CompileAtom(const char* source, u32 length)
{
    return Fails("CompileAtom") ? 0 : TestHost::CompileAtom(source, length);
}

void FaultyHost::ReleaseAtom(u32 atom)
{
    if (!Fails("ReleaseAtom"))
        TestHost::ReleaseAtom(atom);
}

int FaultyHost::ExecuteAtomForText(
    u32 atom, int argc, char** argv, _MvTypeVar* self, u32 unused, char* output, u32 size)
{
    return Fails("ExecuteAtomForText") ? 0 : TestHost::ExecuteAtomForText(atom, argc, argv, self, unused, output, size);
}

int FaultyHost::ExecuteAtom(u32 atom, u32 unused, int argc, char** argv, _MvTypeVar* self)
{
    return Fails("ExecuteAtom") ? 0 : TestHost::ExecuteAtom(atom, unused, argc, argv, self);
}

u32 FaultyHost::FindAtom(const char* name)
{
    return Fails("FindAtom") ? 0 : TestHost::FindAtom(name);
}

u32 FaultyHost::PreParseSequence(const char* text, u32 keep)
{
    return Fails("PreParseSequence") ? 0 : TestHost::PreParseSequence(text, keep);
}

bool FaultyHost::RetrieveOriginalText(u32 sequence, char* buffer, u32 size)
{
    return Fails("RetrieveOriginalText") ? false : TestHost::RetrieveOriginalText(sequence, buffer, size);
}

bool FaultyHost::RetrieveProcessedText(u32 sequence, char* buffer, u32 size)
{
    return Fails("RetrieveProcessedText") ? false : TestHost::RetrieveProcessedText(sequence, buffer, size);
}

bool FaultyHost::RetrieveProcessedResult(u32 sequence, _MvTypeVar& result)
{
    return Fails("RetrieveProcessedResult") ? false : TestHost::RetrieveProcessedResult(sequence, result);
}

void FaultyHost::FreeSequence(u32 sequence)
{
    if (!Fails("FreeSequence"))
        TestHost::FreeSequence(sequence);
}

u32 FaultyHost::RegisterObjectClass(const char* name)
{
    return Fails("RegisterObjectClass") ? 0 : TestHost::RegisterObjectClass(name);
}

void FaultyHost::InvalidateObject(u32 classID, void* object)
{
    if (!Fails("InvalidateObject"))
        TestHost::InvalidateObject(classID, object);
}

void FaultyHost::SetTypeObjectClass(MvTypeDefinition* type, u32 classID)
{
    if (!Fails("SetTypeObjectClass"))
        TestHost::SetTypeObjectClass(type, classID);
}

bool FaultyHost::FindResourceFile(const char* name, char* path)
{
    return Fails("FindResourceFile") ? false : TestHost::FindResourceFile(name, path);
}

bool FaultyHost::LocateFile(const char* name, char* path)
{
    return Fails("LocateFile") ? false : TestHost::LocateFile(name, path);
}

bool FaultyHost::OpenClipboard()
{
    return Fails("OpenClipboard") ? false : TestHost::OpenClipboard();
}

void FaultyHost::SaveElementPosition(TeskElement* element)
{
    if (!Fails("SaveElementPosition"))
        TestHost::SaveElementPosition(element);
}

void FaultyHost::LoadElementPosition(TeskElement* element)
{
    if (!Fails("LoadElementPosition"))
        TestHost::LoadElementPosition(element);
}

bool FaultyHost::GetKeyName(u32 key, char* buffer, u32 size)
{
    return Fails("GetKeyName") ? false : TestHost::GetKeyName(key, buffer, size);
}

void FaultyHost::GetOutputConsole(char* buffer, u32 size)
{
    if (!Fails("GetOutputConsole"))
        TestHost::GetOutputConsole(buffer, size);
}

void FaultyHost::SetOutputConsole(const char* name)
{
    if (!Fails("SetOutputConsole"))
        TestHost::SetOutputConsole(name);
}

void FaultyHost::DrawRect(const tagRECT& rect, u32 color)
{
    if (!Fails("DrawRect"))
        TestHost::DrawRect(rect, color);
}

bool FaultyHost::DrawTexturedRect(const TeskDrawRecord& record)
{
    return Fails("DrawTexturedRect") ? false : TestHost::DrawTexturedRect(record);
}

bool FaultyHost::DrawTexturedRects(u32 count, const TeskDrawRecord* records)
{
    return Fails("DrawTexturedRects") ? false : TestHost::DrawTexturedRects(count, records);
}

bool FaultyHost::DrawLine(const TeskDrawRecord& record, u32 width)
{
    return Fails("DrawLine") ? false : TestHost::DrawLine(record, width);
}

u32 FaultyHost::CreateFontResource(const char* name, u8 height, bool fixed, bool bold)
{
    return Fails("CreateFontResource") ? 0 : TestHost::CreateFontResource(name, height, fixed, bold);
}

void FaultyHost::ReleaseFontResource(u32 font)
{
    if (!Fails("ReleaseFontResource"))
        TestHost::ReleaseFontResource(font);
}

u32 FaultyHost::DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format)
{
    return Fails("DrawText") ? 0 : TestHost::DrawText(font, text, box, color, format);
}

void FaultyHost::MeasureText(u32 font, const char* text, int& width)
{
    if (!Fails("MeasureText"))
        TestHost::MeasureText(font, text, width);
}

bool FaultyHost::GetGlyphMetrics(u32 font, u32 first, u32 last, float* before, float* glyph, float* after)
{
    return Fails("GetGlyphMetrics") ? false : TestHost::GetGlyphMetrics(font, first, last, before, glyph, after);
}

bool FaultyHost::GetDisplaySize(int& width, int& height)
{
    return Fails("GetDisplaySize") ? false : TestHost::GetDisplaySize(width, height);
}

u32 FaultyHost::LoadTextureResource(const char* path, u32 colorKey)
{
    return Fails("LoadTextureResource") ? 0 : TestHost::LoadTextureResource(path, colorKey);
}

bool FaultyHost::GetTextureResourceSize(u32 texture, _Point2i& size)
{
    return Fails("GetTextureResourceSize") ? false : TestHost::GetTextureResourceSize(texture, size);
}

void FaultyHost::ReleaseTextureResource(u32 texture)
{
    if (!Fails("ReleaseTextureResource"))
        TestHost::ReleaseTextureResource(texture);
}
