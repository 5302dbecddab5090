#include "host/InterfaceSession.h"

#include "host/files/MarkupFault.h"
#include "host/record/Boundary.h"
#include "host/record/ToolkitCalls.h"
#include "teskara/core/CUIManager.h"

namespace host {

namespace {

constexpr const char* DefaultSkin = "slate";

} // namespace

InterfaceSession::InterfaceSession(SDL_Renderer* renderer, const Settings& settings)
    : m_Platform(m_Clock), m_Host(renderer, settings.Positions, settings.Trust)
{
    if (settings.ClockStandsStill)
        m_Clock.HoldStill();
    if (!settings.Commands.empty())
        m_Host.KeepCommands(settings.Commands);
    if (settings.Between)
        settings.Between->Attach(m_Host, m_Platform);
    SetPlatform(settings.Between ? &settings.Between->System() : static_cast<Platform*>(&m_Platform));
    Toolkit::Start(&m_Host);

    // What is loaded before the first frame takes its time from here, and its sizes from the display.
    Toolkit::SetFrameTick(m_Clock.Ticks());
    m_SecondStart = m_Clock.Ticks();
    m_Frame.Width = settings.Width;
    m_Frame.Height = settings.Height;
    m_Frame.Ticks = m_Clock.Ticks();
    m_Host.BeginFrame(m_Frame, 1);
    Toolkit::Render();
}

// The elements go while their scripts still have types and objects.
InterfaceSession::~InterfaceSession()
{
    Toolkit::Reset();
    Toolkit::Shutdown();
    SetPlatform(nullptr);
}

bool InterfaceSession::Open(const std::vector<std::string>& files, const std::string& skin)
{
    for (const std::string& file : files)
        m_Host.Paths().AddInterfaceFile(file);

    if (!OpenSkin(skin.empty() ? DefaultSkin : skin))
        return false;

    for (const std::string& file : files)
        if (!OpenFile(file))
            return false;
    return true;
}

bool InterfaceSession::OpenFile(const std::string& file)
{
    const std::filesystem::path path = file;
    return Load(path.is_absolute() ? path.filename().string() : file, file, m_Frame.Skin.c_str());
}

bool InterfaceSession::OpenOwn(const std::string& name)
{
    return OpenFile((m_Host.Paths().InterfacesFolder() / name).string());
}

bool InterfaceSession::DrawFrame(int width, int height, float scale)
{
    m_Frame.Width = width;
    m_Frame.Height = height;
    CountFrame();
    m_Host.BeginFrame(m_Frame, scale);
    Toolkit::Render();
    return m_Host.EndFrame();
}

void InterfaceSession::SkipFrame()
{
    CountFrame();
    m_Host.BeginFrame(m_Frame, 1);
    Toolkit::Render();
}

bool InterfaceSession::Load(const std::string& subject, const std::string& file, const char* skin)
{
    {
        const TrailStep step(m_Host.Output().Trail(), subject);
        if (Toolkit::LoadInterface(file.c_str(), true, skin))
            return true;
    }

    // Where a file is no markup, the place is told as well, and with it which file it is.
    const auto path = m_Host.Paths().FindInterface(file);
    const auto fault = path ? FindMarkupFault(*path) : std::nullopt;
    if (fault && fault->Line != 0)
        m_Host.Output().Warn("%s", Describe(*path, *fault).c_str());
    return false;
}

// A skin gives colours, upon which the templates that all skins share are built; what it makes differently comes last.
bool InterfaceSession::OpenSkin(const std::string& name)
{
    const std::filesystem::path skins = m_Host.Paths().InterfacesFolder() / "skins";
    const std::filesystem::path folder =
        name.find('/') == std::string::npos ? skins / name : std::filesystem::path(name);
    const std::filesystem::path own = folder / "templates.xml";
    const std::string subject = "skin " + name;
    m_Host.Paths().SetSkinFolder(folder);
    m_Frame.Skin = name;
    m_Host.Scripts().SetFrame(m_Frame);
    return Load(subject, (folder / "skin.xml").string(), nullptr)
        && Load(subject, (skins / "templates.xml").string(), nullptr)
        && (!exists(own) || Load(subject, own.string(), nullptr));
}

void InterfaceSession::CountFrame()
{
    const u32 now = m_Clock.Ticks();
    if (now - m_SecondStart >= 1000) {
        m_Frame.FramesPerSecond = m_FramesInSecond;
        m_FramesInSecond = 0;
        m_SecondStart = now;
    }
    ++m_Frame.Number;
    ++m_FramesInSecond;
    m_Frame.Ticks = now;
    m_Frame.Time = m_Clock.LocalTime();
    m_Frame.Mouse = g_UIManager.MousePosition;
}

} // namespace host
