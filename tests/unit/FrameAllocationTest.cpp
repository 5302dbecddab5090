#include "teskara/controls/TeskHudElement.h"
#include "teskara/controls/TeskText.h"
#include "teskara/controls/TeskTooltip.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "tests/unit/Allocations.h"
#include "tests/unit/ToolkitTest.h"

namespace {

class FrameAllocationTest : public ToolkitTest
{
protected:
    FrameAllocationTest() { Host.Recorded = 0; }

    static std::size_t AllocationsOfFrames(int count)
    {
        const std::size_t before = Allocations::Count();
        for (int frame = 0; frame < count; ++frame)
            g_UIManager.Render();
        return Allocations::Count() - before;
    }
};

} // namespace

TEST_F(FrameAllocationTest, AFrameInWhichNothingChangesAllocatesNothing)
{
    Load(
        "<frame name='Panel'><Width>100</Width><Height>100</Height><Border>2</Border>"
        "<BackgroundColor>ff000000</BackgroundColor><FadeDelay>10</FadeDelay><FadeDuration>10</FadeDuration>"
        "<OnRender>nothing</OnRender><AutoTooltip>Hint</AutoTooltip><Children>"
        "<frame name='Image'><Width>50</Width><Height>50</Height><Border>4</Border>"
        "<Texture Filename='#fill'><Border>4</Border></Texture></frame>"
        "<text name='Static'><Width>50</Width><Height>50</Height><Wrap>1</Wrap><Text>one two three</Text></text>"
        "<text name='Live'><Width>50</Width><Height>50</Height><Wrap>1</Wrap><Text>${Time} and more</Text></text>"
        "<button name='Plain'><Width>50</Width><Height>20</Height><Border>1</Border><Text>Go</Text></button>"
        "<commandbutton name='Image'><Width>50</Width><Height>20</Height><Text>${Go}</Text>"
        "<Texture Filename='#fill'/></commandbutton>"
        "<checkbox name='Box'><Width>50</Width><Height>20</Height><Text>On</Text><Texture Filename='#fill'/></checkbox>"
        "<commandcheckbox name='Live box'><Width>50</Width><Height>20</Height><Data>1</Data></commandcheckbox>"
        "<frame name='Hidden'><Visible>0</Visible><Children><frame name='Below'/></Children></frame>"
        "</Children></frame>");
    AllocationsOfFrames(2);
    EXPECT_EQ(0u, AllocationsOfFrames(100));
}

TEST_F(FrameAllocationTest, ATextThatChangesInEveryFrameReusesItsMemory)
{
    Load("<text name='T'><Width>80</Width><Height>50</Height><Text>A text of 20 letters</Text></text>");
    auto& text = As<TeskText>("T");
    text.SetText("Now it is a bit longer.");
    const char* const texts[] = {"One of some 20 letters", "And another, as long", "Now it is a bit longer."};
    const std::size_t before = Allocations::Count();
    for (int frame = 0; frame < 99; ++frame) {
        text.SetText(texts[frame % 3]);
        g_UIManager.Render();
    }
    EXPECT_EQ(before, Allocations::Count());
}

TEST_F(FrameAllocationTest, ATooltipThatStaysAllocatesNothing)
{
    Load("<tooltip name='T'/>");
    auto& tooltip = As<TeskTooltip>("T");
    tooltip.Print("A line that is too long to stand in the object itself\n\n\ay-and a line in colours\n");
    tooltip.Show(true);
    AllocationsOfFrames(2);
    EXPECT_EQ(0u, AllocationsOfFrames(100));
}

TEST_F(FrameAllocationTest, HudElementsAllocateNothingBetweenUpdates)
{
    Load("<hudelement name='H'><Text>${Time} and a text of some length</Text><UpdateInterval>200</UpdateInterval>"
         "</hudelement>");
    AllocationsOfFrames(2);
    EXPECT_EQ(0u, AllocationsOfFrames(100));
}

TEST_F(FrameAllocationTest, AHudElementThatIsUpdatedReusesItsMemory)
{
    Load("<hudelement name='H'/>");
    auto& hud = As<TeskHudElement>("H");
    hud.SetText("A text of some length, from the host");
    const utf8string* value = hud.CurrentText.get();
    const char* memory = value->data();
    Host.Expand = [](const std::string&) { return "Another one that is as long, or not"; };
    hud.UpdateText();
    EXPECT_EQ(value, hud.CurrentText.get());
    EXPECT_EQ(memory, hud.CurrentText->data());
    EXPECT_EQ("Another one that is as long, or not", *hud.CurrentText);
}

TEST_F(FrameAllocationTest, GaugesAndSlidersAllocateNothing)
{
    Load("<variablegauge name='G'><Width>100</Width><Height>20</Height><Range>10</Range><Data>5</Data>"
         "<TopTexture Filename='#a name that is longer than a short text'/><Filler><Width>100%</Width>"
         "<Height>100%</Height><Repeat>5</Repeat><Texture Filename='#a name that is longer than a short text'>"
         "<right>9</right></Texture></Filler></variablegauge>"
         "<variableslider name='S'><Width>100</Width><Height>20</Height><Range>10</Range>"
         "<Data>V</Data><VariableRange>1</VariableRange><Texture Filename='#fill'/>"
         "<HandleTexture Filename='#fill'/></variableslider>");
    AllocationsOfFrames(2);
    EXPECT_EQ(0u, AllocationsOfFrames(100));
}

TEST_F(FrameAllocationTest, WindowsAllocateNothingAsTheyStandAndMove)
{
    Load("<window name='W'><X>50</X><Y>50</Y><Width>100</Width><Height>100</Height><Resizable/><MinimizeButton/>"
         "<BackgroundColor>ff101010</BackgroundColor><TitleBar><Width>100</Width><Height>20</Height><Children>"
         "<text name='Title'/><button name='Minimize'><X>80</X><Width>20</Width><Height>20</Height></button>"
         "</Children></TitleBar><Client><Y>20</Y><Width>100%</Width><Height>r20</Height></Client></window>");
    AllocationsOfFrames(2);
    EXPECT_EQ(0u, AllocationsOfFrames(100));
    const TeskElement& window = Element("W");
    for (const _Point2i inside : {_Point2i{50, 10}, _Point2i{1, 60}}) {
        const _Point2i start = {window.AbsoluteX + inside.x, window.AbsoluteY + inside.y};
        _Point2i point = start;
        g_UIManager.OnMouseMove(point);
        g_UIManager.OnLMouseDown();
        const std::size_t before = Allocations::Count();
        for (int step = 0; step < 50; ++step) {
            point = {start.x - step, start.y + step};
            g_UIManager.OnMouseMove(point);
            g_UIManager.Render();
        }
        EXPECT_EQ(before, Allocations::Count());
        g_UIManager.OnLMouseUp();
    }
    EXPECT_EQ(155u, window.Width);
}
