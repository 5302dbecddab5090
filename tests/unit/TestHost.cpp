#include "tests/unit/TestHost.h"

#include "teskara/core/BoundedText.h"
#include "teskara/element/TeskElement.h"
#include "teskara/script/MvTypeVar.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string_view>

namespace {

// Takes the body out of "atom auto(ARGUMENTS)\n{\nBODY\n}\n".
std::string BodyOf(const std::string& source)
{
    const std::size_t begin = source.find("\n{\n") + 3;
    return source.substr(begin, source.rfind("\n}\n") - begin);
}

void CopyText(std::string_view text, char* output, u32 size)
{
    const std::size_t length = std::min<std::size_t>(text.size(), size - 1);
    std::memcpy(output, text.data(), length);
    output[length] = 0;
}

std::string RectText(const tagRECT& rect)
{
    return "(" + std::to_string(rect.left) + "," + std::to_string(rect.top) + "," + std::to_string(rect.right) + ","
        + std::to_string(rect.bottom) + ")";
}

std::string PictureText(const TeskDrawRecord& record)
{
    char rest[128];
    std::snprintf(rest, sizeof(rest), " flags=%u alpha=%u orientation=%u mask=%08x", record.Flags, record.Alpha,
        record.Orientation, record.ColorMask);
    return "texture " + std::to_string(record.TextureID) + " to=" + RectText(record.Destination)
        + " from=" + RectText(record.Source) + rest;
}

bool FindPath(const std::map<std::string, std::string>& paths, const char* name, char* path)
{
    const auto entry = paths.find(name);
    if (entry == paths.end())
        return false;

    std::strcpy(path, entry->second.c_str());
    return true;
}

} // namespace

void TestHost::Record(unsigned group, const char* format, ...)
{
    if (!(Recorded & group))
        return;

    char line[4096];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof(line), format, arguments);
    va_end(arguments);
    Calls.push_back(line);
}

std::string TestHost::TakeCalls()
{
    std::string all;
    for (const std::string& call : Calls)
        all += call + "\n";
    Calls.clear();
    return all;
}

int TestHost::DataParse(const char* text, char* output, u32 size)
{
    Record(RecordSequences, "DataParse \"%s\"", text);
    if (Expand)
        CopyText(Expand(text), output, size);
    else
        CopyText(text, output, size);
    return 1;
}

u32 TestHost::PreParseSequence(const char* text, u32 keep)
{
    const u32 sequence = RefusesSequences ? 0 : ++m_LastSequence;
    Record(RecordSequences, "PreParseSequence \"%s\" keep=%u -> %u", text, keep, sequence);
    if (sequence != 0)
        m_Sequences[sequence] = text;
    return sequence;
}

bool TestHost::RetrieveOriginalText(u32 sequence, char* buffer, u32 size)
{
    Record(RecordSequences, "RetrieveOriginalText %u", sequence);
    const auto text = m_Sequences.find(sequence);
    if (RefusesValues || text == m_Sequences.end())
        return false;

    CopyText(text->second, buffer, size);
    return true;
}

bool TestHost::RetrieveProcessedText(u32 sequence, char* buffer, u32 size)
{
    Record(RecordSequences, "RetrieveProcessedText %u size=%u", sequence, size);
    const auto text = m_Sequences.find(sequence);
    if (RefusesValues || text == m_Sequences.end())
        return false;

    const std::string source = text->second; // which may be freed meanwhile
    CopyText(Expand ? Expand(source) : source, buffer, size);
    return true;
}

void TestHost::FreeSequence(u32 sequence)
{
    Record(RecordSequences, "FreeSequence %u", sequence);
    m_Sequences.erase(sequence);
}

const char* TestHost::CompleteCommandLine(const char* text, bool shift)
{
    if (!Complete)
        return nullptr;

    m_Completed = Complete(text, shift);
    return m_Completed.c_str();
}

