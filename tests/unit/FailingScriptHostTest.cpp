// What becomes of an event when the host cannot compile its script, cannot run it, or has no name for the key: whether
// the operation answers failure or throws, the result is the same.

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "tests/unit/HostBooks.h"
#include "tests/unit/TestHost.h"
#include "tests/unit/ToolkitTest.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace {

enum class Fault {
    Refuses, // answers failure, and writes nothing
    Throws,
};

// A host of which one operation can be broken; it keeps books of its atoms, and finds the files of another.
class BookkeepingHost : public TestHost
{
public:
    explicit BookkeepingHost(TestHost& files) : m_Files(files) { }

    // An empty name mends all.
    void Break(std::string_view operation, Fault fault)
    {
        m_Broken = operation;
        m_Fault = fault;
    }

    bool LocateFile(const char* name, char* path) override { return m_Files.LocateFile(name, path); }
    u32 CompileAtom(const char* source, u32 length) override
    {
        return Fails("CompileAtom") ? 0 : Books.Lend("atom", TestHost::CompileAtom(source, length));
    }
    void ReleaseAtom(u32 atom) override
    {
        Books.TakeBack("atom", atom);
        TestHost::ReleaseAtom(atom);
    }
    int ExecuteAtom(u32 atom, u32 unused, int argc, char** argv, _MvTypeVar* self) override
    {
        return Fails("ExecuteAtom") ? 0 : TestHost::ExecuteAtom(atom, unused, argc, argv, self);
    }
    bool GetKeyName(u32 key, char* buffer, u32 size) override
    {
        return !Fails("GetKeyName") && TestHost::GetKeyName(key, buffer, size);
    }

    HostBooks Books;

private:
    bool Fails(std::string_view operation) const
    {
        if (operation != m_Broken)
            return false;
        if (m_Fault == Fault::Throws)
            throw std::runtime_error(std::string(operation));
        return true;
    }

    TestHost& m_Files;
    std::string m_Broken;
    Fault m_Fault = Fault::Refuses;
};

class FailingScriptHostTest : public ToolkitTest, public testing::WithParamInterface<Fault>
{
protected:
    FailingScriptHostTest()
    {
        F1(&m_Host);
        m_Host.NamesKeys = true;
        m_Host.Scripts["script"] = [this](TeskElement& self) { m_Runs += self.Name + " "; };
    }

    ~FailingScriptHostTest() override
    {
        g_UIManager.Reset();
        EXPECT_EQ("", m_Host.Books.Imbalance());
        F1(&Host);
    }

    void LoadPanel()
    {
        Load("<frame name='Panel'><Width>100</Width><Height>100</Height><OnLeftDown>script</OnLeftDown>"
             "<OnKeyDown>script</OnKeyDown><OnUnload>script</OnUnload><Children><frame name='Part'><Width>50</Width>"
             "<Height>50</Height><OnKeyDown>script</OnKeyDown></frame></Children></frame>");
    }

    void Break(const char* operation) { m_Host.Break(operation, GetParam()); }
    void Mend() { m_Host.Break("", GetParam()); }

    static bool PressPanel()
    {
        _Point2i point = {80, 80};
        g_UIManager.OnMouseMove(point);
        const bool taken = g_UIManager.OnLMouseDown();
        g_UIManager.OnLMouseUp();
        return taken;
    }

    std::string TakeRuns() { return std::exchange(m_Runs, {}); }

    BookkeepingHost m_Host{Host};

private:
    std::string m_Runs;
};

} // namespace

TEST_P(FailingScriptHostTest, AnEventThatDoesNotCompileIsNoneAndALineSaysSo)
{
    Break("CompileAtom");
    LoadPanel();
    EXPECT_EQ("PrintLine \"OnUnload embedded script failed to load\"\n"
              "PrintLine \"OnLeftDown embedded script failed to load\"\n"
              "PrintLine \"OnKeyDown embedded script failed to load\"\n"
              "PrintLine \"OnKeyDown embedded script failed to load\"\n",
        m_Host.TakeCalls());
    EXPECT_FALSE(PressPanel());
    g_UIManager.SetFocusElement(&Element("Part@Panel"));
    EXPECT_FALSE(g_UIManager.OnKeyDown('A'));
    EXPECT_EQ("", TakeRuns());
}

TEST_P(FailingScriptHostTest, AScriptThatDoesNotRunTakesItsEventAndRunsTheNextTime)
{
    LoadPanel();
    m_Host.TakeCalls();
    Break("ExecuteAtom");
    EXPECT_TRUE(PressPanel());
    EXPECT_EQ("", TakeRuns());
    EXPECT_EQ("", m_Host.TakeCalls());
    EXPECT_EQ(1u, Element("Panel").Events.OnLeftDown->ReferenceCount);

    Mend();
    EXPECT_TRUE(PressPanel());
    EXPECT_EQ("panel ", TakeRuns());
}

TEST_P(FailingScriptHostTest, AnElementWhoseOnUnloadDoesNotRunIsDeletedAllTheSame)
{
    LoadPanel();
    Break("ExecuteAtom");
    Element("Panel").Parent->DeleteChild(&Element("Panel"));
    EXPECT_EQ(nullptr, g_UIManager.FindElement("Panel"));
    EXPECT_EQ("", m_Host.Books.Imbalance());
}

TEST_P(FailingScriptHostTest, AKeyWithoutANameRunsNoScriptAndNobodyTakesIt)
{
    LoadPanel();
    g_UIManager.SetFocusElement(&Element("Part@Panel"));
    Break("GetKeyName");
    EXPECT_FALSE(g_UIManager.OnKeyDown('A'));
    EXPECT_FALSE(g_UIManager.OnKeyUp('A'));
    EXPECT_EQ("", TakeRuns());
    EXPECT_EQ("", m_Host.TakeCalls());

    Mend();
    EXPECT_TRUE(g_UIManager.OnKeyDown('A'));
    EXPECT_EQ("part ", TakeRuns());
    EXPECT_TRUE(g_UIManager.OnKeyUp('A'));
}

INSTANTIATE_TEST_SUITE_P(RefusesAndThrows, FailingScriptHostTest, testing::Values(Fault::Refuses, Fault::Throws));
