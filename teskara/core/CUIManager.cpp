#include "teskara/core/CUIManager.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/OwnThread.h"
#include "teskara/core/platform/PlatformCalls.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/script/Commands.h"
#include "teskara/script/ScriptTypes.h"
#include "teskara/script/TopLevelObjects.h"

namespace {

// Sets a flag for the length of a scope.
class FlagScope
{
public:
    explicit FlagScope(bool& flag) : m_Flag(flag) { m_Flag = true; }
    ~FlagScope() { m_Flag = false; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;

private:
    bool& m_Flag;
};

} // namespace

CUIManager::CUIManager() : FrameTick(System::GetTickCount()) { }

CUIManager::~CUIManager()
{
    CUIManager::Shutdown();

    // What could not be deleted for want of a factory ends here.
    const FlagScope tearingDown(m_TearingDown);
    while (!ElementsByID.empty())
        delete ElementsByID.begin()->second;
}

// The host may shut the toolkit down while it is asked to register something.
void CUIManager::Initialize()
try {
    if (!Host::g_Host || Host::IsAnswering() || m_InShutdown || m_TearingDown)
        return;

    OwnThread::Remember();
    RegisterScriptTypes();
    RegisterTopLevelObjects();
    RegisterCommands();
    DestroyScreen();
    CreateScreen();
} catch (...) {
    return;
}

void CUIManager::Shutdown()
try {
    if (m_InShutdown || !Host::g_Host || Host::IsAnswering())
        return;

    m_InShutdown = true;
    RemoveScriptTypes();
    RemoveTopLevelObjects();
    RemoveCommands();
    ShuttingDown = true; // from here on no font and no texture goes back to the host
    DestroyScreen();
    ClearTemplates();
} catch (...) {
    return;
}

u32 CUIManager::GetVersion()
{
    return TeskaraVersion;
}

void CUIManager::ResetMouseState()
{
    LeftButtonState = ButtonUp;
    RightButtonState = ButtonUp;
    MouseOverElementID = 0;
}

// Scripts that ran while the old one was destroyed may have shut the toolkit down.
void CUIManager::CreateScreen()
{
    if (Screen || m_InShutdown)
        return;

    try {
        Screen = new TeskScreen;
    } catch (...) {
        Screen = nullptr;
    }
}

// Scripts that run meanwhile find no screen and make no elements.
void CUIManager::DestroyScreen()
{
    if (!Screen)
        return;

    const FlagScope tearingDown(m_TearingDown);
    TeskScreen* screen = Screen;
    Screen = nullptr;
    delete screen;
}

void CUIManager::Reset()
try {
    if (!Screen || Host::IsAnswering())
        return;

    DestroyScreen();
    CreateScreen();
} catch (...) {
    return;
}

// Scripts may replace the screen between any two steps.
void CUIManager::Render()
try {
    OwnThread::Expect("Render");
    if (m_InRender || !Screen || Host::IsAnswering())
        return;

    const FlagScope inRender(m_InRender);
    if (LeftButtonState == ButtonUp && RightButtonState == ButtonUp)
        SetMouseOverElement();
    FrameTick = System::GetTickCount();
    if (Screen)
        Screen->RecalculateSize(true);
    if (!Screen)
        return;

    Screen->AbsoluteX = 0;
    Screen->AbsoluteY = 0;
    if (Screen->Visible)
        Screen->Render();
} catch (...) {
    return;
}

TeskElement* CUIManager::FindElement(const char* name)
{
    const auto entry = ElementsByName.find(std::string_view(TextOrEmpty(name)));
    return entry == ElementsByName.end() ? nullptr : entry->second;
}

TeskElement* CUIManager::FindElementByID(u32 id) const
{
    if (id == 0)
        return nullptr;

    const auto entry = ElementsByID.find(id);
    return entry == ElementsByID.end() ? nullptr : entry->second;
}

TeskElementFactory* CUIManager::FindFactory(const char* name)
{
    const auto entry = Factories.find(std::string_view(TextOrEmpty(name)));
    return entry == Factories.end() ? nullptr : entry->second;
}

bool CUIManager::ShowElement(const char* name, bool show)
try {
    TeskElement* element = FindElement(name);
    if (!element)
        return false;

    element->Show(show);
    if (!show)
        SetFocusElement();
    return true;
} catch (...) {
    return false;
}

bool CUIManager::ToggleElement(const char* name)
{
    TeskElement* element = FindElement(name);
    return element && ShowElement(name, !element->Visible);
}

bool CUIManager::EnterElement(TeskElement& element)
{
    if (NextElementID == 0)
        return false;

    // Leaving a list must not fail, so there is room from the start for each to be out of its own.
    if (m_Detached.capacity() <= ElementsByID.size())
        m_Detached.reserve(2 * ElementsByID.size() + 1);
    element.ID = NextElementID;
    ElementsByID.emplace(element.ID, &element);
    try {
        ElementsByName.insert_or_assign(utf8stringnocase(element.FullName), &element);
    } catch (...) {
        ElementsByID.erase(element.ID);
        throw;
    }
    ++NextElementID;
    return true;
}

// A namesake that came later has taken over the name, and keeps it.
void CUIManager::LeaveElement(TeskElement& element)
{
    ++m_ElementDeaths;
    ElementsByID.erase(element.ID);
    LeaveDetached(element);
    const auto name = ElementsByName.find(std::string_view(element.FullName));
    if (name != ElementsByName.end() && name->second == &element)
        ElementsByName.erase(name);
}

void CUIManager::EnterDetached(TeskElement& element)
{
    m_Detached.push_back(&element);
}

void CUIManager::LeaveDetached(TeskElement& element)
{
    std::erase(m_Detached, &element);
}

void CUIManager::ForgetParent(TeskElement& parent)
{
    for (TeskElement* element : m_Detached) {
        if (element->Parent == &parent)
            element->Parent = nullptr;
    }
}

// Without memory the element keeps what it had.
void CUIManager::SetElementMetadata(u32 id, const char* name, const char* value)
try {
    const utf8string text = TextOrEmpty(value); // which may be the one that is replaced
    ElementMetadata[id].insert_or_assign(utf8stringnocase(TextOrEmpty(name)), text);
} catch (...) {
    return;
}

const char* CUIManager::GetElementMetadata(u32 id, const char* name) const
{
    if (ElementMetadata.empty())
        return nullptr;

    const auto values = ElementMetadata.find(id);
    if (values == ElementMetadata.end())
        return nullptr;

    const auto value = values->second.find(std::string_view(TextOrEmpty(name)));
    return value == values->second.end() ? nullptr : value->second.c_str();
}

bool CUIManager::RemoveElementMetadata(u32 id, const char* name)
{
    const auto values = ElementMetadata.find(id);
    if (values == ElementMetadata.end())
        return false;

    const auto value = values->second.find(std::string_view(TextOrEmpty(name)));
    if (value != values->second.end())
        values->second.erase(value);
    return true;
}

void CUIManager::ClearElementMetadata(TeskElement* element)
{
    if (element)
        ElementMetadata.erase(element->ID);
}

bool CUIManager::GetTextureSize(unsigned int id, _Point2i& size)
{
    return Host::GetTextureResourceSize(id, size);
}

u32 CUIManager::LoadFontResource(const char* name, u8 height, bool fixed, bool bold)
{
    return Host::CreateFontResource(name, height, fixed, bold);
}

void CUIManager::ReleaseFontResource(u32 id)
{
    if (!ShuttingDown)
        Host::ReleaseFontResource(id);
}

u32 CUIManager::LoadTextureResource(const char* path, u32 colorKey)
{
    return Host::LoadTextureResource(path, colorKey);
}

void CUIManager::ReleaseTextureResource(u32 id)
{
    if (!ShuttingDown)
        Host::ReleaseTextureResource(id);
}
