#include "teskara/collections/TabStrip.h"

#include "tests/unit/Allocations.h"

#include <gtest/gtest.h>

#include <deque>
#include <limits>
#include <string>
#include <vector>

namespace {

class TabStripTest : public testing::Test
{
protected:
    CTeskTab& Make(const char* name, u32 width)
    {
        return Tabs.emplace_back(nullptr, static_cast<u32>(Tabs.size()) + 1, name, width);
    }

    CTeskTab& Add(const char* name, u32 width)
    {
        CTeskTab& tab = Make(name, width);
        EXPECT_TRUE(Strip.Add(tab));
        return tab;
    }

    // The names from left to right up to the last tab, "-" for a free place; each tab must know its place.
    std::string Names() const
    {
        std::string names;
        for (u32 place = 0; place < Strip.Places(); ++place) {
            const CTeskTab* tab = Strip.At(place);
            EXPECT_TRUE(!tab || tab->Order == place);
            names += tab ? tab->Name : "-";
        }
        return names.substr(0, names.find_last_not_of('-') + 1);
    }

    std::string NameAt(u32 firstPlace, u32 offset) const
    {
        const CTeskTab* tab = Strip.FindAt(firstPlace, offset);
        return tab ? tab->Name : "none";
    }

    // "name from-to" for each tab that is laid out, and "more" if there is more than fits.
    std::vector<std::string> LaidOut(u32 firstPlace, i32 left, i32 limit) const
    {
        std::vector<std::string> spans;
        const bool isCut = Strip.LayOut(firstPlace, left, limit, [&](const CTeskTab& tab, i32 from, i32 to) {
            spans.push_back(tab.Name + " " + std::to_string(from) + "-" + std::to_string(to));
        });
        if (isCut)
            spans.emplace_back("more");
        return spans;
    }

    std::deque<CTeskTab> Tabs;
    TabStrip Strip;
};

using Strings = std::vector<std::string>;

constexpr u32 LargestWidth = std::numeric_limits<u32>::max();

} // namespace

TEST_F(TabStripTest, ATabComesBehindTheOthers)
{
    EXPECT_EQ(nullptr, Strip.Front());
    Add("a", 1);
    Add("b", 1);
    Add("c", 1);
    EXPECT_EQ("abc", Names());
    EXPECT_EQ("a", Strip.Front()->Name);
}

TEST_F(TabStripTest, PlacesComeTenAtATime)
{
    EXPECT_EQ(0u, Strip.Places());
    for (int count = 1; count <= 10; ++count) {
        Add("a", 1);
        EXPECT_EQ(10u, Strip.Places());
    }
    Add("b", 1);
    EXPECT_EQ(20u, Strip.Places());
    EXPECT_EQ("aaaaaaaaaab", Names());
}

TEST_F(TabStripTest, PlacesBeyondTheEndHaveNoTab)
{
    Add("a", 1);
    EXPECT_EQ(nullptr, Strip.At(1));
    EXPECT_EQ(nullptr, Strip.At(10));
    EXPECT_EQ(nullptr, Strip.At(std::numeric_limits<u32>::max()));
}

TEST_F(TabStripTest, RemovingATabMovesThoseBehindItUpByOne)
{
    Add("a", 1);
    CTeskTab& b = Add("b", 1);
    Add("c", 1);
    CTeskTab& d = Add("d", 1);
    Strip.Remove(b);
    EXPECT_EQ("acd", Names());
    Strip.Remove(d);
    EXPECT_EQ("ac", Names());
    Add("e", 1);
    EXPECT_EQ("ace", Names());
    EXPECT_EQ(10u, Strip.Places());
}

TEST_F(TabStripTest, AFullStripLosesItsLastTab)
{
    for (int count = 1; count < 10; ++count)
        Add("a", 1);
    CTeskTab& last = Add("b", 1);
    Strip.Remove(last);
    EXPECT_EQ("aaaaaaaaa", Names());
    EXPECT_EQ(10u, Strip.Places());
}

TEST_F(TabStripTest, MovingATabShiftsThoseBetweenTowardsItsOldPlace)
{
    CTeskTab& a = Add("a", 1);
    Add("b", 1);
    Add("c", 1);
    CTeskTab& d = Add("d", 1);
    Strip.Move(a, 2);
    EXPECT_EQ("bcad", Names());
    Strip.Move(d, 0);
    EXPECT_EQ("dbca", Names());
    Strip.Move(d, 0);
    EXPECT_EQ("dbca", Names());
}

TEST_F(TabStripTest, ATabMayBeMovedBehindFreePlaces)
{
    CTeskTab& a = Add("a", 10);
    Add("b", 10);
    Strip.Move(a, 4);
    EXPECT_EQ("b---a", Names());
    EXPECT_EQ("b", Strip.Front()->Name);
    EXPECT_EQ("a", NameAt(0, 10));
    EXPECT_EQ("a", NameAt(2, 9));
    EXPECT_EQ((Strings{"b 0-10", "a 10-20"}), LaidOut(0, 0, 100));
    EXPECT_EQ((Strings{"a 0-10"}), LaidOut(1, 0, 100));
    Add("c", 10);
    EXPECT_EQ("bc--a", Names());
    Strip.Remove(*Strip.Front());
    EXPECT_EQ("c--a", Names());
    Strip.Remove(a);
    EXPECT_EQ("c", Names());
}

