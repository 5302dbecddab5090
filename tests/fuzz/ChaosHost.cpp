#include "tests/fuzz/ChaosHost.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/DepthScope.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/script/MvTypeVar.h"
#include "tests/fuzz/HostileActs.h"

#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace {

constexpr std::size_t PathSize = 4096;
constexpr u32 DeepestHarm = 4;

} // namespace

void Decisions::Take(const u8* bytes, std::size_t size)
{
    m_Bytes = bytes;
    m_Left = size;
}

u8 Decisions::Next()
{
    if (m_Left == 0)
        return 0;

    --m_Left;
    return *m_Bytes++;
}

bool ChaosHost::Refuses()
{
    return Choices.Refuses();
}

void ChaosHost::CalledOut(CallOut, TeskElement* self)
{
    if (self)
        DoHarm(Choices.Next(), *self, Choices.Next());
}

// Acts inside acts end somewhere.
void ChaosHost::DoHarm(u8 act, TeskElement& self, u8 argument)
{
    const DepthScope depth(m_HarmDepth, DeepestHarm);
    if (depth.Entered() && g_UIManager.Screen)
        Perform(act, self, argument);
}

u32 ChaosHost::Lend(const char* sort)
{
    return Refuses() ? 0 : Books.Lend(sort, ++m_LastID);
}

u32 ChaosHost::CompileAtom(const char*, u32)
{
    return Lend("atom");
}

int ChaosHost::ExecuteAtom(u32 atom, u32, int, char**, _MvTypeVar* self)
{
    Books.Use("atom", atom);
    CalledOut(CallOut::Script, self ? static_cast<TeskElement*>(self->Value.Object) : nullptr);
    return 0;
}

// Compares two things without any sense.
int ChaosHost::ExecuteAtomForText(u32, int, char** argv, _MvTypeVar* self, u32, char* output, u32 size)
{
    std::snprintf(output, size, "%d", (argv[0][0] ^ argv[1][0]) % 3 - 1);
    CalledOut(CallOut::ExecuteAtomForText, static_cast<TeskElement*>(self->Value.Object));
    return 0;
}

int ChaosHost::ExecuteCommand(const char*)
{
    CalledOut(CallOut::ExecuteCommand, g_UIManager.GetMouseOverElement());
    return 0;
}

int ChaosHost::DataParse(const char* text, char* output, u32 size)
{
    if (!Refuses())
        std::snprintf(output, size, "%s", text);
    CalledOut(CallOut::DataParse, g_UIManager.GetMouseOverElement());
    return 0;
}

bool ChaosHost::Calculate(const char*, double& result)
{
    result = std::nan("");
    CalledOut(CallOut::Calculate, g_UIManager.GetMouseOverElement());
    return !Refuses();
}

// Reads what it is given, so that a bad text is found.
void ChaosHost::PrintLine(const char* format, ...)
{
    char line[16384];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof(line), format, arguments);
    va_end(arguments);
    CalledOut(CallOut::PrintLine, nullptr);
}

bool ChaosHost::RetrieveProcessedText(u32 sequence, char* buffer, u32 size)
{
    Books.Use("sequence", sequence);
    std::snprintf(buffer, size, "text");
    CalledOut(CallOut::RetrieveProcessedText, g_UIManager.GetMouseOverElement());
    return !Refuses();
}

// Objects that never had a sequence give back the number 0.
void ChaosHost::FreeSequence(u32 sequence)
{
    if (sequence)
        Books.TakeBack("sequence", sequence);
}

bool ChaosHost::FindResourceFile(const char* name, char* path)
{
    std::snprintf(path, PathSize, "%s", Refuses() ? name : File.c_str());
    return !Refuses();
}

bool ChaosHost::LocateFile(const char*, char* path)
{
    std::snprintf(path, PathSize, "%s", File.c_str());
    return !Refuses();
}

const char* ChaosHost::CompleteCommandLine(const char*, bool)
{
    CalledOut(CallOut::CompleteCommandLine, g_UIManager.GetFocusElement());
    return nullptr;
}

void ChaosHost::SetOutputConsole(const char*)
{
    CalledOut(CallOut::SetOutputConsole, g_UIManager.GetMouseOverElement());
}

void ChaosHost::SaveElementPosition(TeskElement* element)
{
    CalledOut(CallOut::SaveElementPosition, element->Parent);
}

void ChaosHost::LoadElementPosition(TeskElement* element)
{
    element->X = Choices.Next();
    CalledOut(CallOut::LoadElementPosition, element);
}

bool ChaosHost::GetKeyName(u32, char* buffer, u32 size)
{
    std::memset(buffer, 'k', size);
    return !Refuses();
}

bool ChaosHost::DrawTexturedRects(u32 count, const TeskDrawRecord* records)
{
    u32 sum = 0;
    for (u32 index = 0; index < count; ++index)
        sum += records[index].Flags;
    return sum != 0;
}

u32 ChaosHost::DrawText(u32, const char* text, const tagRECT&, u32, u32)
{
    return static_cast<u32>(std::strlen(text)) * 6;
}

void ChaosHost::MeasureText(u32, const char* text, int& width)
{
    if (!Refuses())
        width = static_cast<int>(std::strlen(text)) * 6;
}

bool ChaosHost::GetGlyphMetrics(u32, u32, u32, float* before, float* glyph, float* after)
{
    *before = 0;
    *glyph = Refuses() ? std::nanf("") : 6.0f;
    *after = 0;
    return true;
}

bool ChaosHost::GetDisplaySize(int& width, int& height)
{
    width = Refuses() ? -1 : 800;
    height = 600;
    return !Refuses();
}

bool ChaosHost::GetTextureResourceSize(u32, _Point2i& size)
{
    size = {64, 64};
    return !Refuses();
}
