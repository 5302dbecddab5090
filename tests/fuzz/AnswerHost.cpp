#include "tests/fuzz/AnswerHost.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/script/MvTypeVar.h"
#include "tests/fuzz/AnswerScripts.h"
#include "tests/fuzz/DialogActs.h"

#include <cstring>
#include <stdexcept>

namespace {

constexpr std::size_t PathSize = 4096;

} // namespace

void AnswerHost::StartAnew()
{
    Told.Clear();
    EventHost::StartAnew();
}

// What is lent under a strange number comes back under it.
template <class Ask> u32 AnswerHost::LendAs(HostCall call, const char* sort, Ask&& ask)
{
    switch (Told.Next(call)) {
    case Answer::Failure:
    case Answer::Empty:
        return 0;
    case Answer::Huge:
    case Answer::Negative:
        return Books.Lend(sort, m_HighestFree--);
    case Answer::Exception:
        throw std::runtime_error("thrown by the host");
    default:
        return ask();
    }
}

// A text of the size of its buffer, and what the operation says to it.
template <class Ask> bool AnswerHost::WriteAs(HostCall call, char* buffer, std::size_t size, Ask&& ask)
{
    const Answer answer = Told.Next(call);
    if (answer == Answer::Failure)
        return false;
    if (Told.WriteText(answer, buffer, size))
        return true;

    const bool done = ask();
    if (answer == Answer::Exception)
        throw std::runtime_error("thrown by the host");
    return done;
}

HostScript* AnswerHost::GetCurrentScript()
{
    return Told.Next(HostCall::GetCurrentScript) == Answer::Huge ? FuzzScriptOfBoxes() : nullptr;
}

int AnswerHost::ExecuteCommand(const char* text)
{
    const int result = EventHost::ExecuteCommand(text);
    return Told.Of(Told.Next(HostCall::ExecuteCommand), result);
}

int AnswerHost::DataParse(const char* text, char* output, u32 size)
{
    return WriteAs(HostCall::DataParse, output, size, [&] { return EventHost::DataParse(text, output, size) == 0; });
}

MvTypeDefinition* AnswerHost::FindType(const char* name)
{
    const Answer answer = Told.Next(HostCall::FindType);
    if (answer == Answer::Exception)
        throw std::runtime_error("thrown by the host");
    return answer == Answer::Failure ? nullptr : EventHost::FindType(name);
}

void AnswerHost::InvalidateTransientObject(u32, void*)
{
    Told.Finish(HostCall::InvalidateTransientObject);
}

u32 AnswerHost::RegisterTransientClass(const char* name)
{
    return Told.Of(Told.Next(HostCall::RegisterTransientClass), EventHost::RegisterTransientClass(name));
}

const char* AnswerHost::CompleteCommandLine(const char* text, bool shift)
{
    EventHost::CompleteCommandLine(text, shift);
    switch (Told.Next(HostCall::CompleteCommandLine)) {
    case Answer::Empty:
        return "";
    case Answer::Huge:
        m_Completed.assign(100000, static_cast<char>(Told.Detail() | 1));
        return m_Completed.c_str();
    case Answer::NotANumber:
        m_Completed = text + std::string("\n\a\xff");
        return m_Completed.c_str();
    case Answer::Exception:
        throw std::runtime_error("thrown by the host");
    default:
        return nullptr;
    }
}

bool AnswerHost::Calculate(const char* text, double& result)
{
    const bool done = EventHost::Calculate(text, result);
    const Answer answer = Told.Next(HostCall::Calculate);
    result = Told.Of(answer, 5.0);
    return done && answer != Answer::Failure;
}

void AnswerHost::PrintLine(const char*, ...)
{
    CalledOut(CallOut::PrintLine, nullptr);
    Told.Finish(HostCall::PrintLine);
}

HostScriptInterface* AnswerHost::GetScriptInterface()
{
    static AnswerScripts scripts(*EventHost::GetScriptInterface(), Told); // there is one such host
    return &scripts;
}

