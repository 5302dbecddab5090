#include "host/record/BoundaryHost.h"

#include "host/record/Boundary.h"
#include "teskara/element/TeskElement.h"

#include <cstdarg>
#include <cstdio>

namespace host {

namespace {

constexpr u32 PathSize = 4096; // what the toolkit gives for a path

const void* AddressOf(const TeskElement* element)
{
    return element;
}

} // namespace

HostScript* BoundaryHost::GetCurrentScript()
{
    u32 number = 0;
    m_Boundary.Cross(
        Operation::GetCurrentScript, {Out(number)}, [&] { number = m_Scripts.NumberOf(m_Inner->GetCurrentScript()); });
    return m_Scripts.At(number);
}

void BoundaryHost::AddCommand(const char* name, CommandHandler handler, int parse, int hidden)
{
    m_Boundary.Names().AddCommand(name, handler);
    m_Boundary.Cross(Operation::AddCommand, {In(name), In(parse), In(hidden)},
        [&] { m_Inner->AddCommand(name, handler, parse, hidden); });
}

void BoundaryHost::RemoveCommand(const char* name)
{
    m_Boundary.Cross(Operation::RemoveCommand, {In(name)}, [&] { m_Inner->RemoveCommand(name); });
}

int BoundaryHost::ExecuteCommand(const char* text)
{
    int result = 0;
    m_Boundary.Cross(
        Operation::ExecuteCommand, {In(text), Out(result)}, [&] { result = m_Inner->ExecuteCommand(text); });
    return result;
}

int BoundaryHost::DataParse(const char* text, char* output, u32 size)
{
    int result = 0;
    TextBuffer expanded{output, size};
    m_Boundary.Cross(Operation::DataParse, {In(text), In(size), Out(expanded), Out(result)},
        [&] { result = m_Inner->DataParse(text, output, size); });
    return result;
}

void BoundaryHost::AddTopLevelObject(const char* name, TopLevelObjectHandler handler)
{
    m_Boundary.Names().AddTopLevelObject(name, handler);
    m_Boundary.Cross(Operation::AddTopLevelObject, {In(name)}, [&] { m_Inner->AddTopLevelObject(name, handler); });
}

void BoundaryHost::RemoveTopLevelObject(const char* name)
{
    m_Boundary.Cross(Operation::RemoveTopLevelObject, {In(name)}, [&] { m_Inner->RemoveTopLevelObject(name); });
}

void BoundaryHost::AddType(MvTypeDefinition* type)
{
    m_Boundary.Names().AddType(type);
    m_Boundary.Cross(Operation::AddType, {In(type)}, [&] { m_Inner->AddType(type); });
}

void BoundaryHost::RemoveType(MvTypeDefinition* type)
{
    m_Boundary.Cross(Operation::RemoveType, {In(type)}, [&] { m_Inner->RemoveType(type); });
    m_Boundary.Names().RemoveType(type);
}

MvTypeDefinition* BoundaryHost::FindType(const char* name)
{
    MvTypeDefinition* type = nullptr;
    m_Boundary.Cross(Operation::FindType, {In(name), Out(type)}, [&] { type = m_Inner->FindType(name); });
    return type;
}

void BoundaryHost::InvalidateTransientObject(u32 classID, void* object)
{
    const void* address = object;
    m_Boundary.Cross(Operation::InvalidateTransientObject, {In(classID), In(address)},
        [&] { m_Inner->InvalidateTransientObject(classID, object); });
    m_Boundary.Names().Forget(object);
}

u32 BoundaryHost::RegisterTransientClass(const char* name)
{
    u32 id = 0;
    m_Boundary.Cross(
        Operation::RegisterTransientClass, {In(name), Out(id)}, [&] { id = m_Inner->RegisterTransientClass(name); });
    return id;
}

const char* BoundaryHost::CompleteCommandLine(const char* text, bool shift)
{
    const char* completed = nullptr;
    m_Boundary.Cross(Operation::CompleteCommandLine, {In(text), In(shift), Out(completed)},
        [&] { completed = m_Inner->CompleteCommandLine(text, shift); });
    return completed;
}

bool BoundaryHost::Calculate(const char* text, double& result)
{
    bool isNumber = false;
    m_Boundary.Cross(Operation::Calculate, {In(text), Out(result), Out(isNumber)},
        [&] { isNumber = m_Inner->Calculate(text, result); });
    return isNumber;
}

void BoundaryHost::PrintLine(const char* format, ...)
{
    char line[8192];
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    const char* text = line;
    m_Boundary.Cross(Operation::PrintLine, {In(text)}, [&] { m_Inner->PrintLine("%s", line); });
}

HostScriptInterface* BoundaryHost::GetScriptInterface()
{
    bool isThere = false;
    m_Boundary.Cross(Operation::GetScriptInterface, {Out(isThere)}, [&] {
        HostScriptInterface* inner = m_Inner->GetScriptInterface();
        m_ScriptTable.SetInner(inner);
        isThere = inner;
    });
    return isThere ? &m_ScriptTable : nullptr;
}

u32 BoundaryHost::CompileAtom(const char* source, u32 length)
{
    const std::string text(source, length);
    u32 atom = 0;
    m_Boundary.Cross(
        Operation::CompileAtom, {In(text), Out(atom)}, [&] { atom = m_Inner->CompileAtom(source, length); });
    return atom;
}

void BoundaryHost::ReleaseAtom(u32 atom)
{
    m_Boundary.Cross(Operation::ReleaseAtom, {In(atom)}, [&] { m_Inner->ReleaseAtom(atom); });
}

int BoundaryHost::ExecuteAtomForText(
    u32 atom, int argc, char** argv, _MvTypeVar* self, u32 unused, char* output, u32 size)
{
    const TextList arguments{argc, argv};
    const HeldValue object{self ? *self : _MvTypeVar()};
    TextBuffer text{output, size};
    int result = 0;
    m_Boundary.Cross(Operation::ExecuteAtomForText,
        {In(atom), In(arguments), In(object), In(unused), In(size), Out(text), Out(result)},
        [&] { result = m_Inner->ExecuteAtomForText(atom, argc, argv, self, unused, output, size); });
    return result;
}

int BoundaryHost::ExecuteAtom(u32 atom, u32 unused, int argc, char** argv, _MvTypeVar* self)
{
    const TextList arguments{argc, argv};
    const HeldValue object{self ? *self : _MvTypeVar()};
    int result = 0;
    m_Boundary.Cross(Operation::ExecuteAtom, {In(atom), In(unused), In(arguments), In(object), Out(result)},
        [&] { result = m_Inner->ExecuteAtom(atom, unused, argc, argv, self); });
    return result;
}

u32 BoundaryHost::FindAtom(const char* name)
{
    u32 atom = 0;
    m_Boundary.Cross(Operation::FindAtom, {In(name), Out(atom)}, [&] { atom = m_Inner->FindAtom(name); });
    return atom;
}

u32 BoundaryHost::PreParseSequence(const char* text, u32 keep)
{
    u32 sequence = 0;
    m_Boundary.Cross(Operation::PreParseSequence, {In(text), In(keep), Out(sequence)},
        [&] { sequence = m_Inner->PreParseSequence(text, keep); });
    return sequence;
}

bool BoundaryHost::RetrieveOriginalText(u32 sequence, char* buffer, u32 size)
{
    bool isText = false;
    TextBuffer text{buffer, size};
    m_Boundary.Cross(Operation::RetrieveOriginalText, {In(sequence), In(size), Out(text), Out(isText)},
        [&] { isText = m_Inner->RetrieveOriginalText(sequence, buffer, size); });
    return isText;
}

bool BoundaryHost::RetrieveProcessedText(u32 sequence, char* buffer, u32 size)
{
    bool isText = false;
    TextBuffer text{buffer, size};
    m_Boundary.Cross(Operation::RetrieveProcessedText, {In(sequence), In(size), Out(text), Out(isText)},
        [&] { isText = m_Inner->RetrieveProcessedText(sequence, buffer, size); });
    return isText;
}

bool BoundaryHost::RetrieveProcessedResult(u32 sequence, _MvTypeVar& result)
{
    bool isValue = false;
    m_Boundary.Cross(Operation::RetrieveProcessedResult, {In(sequence), Out(result), Out(isValue)},
        [&] { isValue = m_Inner->RetrieveProcessedResult(sequence, result); });
    return isValue;
}

void BoundaryHost::FreeSequence(u32 sequence)
{
    m_Boundary.Cross(Operation::FreeSequence, {In(sequence)}, [&] { m_Inner->FreeSequence(sequence); });
}

u32 BoundaryHost::RegisterObjectClass(const char* name)
{
    u32 id = 0;
    m_Boundary.Cross(
        Operation::RegisterObjectClass, {In(name), Out(id)}, [&] { id = m_Inner->RegisterObjectClass(name); });
    return id;
}

void BoundaryHost::InvalidateObject(u32 classID, void* object)
{
    const void* address = object;
    m_Boundary.Cross(
        Operation::InvalidateObject, {In(classID), In(address)}, [&] { m_Inner->InvalidateObject(classID, object); });
    m_Boundary.Names().Forget(object);
}

void BoundaryHost::SetTypeObjectClass(MvTypeDefinition* type, u32 classID)
{
    m_Boundary.Cross(
        Operation::SetTypeObjectClass, {In(type), In(classID)}, [&] { m_Inner->SetTypeObjectClass(type, classID); });
}

bool BoundaryHost::FindResourceFile(const char* name, char* path)
{
    bool isFound = false;
    TextBuffer found{path, PathSize};
    m_Boundary.Cross(Operation::FindResourceFile, {In(name), Out(found), Out(isFound)},
        [&] { isFound = m_Inner->FindResourceFile(name, path); });
    return isFound;
}

bool BoundaryHost::LocateFile(const char* name, char* path)
{
    bool isFound = false;
    TextBuffer found{path, PathSize};
    m_Boundary.Cross(Operation::LocateFile, {In(name), Out(found), Out(isFound)},
        [&] { isFound = m_Inner->LocateFile(name, path); });
    return isFound;
}

bool BoundaryHost::OpenClipboard()
{
    bool isOpen = false;
    m_Boundary.Cross(Operation::OpenClipboard, {Out(isOpen)}, [&] { isOpen = m_Inner->OpenClipboard(); });
    return isOpen;
}

void BoundaryHost::SaveElementPosition(TeskElement* element)
{
    const void* address = AddressOf(element);
    m_Boundary.Cross(Operation::SaveElementPosition, {In(address)}, [&] { m_Inner->SaveElementPosition(element); });
}

void BoundaryHost::LoadElementPosition(TeskElement* element)
{
    const void* address = AddressOf(element);
    m_Boundary.Cross(Operation::LoadElementPosition,
        {In(address), Out(element->X), Out(element->Y), Out(element->Width), Out(element->Height)},
        [&] { m_Inner->LoadElementPosition(element); });
}

bool BoundaryHost::GetKeyName(u32 key, char* buffer, u32 size)
{
    bool isNamed = false;
    TextBuffer name{buffer, size};
    m_Boundary.Cross(Operation::GetKeyName, {In(key), In(size), Out(name), Out(isNamed)},
        [&] { isNamed = m_Inner->GetKeyName(key, buffer, size); });
    return isNamed;
}

void BoundaryHost::GetOutputConsole(char* buffer, u32 size)
{
    TextBuffer name{buffer, size};
    m_Boundary.Cross(
        Operation::GetOutputConsole, {In(size), Out(name)}, [&] { m_Inner->GetOutputConsole(buffer, size); });
}

void BoundaryHost::SetOutputConsole(const char* name)
{
    m_Boundary.Cross(Operation::SetOutputConsole, {In(name)}, [&] { m_Inner->SetOutputConsole(name); });
}

void BoundaryHost::DrawRect(const tagRECT& rect, u32 color)
{
    m_Boundary.Cross(Operation::DrawRect, {In(rect), In(color)}, [&] { m_Inner->DrawRect(rect, color); });
}

bool BoundaryHost::DrawTexturedRect(const TeskDrawRecord& record)
{
    bool isDrawn = false;
    m_Boundary.Cross(
        Operation::DrawTexturedRect, {In(record), Out(isDrawn)}, [&] { isDrawn = m_Inner->DrawTexturedRect(record); });
    return isDrawn;
}

bool BoundaryHost::DrawTexturedRects(u32 count, const TeskDrawRecord* records)
{
    const ImageList images{count, records};
    bool isDrawn = false;
    m_Boundary.Cross(Operation::DrawTexturedRects, {In(images), Out(isDrawn)},
        [&] { isDrawn = m_Inner->DrawTexturedRects(count, records); });
    return isDrawn;
}

bool BoundaryHost::DrawLine(const TeskDrawRecord& record, u32 width)
{
    bool isDrawn = false;
    m_Boundary.Cross(Operation::DrawLine, {In(record), In(width), Out(isDrawn)},
        [&] { isDrawn = m_Inner->DrawLine(record, width); });
    return isDrawn;
}

u32 BoundaryHost::CreateFontResource(const char* name, u8 height, bool fixed, bool bold)
{
    u32 font = 0;
    m_Boundary.Cross(Operation::CreateFontResource, {In(name), In(height), In(fixed), In(bold), Out(font)},
        [&] { font = m_Inner->CreateFontResource(name, height, fixed, bold); });
    return font;
}

void BoundaryHost::ReleaseFontResource(u32 font)
{
    m_Boundary.Cross(Operation::ReleaseFontResource, {In(font)}, [&] { m_Inner->ReleaseFontResource(font); });
}

u32 BoundaryHost::DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format)
{
    u32 width = 0;
    m_Boundary.Cross(Operation::DrawText, {In(font), In(text), In(box), In(color), In(format), Out(width)},
        [&] { width = m_Inner->DrawText(font, text, box, color, format); });
    return width;
}