int TestHost::ExecuteCommand(const char* text)
{
    Record(RecordCommands, "ExecuteCommand \"%s\"", text);
    const auto command = Commands.find(text);
    if (command == Commands.end())
        return -1;

    command->second();
    return 0;
}

bool TestHost::Calculate(const char* text, double& result)
{
    Record(RecordSequences, "Calculate \"%s\"", text);
    const auto value = Values.find(text);
    const bool hasValue = value != Values.end();
    if (hasValue)
        result = value->second;
    if (OnCalculate)
        OnCalculate();
    return hasValue;
}

void TestHost::GetOutputConsole(char* buffer, u32 size)
{
    Record(RecordCommands, "GetOutputConsole size=%u", size);
    CopyText(Console, buffer, size);
}

void TestHost::SetOutputConsole(const char* name)
{
    Record(RecordCommands, "SetOutputConsole \"%s\"", name);
    Console = name;
    if (OnConsole)
        OnConsole(Console);
}

void TestHost::PrintLine(const char* format, ...)
{
    char line[4096];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof(line), format, arguments);
    va_end(arguments);
    Calls.push_back("PrintLine \"" + std::string(line) + "\"");
}

u32 TestHost::CompileAtom(const char* source, u32 length)
{
    const std::string text(source, length);
    Record(RecordScripts, "CompileAtom \"%s\"", text.c_str());
    if (RefusesScripts)
        return 0;

    m_Atoms[++m_LastAtom] = BodyOf(text);
    return m_LastAtom;
}

void TestHost::ReleaseAtom(u32 atom)
{
    Record(RecordScripts, "ReleaseAtom %u", atom);
    m_Atoms.erase(atom);
}

int TestHost::ExecuteAtom(u32 atom, u32, int argc, char** argv, _MvTypeVar* self)
{
    ScriptArguments.assign(argv, argv + argc);
    const auto script = Scripts.find(m_Atoms[atom]);
    if (script != Scripts.end() && self)
        script->second(*static_cast<TeskElement*>(self->Value.Object));
    return 0;
}

// Atoms that have names are numbered by their place in the map, from the top of all numbers down.
u32 TestHost::FindAtom(const char* name)
{
    const auto script = NamedScripts.find(name);
    return script == NamedScripts.end() ? 0 : ~static_cast<u32>(std::distance(NamedScripts.begin(), script));
}

int TestHost::ExecuteAtomForText(u32 atom, int argc, char** argv, _MvTypeVar*, u32, char* output, u32 size)
{
    const auto script = std::next(NamedScripts.begin(), static_cast<std::ptrdiff_t>(~atom));
    CopyBounded(output, size, script->second({argv, argv + argc}));
    return 1;
}

bool TestHost::FindResourceFile(const char* name, char* path)
{
    return FindPath(FoundResources, name, path);
}

bool TestHost::LocateFile(const char* name, char* path)
{
    if (OnLocateFile)
        OnLocateFile();
    return FindPath(Located, name, path);
}

void TestHost::LoadElementPosition(TeskElement* element)
{
    if (RestorePosition)
        RestorePosition(*element);
}

void TestHost::SaveElementPosition(TeskElement* element)
{
    if (KeepPosition)
        KeepPosition(*element);
}

bool TestHost::GetKeyName(u32 key, char* name, u32 size)
{
    if (NamesKeys)
        CopyText(std::string(1, static_cast<char>(key)), name, size);
    return NamesKeys;
}

void TestHost::DrawRect(const tagRECT& rect, u32 color)
{
    if (Recorded & RecordDrawing)
        Record(RecordDrawing, "DrawRect %s %08x", RectText(rect).c_str(), color);
}

bool TestHost::DrawTexturedRect(const TeskDrawRecord& record)
{
    if (Recorded & RecordDrawing)
        Record(RecordDrawing, "DrawTexturedRect %s", PictureText(record).c_str());
    return !RefusesDrawing;
}

