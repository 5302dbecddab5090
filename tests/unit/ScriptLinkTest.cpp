#include "teskara/core/ScriptLink.h"

#include "tests/unit/ScriptHost.h"
#include "tests/unit/ToolkitTest.h"

#include <memory>

namespace {

using ScriptLinkTest = ToolkitTest;

} // namespace

TEST_F(ScriptLinkTest, OpeningClearsTheAnswerThatTheScriptHad)
{
    TestScript script;
    script.UserInput = "old";
    ScriptLink link(&HostScript::InputBoxID);
    EXPECT_EQ(nullptr, link.Get());
    link.Open(script, 5);
    EXPECT_EQ(&script, link.Get());
    EXPECT_EQ(5u, script.InputBoxID);
    EXPECT_EQ(0u, script.MessageBoxID);
    EXPECT_EQ(nullptr, script.UserInput);
}

TEST_F(ScriptLinkTest, ClosingAnswersAndForgets)
{
    TestScript script;
    ScriptLink link(&HostScript::MessageBoxID);
    link.Open(script, 5);
    link.Close("yes");
    EXPECT_STREQ("yes", script.UserInput);
    EXPECT_EQ(0u, script.MessageBoxID);
    EXPECT_EQ(nullptr, link.Get());
    link.Close("no");
    EXPECT_STREQ("yes", script.UserInput);
}

TEST_F(ScriptLinkTest, ADialogThatEndsLeavesTheAnswerAsItIs)
{
    TestScript script;
    {
        ScriptLink link(&HostScript::MessageBoxID);
        link.Open(script, 5);
        script.UserInput = "mine";
    }
    EXPECT_STREQ("mine", script.UserInput);
    EXPECT_EQ(0u, script.MessageBoxID);
}

TEST_F(ScriptLinkTest, ADialogForgetsAScriptThatEnds)
{
    auto script = std::make_unique<TestScript>();
    auto other = std::make_unique<TestScript>();
    ScriptLink first(&HostScript::MessageBoxID);
    ScriptLink second(&HostScript::MessageBoxID);
    ScriptLink third(&HostScript::InputBoxID);
    first.Open(*script, 5);
    second.Open(*other, 6);
    third.Open(*script, 7);
    script.reset();
    EXPECT_EQ(nullptr, first.Get());
    EXPECT_EQ(nullptr, third.Get());
    EXPECT_EQ(other.get(), second.Get());
    first.Close("yes");
    EXPECT_EQ(nullptr, other->UserInput);
    other.reset();
    EXPECT_EQ(nullptr, second.Get());
}

TEST_F(ScriptLinkTest, AnOlderDialogDoesNotTakeTheIdOfANewerOne)
{
    TestScript script;
    ScriptLink newer(&HostScript::MessageBoxID);
    {
        ScriptLink older(&HostScript::MessageBoxID);
        older.Open(script, 5);
        newer.Open(script, 6);
    }
    EXPECT_EQ(6u, script.MessageBoxID);
    newer.Open(script, 7);
    EXPECT_EQ(7u, script.MessageBoxID);
}
