#include "tests/fuzz/ChaosHost.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/script/MvTypeVar.h"

#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace {

constexpr std::size_t PathSize = 4096;

// What a script may do to the element that runs it.
enum class Harm : u8 {
    None,
    DeleteSelf,
    DeleteParent,
    DeletePrevious,
    DeleteNext,
    DeleteFirstChild,
    Reset,
    Hide,
    MoveTop,
    MoveBottom,
    RemoveTemplate,
    ReplaceTemplate,
    RemoveSkin,
    Load,
    LoadIntoSelf,
    Unload,
    Focus,
    MoveMouse,
    Press,
    Render,
    Count
};

void DeleteElement(TeskElement* element)
{
    if (element && element->Parent)
        element->Parent->DeleteChild(element);
}

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

u32 ChaosHost::Id()
{
    if (Choices.Refuses())
        return 0;

    ++m_LiveResources;
    return ++m_LastID;
}

void ChaosHost::Release(u32 id)
{
    if (id)
        --m_LiveResources;
}

u32 ChaosHost::CompileAtom(const char*, u32)
{
    return Id();
}

void ChaosHost::ReleaseAtom(u32 atom)
{
    Release(atom);
}

int ChaosHost::ExecuteAtom(u32, u32, int, char**, _MvTypeVar* self)
{
    DoHarm(self ? static_cast<TeskElement*>(self->Value.Object) : nullptr);
    return 0;
}

void ChaosHost::DoHarm(TeskElement* self)
{
    if (m_HarmDepth > 3 || !self || !g_UIManager.Screen)
        return;

    ++m_HarmDepth;
    _Point2i point = {Choices.Next(), Choices.Next()};
    switch (static_cast<Harm>(Choices.Next() % static_cast<u8>(Harm::Count))) {
    case Harm::DeleteSelf:
        DeleteElement(self);
        break;
    case Harm::DeleteParent:
        DeleteElement(self->Parent);
        break;
    case Harm::DeletePrevious:
        DeleteElement(self->Previous);
        break;
    case Harm::DeleteNext:
        DeleteElement(self->Next);
        break;
    case Harm::DeleteFirstChild:
        DeleteElement(self->FirstChild);
        break;
    case Harm::Reset:
        g_UIManager.Reset();
        break;
    case Harm::Hide:
        self->Show(false);
        g_UIManager.SetFocusElement();
        break;
    case Harm::MoveTop:
        self->MoveZTop(true);
        break;
    case Harm::MoveBottom:
        self->MoveZBottom();
        break;
    case Harm::RemoveTemplate:
        g_UIManager.ClearTemplates();
        break;
    case Harm::ReplaceTemplate:
        g_UIManager.AddTemplate("frame", "<Template><Width>7</Width></Template>");
        break;
    case Harm::RemoveSkin:
        g_UIManager.RemoveSkin("a");
        break;
    case Harm::Load:
        g_UIManager.LoadInterfaceXML("f", true, g_UIManager.FindSkin("a"));
        break;
    case Harm::LoadIntoSelf:
        g_UIManager.LoadInterfaceXML(self, "f", false, nullptr);
        break;
    case Harm::Unload:
        g_UIManager.UnloadInterfaceXML("f");
        break;
    case Harm::Focus:
        g_UIManager.SetFocusElement(self);
        break;
    case Harm::MoveMouse:
        g_UIManager.OnMouseMove(point);
        break;
    case Harm::Press:
        g_UIManager.OnLMouseDown();
        break;
    case Harm::Render:
        g_UIManager.Render();
        break;
    default:
        break;
    }
    --m_HarmDepth;
}

int ChaosHost::DataParse(const char* text, char* output, u32 size)
{
    if (!Choices.Refuses())
        std::snprintf(output, size, "%s", text);
    DoHarm(g_UIManager.GetMouseOverElement());
    return 0;
}

// Reads what it is given, so that a bad text is found.
void ChaosHost::PrintLine(const char* format, ...)
{
    char line[16384];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof(line), format, arguments);
    va_end(arguments);
}

bool ChaosHost::RetrieveProcessedText(u32, char* buffer, u32 size)
{
    std::snprintf(buffer, size, "text");
    return !Choices.Refuses();
}

bool ChaosHost::FindResourceFile(const char* name, char* path)
{
    std::snprintf(path, PathSize, "%s", Choices.Refuses() ? name : File.c_str());
    return !Choices.Refuses();
}

bool ChaosHost::LocateFile(const char*, char* path)
{
    std::snprintf(path, PathSize, "%s", File.c_str());
    return !Choices.Refuses();
}

void ChaosHost::SaveElementPosition(TeskElement* element)
{
    DoHarm(element->Parent);
}

void ChaosHost::LoadElementPosition(TeskElement* element)
{
    element->X = Choices.Next();
    DoHarm(element);
}

bool ChaosHost::GetKeyName(u32, char* buffer, u32 size)
{
    std::memset(buffer, 'k', size);
    return !Choices.Refuses();
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
    if (!Choices.Refuses())
        width = static_cast<int>(std::strlen(text)) * 6;
}

bool ChaosHost::GetGlyphMetrics(u32, u32, u32, float* before, float* glyph, float* after)
{
    *before = 0;
    *glyph = Choices.Refuses() ? std::nanf("") : 6.0f;
    *after = 0;
    return true;
}

bool ChaosHost::GetDisplaySize(int& width, int& height)
{
    width = Choices.Refuses() ? -1 : 800;
    height = 600;
    return !Choices.Refuses();
}

bool ChaosHost::GetTextureResourceSize(u32, _Point2i& size)
{
    size = {64, 64};
    return !Choices.Refuses();
}
