#include "teskara/text/LineStore.h"
#include "tests/unit/Allocations.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Strings = std::vector<std::string>;

Strings Texts(const LineStore& lines)
{
    EXPECT_TRUE(lines.IsConsistent());
    Strings texts;
    for (const CTextEditLine* line = lines.First(); line; line = line->Next)
        texts.emplace_back(line->Bytes());
    EXPECT_EQ(texts.size(), lines.Count());
    return texts;
}

void Fill(LineStore& lines, const Strings& texts)
{
    for (const std::string& text : texts)
        ASSERT_TRUE(lines.Append(text.c_str()));
}

} // namespace

TEST(LineStore, LinesStandInTheOrderInWhichTheyWereAppended)
{
    LineStore lines;
    EXPECT_EQ(nullptr, lines.First());
    EXPECT_EQ(nullptr, lines.Last());
    Fill(lines, {"one", "", "three"});
    EXPECT_EQ((Strings{"one", "", "three"}), Texts(lines));
    EXPECT_EQ(2u, lines.Last()->GetNumber());
}

TEST(LineStore, ALineIsInsertedBehindAnotherOrInFrontOfAll)
{
    LineStore lines;
    lines.InsertAfter(nullptr, "b");
    lines.InsertAfter(nullptr, "a");
    lines.InsertAfter(lines.Last(), "d");
    lines.InsertAfter(lines.First()->Next, "c");
    EXPECT_EQ((Strings{"a", "b", "c", "d"}), Texts(lines));
}

TEST(LineStore, NumbersFollowInsertingAtEveryPlaceOfALongText)
{
    LineStore lines;
    u32 number = 1;
    for (int count = 0; count < 3000; ++count) {
        number = number * 1664525u + 1013904223u;
        CTextEditLine* line = lines.First();
        for (u32 step = number % 1000 * (number % 3); line && step > 0; --step)
            line = line->Next;
        ASSERT_TRUE(lines.InsertAfter(line, "x"));
    }
    EXPECT_EQ(3000u, Texts(lines).size());
}

TEST(LineStore, NumbersFollowRemovingFromEveryPlaceOfALongText)
{
    LineStore lines;
    for (int count = 0; count < 2000; ++count)
        lines.Append("x");
    u32 number = 7;
    while (lines.First()) {
        number = number * 1664525u + 1013904223u;
        CTextEditLine* line = lines.First();
        for (u32 step = number % 300; line->Next && step > 0; --step)
            line = line->Next;
        lines.Remove(*line, RemovedLine::ToNext);
        if (lines.Count() % 100 == 0) {
            ASSERT_TRUE(lines.IsConsistent());
        }
    }
    EXPECT_EQ(nullptr, lines.Last());
    lines.Append("again");
    EXPECT_EQ((Strings{"again"}), Texts(lines));
}

TEST(LineStore, APositionGoesToTheLineBeforeOrBehindTheOneThatIsRemoved)
{
    LineStore lines;
    Fill(lines, {"first", "second line", "th"});
    LivePosition up(lines);
    LivePosition down(lines);
    LivePosition elsewhere(lines);
    CTextEditLine* second = lines.First()->Next;
    up = down = TextEditPos{second, 4};
    elsewhere = TextEditPos{lines.First(), 2};

    lines.Remove(*second, RemovedLine::ToNext);
    EXPECT_EQ((TextEditPos{lines.Last(), 4}), up);
    EXPECT_EQ((TextEditPos{lines.First(), 2}), elsewhere);

    down = TextEditPos{lines.Last(), 1};
    lines.Remove(*lines.Last(), RemovedLine::ToNext);
    EXPECT_EQ((TextEditPos{lines.First(), 1}), down) << "nothing follows, so it goes back";

    lines.Remove(*lines.First(), RemovedLine::ToPrevious);
    EXPECT_EQ(TextEditPos(), up);
    EXPECT_EQ(TextEditPos(), elsewhere);
    EXPECT_TRUE(lines.IsConsistent());
}

TEST(LineStore, APositionGoesBackIfItIsToldTo)
{
    LineStore lines;
    Fill(lines, {"a", "bc", "d"});
    LivePosition position(lines);
    position = TextEditPos{lines.First()->Next, 2};
    lines.Remove(*lines.First()->Next, RemovedLine::ToPrevious);
    EXPECT_EQ((TextEditPos{lines.First(), 2}), position);
}

TEST(LineStore, ClearingLeavesNoLineAndNoPosition)
{
    LineStore lines;
    Fill(lines, {"a", "b"});
    LivePosition position(lines);
    position = TextEditPos{lines.Last(), 1};
    lines.Clear();
    EXPECT_EQ(Strings(), Texts(lines));
    EXPECT_EQ(TextEditPos(), position);
}

TEST(LineStore, TheCheckerFindsAPositionOnALineThatIsGone)
{
    LineStore lines;
    LineStore others;
    Fill(lines, {"a"});
    Fill(others, {"b"});
    LivePosition position(lines);
    position = TextEditPos{others.First(), 0};
    EXPECT_FALSE(lines.IsConsistent());
}

TEST(LineStore, APositionThatHasEndedIsNoLongerFollowed)
{
    LineStore lines;
    Fill(lines, {"a", "b"});
    {
        LivePosition position(lines);
        position = TextEditPos{lines.First(), 0};
    }
    lines.Remove(*lines.First(), RemovedLine::ToNext);
    EXPECT_EQ((Strings{"b"}), Texts(lines));
}

