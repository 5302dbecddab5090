#include "teskara/script/MvTypeDefinition.h"
#include "tests/unit/FlatProgram.h"

#include <gtest/gtest.h>

// Types that a program in C makes, as the toolkit and the program itself ask them.

namespace {

class FlatTypeTest : public testing::Test
{
protected:
    ~FlatTypeTest() override { teskara_free_type(Type); }

    teskara_type* Make(const teskara_type_operations& operations)
    {
        teskara_free_type(Type);
        Type = teskara_new_type("mine", &operations);
        Value.type = Type;
        Value.as.integer32 = 5;
        return Type;
    }

    FlatProgram Program;
    teskara_type* Type = nullptr;
    teskara_value Value = {};
    teskara_value Result = {};
    const char* Arguments[2] = {"one", "two"};
    char Text[16] = "?";
};

} // namespace

TEST_F(FlatTypeTest, AnswersThroughItsTable)
{
    ASSERT_NE(nullptr, Make(Program.TypeOperations()));
    EXPECT_STREQ("mine", teskara_type_name(Type));
    EXPECT_EQ(nullptr, teskara_type_base(Type));
    EXPECT_TRUE(teskara_text(&Value, Text, sizeof Text));
    EXPECT_STREQ("a text", Text);
    EXPECT_EQ(TESKARA_DONE, teskara_get(&Value, "Next", 2, Arguments, &Result)) << "whatever number stands for it";
    EXPECT_EQ(Type, Result.type);
    EXPECT_EQ(6, Result.as.integer32);
    EXPECT_EQ(TESKARA_NO_VALUE, teskara_call(&Value, "Go", 1, Arguments));
    EXPECT_EQ(TESKARA_DONE, teskara_index(&Value, 1, Arguments, &Result));
    EXPECT_EQ("text <mine 5> 16\nget <mine 5> Next [one,two]\ncall <mine 5> Go [one]\nindex <mine 5> [one]\n",
        Program.TakeCalls());
}

TEST_F(FlatTypeTest, GivesNoValueForAnUnknownName)
{
    Make(Program.TypeOperations());
    Result = Value;
    EXPECT_EQ(TESKARA_UNKNOWN, teskara_get(&Value, "Other", 0, nullptr, &Result));
    EXPECT_EQ(nullptr, Result.type);
    EXPECT_EQ(TESKARA_UNKNOWN, teskara_get(&Value, nullptr, 0, nullptr, &Result));
    EXPECT_EQ(TESKARA_UNKNOWN, teskara_call(&Value, nullptr, 0, nullptr));
}

TEST_F(FlatTypeTest, CanPutTheResultInPlaceOfTheValue)
{
    Make(Program.TypeOperations());
    EXPECT_EQ(TESKARA_DONE, teskara_get(&Value, "Next", 0, nullptr, &Value));
    EXPECT_EQ(6, Value.as.integer32);
}

TEST_F(FlatTypeTest, KnowsNothingWithoutOperations)
{
    teskara_type_operations operations = {};
    operations.size = sizeof operations;
    operations.version = TESKARA_TABLE_VERSION;
    ASSERT_NE(nullptr, Make(operations));
    EXPECT_FALSE(teskara_text(&Value, Text, sizeof Text));
    EXPECT_STREQ("", Text);
    EXPECT_EQ(TESKARA_UNKNOWN, teskara_get(&Value, "Next", 0, nullptr, &Result));
    EXPECT_EQ(TESKARA_UNKNOWN, teskara_call(&Value, "Go", 0, nullptr));
    EXPECT_EQ(TESKARA_UNKNOWN, teskara_index(&Value, 0, nullptr, &Result));
}

TEST_F(FlatTypeTest, IsNotMadeOfATableThatIsNone)
{
    teskara_type_operations operations = Program.TypeOperations();
    operations.version = 0;
    EXPECT_EQ(nullptr, teskara_new_type("mine", &operations));
    EXPECT_EQ(nullptr, teskara_new_type("mine", nullptr));
}

TEST_F(FlatTypeTest, ValuesThatAreNoneHaveNothing)
{
    const teskara_value none = {};
    for (const teskara_value* value : {&none, static_cast<const teskara_value*>(nullptr)}) {
        EXPECT_FALSE(teskara_text(value, Text, sizeof Text));
        EXPECT_EQ(TESKARA_NO_VALUE, teskara_get(value, "Next", 0, nullptr, &Result));
        EXPECT_EQ(TESKARA_NO_VALUE, teskara_call(value, "Go", 0, nullptr));
        EXPECT_EQ(TESKARA_NO_VALUE, teskara_index(value, 0, nullptr, &Result));
    }
    Make(Program.TypeOperations());
    EXPECT_EQ(TESKARA_NO_VALUE, teskara_get(&Value, "Next", 0, nullptr, nullptr));
    EXPECT_EQ(TESKARA_NO_VALUE, teskara_index(&Value, 0, nullptr, nullptr));
    EXPECT_FALSE(teskara_text(&Value, nullptr, 5));
    EXPECT_FALSE(teskara_text(&Value, Text, 0));
    EXPECT_STREQ("", teskara_type_name(nullptr));
    EXPECT_EQ(nullptr, teskara_type_base(nullptr));
    EXPECT_EQ("", Program.TakeCalls());
}

TEST_F(FlatTypeTest, OnlyTheProgramsOwnAreItsToFree)
{
    MvTypeDefinition other("other");
    teskara_free_type(reinterpret_cast<teskara_type*>(&other));
    EXPECT_STREQ("other", other.GetName());
}
