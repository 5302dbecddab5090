#include "tests/unit/hostile/HostileHost.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "tests/unit/hostile/Answering.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

namespace {

constexpr std::size_t PathSize = 4096;
constexpr int LetterWidth = 6;

// A full stop has no width.
int TextWidth(const char* text)
{
    const std::string_view letters = text;
    return LetterWidth
        * static_cast<int>(letters.size() - static_cast<std::size_t>(std::count(letters.begin(), letters.end(), '.')));
}

bool Say(const char* text, char* buffer, std::size_t size)
{
    CopyBounded(buffer, size, text);
    return true;
}

} // namespace

HostileHost::HostileHost() : m_Scripts(*this)
{
    Recorded = 0;
}

void HostileHost::TryCommand(std::initializer_list<const char*> line)
{
    const auto command = Commands.find(*line.begin());
    if (command == Commands.end())
        return;

    char* argv[10] = {};
    std::transform(line.begin(), line.end(), argv, [](const char* text) { return const_cast<char*>(text); });
    command->second(static_cast<int>(line.size()), argv);
}

void HostileHost::TryObject(const char* name, const char* argument)
{
    const auto object = Objects.find(name);
    if (object == Objects.end())
        return;

    char* argv[] = {const_cast<char*>(argument), nullptr};
    _MvTypeVar result;
    object->second(1, argv, result);
}

HostScript* HostileHost::GetCurrentScript()
{
    return Answering::Pointer<HostScript>(Operation::GetCurrentScript, [&] { return &Running; });
}

void HostileHost::AddCommand(const char* name, CommandHandler handler, int parse, int hidden)
{
    Answering::Nothing(Operation::AddCommand, [&] { ScriptHost::AddCommand(name, handler, parse, hidden); });
}

void HostileHost::RemoveCommand(const char* name)
{
    const Allocations::Spared spared;
    ScriptHost::RemoveCommand(name);
    Answering::Nothing(Operation::RemoveCommand, [] {});
}

int HostileHost::ExecuteCommand(const char* text)
{
    return Answering::SignedNumber(Operation::ExecuteCommand, [&] {
        char line[64];
        CopyBounded(line, sizeof(line), text);
        const auto command = Commands.find(line);
        char* argv[] = {line, nullptr};
        const Allocations::Counted counted;
        return command == Commands.end() ? -1 : command->second(1, argv);
    });
}

int HostileHost::DataParse(const char* text, char* output, u32 size)
{
    return Answering::NumberAndText(
        Operation::DataParse, output, size, [&] { return Say(text, output, size) ? 1 : 0; });
}

void HostileHost::AddTopLevelObject(const char* name, TopLevelObjectHandler handler)
{
    Answering::Nothing(Operation::AddTopLevelObject, [&] { ScriptHost::AddTopLevelObject(name, handler); });
}

void HostileHost::RemoveTopLevelObject(const char* name)
{
    const Allocations::Spared spared;
    ScriptHost::RemoveTopLevelObject(name);
    Answering::Nothing(Operation::RemoveTopLevelObject, [] {});
}

void HostileHost::AddType(MvTypeDefinition* type)
{
    Answering::Nothing(Operation::AddType, [&] {
        if (!g_UIManager.ShuttingDown) // else it has gone meanwhile
            ScriptHost::AddType(type);
    });
}

void HostileHost::RemoveType(MvTypeDefinition* type)
{
    const Allocations::Spared spared;
    ScriptHost::RemoveType(type);
    Answering::Nothing(Operation::RemoveType, [] {});
}

MvTypeDefinition* HostileHost::FindType(const char* name)
{
    return Answering::Pointer<MvTypeDefinition>(Operation::FindType, [&] { return ScriptHost::FindType(name); });
}

void HostileHost::InvalidateTransientObject(u32, void*)
{
    Answering::Nothing(Operation::InvalidateTransientObject, [] {});
}

u32 HostileHost::RegisterTransientClass(const char*)
{
    return Answering::Number(Operation::RegisterTransientClass, [] { return 1u; });
}

const char* HostileHost::CompleteCommandLine(const char* text, bool)
{
    return Answering::TextPointer(Operation::CompleteCommandLine, [&] {
        m_Completed = std::string(text) + "pleted";
        return m_Completed.c_str();
    });
}

bool HostileHost::Calculate(const char* text, double& result)
{
    return Answering::Numbers(Operation::Calculate, {&result}, [&] {
        result = static_cast<double>(std::strlen(text));
        return true;
    });
}