bool TestHost::DrawTexturedRects(u32 count, const TeskDrawRecord* records)
{
    if (Recorded & RecordDrawing) {
        Record(RecordDrawing, "DrawTexturedRects %u", count);
        for (u32 index = 0; index < count; ++index)
            Record(RecordDrawing, "- %s", PictureText(records[index]).c_str());
    }
    return !RefusesDrawing;
}

bool TestHost::DrawLine(const TeskDrawRecord& record, u32 width)
{
    if (Recorded & RecordDrawing)
        Record(RecordDrawing, "DrawLine (%d,%d)-(%d,%d) width=%u texture %u flags=%u alpha=%u orientation=%u mask=%08x",
            record.Destination.left, record.Destination.top, record.Destination.right, record.Destination.bottom, width,
            record.TextureID, record.Flags, record.Alpha, record.Orientation, record.ColorMask);
    return !RefusesDrawing;
}

u32 TestHost::CreateFontResource(const char* name, u8 height, bool fixed, bool bold)
{
    const u32 font = RefusesFonts ? 0 : ++m_LastFont;
    Record(RecordResources, "CreateFontResource \"%s\" %u%s%s -> %u", name, height, fixed ? " fixed" : "",
        bold ? " bold" : "", font);
    return font;
}

void TestHost::ReleaseFontResource(u32 font)
{
    Record(RecordResources, "ReleaseFontResource %u", font);
}

u32 TestHost::DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format)
{
    if (Recorded & RecordDrawing)
        Record(RecordDrawing, "DrawText \"%s\" %s %08x format=%u font %u", text, RectText(box).c_str(), color, format,
            font);
    return static_cast<u32>(WidthOf(text));
}

float TestHost::WidthOf(char byte) const
{
    const auto width = Widths.find(byte);
    return width == Widths.end() ? 6.0f : width->second;
}

int TestHost::WidthOf(const char* text) const
{
    float width = 0;
    for (; *text; ++text)
        width += WidthOf(*text);
    return static_cast<int>(static_cast<i64>(width)); // beyond its range an int keeps the low bits
}

void TestHost::MeasureText(u32 font, const char* text, int& width)
{
    if (Recorded & RecordMeasures)
        Record(RecordMeasures, "MeasureText %u \"%s\"", font, text);
    if (!RefusesMeasures)
        width = WidthOf(text);
}

bool TestHost::GetGlyphMetrics(u32, u32 first, u32, float* before, float* glyph, float* after)
{
    if (RefusesMeasures)
        return false;

    *before = GlyphMargin;
    *glyph = WidthOf(static_cast<char>(first));
    *after = GlyphMargin;
    return true;
}

bool TestHost::GetDisplaySize(int& width, int& height)
{
    width = 800;
    height = 600;
    return true;
}

u32 TestHost::LoadTextureResource(const char* path, u32 colorKey)
{
    const u32 texture = RefusesImages ? 0 : ++m_LastTexture;
    Record(RecordResources, "LoadTextureResource \"%s\" %08x -> %u", path, colorKey, texture);
    return texture;
}

bool TestHost::GetTextureResourceSize(u32 texture, _Point2i& size)
{
    Record(RecordResources, "GetTextureResourceSize %u", texture);
    if (RefusesImageSizes)
        return false;

    size = {64, 64};
    return true;
}

void TestHost::ReleaseTextureResource(u32 texture)
{
    Record(RecordResources, "ReleaseTextureResource %u", texture);
}

int TestPlatform::ToAscii(u32 key, const u8*, char* characters)
{
    const auto text = KeyTexts.find(key);
    if (text == KeyTexts.end())
        return 0;

    std::copy(text->second.begin(), text->second.end(), characters);
    return static_cast<int>(text->second.size());
}

bool TestPlatform::EmptyClipboard()
{
    Clipboard.reset();
    return ClipboardIsOpen;
}

bool TestPlatform::SetClipboardText(const std::string& text)
{
    Clipboard = text;
    return ClipboardIsOpen;
}

bool TestPlatform::GetClipboardText(std::string& text)
{
    text = Clipboard.value_or("");
    return ClipboardIsOpen && Clipboard;
}
