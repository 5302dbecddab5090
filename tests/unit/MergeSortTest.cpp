#include "teskara/collections/MergeSort.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

std::vector<int> CountTo(int last)
{
    std::vector<int> items(static_cast<std::size_t>(last));
    std::iota(items.begin(), items.end(), 1);
    return items;
}

// Sorts and gives the number of comparisons.
template <class Compare> std::size_t CountedSort(std::vector<int>& items, Compare compare)
{
    std::size_t comparisons = 0;
    MergeSort(items, [&](int left, int right) {
        ++comparisons;
        return compare(left, right);
    });
    return comparisons;
}

} // namespace

TEST(MergeSort, SortsListsOfEveryLength)
{
    std::mt19937 random(1);
    for (int length = 0; length < 70; ++length) {
        std::vector<int> items = CountTo(length);
        std::shuffle(items.begin(), items.end(), random);
        MergeSort(items, [](int left, int right) { return left - right; });
        EXPECT_EQ(CountTo(length), items);
    }
}

TEST(MergeSort, ItemsThatCompareEqualKeepTheirOrder)
{
    std::vector<std::string> items = {"b1", "a1", "b2", "c1", "a2", "b3", "a3"};
    MergeSort(items, [](const std::string& left, const std::string& right) { return left[0] - right[0]; });
    EXPECT_EQ((std::vector<std::string>{"a1", "a2", "a3", "b1", "b2", "b3", "c1"}), items);
}

TEST(MergeSort, AConstantAnswerEndsAndLosesNothing)
{
    for (const int answer : {-1, 0, 1}) {
        std::vector<int> items = CountTo(1000);
        EXPECT_LE(CountedSort(items, [answer](int, int) { return answer; }), 10000u);
        std::sort(items.begin(), items.end());
        EXPECT_EQ(CountTo(1000), items);
    }
}

TEST(MergeSort, RandomAnswersEndAndLoseNothing)
{
    std::mt19937 random(7);
    for (int run = 0; run < 100; ++run) {
        std::vector<int> items = CountTo(333);
        EXPECT_LE(CountedSort(items, [&](int, int) { return static_cast<int>(random() % 3) - 1; }), 333u * 9u);
        std::sort(items.begin(), items.end());
        EXPECT_EQ(CountTo(333), items);
    }
}

TEST(MergeSort, AComparisonThatThrowsLeavesEveryItem)
{
    std::vector<int> items = {3, 1, 2};
    EXPECT_THROW(MergeSort(items, [](int, int) -> int { throw std::runtime_error("no"); }), std::runtime_error);
    std::sort(items.begin(), items.end());
    EXPECT_EQ(CountTo(3), items);
}