void BoundaryHost::MeasureText(u32 font, const char* text, int& width)
{
    m_Boundary.Cross(
        Operation::MeasureText, {In(font), In(text), Out(width)}, [&] { m_Inner->MeasureText(font, text, width); });
}

bool BoundaryHost::GetGlyphMetrics(u32 font, u32 first, u32 last, float* before, float* glyph, float* after)
{
    bool isDone = false;
    m_Boundary.Cross(Operation::GetGlyphMetrics,
        {In(font), In(first), In(last), Out(*before), Out(*glyph), Out(*after), Out(isDone)},
        [&] { isDone = m_Inner->GetGlyphMetrics(font, first, last, before, glyph, after); });
    return isDone;
}

bool BoundaryHost::GetDisplaySize(int& width, int& height)
{
    bool isKnown = false;
    m_Boundary.Cross(Operation::GetDisplaySize, {Out(width), Out(height), Out(isKnown)},
        [&] { isKnown = m_Inner->GetDisplaySize(width, height); });
    return isKnown;
}

u32 BoundaryHost::LoadTextureResource(const char* path, u32 colorKey)
{
    u32 texture = 0;
    m_Boundary.Cross(Operation::LoadTextureResource, {In(path), In(colorKey), Out(texture)},
        [&] { texture = m_Inner->LoadTextureResource(path, colorKey); });
    return texture;
}

bool BoundaryHost::GetTextureResourceSize(u32 texture, _Point2i& size)
{
    bool isKnown = false;
    m_Boundary.Cross(Operation::GetTextureResourceSize, {In(texture), Out(size), Out(isKnown)},
        [&] { isKnown = m_Inner->GetTextureResourceSize(texture, size); });
    return isKnown;
}

void BoundaryHost::ReleaseTextureResource(u32 texture)
{
    m_Boundary.Cross(
        Operation::ReleaseTextureResource, {In(texture)}, [&] { m_Inner->ReleaseTextureResource(texture); });
}

} // namespace host
