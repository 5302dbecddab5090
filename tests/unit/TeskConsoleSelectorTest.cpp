#include "teskara/element/TeskConsoleSelector.h"

#include "teskara/core/CUIManager.h"
#include "teskara/text/TeskConsole.h"
#include "tests/unit/ToolkitTest.h"

#include <cstring>
#include <stdexcept>

namespace {

class TeskConsoleSelectorTest : public ToolkitTest
{
protected:
    TeskConsoleSelectorTest()
    {
        Host.Recorded = RecordCommands;
        Host.Console = "main";
    }
};

// Tells of a console by filling all the room that it is given, or not at all.
class OverfullHost : public TestHost
{
public:
    void GetOutputConsole(char* buffer, u32 size) override
    {
        if (Fails)
            throw std::runtime_error("no console");
        std::memset(buffer, 'c', size);
    }
    bool Fails = false;
};

} // namespace

TEST_F(TeskConsoleSelectorTest, OutputGoesThereAndThenBack)
{
    {
        const TeskConsoleSelector selector("other");
        EXPECT_EQ("GetOutputConsole size=1024\nSetOutputConsole \"other\"\n", Host.TakeCalls());
    }
    EXPECT_EQ("SetOutputConsole \"main\"\n", Host.TakeCalls());
}

TEST_F(TeskConsoleSelectorTest, SelectorsNest)
{
    {
        const TeskConsoleSelector outer("outer");
        {
            const TeskConsoleSelector inner("inner");
            EXPECT_EQ("inner", Host.Console);
        }
        EXPECT_EQ("outer", Host.Console);
    }
    EXPECT_EQ("main", Host.Console);
}

TEST_F(TeskConsoleSelectorTest, ANullNameIsEmpty)
{
    const TeskConsoleSelector selector(static_cast<const char*>(nullptr));
    EXPECT_EQ("", Host.Console);
}

TEST_F(TeskConsoleSelectorTest, ALongNameIsCutAndTerminated)
{
    OverfullHost host;
    F1(&host);
    {
        const TeskConsoleSelector selector("other");
    }
    EXPECT_EQ(std::string(1023, 'c'), host.Console);
    F1(&Host);
}

TEST_F(TeskConsoleSelectorTest, AHostThatDoesNotTellGetsAnEmptyNameBack)
{
    OverfullHost host;
    host.Fails = true;
    F1(&host);
    {
        const TeskConsoleSelector selector("other");
        EXPECT_EQ("other", host.Console);
    }
    EXPECT_EQ("", host.Console);
    F1(&Host);
}

TEST_F(TeskConsoleSelectorTest, WithoutAHostItIsHarmless)
{
    F1(nullptr);
    {
        const TeskConsoleSelector selector("other");
    }
    F1(&Host);
    EXPECT_EQ("main", Host.Console);
}

TEST_F(TeskConsoleSelectorTest, AConsoleIsSelectedByItsFullName)
{
    Load("<frame name='F'><Children><console name='Out'><ScrollBar><Width>1</Width></ScrollBar></console></Children>"
         "</frame>");
    {
        const TeskConsoleSelector selector(&As<TeskConsole>("Out@F"));
        EXPECT_EQ("Out@F", Host.Console);
    }
    EXPECT_EQ("main", Host.Console);
}

TEST_F(TeskConsoleSelectorTest, NoConsoleHasAnEmptyName)
{
    const TeskConsoleSelector selector(static_cast<TeskConsole*>(nullptr));
    EXPECT_EQ("", Host.Console);
}

TEST_F(TeskConsoleSelectorTest, AConsoleMayGoAsItIsSelected)
{
    Load("<console name='Out'><ScrollBar><Width>1</Width></ScrollBar></console>");
    Host.OnConsole = [](const std::string&) { g_UIManager.Reset(); };
    {
        const TeskConsoleSelector selector(&As<TeskConsole>("Out"));
        EXPECT_EQ("Out", Host.Console);
    }
    EXPECT_EQ("main", Host.Console);
}
