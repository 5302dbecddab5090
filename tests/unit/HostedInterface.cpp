#include "tests/unit/HostedInterface.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "tests/unit/FreshProcess.h"

#include <fstream>
#include <stdexcept>

namespace {

constexpr int Width = 640;
constexpr int Height = 480;

host::InterfaceSession::Settings SettingsFor(host::ScriptTrust trust)
{
    host::InterfaceSession::Settings settings;
    settings.ClockStandsStill = true;
    settings.Trust = trust;
    settings.Width = Width;
    settings.Height = Height;
    return settings;
}

std::filesystem::path MakeFolder()
{
    std::string path = "/tmp/teskara-hosted-XXXXXX";
    if (!mkdtemp(path.data()))
        throw std::runtime_error("no folder");
    return path;
}

} // namespace

HostedInterface::HostedInterface(host::ScriptTrust trust)
    : m_Picture(Width, Height), m_Session(m_Picture.Target(), SettingsFor(trust)), m_Folder(MakeFolder())
{
    Host().Output().SendTo([this](const std::string& line) { m_Lines += line + '\n'; });
}

HostedInterface::~HostedInterface()
{
    Host().Output().SendTo([](const std::string&) {});
    std::filesystem::remove_all(m_Folder);
}

void HostedInterface::Load(const std::string& markup)
{
    const std::string file = Write("test.xml", "<Tesk>" + markup + "</Tesk>");
    EXPECT_TRUE(g_UIManager.LoadInterfaceXML(file.c_str(), true, nullptr));
}

std::string HostedInterface::Write(const std::string& name, const std::string& text) const
{
    const std::filesystem::path path = m_Folder / name;
    std::ofstream(path, std::ios::binary) << text;
    return path.string();
}

void HostedInterface::Frame(u32 milliseconds)
{
    m_Session.Clock().Advance(milliseconds);
    m_Session.SkipFrame();
}

void HostedInterface::Click(int x, int y)
{
    _Point2i place{x, y};
    g_UIManager.OnMouseMove(place);
    g_UIManager.OnLMouseDown();
    g_UIManager.OnLMouseUp();
}

std::string HostedInterface::Run(const std::string& script)
{
    Load("<frame name=\"Tester\"><OnLoad>Result = nil " + Escaped(script) + "</OnLoad></frame>");
    return Expand("${Result}");
}

std::string HostedInterface::Expand(const std::string& text)
{
    char expanded[4096];
    Host().DataParse(text.c_str(), expanded, sizeof expanded);
    return expanded;
}

TeskElement& HostedInterface::Element(const char* name)
{
    TeskElement* element = g_UIManager.FindElement(name);
    if (!element)
        throw std::runtime_error(std::string("no element ") + name);
    return *element;
}

std::string HostedInterface::Lines()
{
    return std::exchange(m_Lines, {});
}

std::string Escaped(const std::string& script)
{
    std::string markup;
    for (const char character : script) {
        if (character == '<')
            markup += "&lt;";
        else if (character == '&')
            markup += "&amp;";
        else
            markup += character;
    }
    return markup;
}

void WithInterface(const std::function<void(HostedInterface&)>& body, host::ScriptTrust trust)
{
    InFreshProcess([&] {
        HostedInterface interface(trust);
        body(interface);
    });
}
