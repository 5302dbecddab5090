#include "host/ReferenceHost.h"

#include "host/display/KeyCodes.h"
#include "teskara/element/TeskElement.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace host {

namespace {

// What the toolkit gives for a path, with its end.
constexpr std::size_t PathSize = 4096;

bool WritePath(const std::optional<std::string>& found, char* path)
{
    if (!found || found->size() >= PathSize)
        return false;

    std::memcpy(path, found->c_str(), found->size() + 1);
    return true;
}

} // namespace

ReferenceHost::ReferenceHost(SDL_Renderer* renderer, const std::filesystem::path& positions)
    : m_Canvas(renderer), m_Positions(positions), m_StoresPositions(!positions.empty()), m_Variables(m_Frame),
      m_Sequences(m_Variables)
{
}

void ReferenceHost::BeginFrame(const FrameState& state, float scale)
{
    m_Frame = state;
    m_Canvas.BeginFrame(state.Width, state.Height, scale);
}

HostScript* ReferenceHost::GetCurrentScript()
{
    return nullptr;
}

void ReferenceHost::AddCommand(const char* name, CommandHandler handler, int, int)
{
    m_Commands.Add(name, handler);
}

void ReferenceHost::RemoveCommand(const char* name)
{
    m_Commands.Remove(name);
}

int ReferenceHost::ExecuteCommand(const char* text)
{
    return m_Commands.Execute(text);
}

int ReferenceHost::DataParse(const char* text, char* output, u32 size)
{
    m_Sequences.Expand(text, output, size);
    return 0;
}

void ReferenceHost::AddTopLevelObject(const char*, TopLevelObjectHandler) { }

void ReferenceHost::RemoveTopLevelObject(const char*) { }

void ReferenceHost::AddType(MvTypeDefinition*) { }

void ReferenceHost::RemoveType(MvTypeDefinition*) { }

MvTypeDefinition* ReferenceHost::FindType(const char*)
{
    return nullptr;
}

void ReferenceHost::InvalidateTransientObject(u32, void*) { }

u32 ReferenceHost::RegisterTransientClass(const char*)
{
    return ++m_LastClass;
}

const char* ReferenceHost::CompleteCommandLine(const char*, bool)
{
    return nullptr;
}

bool ReferenceHost::Calculate(const char* text, double& result)
{
    return m_Scripts.Calculate(text, result);
}

void ReferenceHost::PrintLine(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    m_Console.PrintArguments(format, arguments);
    va_end(arguments);
}

HostScriptInterface* ReferenceHost::GetScriptInterface()
{
    return &m_Scripts;
}

u32 ReferenceHost::CompileAtom(const char* source, u32 length)
{
    return m_Scripts.Compile(source, length);
}

void ReferenceHost::ReleaseAtom(u32) { }

int ReferenceHost::ExecuteAtomForText(u32 atom, int argc, char** argv, _MvTypeVar* self, u32, char* output, u32 size)
{
    if (size > 0)
        output[0] = '\0';
    return m_Scripts.Execute(atom, argc, argv, self);
}

int ReferenceHost::ExecuteAtom(u32 atom, u32, int argc, char** argv, _MvTypeVar* self)
{
    return m_Scripts.Execute(atom, argc, argv, self);
}

u32 ReferenceHost::FindAtom(const char*)
{
    return 0;
}

u32 ReferenceHost::PreParseSequence(const char* text, u32)
{
    return m_Sequences.Keep(text);
}

bool ReferenceHost::RetrieveOriginalText(u32 sequence, char* buffer, u32 size)
{
    return m_Sequences.WriteOriginal(sequence, buffer, size);
}

bool ReferenceHost::RetrieveProcessedText(u32 sequence, char* buffer, u32 size)
{
    return m_Sequences.WriteProcessed(sequence, buffer, size);
}

bool ReferenceHost::RetrieveProcessedResult(u32, _MvTypeVar&)
{
    return false;
}

void ReferenceHost::FreeSequence(u32 sequence)
{
    m_Sequences.Free(sequence);
}

u32 ReferenceHost::RegisterObjectClass(const char*)
{
    return ++m_LastClass;
}

void ReferenceHost::InvalidateObject(u32, void*) { }

