#include "host/ReferenceHost.h"

#include "host/ConsoleCommands.h"
#include "host/display/KeyCodes.h"
#include "host/files/WholeFile.h"
#include "host/record/ToolkitCalls.h"
#include "host/script/MarkupFunctions.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/text/TeskCommandEntry.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string_view>

namespace host {

namespace {

// What the toolkit gives for a path, with its end.
constexpr std::size_t PathSize = 4096;

// The end of the toolkit's line about a script that does not compile. The name of the event stands before it.
constexpr std::string_view NotCompiled = " embedded script failed to load";

// What warnings of the toolkit begin with.
constexpr std::string_view WarningStart = "WARNING:";

bool WritePath(const std::optional<std::string>& found, char* path)
{
    if (!found || found->size() >= PathSize)
        return false;

    std::memcpy(path, found->c_str(), found->size() + 1);
    return true;
}

// Whether the line comes from the field that the user types in.
bool IsTyped(const char* line)
{
    const TeskElement* focus = g_UIManager.FindElementByID(g_UIManager.FocusElementID);
    const auto* entry = dynamic_cast<const TeskCommandEntry*>(focus);
    return entry && std::strcmp(entry->Text.From(0), line) == 0;
}

} // namespace

ReferenceHost::ReferenceHost(SDL_Renderer* renderer, const std::filesystem::path& positions, ScriptTrust trust)
    : m_Canvas(renderer), m_Positions(positions, m_Console), m_Scripts(m_Console, trust)
{
    m_Console.ShowOn([this](const std::string& line, LineWeight weight) { m_Overlay.Print(line, weight); });
    AddConsoleCommands(m_Scripts.Commands, m_Console);
    m_Scripts.Globals.Add([this](lua_State* thread) { AddMarkupFunctions(thread, m_Files); });
    m_Scripts.Commands.Add("run", [this](int argc, char** argv) { return RunScriptFile(argc, argv); });
}

LentThings ReferenceHost::Lent() const
{
    return {m_Canvas.Fonts().Acquired(), m_Canvas.Textures().Acquired(), m_Scripts.Scripts.Count(),
        m_Scripts.Sequences.Count()};
}

void ReferenceHost::BeginFrame(const FrameState& state, float scale)
{
    m_Overlay.ShowKept();
    m_Frame = state;
    m_Scripts.BeginFrame(state);
    m_Canvas.BeginFrame(state.Width, state.Height, scale);
}

bool ReferenceHost::EndFrame()
{
    m_Positions.Save();
    return m_Canvas.EndFrame();
}

HostScript* ReferenceHost::GetCurrentScript()
{
    return m_Scripts.Tasks.Current();
}

void ReferenceHost::AddCommand(const char* name, CommandHandler handler, int, int)
{
    m_Scripts.Commands.Add(name, [name = std::string(name), handler](int argc, char** argv) {
        return Toolkit::RunCommand(name.c_str(), handler, argc, argv);
    });
}

void ReferenceHost::RemoveCommand(const char* name)
{
    m_Scripts.Commands.Remove(name);
}

int ReferenceHost::ExecuteCommand(const char* text)
{
    if (!IsTyped(text))
        return m_Scripts.ExecuteCommand(text);

    // What comes of it stands below the line, and needs no other subject.
    const std::string line = text;
    if (!m_History.Add(line))
        m_Console.Warn("Could not store the commands that were typed");
    m_Overlay.Print("\at> " + line, LineWeight::Plain);
    const std::string nothing;
    const TrailStep step(m_Console.Trail(), nothing);
    return m_Scripts.ExecuteCommand(line.c_str());
}

int ReferenceHost::DataParse(const char* text, char* output, u32 size)
{
    m_Scripts.Sequences.Expand(text, output, size);
    return 0;
}

void ReferenceHost::AddTopLevelObject(const char* name, TopLevelObjectHandler handler)
{
    m_Scripts.AddTopLevelObject(name, handler);
}

void ReferenceHost::RemoveTopLevelObject(const char* name)
{
    m_Scripts.RemoveTopLevelObject(name);
}

void ReferenceHost::AddType(MvTypeDefinition* type)
{
    m_Scripts.Types.Add(type);
}

void ReferenceHost::RemoveType(MvTypeDefinition* type)
{
    m_Scripts.RemoveType(type);
}

MvTypeDefinition* ReferenceHost::FindType(const char* name)
{
    return m_Scripts.Types.FindOwn(name);
}

void ReferenceHost::InvalidateTransientObject(u32, void* object)
{
    m_Scripts.Invalidate(object);
}

u32 ReferenceHost::RegisterTransientClass(const char*)
{
    return ++m_LastClass;
}

const char* ReferenceHost::CompleteCommandLine(const char* text, bool shift)
{
    const std::string* line = m_Completion.Complete(text, shift);
    return line ? line->c_str() : nullptr;
}

bool ReferenceHost::Calculate(const char* text, double& result)
{
    return m_Scripts.Calculate(text, result);
}

void ReferenceHost::PrintLine(const char* format, ...)
{
    char line[8192];
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);