u32 AnswerHost::CompileAtom(const char* source, u32 length)
{
    return LendAs(HostCall::CompileAtom, "atom", [&] { return EventHost::CompileAtom(source, length); });
}

void AnswerHost::ReleaseAtom(u32 atom)
{
    EventHost::ReleaseAtom(atom);
    Told.Finish(HostCall::ReleaseAtom);
}

int AnswerHost::ExecuteAtomForText(
    u32 atom, int argc, char** argv, _MvTypeVar* self, u32 unused, char* output, u32 size)
{
    int result = 0;
    WriteAs(HostCall::ExecuteAtomForText, output, size, [&] {
        result = EventHost::ExecuteAtomForText(atom, argc, argv, self, unused, output, size);
        return true;
    });
    return result;
}

int AnswerHost::ExecuteAtom(u32 atom, u32 unused, int argc, char** argv, _MvTypeVar* self)
{
    const int result = EventHost::ExecuteAtom(atom, unused, argc, argv, self);
    return Told.Of(Told.Next(HostCall::ExecuteAtom), result);
}

u32 AnswerHost::FindAtom(const char* name)
{
    return Told.Of(Told.Next(HostCall::FindAtom), EventHost::FindAtom(name));
}

u32 AnswerHost::PreParseSequence(const char* text, u32 keep)
{
    return LendAs(HostCall::PreParseSequence, "sequence", [&] { return EventHost::PreParseSequence(text, keep); });
}

bool AnswerHost::RetrieveOriginalText(u32 sequence, char* buffer, u32 size)
{
    return WriteAs(HostCall::RetrieveOriginalText, buffer, size,
        [&] { return EventHost::RetrieveOriginalText(sequence, buffer, size); });
}

bool AnswerHost::RetrieveProcessedText(u32 sequence, char* buffer, u32 size)
{
    return WriteAs(HostCall::RetrieveProcessedText, buffer, size,
        [&] { return EventHost::RetrieveProcessedText(sequence, buffer, size); });
}

// A value of no type, or a number of a type that the toolkit does not know.
bool AnswerHost::RetrieveProcessedResult(u32 sequence, _MvTypeVar& result)
{
    Books.Use("sequence", sequence);
    const Answer answer = Told.Next(HostCall::RetrieveProcessedResult);
    result.Type = answer == Answer::Empty ? nullptr : EventHost::FindType("float");
    result.Value.Float = Told.Of(answer, 1.0f);
    return answer != Answer::True && answer != Answer::Failure;
}

void AnswerHost::FreeSequence(u32 sequence)
{
    EventHost::FreeSequence(sequence);
    Told.Finish(HostCall::FreeSequence);
}

void AnswerHost::InvalidateObject(u32, void*)
{
    Told.Finish(HostCall::InvalidateObject);
}

bool AnswerHost::FindResourceFile(const char* name, char* path)
{
    return WriteAs(HostCall::FindResourceFile, path, PathSize, [&] { return EventHost::FindResourceFile(name, path); });
}

bool AnswerHost::LocateFile(const char* name, char* path)
{
    return WriteAs(HostCall::LocateFile, path, PathSize, [&] { return EventHost::LocateFile(name, path); });
}

bool AnswerHost::OpenClipboard()
{
    const Answer answer = Told.Next(HostCall::OpenClipboard);
    if (answer == Answer::Exception)
        throw std::runtime_error("thrown by the host");
    return answer != Answer::Failure;
}

void AnswerHost::SaveElementPosition(TeskElement* element)
{
    EventHost::SaveElementPosition(element);
    Told.Finish(HostCall::SaveElementPosition);
}

void AnswerHost::LoadElementPosition(TeskElement* element)
{
    const Answer answer = Told.Next(HostCall::LoadElementPosition);
    element->X = Told.Of(answer, element->X);
    element->Width = Told.Of(answer, element->Width);
    EventHost::LoadElementPosition(element);
}