// Keeps no lines, but has them put together.
void HostileHost::PrintLine(const char* format, ...)
{
    char line[4096];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof(line), format, arguments);
    va_end(arguments);
    Answering::Nothing(Operation::PrintLine, [] {});
}

HostScriptInterface* HostileHost::GetScriptInterface()
{
    return Answering::Pointer<HostScriptInterface>(Operation::GetScriptInterface, [&] { return &m_Scripts; });
}

u32 HostileHost::CompileAtom(const char*, u32)
{
    return Books.Lend(Loan::Atom, Answering::Number(Operation::CompileAtom, [&] { return ++m_LastNumber; }));
}

void HostileHost::ReleaseAtom(u32 atom)
{
    Books.TakeBack(Loan::Atom, atom);
    Answering::Nothing(Operation::ReleaseAtom, [] {});
}

int HostileHost::ExecuteAtomForText(u32, int, char**, _MvTypeVar*, u32, char* output, u32 size)
{
    return Answering::NumberAndText(
        Operation::ExecuteAtomForText, output, size, [&] { return Say("1", output, size) ? 1 : 0; });
}

int HostileHost::ExecuteAtom(u32, u32, int, char**, _MvTypeVar*)
{
    return Answering::SignedNumber(Operation::ExecuteAtom, [] { return 0; });
}

u32 HostileHost::FindAtom(const char*)
{
    return Answering::Number(Operation::FindAtom, [] { return 77u; });
}

u32 HostileHost::PreParseSequence(const char*, u32)
{
    return Books.Lend(Loan::Sequence, Answering::Number(Operation::PreParseSequence, [&] { return ++m_LastNumber; }));
}

bool HostileHost::RetrieveOriginalText(u32, char* buffer, u32 size)
{
    return Answering::Text(Operation::RetrieveOriginalText, buffer, size, [&] { return Say("${x}", buffer, size); });
}

bool HostileHost::RetrieveProcessedText(u32, char* buffer, u32 size)
{
    return Answering::Text(
        Operation::RetrieveProcessedText, buffer, size, [&] { return Say("some words", buffer, size); });
}

bool HostileHost::RetrieveProcessedResult(u32, _MvTypeVar& result)
{
    const Allocations::Spared spared;
    const Answer answer = g_Hostility.Take(Operation::RetrieveProcessedResult);
    if (answer != Answer::Good)
        return SpoilValue(answer, result);

    result.Type = TypeOf("int");
    result.Value.Integer = 5;
    return true;
}

void HostileHost::FreeSequence(u32 sequence)
{
    Books.TakeBack(Loan::Sequence, sequence);
    Answering::Nothing(Operation::FreeSequence, [] {});
}

u32 HostileHost::RegisterObjectClass(const char*)
{
    return Answering::Number(Operation::RegisterObjectClass, [] { return 1u; });
}

void HostileHost::InvalidateObject(u32, void*)
{
    Answering::Nothing(Operation::InvalidateObject, [] {});
}

void HostileHost::SetTypeObjectClass(MvTypeDefinition*, u32)
{
    Answering::Nothing(Operation::SetTypeObjectClass, [] {});
}

bool HostileHost::FindResourceFile(const char* name, char* path)
{
    return Answering::Text(Operation::FindResourceFile, path, PathSize, [&] { return Say(name, path, PathSize); });
}

bool HostileHost::LocateFile(const char* name, char* path)
{
    return Answering::Text(Operation::LocateFile, path, PathSize, [&] {
        const auto file = Files.find(name);
        return file != Files.end() && Say(file->second.c_str(), path, PathSize);
    });
}

bool HostileHost::OpenClipboard()
{
    return Answering::Decision(Operation::OpenClipboard, [] { return CurrentPlatform().OpenClipboard(); });
}

void HostileHost::SaveElementPosition(TeskElement* element)
{
    Answering::Nothing(Operation::SaveElementPosition, [&] {
        int x = 0;
        int y = 0;
        u32 width = 0;
        u32 height = 0;
        element->GetStoragePosition(x, y, width, height);
    });
}

void HostileHost::LoadElementPosition(TeskElement* element)
{
    const Allocations::Spared spared;
    const Answer answer = g_Hostility.Take(Operation::LoadElementPosition);
    if (answer != Answer::Empty && answer != Answer::Huge && answer != Answer::Negative)
        return;

    Answering::SpoilNumbers(answer, {&element->X, &element->Y});
    element->Width = element->Height = static_cast<u32>(element->X);
}