    // What does not compile is told of in one line, of which the toolkit knows the event.
    const std::string_view text = line;
    const bool isRefusal =
        text.ends_with(NotCompiled) && m_Scripts.Scripts.SayRefusal(text.substr(0, text.size() - NotCompiled.size()));
    if (!isRefusal)
        m_Console.PrintText(line, text.starts_with(WarningStart) ? LineWeight::Warning : LineWeight::Plain);
}

HostScriptInterface* ReferenceHost::GetScriptInterface()
{
    return &m_Scripts;
}

u32 ReferenceHost::CompileAtom(const char* source, u32 length)
{
    return m_Scripts.Scripts.Compile({source, length});
}

void ReferenceHost::ReleaseAtom(u32 atom)
{
    m_Scripts.Scripts.Release(atom);
}

int ReferenceHost::ExecuteAtomForText(u32 atom, int argc, char** argv, _MvTypeVar* self, u32, char* output, u32 size)
{
    std::string text;
    const bool ran = m_Scripts.Scripts.Run(atom, argc, argv, self, nullptr, &text);
    std::snprintf(output, size, "%s", text.c_str());
    return ran ? 0 : -1;
}

int ReferenceHost::ExecuteAtom(u32 atom, u32, int argc, char** argv, _MvTypeVar* self)
{
    const auto* element = self ? static_cast<const TeskElement*>(self->Value.Object) : nullptr;
    return m_Scripts.Scripts.Run(atom, argc, argv, self, element, nullptr) ? 0 : -1;
}

u32 ReferenceHost::FindAtom(const char* name)
{
    return m_Scripts.Scripts.Find(name);
}

u32 ReferenceHost::PreParseSequence(const char* text, u32)
{
    return m_Scripts.Sequences.Keep(text, std::filesystem::path(g_UIManager.CurrentFile).filename().string());
}

bool ReferenceHost::RetrieveOriginalText(u32 sequence, char* buffer, u32 size)
{
    return m_Scripts.Sequences.WriteOriginal(sequence, buffer, size);
}

bool ReferenceHost::RetrieveProcessedText(u32 sequence, char* buffer, u32 size)
{
    return m_Scripts.Sequences.WriteProcessed(sequence, buffer, size);
}

bool ReferenceHost::RetrieveProcessedResult(u32 sequence, _MvTypeVar& result)
{
    return m_Scripts.RetrieveResult(sequence, result);
}

void ReferenceHost::FreeSequence(u32 sequence)
{
    m_Scripts.Sequences.Free(sequence);
}

u32 ReferenceHost::RegisterObjectClass(const char*)
{
    return ++m_LastClass;
}

void ReferenceHost::InvalidateObject(u32, void* object)
{
    m_Scripts.Invalidate(object);
}

void ReferenceHost::SetTypeObjectClass(MvTypeDefinition*, u32) { }

bool ReferenceHost::FindResourceFile(const char* name, char* path)
{
    if (WritePath(m_Paths.FindResource(name), path))
        return true;

    m_Console.Warn("Could not find image %s", name);
    return false;
}

bool ReferenceHost::LocateFile(const char* name, char* path)
{
    if (!WritePath(m_Paths.FindInterface(name), path))
        return false;

    m_Files.NoteInterface(path);
    m_Console.Trail().NoteFile(name);
    return true;
}

bool ReferenceHost::OpenClipboard()
{
    return true;
}

void ReferenceHost::SaveElementPosition(TeskElement* element)
{
    StoredPositions::Position position;
    if (element->GetStoragePosition(position.X, position.Y, position.Width, position.Height))
        m_Positions.Store(element->FullName, position);
}

void ReferenceHost::LoadElementPosition(TeskElement* element)
{
    const StoredPositions::Position* position = m_Positions.Find(element->FullName);
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
    std::snprintf(buffer, size, "%s", m_Overlay.Selected().c_str());
}

void ReferenceHost::SetOutputConsole(const char* name)
{
    m_Overlay.Select(name ? name : "");
}

// run FILE
int ReferenceHost::RunScriptFile(int argc, char** argv)
{
    if (argc < 2) {
        m_Console.Print("Syntax: %s <file>", argv[0]);
        return 0;
    }
    const std::filesystem::path name = argv[1];
    const auto path = name.extension() == ".lua" ? m_Paths.FindInterface(argv[1]) : std::nullopt;
    const auto text = path ? ReadWholeFile(*path) : std::nullopt;
    if (!text) {
        m_Console.Warn("Could not run script '%s'", argv[1]);
        return -1;
    }
    return m_Scripts.Tasks.Start(name.filename().string(), *text) ? 0 : -1;
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
    if (path && *path)
        m_Files.NoteImage(path);
    if (!why.empty())
        m_Console.Warn("Could not load image %s: %s", path, why.c_str());
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