TEST_F(TabStripTest, MovingBeyondTheLastPlaceDoesNothing)
{
    CTeskTab& a = Add("a", 1);
    Add("b", 1);
    Strip.Move(a, 10);
    Strip.Move(a, std::numeric_limits<u32>::max());
    EXPECT_EQ("ab", Names());
}

TEST_F(TabStripTest, ATabIsFoundUpToItsWidth)
{
    Add("a", 30);
    Add("b", 0);
    Add("c", 20);
    EXPECT_EQ("a", NameAt(0, 0));
    EXPECT_EQ("a", NameAt(0, 29));
    EXPECT_EQ("c", NameAt(0, 30));
    EXPECT_EQ("c", NameAt(0, 49));
    EXPECT_EQ("none", NameAt(0, 50));
}

TEST_F(TabStripTest, OffsetsCountFromTheFirstPlace)
{
    Add("a", 30);
    Add("b", 20);
    EXPECT_EQ("b", NameAt(1, 0));
    EXPECT_EQ("none", NameAt(1, 20));
    EXPECT_EQ("none", NameAt(2, 0));
    EXPECT_EQ("none", NameAt(std::numeric_limits<u32>::max(), 0));
}

TEST_F(TabStripTest, NothingIsFoundBeforeTheBeginning)
{
    Add("a", 30);
    Add("b", 20);
    EXPECT_EQ("none", NameAt(0, static_cast<u32>(-1)));
    EXPECT_EQ("none", NameAt(0, static_cast<u32>(-30)));
    EXPECT_EQ("none", NameAt(1, 0x80000000u));
}

TEST_F(TabStripTest, TabsAreLaidOutSideBySide)
{
    Add("a", 30);
    Add("b", 20);
    EXPECT_EQ((Strings{"a 5-35", "b 35-55"}), LaidOut(0, 5, 100));
    EXPECT_EQ((Strings{"b 5-25"}), LaidOut(1, 5, 100));
    EXPECT_EQ((Strings{}), LaidOut(2, 5, 100));
    EXPECT_EQ((Strings{}), LaidOut(std::numeric_limits<u32>::max(), 5, 100));
}

TEST_F(TabStripTest, TheTabAtTheLimitIsCutAndTheLast)
{
    Add("a", 30);
    Add("b", 20);
    Add("c", 20);
    EXPECT_EQ((Strings{"a 0-30", "b 30-40", "more"}), LaidOut(0, 0, 40));
    EXPECT_EQ((Strings{"a 0-30", "b 30-50", "more"}), LaidOut(0, 0, 50));
    EXPECT_EQ((Strings{"a 0-30", "b 30-50", "c 50-51", "more"}), LaidOut(0, 0, 51));
}

TEST_F(TabStripTest, FreePlacesBehindTheLimitCount)
{
    for (int count = 1; count < 10; ++count)
        Add("a", 10);
    EXPECT_EQ("more", LaidOut(8, 0, 10).back());
    EXPECT_EQ((Strings{"a 0-10"}), LaidOut(8, 0, 11));
    Add("b", 10);
    EXPECT_EQ("more", LaidOut(8, 0, 10).back());
    EXPECT_EQ((Strings{"b 0-10"}), LaidOut(9, 0, 10));
}

TEST_F(TabStripTest, WithoutRoomTheFirstTabIsLaidOutAllTheSame)
{
    Add("a", 30);
    Add("b", 20);
    EXPECT_EQ((Strings{"a 20-10", "more"}), LaidOut(0, 20, 10));
    EXPECT_EQ((Strings{"a 20-20", "more"}), LaidOut(0, 20, 20));
}

TEST_F(TabStripTest, GiantWidthsEndAtTheLimit)
{
    Add("a", LargestWidth);
    Add("b", 20);
    EXPECT_EQ((Strings{"a 100-200", "more"}), LaidOut(0, 100, 200));
    const i32 farthest = std::numeric_limits<i32>::max();
    EXPECT_EQ((Strings{"b 2147483640-2147483647", "more"}), LaidOut(1, farthest - 7, farthest));
    EXPECT_EQ("a", NameAt(0, LargestWidth - 1));
    EXPECT_EQ("b", NameAt(0, LargestWidth));
}

TEST_F(TabStripTest, WithoutMemoryATabIsRefused)
{
    CTeskTab& tab = Make("a", 1);
    Allocations::FailAfter(0, Allocations::Failing::FromThenOn);
    const bool added = Strip.Add(tab);
    Allocations::Allow();
    EXPECT_FALSE(added);
    EXPECT_EQ(0u, Strip.Places());
    EXPECT_TRUE(Strip.Add(tab));
    EXPECT_EQ("a", Names());
}