bool AnswerHost::GetKeyName(u32 key, char* buffer, u32 size)
{
    return WriteAs(HostCall::GetKeyName, buffer, size, [&] { return EventHost::GetKeyName(key, buffer, size); });
}

void AnswerHost::GetOutputConsole(char* buffer, u32 size)
{
    WriteAs(HostCall::GetOutputConsole, buffer, size, [] { return true; });
}

void AnswerHost::SetOutputConsole(const char* name)
{
    EventHost::SetOutputConsole(name);
    Told.Finish(HostCall::SetOutputConsole);
}

void AnswerHost::DrawRect(const tagRECT&, u32)
{
    Told.Finish(HostCall::DrawRect);
}

bool AnswerHost::DrawTexturedRect(const TeskDrawRecord& record)
{
    return Told.Of(Told.Next(HostCall::DrawTexturedRect), int{EventHost::DrawTexturedRect(record)}) != 0;
}

bool AnswerHost::DrawTexturedRects(u32 count, const TeskDrawRecord* records)
{
    return Told.Of(Told.Next(HostCall::DrawTexturedRects), int{EventHost::DrawTexturedRects(count, records)}) != 0;
}

bool AnswerHost::DrawLine(const TeskDrawRecord& record, u32 width)
{
    return Told.Of(Told.Next(HostCall::DrawLine), int{EventHost::DrawLine(record, width)}) != 0;
}

u32 AnswerHost::CreateFontResource(const char* name, u8 height, bool fixed, bool bold)
{
    return LendAs(
        HostCall::CreateFontResource, "font", [&] { return EventHost::CreateFontResource(name, height, fixed, bold); });
}

void AnswerHost::ReleaseFontResource(u32 font)
{
    EventHost::ReleaseFontResource(font);
    Told.Finish(HostCall::ReleaseFontResource);
}

u32 AnswerHost::DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format)
{
    return Told.Of(Told.Next(HostCall::DrawText), EventHost::DrawText(font, text, box, color, format));
}

void AnswerHost::MeasureText(u32 font, const char* text, int& width)
{
    const Answer answer = Told.Next(HostCall::MeasureText);
    if (answer == Answer::Failure)
        return;

    EventHost::MeasureText(font, text, width);
    width = Told.Of(answer, width);
}

bool AnswerHost::GetGlyphMetrics(u32 font, u32 first, u32 last, float* before, float* glyph, float* after)
{
    EventHost::GetGlyphMetrics(font, first, last, before, glyph, after);
    const Answer answer = Told.Next(HostCall::GetGlyphMetrics);
    *glyph = Told.Of(answer, *glyph);
    return answer != Answer::Failure;
}

bool AnswerHost::GetDisplaySize(int& width, int& height)
{
    const bool done = EventHost::GetDisplaySize(width, height);
    const Answer answer = Told.Next(HostCall::GetDisplaySize);
    width = Told.Of(answer, width);
    height = Told.Of(answer, height);
    return done && answer != Answer::Failure;
}

u32 AnswerHost::LoadTextureResource(const char* path, u32 colorKey)
{
    return LendAs(
        HostCall::LoadTextureResource, "texture", [&] { return EventHost::LoadTextureResource(path, colorKey); });
}

bool AnswerHost::GetTextureResourceSize(u32 texture, _Point2i& size)
{
    const bool done = EventHost::GetTextureResourceSize(texture, size);
    const Answer answer = Told.Next(HostCall::GetTextureResourceSize);
    size = {Told.Of(answer, size.x), Told.Of(answer, size.y)};
    return done && answer != Answer::Failure;
}

void AnswerHost::ReleaseTextureResource(u32 texture)
{
    EventHost::ReleaseTextureResource(texture);
    Told.Finish(HostCall::ReleaseTextureResource);
}
