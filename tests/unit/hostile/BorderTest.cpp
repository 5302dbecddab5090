// What the toolkit does where a host oversteps: it calls back from where it may not, its platform throws, or a call of
// its own finds no memory.

#include "teskara/core/CUIManager.h"
#include "teskara/core/MarkupReading.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/markup/XMLDocument.h"
#include "teskara/script/MvIndex.h"
#include "teskara/script/MvIterator.h"
#include "teskara/script/MvTypeDefinition.h"
#include "teskara/windows/CContextMenuHandler.h"
#include "teskara/windows/TeskContextMenu.h"
#include "tests/unit/Allocations.h"
#include "tests/unit/ScriptHost.h"
#include "tests/unit/ToolkitTest.h"

#include <functional>
#include <stdexcept>

namespace {

// Calls back while it draws and measures.
class OversteppingHost final : public TestHost
{
public:
    u32 DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format) override
    {
        Overstep();
        return TestHost::DrawText(font, text, box, color, format);
    }
    u32 CreateFontResource(const char* name, u8 height, bool fixed, bool bold) override
    {
        Overstep();
        return TestHost::CreateFontResource(name, height, fixed, bold);
    }

    std::function<void()> Act;
    int Acts = 0;

private:
    void Overstep()
    {
        if (!Act)
            return;
        ++Acts;
        Act();
    }
};

// Throws in every operation.
class ThrowingPlatform final : public Platform
{
public:
    u32 GetTickCount() override { throw std::runtime_error("no clock"); }
    bool IsKeyToggled(u32) override { throw std::runtime_error("no keys"); }
    int ToAscii(u32, const u8*, char*) override { throw std::runtime_error("no keys"); }
    char16_t AnsiToWide(u8) override { throw std::runtime_error("no letters"); }
    std::FILE* OpenFile(const char16_t*) override { throw std::runtime_error("no files"); }
    bool FileExists(const char16_t*) override { throw std::runtime_error("no files"); }
    std::string GetModulePath() override { throw std::runtime_error("no module"); }
    void WriteDebugOutput(const char*) override { throw std::runtime_error("no output"); }
    void RangeFailure() override { throw std::runtime_error("no end"); }
    bool OpenClipboard() override { throw std::runtime_error("no clipboard"); }
    void CloseClipboard() override { throw std::runtime_error("no clipboard"); }
    bool EmptyClipboard() override { throw std::runtime_error("no clipboard"); }
    bool SetClipboardText(const std::string&) override { throw std::runtime_error("no clipboard"); }
    bool GetClipboardText(std::string&) override { throw std::runtime_error("no clipboard"); }
};

// Acts while it tells the time.
class ActingClock final : public TestPlatform
{
public:
    u32 GetTickCount() override
    {
        if (Act)
            Act();
        return Ticks;
    }

    std::function<void()> Act;
};

class WordMenu final : public CContextMenuHandler
{
public:
    void OnCreate(unsigned int) override { Item = AddItem("words", 1); }
    void OnClick(unsigned int) override { }

    u32 Item = 0;
};

class BorderTest : public ToolkitTest
{
protected:
    BorderTest() { F1(&m_Host); }
    ~BorderTest() override
    {
        m_Host.Act = nullptr;
        g_UIManager.Reset();
        F1(&Host);
    }

    OversteppingHost m_Host;
};

} // namespace

TEST(BorderDeathTest, ScriptsReachNothingFromWhereTheHostMayNotCallBack)
{
    WithToolkit([](ScriptHost& host) {
        TeskElement* frame = g_UIManager.LoadElement(g_UIManager.Screen, "frame", "F");
        MvTypeDefinition& type = host.Type("teskframe");
        MvValue object;
        object.Object = frame;
        _MvTypeVar result;
        int acts = 0;
        ActingClock clock;
        clock.Act = [&] {
            ++acts;
            EXPECT_EQ(-1, host.Run("UIElement", {"-kill", "F"}));
            type.DispatchMethod(object, "Destroy", 0, nullptr);
            EXPECT_NE(DispatchDone, type.DispatchMember(object, "Name", 0, nullptr, result));
        };
        SetPlatform(&clock);
        g_UIManager.Render();
        EXPECT_LT(0, acts);
        EXPECT_EQ(frame, g_UIManager.FindElement("F"));

        // Afterwards they do.
        clock.Act = nullptr;
        EXPECT_EQ(DispatchDone, type.DispatchMember(object, "Name", 0, nullptr, result));
        type.DispatchMethod(object, "Destroy", 0, nullptr);
        EXPECT_EQ(nullptr, g_UIManager.FindElement("F"));
        SetPlatform(nullptr);
    });
}

