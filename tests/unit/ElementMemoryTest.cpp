#include "host/probe/TreeChecker.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/Allocations.h"
#include "tests/unit/ToolkitTest.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>

namespace {

constexpr char Interface[] = R"(<Tesk>
  <Template name="Panel"><Width>100</Width><Height>50</Height><Border>2</Border></Template>
  <Skin name="Dark"><Template name="text" skin="Label"/></Skin>
  <frame name="A rather long name that needs memory" Template="Panel">
    <OnLoad>load</OnLoad><OnUnload>unload</OnUnload><OnRender>render</OnRender>
    <AutoTooltip>A tooltip that is too long to stand in the object itself</AutoTooltip>
    <Texture Filename="#a picture with a name that is rather long"><Border>2</Border></Texture>
    <Children>
      <text name="Label of that panel, with a long name"><Font><Name>A font with a long name</Name></Font>
        <Width>100</Width><Height>50</Height><Wrap>1</Wrap><Text>words that are wrapped into several lines</Text></text>
      <text name="Live"><Width>100</Width><Height>50</Height><Text>${Time} and some more text behind</Text></text>
      <frame name="Last"><Width>10%</Width><Height>r5</Height><BackgroundColor>ff0000ff</BackgroundColor></frame>
      <hudelement name="A HUD element with a long name"><Text>${Time} and some more text behind</Text>
        <Group>a word that is too long to stand in the object itself</Group></hudelement>
      <tooltip name="A tooltip with a name that is long"/>
    </Children>
  </frame>
</Tesk>)";

class ElementMemoryTest : public ToolkitTest
{
protected:
    ElementMemoryTest()
    {
        Host.Recorded = 0;
        const int file = mkstemp(m_Path);
        close(file);
        std::ofstream(m_Path) << Interface;
        Host.Located["a.xml"] = m_Path;
    }

    ~ElementMemoryTest() override { std::remove(m_Path); }

    // Each allocation of the work fails in turn, on a tree that is dropped after each run.
    void FailEachAllocation(Allocations::Failing failing, const std::function<void()>& work)
    {
        for (std::size_t failure = 0; failure < 4000; ++failure) {
            const std::size_t before = Allocations::Count();
            Allocations::FailAfter(failure, failing);
            EXPECT_NO_THROW(work()) << "at allocation " << failure;
            Allocations::Allow();
            const bool wasReached = Allocations::Count() - before > failure;
            EXPECT_EQ(std::nullopt, FindTreeFault()) << "at allocation " << failure;
            Host.TakeCalls();
            g_UIManager.Reset();
            g_UIManager.ClearTemplates();
            g_UIManager.RemoveSkin("Dark");
            ASSERT_NE(nullptr, g_UIManager.Screen);
            if (!wasReached)
                return;
        }
        FAIL() << "the work does not end";
    }

    void LoadFile() { g_UIManager.LoadInterfaceXML("a.xml", true, nullptr); }

    static TeskElement* Panel() { return g_UIManager.FindElement("A rather long name that needs memory"); }

private:
    char m_Path[32] = "/tmp/teskara-unit-XXXXXX";
};

} // namespace

TEST_F(ElementMemoryTest, AnInterfaceMayRunOutOfMemoryAnywhereInItsLife)
{
    const auto life = [this] {
        LoadFile();
        g_UIManager.Render();
        _Point2i point = {20, 20};
        g_UIManager.OnMouseMove(point);
        System.Ticks += 5000;
        g_UIManager.Render();
        g_UIManager.OnLMouseDown();
        g_UIManager.OnLMouseUp();
        if (TeskElement* panel = Panel()) {
            panel->FindUsableChild("A name that is not there at all", "frame");
            panel->FindChild("A name that is not there at all");
            panel->MoveZTop(true);
            g_UIManager.SetFocusElement(panel);
            g_UIManager.OnKeyDown('A');
        }
        LoadFile(); // replaces it
        g_UIManager.UnloadInterfaceXML("a.xml");
    };
    FailEachAllocation(Allocations::Failing::Once, life);
    FailEachAllocation(Allocations::Failing::FromThenOn, life);
}

TEST_F(ElementMemoryTest, AnElementMayRunOutOfMemoryInTheHandsOfAScript)
{
    const auto work = [] {
        if (!Panel())
            return;

        g_UIManager.SetElementMetadata(Panel()->ID, "HitTest", "a text that is too long to stand in the object");
        TeskTexture* texture = nullptr;
        char markup[] = "<Texture Filename='#a name of an image that is rather long'><Border>2</Border></Texture>";
        char* arguments[] = {markup};
        Panel()->TextureFromArgs(1, arguments, &texture);
        Panel()->TextureFromArgs(0, arguments, &texture);
        g_UIManager.Screen->DeleteChild(Panel());
    };
    for (std::size_t failure = 0; failure < 200; ++failure) {
        LoadFile();
        ASSERT_NE(nullptr, Panel());
        Allocations::FailAfter(failure, Allocations::Failing::Once);
        EXPECT_NO_THROW(work()) << "at allocation " << failure;
        Allocations::Allow();
        EXPECT_EQ(std::nullopt, FindTreeFault()) << "at allocation " << failure;
        EXPECT_EQ(nullptr, Panel()) << "at allocation " << failure;
    }
}