void ReferenceHost::SetTypeObjectClass(MvTypeDefinition*, u32) { }

bool ReferenceHost::FindResourceFile(const char* name, char* path)
{
    if (WritePath(m_Paths.FindResource(name), path))
        return true;

    m_Console.Print("Could not find image %s", name);
    return false;
}

bool ReferenceHost::LocateFile(const char* name, char* path)
{
    return WritePath(m_Paths.FindInterface(name), path);
}

bool ReferenceHost::OpenClipboard()
{
    return true;
}

void ReferenceHost::SaveElementPosition(TeskElement* element)
{
    StoredPositions::Position position;
    if (m_StoresPositions && element->GetStoragePosition(position.X, position.Y, position.Width, position.Height))
        if (!m_Positions.Store(element->FullName.c_str(), position))
            m_Console.Print("Could not store the position of %s", element->FullName.c_str());
}

void ReferenceHost::LoadElementPosition(TeskElement* element)
{
    const StoredPositions::Position* position = m_Positions.Find(element->FullName.c_str());
    if (!position)
        return;

    element->X = position->X;
    element->Y = position->Y;
    element->Width = position->Width;
    element->Height = position->Height;
}

bool ReferenceHost::GetKeyName(u32 key, char* buffer, u32 size)
{
    const char* name = NameOfKey(key);
    if (!name)
        return false;

    std::snprintf(buffer, size, "%s", name);
    return true;
}

void ReferenceHost::GetOutputConsole(char* buffer, u32 size)
{
    std::snprintf(buffer, size, "%s", m_OutputConsole.c_str());
}

void ReferenceHost::SetOutputConsole(const char* name)
{
    m_OutputConsole = name ? name : "";
}

void ReferenceHost::DrawRect(const tagRECT& rect, u32 color)
{
    m_Canvas.DrawRect(rect, color);
}

bool ReferenceHost::DrawTexturedRect(const TeskDrawRecord& record)
{
    return m_Canvas.DrawTexturedRect(record);
}

bool ReferenceHost::DrawTexturedRects(u32 count, const TeskDrawRecord* records)
{
    bool drawn = true;
    for (u32 index = 0; index < count; ++index)
        drawn = m_Canvas.DrawTexturedRect(records[index]) && drawn;
    return drawn;
}

bool ReferenceHost::DrawLine(const TeskDrawRecord& record, u32 width)
{
    return m_Canvas.DrawLine(record, width);
}

u32 ReferenceHost::CreateFontResource(const char* name, u8 height, bool fixed, bool bold)
{
    return m_Canvas.Fonts().Acquire(name, height, fixed, bold);
}

void ReferenceHost::ReleaseFontResource(u32 font)
{
    m_Canvas.Fonts().Release(font);
}

u32 ReferenceHost::DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format)
{
    return m_Canvas.DrawText(font, text, box, color, format);
}

void ReferenceHost::MeasureText(u32 font, const char* text, int& width)
{
    m_Canvas.MeasureText(font, text, width);
}

bool ReferenceHost::GetGlyphMetrics(u32 font, u32 first, u32, float* before, float* glyph, float* after)
{
    int width = 0;
    if (!m_Canvas.MeasureCharacter(font, first, width))
        return false;

    *before = 0;
    *glyph = static_cast<float>(width);
    *after = 0;
    return true;
}

bool ReferenceHost::GetDisplaySize(int& width, int& height)
{
    if (m_Frame.Width <= 0 || m_Frame.Height <= 0)
        return false;

    width = m_Frame.Width;
    height = m_Frame.Height;
    return true;
}

u32 ReferenceHost::LoadTextureResource(const char* path, u32 colorKey)
{
    std::string why;
    const u32 texture = m_Canvas.Textures().Acquire(path ? path : "", colorKey, why);
    if (!why.empty())
        m_Console.Print("Could not load image %s: %s", path, why.c_str());
    return texture;
}

bool ReferenceHost::GetTextureResourceSize(u32 texture, _Point2i& size)
{
    const Image* image = m_Canvas.Textures().Find(texture);
    if (!image)
        return false;

    size = {image->Width, image->Height};
    return true;
}

void ReferenceHost::ReleaseTextureResource(u32 texture)
{
    m_Canvas.Textures().Release(texture);
}

} // namespace host