bool HostileHost::GetKeyName(u32 key, char* buffer, u32 size)
{
    const char name[] = {static_cast<char>(key), 0};
    return Answering::Text(Operation::GetKeyName, buffer, size, [&] { return Say(name, buffer, size); });
}

void HostileHost::GetOutputConsole(char* buffer, u32 size)
{
    Answering::Text(Operation::GetOutputConsole, buffer, size, [&] { return Say(m_Console.c_str(), buffer, size); });
}

void HostileHost::SetOutputConsole(const char* name)
{
    Answering::Nothing(Operation::SetOutputConsole, [&] { m_Console = name; });
}

// --- Drawing

void HostileHost::DrawRect(const tagRECT&, u32)
{
    Answering::Nothing(Operation::DrawRect, [] {});
}

bool HostileHost::DrawTexturedRect(const TeskDrawRecord&)
{
    return Answering::Decision(Operation::DrawTexturedRect, [] { return true; });
}

bool HostileHost::DrawTexturedRects(u32, const TeskDrawRecord*)
{
    return Answering::Decision(Operation::DrawTexturedRects, [] { return true; });
}

bool HostileHost::DrawLine(const TeskDrawRecord&, u32)
{
    return Answering::Decision(Operation::DrawLine, [] { return true; });
}

u32 HostileHost::CreateFontResource(const char*, u8, bool, bool)
{
    return Books.Lend(Loan::Font, Answering::Number(Operation::CreateFontResource, [&] { return ++m_LastNumber; }));
}

void HostileHost::ReleaseFontResource(u32 font)
{
    Books.TakeBack(Loan::Font, font);
    Answering::Nothing(Operation::ReleaseFontResource, [] {});
}

u32 HostileHost::DrawText(u32, const char* text, const tagRECT&, u32, u32)
{
    return Answering::Number(Operation::DrawText, [&] { return static_cast<u32>(TextWidth(text)); });
}

void HostileHost::MeasureText(u32, const char* text, int& width)
{
    Answering::Numbers(Operation::MeasureText, {&width}, [&] {
        width = TextWidth(text);
        return true;
    });
}

bool HostileHost::GetGlyphMetrics(u32, u32, u32, float* before, float* glyph, float* after)
{
    return Answering::Numbers(Operation::GetGlyphMetrics, {before, glyph, after}, [&] {
        *before = *after = 0;
        *glyph = LetterWidth;
        return true;
    });
}

bool HostileHost::GetDisplaySize(int& width, int& height)
{
    return Answering::Numbers(Operation::GetDisplaySize, {&width, &height}, [&] {
        width = 800;
        height = 600;
        return true;
    });
}

u32 HostileHost::LoadTextureResource(const char*, u32)
{
    return Books.Lend(Loan::Texture, Answering::Number(Operation::LoadTextureResource, [&] { return ++m_LastNumber; }));
}

bool HostileHost::GetTextureResourceSize(u32, _Point2i& size)
{
    return Answering::Numbers(Operation::GetTextureResourceSize, {&size.x, &size.y}, [&] {
        size = {64, 64};
        return true;
    });
}

void HostileHost::ReleaseTextureResource(u32 texture)
{
    Books.TakeBack(Loan::Texture, texture);
    Answering::Nothing(Operation::ReleaseTextureResource, [] {});
}

bool HostileHost::SpoilValue(Answer answer, _MvTypeVar& result)
{
    switch (answer) {
    case Answer::Fails:
        result.Type = reinterpret_cast<MvTypeDefinition*>(1); // nobody is to look
        return false;
    case Answer::Null:
        result.Type = TypeOf("tesktexture");
        result.Value.Object = nullptr;
        return true;
    case Answer::Empty:
        result.Type = nullptr;
        return true;
    case Answer::Huge:
    case Answer::Negative:
        result.Type = TypeOf("int");
        return Answering::SpoilNumbers(answer, {&result.Value.Integer});
    default:
        result.Type = TypeOf("float");
        return Answering::SpoilNumbers(answer, {&result.Value.Float});
    }
}

MvTypeDefinition* HostileHost::TypeOf(const char* name) const
{
    const auto own = HostTypes.find(name);
    if (own != HostTypes.end())
        return own->second.get();

    const auto toolkits = Types.find(name);
    return toolkits == Types.end() ? nullptr : toolkits->second;
}