TEST(LineStore, LinesOfAKeptTextShareItUntilTheyChange)
{
    LineStore lines;
    const auto kept = lines.Keep("one|two");
    kept[3] = 0;
    CTextEditLine* one = lines.Append(kept.get());
    CTextEditLine* two = lines.Append(kept.get() + 4);
    EXPECT_EQ(kept.get(), one->Text);
    EXPECT_EQ(kept.get() + 4, two->Text);

    EXPECT_TRUE(one->Insert(3, "s"));
    EXPECT_TRUE(two->Erase(0));
    EXPECT_EQ((Strings{"ones", "wo"}), Texts(lines));
    EXPECT_STREQ("two", kept.get() + 4) << "the text that others may share has not changed";
}

TEST(LineStore, LinesOutliveTheTextTheyShare)
{
    LineStore lines;
    {
        const auto kept = lines.Keep("first");
        lines.Append(kept.get());
    }
    lines.Append(lines.Keep("second").get());
    EXPECT_EQ((Strings{"first", "second"}), Texts(lines));
}

TEST(LineStore, TheTextThatWasKeptLastIsNotCopiedAgain)
{
    LineStore lines;
    const auto kept = lines.Keep("text");
    EXPECT_EQ(kept, lines.Keep(kept.get()));
    lines.Clear();
    EXPECT_EQ(kept, lines.Keep(kept.get()));
    lines.Append(kept.get());
    EXPECT_EQ(kept.get(), lines.First()->Text);
    EXPECT_NE(kept, lines.Keep("text"));
}

TEST(LineStore, APartOfAKeptTextThatIsNotTerminatedIsCopied)
{
    LineStore lines;
    const auto kept = lines.Keep("abc");
    lines.InsertAfter(nullptr, std::string_view(kept.get(), 2));
    EXPECT_EQ((Strings{"ab"}), Texts(lines));
}

TEST(LineStore, ALineOfAnotherIsACopy)
{
    LineStore lines;
    CTextEditLine* line = lines.Append("text");
    CTextEditLine* copy = lines.Append(line->Text);
    line->Cut(0);
    EXPECT_EQ("text", copy->Bytes());
}

TEST(LineStore, WithoutMemoryNothingChanges)
{
    LineStore lines;
    for (int count = 0; count < 600; ++count)
        lines.Append("x");
    for (std::size_t allowed = 0; allowed < 4; ++allowed) {
        const u64 before = lines.Count();
        Allocations::FailAfter(allowed, Allocations::Failing::FromThenOn);
        const CTextEditLine* added = lines.InsertAfter(lines.First(), "a line");
        Allocations::Allow();
        EXPECT_EQ(before + (added ? 1 : 0), lines.Count());
        EXPECT_TRUE(lines.IsConsistent());
    }
}

TEST(LineStore, ALineThatCannotGrowStaysAsItWas)
{
    LineStore lines;
    CTextEditLine& line = *lines.Append(lines.Keep("shared").get());
    Allocations::FailAfter(0, Allocations::Failing::FromThenOn);
    const bool inserted = line.Insert(0, "x");
    const bool erased = line.Erase(0);
    const bool cut = line.Cut(3);
    Allocations::Allow();
    EXPECT_FALSE(inserted || erased || cut);
    EXPECT_EQ("shared", line.Bytes());
}

TEST(CTextEditLine, BytesArePutInFrontOfAColumnUpToTheEnd)
{
    LineStore lines;
    CTextEditLine& line = *lines.Append("ad");
    EXPECT_TRUE(line.Insert(1, "bc"));
    EXPECT_TRUE(line.Insert(4, "e"));
    EXPECT_TRUE(line.Insert(0, ">"));
    EXPECT_EQ(">abcde", line.Bytes());
    EXPECT_EQ(6u, line.Length);
    EXPECT_STREQ(">abcde", line.Text);
}

TEST(CTextEditLine, BehindItsEndALineTakesNothing)
{
    LineStore lines;
    CTextEditLine& line = *lines.Append("ab");
    EXPECT_FALSE(line.Insert(3, "c"));
    EXPECT_EQ("ab", line.Bytes());
    EXPECT_TRUE(line.Erase(2));
    EXPECT_TRUE(line.Cut(2));
    EXPECT_EQ("ab", line.Bytes());
}

TEST(CTextEditLine, ACopyHasRoomForItsTerminator)
{
    LineStore lines;
    EXPECT_EQ(1u, lines.Append("")->Capacity);
    EXPECT_EQ(4u, lines.Append("abc")->Capacity);
}

TEST(CTextEditLine, GrowsByOneByteAndByRunsAroundItsCapacity)
{
    for (std::size_t run = 1; run < 20; ++run) {
        LineStore lines;
        CTextEditLine& line = *lines.Append("12345");
        std::string text = "12345";
        for (int time = 0; time < 10; ++time) {
            ASSERT_TRUE(line.Insert(2, std::string(run, 'r')));
            text.insert(2, std::string(run, 'r'));
            ASSERT_EQ(text, line.Bytes());
            ASSERT_EQ(0, line.Text[line.Length]);
            ASSERT_GT(line.Capacity, line.Length);
        }
    }
}

TEST(CTextEditLine, HoldsEveryByte)
{
    LineStore lines;
    CTextEditLine& line = *lines.Append("");
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
        ASSERT_TRUE(line.Insert(line.Length, all.substr(all.size() - 1)));
    }
    EXPECT_EQ(all, line.Bytes());
    EXPECT_TRUE(line.Erase(0));
    EXPECT_EQ(all.substr(1), line.Bytes());
    EXPECT_TRUE(line.Cut(7));
    EXPECT_EQ(all.substr(1, 7), line.Bytes());
}

TEST(CTextEditLine, TellsWhatFollowsAColumn)
{
    LineStore lines;
    const CTextEditLine& line = *lines.Append("abc");
    EXPECT_EQ("bc", line.From(1));
    EXPECT_EQ("", line.From(3));
    EXPECT_EQ("", line.From(100));
}
