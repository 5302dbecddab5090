// What text fields share at the keyboard: the repeat of a held key, and the walk from field to field.

#include "teskara/element/TeskElementFactory.h"
#include "teskara/text/TextKeys.h"
#include "tests/unit/TextEntryTest.h"

namespace {

class KeyRepeatTest : public TextEntryTest
{
protected:
    KeyRepeatTest() { System.KeyTexts['A'] = "a"; }

    // A frame so many milliseconds later. Returns the length of the text.
    u64 FrameAfter(TeskTextEntry& entry, u32 milliseconds)
    {
        System.Ticks += milliseconds;
        Frame();
        return entry.Text.TextLength;
    }
};

class TabWalkTest : public TextEntryTest
{
protected:
    // Presses Tab, with Shift if asked for. Returns the name of the focus element.
    static std::string Tab(bool shift = false)
    {
        g_UIManager.ShiftDown = shift;
        g_UIManager.OnKeyDown(KeyTab);
        g_UIManager.ShiftDown = false;
        const TeskElement* focus = g_UIManager.GetFocusElement();
        return focus ? std::string(focus->Name) : "";
    }

    void FocusOn(const char* name) { g_UIManager.SetFocusElement(&Element(name)); }
};

} // namespace

TEST_F(KeyRepeatTest, AHeldKeyComesAgainAfterADelayAndThenAtItsRate)
{
    TeskTextEntry& entry = LoadEntry();
    g_UIManager.OnKeyDown('A');
    EXPECT_EQ(1u, FrameAfter(entry, 250));
    EXPECT_EQ(2u, FrameAfter(entry, 1)); // due at 250, the next at 300
    EXPECT_EQ(2u, FrameAfter(entry, 49));
    EXPECT_EQ(3u, FrameAfter(entry, 1));
    EXPECT_EQ(4u, FrameAfter(entry, 50));
    g_UIManager.OnKeyUp('A');
    EXPECT_EQ(4u, FrameAfter(entry, 1000));
}

TEST_F(KeyRepeatTest, AFrameGivesTheKeyOnceHoweverLateItIs)
{
    TeskTextEntry& entry = LoadEntry();
    g_UIManager.OnKeyDown('A');
    EXPECT_EQ(2u, FrameAfter(entry, 401)); // three are due
    EXPECT_EQ(3u, FrameAfter(entry, 0));
    EXPECT_EQ(4u, FrameAfter(entry, 0));
    EXPECT_EQ(5u, FrameAfter(entry, 0));
    EXPECT_EQ(5u, FrameAfter(entry, 0));
}

TEST_F(KeyRepeatTest, TheManagersTimesCount)
{
    g_UIManager.KeyRepeatDelay = 10;
    g_UIManager.KeyRepeatRate = 5;
    TeskTextEntry& entry = LoadEntry();
    g_UIManager.OnKeyDown('A');
    EXPECT_EQ(2u, FrameAfter(entry, 11));
    EXPECT_EQ(3u, FrameAfter(entry, 5));
    g_UIManager.KeyRepeatDelay = 250;
    g_UIManager.KeyRepeatRate = 50;
}

TEST_F(KeyRepeatTest, TheReleaseOfAnotherKeyDoesNotStopIt)
{
    TeskTextEntry& entry = LoadEntry();
    g_UIManager.OnKeyDown('A');
    g_UIManager.OnKeyUp('B');
    EXPECT_EQ(2u, FrameAfter(entry, 251));
}

TEST_F(KeyRepeatTest, LosingTheFocusStopsIt)
{
    TeskTextEntry& entry = LoadEntry();
    g_UIManager.OnKeyDown('A');
    g_UIManager.SetFocusElement(nullptr);
    EXPECT_EQ(0u, entry.Repeat.HeldKey);
    entry.Repeat.Hold('A'); // as if it were pressed once more
    EXPECT_EQ(1u, FrameAfter(entry, 251));
    EXPECT_EQ(0u, entry.Repeat.HeldKey);
}

TEST_F(KeyRepeatTest, EnterIsNotRepeatedAndTheSeparatorIs)
{
    int told = 0;
    Parent.Act = [&](TeskElement&) { ++told; };
    auto& entry = Make<TeskTextEntry>("textentry");
    g_UIManager.FocusElementID = entry.ID;
    for (const u32 key : {u32{KeyEnter}, u32{KeySeparator}}) {
        entry.OnKeyDown(key);
        System.Ticks += 251;
        entry.Render();
    }
    EXPECT_EQ(3, told);
}

TEST_F(KeyRepeatTest, ARepeatMayDeleteTheEntryInTheMiddleOfAFrame)
{
    TeskTextEntry& entry = LoadEntry("<OnChange>change</OnChange>");
    g_UIManager.OnKeyDown('A');
    Host.Scripts["change"] = [&](TeskElement& self) { g_UIManager.Screen->DeleteChild(&self); };
    System.Ticks += 251;
    Host.TakeCalls();
    EXPECT_EQ("", Frame());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("E"));
    static_cast<void>(entry);
}

// The sum of ticks wraps; what was due after the wrap is due at once.
TEST_F(KeyRepeatTest, TheEndOfTheClockDoesNotStopIt)
{
    System.Ticks = 0xffffffff - 100;
    TeskTextEntry& entry = LoadEntry();
    g_UIManager.OnKeyDown('A');
    EXPECT_EQ(2u, FrameAfter(entry, 1));
    EXPECT_EQ(3u, FrameAfter(entry, 1000));
    EXPECT_LE(FrameAfter(entry, 1), 4u);
}

TEST_F(TabWalkTest, TabGoesFromFieldToFieldThroughTheWholeTree)
{
    Load("<textentry name='A'/><frame name='F'><Children><text name='T'/><textentry name='B'/>"
         "<textentry name='Hidden'><Visible>0</Visible></textentry><textentry name='C'/></Children></frame>");
    FocusOn("A");
    EXPECT_EQ("b", Tab());
    EXPECT_EQ("c", Tab());
    EXPECT_EQ("c", Tab()); // there is no way around
    EXPECT_EQ("b", Tab(true));
    EXPECT_EQ("f", std::string(Element("B@F").Parent->Name));
}

TEST_F(TabWalkTest, TabIsTakenAndNeitherHeldNorGivenToAScript)
{
    bool ran = false;
    Host.NamesKeys = true;
    Host.Scripts["key"] = [&](TeskElement&) { ran = true; };
    TeskTextEntry& entry = LoadEntry("<OnKeyDown>key</OnKeyDown>");
    System.KeyTexts[KeyTab] = "\t";
    EXPECT_TRUE(g_UIManager.OnKeyDown(KeyTab));
    EXPECT_EQ(0u, entry.Repeat.HeldKey);
    EXPECT_STREQ("", entry.Text.Bytes());
    EXPECT_FALSE(ran);
    EXPECT_TRUE(entry.IsFocus());
}

TEST_F(TabWalkTest, AKindThatEndsWhenItIsAskedEndsTheWalk)
{
    class Vanishing : public TeskElement
    {
    public:
        using TeskElement::TeskElement;
        MvTypeDefinition* GetMvType() override
        {
            Parent->DeleteChild(this);
            return nullptr;
        }
    };

    const TeskFactory<Vanishing> factory("vanishing");
    Load("<textentry name='A'/><vanishing name='V'/><textentry name='B'/>");
    FocusOn("A");
    EXPECT_EQ("a", Tab());
    EXPECT_EQ("b", Tab());
}
