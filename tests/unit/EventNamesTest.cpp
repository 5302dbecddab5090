#include "teskara/element/EventNames.h"

#include "teskara/controls/TeskSlider.h"
#include "teskara/element/MarkupTable.h"
#include "tests/unit/ToolkitTest.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace {

class EventNamesTest : public ToolkitTest
{
protected:
    // Both have a script for OnRender, the slider one more.
    EventNamesTest()
    {
        Load("<frame name='Plain'><OnRender>a</OnRender></frame><slider name='Loud'><OnRender>b</OnRender>"
             "<OnChange>c</OnChange></slider>");
    }

    u32 RenderAtom(const char* name) { return Element(name).Events.OnRender->Atom; }
};

// A kind that comes with an extension, and what it reads in its own way.
class Singer : public TeskElement
{
public:
    using TeskElement::TeskElement;

    ScriptPointer OnSing;
};

constexpr MarkupForm<Singer> Number = {"number", nullptr};
constexpr MarkupForm<Singer> Song = {
    "song", nullptr, [](const Singer& singer) -> const ScriptPointer& { return singer.OnSing; }};
constexpr MarkupValue<Singer> SingerValues[] = {{"Volume", Number, {}}, {"OnSing", Song, {}}};

bool IsKnown(std::string_view event)
{
    const std::vector<const char*> names = EventNames();
    return std::find(names.begin(), names.end(), event) != names.end();
}

} // namespace

TEST_F(EventNamesTest, AnEventIsFoundByItsAtom)
{
    EXPECT_STREQ("OnRender", NameOfEvent(Element("Plain"), RenderAtom("Plain")));
    EXPECT_STREQ("OnRender", NameOfEvent(Element("Loud"), RenderAtom("Loud")));
    EXPECT_STREQ("OnChange", NameOfEvent(Element("Loud"), As<TeskSlider>("Loud").OnChange->Atom));
}

TEST_F(EventNamesTest, AnAtomOfAnotherElementIsNoEvent)
{
    EXPECT_EQ(nullptr, NameOfEvent(Element("Plain"), As<TeskSlider>("Loud").OnChange->Atom));
    EXPECT_EQ(nullptr, NameOfEvent(Element("Loud"), RenderAtom("Plain")));
    EXPECT_EQ(nullptr, NameOfEvent(Element("Plain"), 0));
}

TEST_F(EventNamesTest, EventsOfEveryElementComeFirst)
{
    const std::vector<const char*> names = EventNames();
    ASSERT_LT(17u, names.size());
    EXPECT_STREQ("OnLoad", names[0]);
    EXPECT_STREQ("OnRender", names[16]);
    EXPECT_TRUE(
        std::is_sorted(names.begin() + 17, names.end(), [](std::string_view a, std::string_view b) { return a < b; }));
    EXPECT_EQ(names.size(), std::set<std::string_view>(names.begin(), names.end()).size()) << "each is there once";
    EXPECT_TRUE(IsKnown("OnChange"));
}

TEST_F(EventNamesTest, AnExtensionBringsItsEventsAndTakesThemAlong)
{
    {
        const MarkupTableRows events(SingerValues);
        const MarkupTableRows others(SingerValues);
        EXPECT_TRUE(IsKnown("OnSing"));
        EXPECT_FALSE(IsKnown("Volume"));
        EXPECT_EQ(nullptr, NameOfEvent(Element("Plain"), 1000));
    }
    EXPECT_FALSE(IsKnown("OnSing"));
    EXPECT_TRUE(IsKnown("OnRender"));
}
