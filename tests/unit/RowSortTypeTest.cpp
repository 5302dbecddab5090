#include "teskara/collections/RowSortType.h"

#include <gtest/gtest.h>

TEST(RowSortType, EveryTypeHasAName)
{
    EXPECT_STREQ("none", NameOfRowSortType(0));
    EXPECT_STREQ("user", NameOfRowSortType(1));
    EXPECT_STREQ("text", NameOfRowSortType(2));
    EXPECT_STREQ("value", NameOfRowSortType(3));
    EXPECT_STREQ("custom", NameOfRowSortType(4));
    EXPECT_STREQ("textreverse", NameOfRowSortType(5));
    EXPECT_STREQ("valuereverse", NameOfRowSortType(6));
    EXPECT_EQ(nullptr, NameOfRowSortType(7));
    EXPECT_EQ(nullptr, NameOfRowSortType(0xffffffffu));
}

TEST(RowSortType, NamesAreFoundInAnyCase)
{
    EXPECT_EQ(SortNone, FindRowSortType("None"));
    EXPECT_EQ(SortTextReverse, FindRowSortType("TextReverse"));
    EXPECT_EQ(SortValueReverse, FindRowSortType("VALUEREVERSE"));
    EXPECT_EQ(std::nullopt, FindRowSortType(""));
    EXPECT_EQ(std::nullopt, FindRowSortType("texts"));
}