TEST_F(BorderTest, NothingIsDeletedLoadedOrDrawnFromWhereTheHostMayNotCallBack)
{
    g_UIManager.AddTemplate("words", "<Template><Text>words</Text></Template>");
    TeskElement* frame = g_UIManager.LoadElement(g_UIManager.Screen, "frame", "F");
    XMLNode* words = g_UIManager.FindTemplate("words");
    ASSERT_NE(nullptr, g_UIManager.LoadElement(frame, "text", "T", words, nullptr));
    m_Host.Act = [&] {
        g_UIManager.Screen->DeleteChild(frame);
        frame->Delete();
        g_UIManager.Reset();
        g_UIManager.Initialize();
        g_UIManager.Shutdown();
        g_UIManager.ClearTemplates();
        EXPECT_EQ(nullptr, g_UIManager.LoadElement(frame, "frame", "New"));
        EXPECT_FALSE(g_UIManager.LoadInterfaceXML("test.xml", true, nullptr));
        EXPECT_FALSE(g_UIManager.OnLMouseDown());
        g_UIManager.SetFocusElement(frame);
        g_UIManager.Render();
        EXPECT_EQ(frame, g_UIManager.FindElement("F"));
    };
    frame->Width = frame->Height = 100;
    frame->FirstChild->Width = frame->FirstChild->Height = 100;
    g_UIManager.Render();
    EXPECT_LT(0, m_Host.Acts);
    EXPECT_FALSE(g_UIManager.ShuttingDown);
    EXPECT_EQ(nullptr, g_UIManager.GetFocusElement());
    EXPECT_EQ(words, g_UIManager.FindTemplate("words"));
    EXPECT_NE(nullptr, g_UIManager.FindElement("T@F"));

    // Afterwards all of it is possible.
    m_Host.Act = nullptr;
    g_UIManager.Screen->DeleteChild(frame);
    EXPECT_EQ(nullptr, g_UIManager.FindElement("F"));
}

TEST_F(BorderTest, APlatformThatThrowsHasFailed)
{
    F1(&Host); // which finds the file
    Load("<textentry name='E'><Width>100</Width><Height>20</Height><MaxLength>20</MaxLength></textentry>");
    Frame();
    TeskElement& entry = Element("E");
    ThrowingPlatform broken;
    SetPlatform(&broken);
    _Point2i point = {10, 10};
    g_UIManager.OnMouseMove(point);
    EXPECT_EQ(&entry, g_UIManager.GetMouseOverElement());
    g_UIManager.SetFocusElement(&entry);
    for (const u32 key : {u32{'a'}, u32{17}, u32{'V'}})
        g_UIManager.OnKeyDown(key);
    g_UIManager.OnKeyUp(17);
    g_UIManager.Render();
    entry.DeleteChild(nullptr);
    EXPECT_FALSE(g_UIManager.LoadInterfaceXML("test.xml", true, nullptr));
    SetPlatform(&System);
    EXPECT_EQ(&entry, g_UIManager.GetFocusElement());
}

TEST_F(BorderTest, ADocumentThatFindsNoMemoryDoesNotParse)
{
    const auto parses = [](std::size_t allocation) {
        XMLDocument document;
        Allocations::FailAfter(allocation, Allocations::Failing::Once);
        const bool parsed = document.ParseBuffer("<a b='c'><d>Text</d><!-- and more --></a>");
        Allocations::Allow();
        return parsed;
    };
    std::size_t needed = 0;
    while (needed < 100 && !parses(needed))
        ++needed;
    EXPECT_LT(0u, needed);
    EXPECT_GT(100u, needed);
}

TEST_F(BorderTest, AnIteratorForWhichThereIsNoMemoryIsNone)
{
    MvIndex index(nullptr);
    Allocations::FailAfter(0, Allocations::Failing::Once);
    const std::unique_ptr<MvIterator> none = index.NewIterator();
    Allocations::Allow();
    EXPECT_EQ(nullptr, none);
    EXPECT_NE(nullptr, index.NewIterator());
}

TEST_F(BorderTest, AMenuThatFindsNoMemoryForItsLookOpensAllTheSame)
{
    g_UIManager.AddTemplate("contextmenu",
        "<Template><Font><Name>A name of some length, for a font</Name></Font>"
        "</Template>");
    int opened = 0;
    int unopened = 0;
    for (std::size_t allocation = 0; allocation < 60; ++allocation) {
        WordMenu menu;
        Allocations::FailAfter(allocation, Allocations::Failing::Once);
        const bool isOpen = menu.Create(10, 10);
        Allocations::Allow();
        EXPECT_EQ(isOpen, menu.Menu != nullptr) << allocation;
        ++(isOpen ? opened : unopened);
        g_UIManager.Render();
    }
    EXPECT_LT(0, opened);
    EXPECT_LT(0, unopened);
}

TEST_F(BorderTest, ATemplateThatIsReplacedWithoutMemoryIsFreedAllTheSame)
{
    const auto replace = [](std::size_t allocation) {
        g_UIManager.AddTemplate("words", "<Template><Text>words</Text></Template>");
        {
            const MarkupReading reading;
            Allocations::FailAfter(allocation, Allocations::Failing::FromThenOn);
            g_UIManager.AddTemplate("words", "<Template><Text>other</Text></Template>");
            Allocations::Allow();
        }
        g_UIManager.RemoveTemplate("words");
    };
    replace(1000);
    Allocations::BeginBooks();
    for (std::size_t allocation = 0; allocation < 60; ++allocation)
        replace(allocation);
    EXPECT_EQ(0u, Allocations::Outstanding());
    Allocations::EndBooks();
}
