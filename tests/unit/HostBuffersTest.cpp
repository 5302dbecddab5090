#include "teskara/collections/TeskListBox.h"
#include "teskara/controls/TeskVariableSlider.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/windows/TeskMessageBox.h"
#include "tests/unit/ToolkitTest.h"

#include <cstdio>
#include <cstring>
#include <set>
#include <string>
#include <vector>

namespace {

// Writes down the room that it is given for its answers.
class MeasuringHost : public TestHost
{
public:
    int DataParse(const char* text, char* output, u32 size) override
    {
        Sizes.push_back(size);
        return TestHost::DataParse(text, output, size);
    }

    int ExecuteAtomForText(u32, int, char**, _MvTypeVar*, u32, char*, u32 size) override
    {
        Sizes.push_back(size);
        return 0;
    }

    bool GetKeyName(u32, char*, u32 size) override
    {
        Sizes.push_back(size);
        return false;
    }

    std::vector<u32> Sizes;
};

class HostBuffersTest : public ToolkitTest
{
protected:
    ~HostBuffersTest() override { F1(&Host); }

    std::vector<u32> TakeSizes()
    {
        std::vector<u32> taken;
        taken.swap(Measures.Sizes);
        return taken;
    }

    // Loads from the usual host, and then measures.
    void LoadMeasured(const std::string& markup)
    {
        Load(markup);
        F1(&Measures);
    }

    MeasuringHost Measures;
};

using Sizes = std::vector<u32>;

} // namespace

TEST_F(HostBuffersTest, ATextMayExpandTo2047Bytes)
{
    LoadMeasured("<text name='T'><Width>100</Width><Height>20</Height><Text>${V}</Text></text>");
    g_UIManager.Render();
    EXPECT_EQ((Sizes{2048}), TakeSizes());
}

TEST_F(HostBuffersTest, AKeyMayHaveANameOf63Bytes)
{
    LoadMeasured("<frame name='A'><OnKeyDown>down</OnKeyDown></frame>");
    g_UIManager.SetFocusElement(&Element("A"));
    EXPECT_FALSE(g_UIManager.OnKeyDown(65));
    EXPECT_EQ((Sizes{64}), TakeSizes());
}

TEST_F(HostBuffersTest, AnAtomThatSortsMayAnswer511Bytes)
{
    g_UIManager.LoadElement(g_UIManager.Screen, "listbox", "L");
    F1(&Measures);
    auto& list = As<TeskListBox>("L");
    list.AddItem("a", "", 0);
    list.AddItem("b", "", 0);
    EXPECT_TRUE(list.SortByAtom(1));
    EXPECT_EQ((Sizes{512}), TakeSizes());
}

// A host may use the whole of its buffer before it has read the text.
TEST_F(HostBuffersTest, ATextIsNeverReadFromTheBufferForItsValue)
{
    class BackwardHost : public TestHost
    {
    public:
        int DataParse(const char* text, char* output, u32 size) override
        {
            std::memset(output, 'x', size);
            Read.insert(text);
            return std::snprintf(output, size, "value");
        }

        std::set<std::string> Read;
    };

    BackwardHost host;
    Load("<text name='T'><Width>100</Width><Height>20</Height><Wrap>1</Wrap><Text>${text}</Text></text>"
         "<tooltip name='Auto Tooltip'><Font/></tooltip>"
         "<frame name='F'><Y>50</Y><Width>50</Width><Height>50</Height><AutoTooltip>${hint}</AutoTooltip></frame>"
         "<variableslider name='S'><Range>5</Range><VariableRange>2</VariableRange><Data>name</Data></variableslider>");
    F1(&host);
    g_UIManager.Render();
    As<TeskVariableSlider>("S").Initialized = true;
    As<TeskVariableSlider>("S").SetValue(3);
    _Point2i point = {10, 60};
    g_UIManager.OnMouseMove(point);
    System.Ticks += 5000;
    for (int frame = 0; frame < 2; ++frame)
        g_UIManager.Render();
    auto* box = dynamic_cast<TeskMessageBox*>(g_UIManager.LoadElement(g_UIManager.Screen, "messagebox", "B"));
    ASSERT_NE(nullptr, box);
    box->Create("title", "${box}", MessageBoxOK, nullptr);
    EXPECT_EQ((std::set<std::string>{"${text}", "${hint}", "${name:Set[1.200000]}", "${box}"}), host.Read);
    F1(&Host);
}
