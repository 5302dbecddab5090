#include "tests/unit/ToolkitTest.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "tests/unit/TemporaryFile.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace {

// Stands for the host while no test runs, and outlives the library's end.
TestHost& IdleHost()
{
    static auto* host = new TestHost;
    return *host;
}

// Lets go of the keys that a test has left held.
void ReleaseKeys()
{
    std::fill(std::begin(g_UIManager.KeyState), std::end(g_UIManager.KeyState), u8{0});
    g_UIManager.KeyStates.clear();
    g_UIManager.ShiftDown = g_UIManager.AltDown = g_UIManager.CtrlDown = false;
}

// The toolkit can be started only once.
void StartOnce()
{
    static const bool started = [] {
        F1(&IdleHost())->Initialize();
        return true;
    }();
    static_cast<void>(started);
}

} // namespace

ToolkitTest::ToolkitTest()
{
    StartOnce();
    SetPlatform(&System);
    F1(&Host);
    g_UIManager.TooltipElementID = 0;
    g_UIManager.MousePosition = {-1, -1};
    g_UIManager.ResetMouseState();
    ReleaseKeys();
    Frame();
}

ToolkitTest::~ToolkitTest()
{
    g_UIManager.Reset();
    g_UIManager.ClearTemplates();
    F1(&IdleHost());
    SetPlatform(nullptr);
}

void ToolkitTest::Load(const std::string& markup)
{
    const TemporaryFile file("<Tesk>" + markup + "</Tesk>");
    Host.Located["test.xml"] = file.Path();
    EXPECT_TRUE(g_UIManager.LoadInterfaceXML("test.xml", false, Skin));
}

std::string ToolkitTest::Frame()
{
    g_UIManager.Render();
    return Host.TakeCalls();
}

TeskElement& ToolkitTest::Element(const char* name)
{
    TeskElement* element = g_UIManager.FindElement(name);
    if (!element)
        throw std::runtime_error(std::string("no element ") + name);
    return *element;
}
