#include "host/drawlist/DrawDifference.h"

#include <gtest/gtest.h>

namespace {

// What is said of two frames that are given as the lines of their calls.
std::string Differences(const std::string& before, const std::string& after)
{
    std::string why;
    const auto first = host::ReadDrawList("TeskaraDrawList 1 640x480\n" + before, why);
    const auto second = host::ReadDrawList("TeskaraDrawList 1 640x480\n" + after, why);
    EXPECT_TRUE(first && second) << why;
    return DrawDifferencesAsText(CompareDrawLists(*first, *second));
}

constexpr char Button[] = "\"Ok\" DrawRect (10,10,90,34) color=ff202020\n"
                          "\"Ok\" DrawText (14,12,90,34) text=\"OK\" color=ffffffff\n";

TEST(DrawDifference, OfTheSameIsNothing)
{
    EXPECT_EQ(Differences(Button, Button), "");
}

TEST(DrawDifference, TellsHowFarAnElementHasMovedOnce)
{
    EXPECT_EQ(Differences(Button,
                  "\"Ok\" DrawRect (12,15,92,39) color=ff202020\n"
                  "\"Ok\" DrawText (16,17,92,39) text=\"OK\" color=ffffffff\n"),
        "\"Ok\": moved from (10,10) to (12,15) (2 times)\n");
}

TEST(DrawDifference, TellsOfSizesColoursAndTexts)
{
    EXPECT_EQ(Differences(Button,
                  "\"Ok\" DrawRect (10,10,110,34) color=ff303030\n"
                  "\"Ok\" DrawText (14,12,90,34) text=\"Yes\" color=ffffffff\n"),
        "\"Ok\": resized from 80x24 to 100x24\n"
        "\"Ok\": recoloured from ff202020 to ff303030\n"
        "\"Ok\": text changed from \"OK\" to \"Yes\"\n");
}

TEST(DrawDifference, TellsOfWhatIsSaidOnlyOnce)
{
    EXPECT_EQ(Differences("\"A\" DrawTexturedRect (0,0,9,9) image=\"a\" alpha=128\n",
                  "\"A\" DrawTexturedRect (0,0,9,9) image=\"b\" turns=1\n"),
        "\"A\": image changed from \"a\" to \"b\"\n"
        "\"A\": alpha changed from 128 to nothing\n"
        "\"A\": turns changed from nothing to 1\n");
}

TEST(DrawDifference, TellsWhichElementsVanishAndAppear)
{
    EXPECT_EQ(Differences("\"A\" DrawRect (0,0,9,9)\n", "\"B\" DrawRect (5,6,15,26)\n\"B\" DrawRect (1,6,2,7)\n"),
        "\"A\": vanished at (0,0), 9x9\n"
        "\"B\": appeared at (1,6), 14x20\n");
}

TEST(DrawDifference, KnowsWhatIsTheSameBesideWhatIsNew)
{
    EXPECT_EQ(Differences(Button,
                  "\"Ok\" DrawRect (10,10,90,34) color=ff202020\n"
                  "\"Ok\" DrawRect (11,11,20,20) color=ff0000ff\n"
                  "\"Ok\" DrawText (14,12,90,34) text=\"OK\" color=ffffffff\n"),
        "\"Ok\": has a new DrawRect at (11,11)\n");
    EXPECT_EQ(Differences(Button, "\"Ok\" DrawText (14,12,90,34) text=\"OK\" color=ffffffff\n"),
        "\"Ok\": no longer has the DrawRect at (10,10)\n");
}

TEST(DrawDifference, KnowsWhatHasMovedBesideWhatIsNew)
{
    EXPECT_EQ(Differences(Button,
                  "\"Ok\" DrawRect (0,0,9,9) color=ff0000ff\n"
                  "\"Ok\" DrawRect (20,10,100,34) color=ff202020\n"
                  "\"Ok\" DrawText (24,12,100,34) text=\"OK\" color=ffffffff\n"),
        "\"Ok\": has a new DrawRect at (0,0)\n"
        "\"Ok\": moved from (10,10) to (20,10) (2 times)\n");
}

TEST(DrawDifference, TellsWhoIsDrawnInAnotherPlaceOfTheOrder)
{
    const std::string a = "\"A\" DrawRect (0,0,1,1)\n";
    const std::string b = "\"B\" DrawRect (0,0,2,2)\n";
    const std::string c = "\"C\" DrawRect (0,0,3,3)\n";
    EXPECT_EQ(Differences(a + b + c, b + c + a), "\"A\": is drawn after \"C\", and was first\n");
    EXPECT_EQ(Differences(a + b + c, c + a + b), "\"C\": is drawn first, and was after \"B\"\n");
}

TEST(DrawDifference, IsNeverNothingWhereTheListsDiffer)
{
    EXPECT_EQ(Differences("\"A\" DrawRect (0,0,1,1)\n\"B\" DrawRect (0,0,2,2)\n\"A\" DrawLine (0,0,1,1)\n",
                  "\"A\" DrawRect (0,0,1,1)\n\"A\" DrawLine (0,0,1,1)\n\"B\" DrawRect (0,0,2,2)\n"),
        "the frame: the same is drawn in another order, or divided among calls in another way\n");
    std::string why;
    const auto small = host::ReadDrawList("TeskaraDrawList 1 1x1\n", why);
    const auto large = host::ReadDrawList("TeskaraDrawList 1 2x1\n", why);
    EXPECT_EQ(DrawDifferencesAsText(CompareDrawLists(*small, *large)), "the frame: resized from 1x1 to 2x1\n");
}

TEST(DrawDifference, OfManyMarksTakesNoLongTime)
{
    std::string before;
    std::string after;
    for (int row = 0; row < 20000; ++row) {
        before += "\"List\" DrawText (0,0,9,9) text=\"" + std::to_string(row) + "\"\n";
        after += "\"List\" DrawText (0,0,9,9) text=\"" + std::to_string(row + 1) + "x\"\n";
    }
    const std::string said = Differences(before, after);
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 20000);
}

} // namespace
