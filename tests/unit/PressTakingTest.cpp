#include "tests/unit/PressTest.h"

namespace {

// The kinds that take every press, whether or not they have a script for it.
class PressTakingTest : public PressTest, public testing::WithParamInterface<const char*>
{
protected:
    TeskElement& MakeControl(const std::string& markup = {}) { return Make<TeskElement>(GetParam(), markup); }
};

} // namespace

TEST_P(PressTakingTest, ItTellsItsParentOfPressAndRelease)
{
    TeskElement& control = MakeControl();
    EXPECT_TRUE(Press(control));
    EXPECT_EQ(std::vector<std::string>{"6:0"}, Parent.Heard);
    EXPECT_TRUE(Release(control));
    EXPECT_EQ((std::vector<std::string>{"6:0", "1:0"}), Parent.Heard);
}

TEST_P(PressTakingTest, DeletedByItsParentItRunsNoScript)
{
    bool ran = false;
    Host.Scripts["script"] = [&](TeskElement&) { ran = true; };
    Parent.Act = [&](TeskElement& source) { Parent.DeleteChild(&source); };
    for (const auto act : {Press, Release}) {
        EXPECT_TRUE(act(MakeControl("<OnLeftDown>script</OnLeftDown><OnLeftClick>script</OnLeftClick>")));
        EXPECT_TRUE(IsGone());
    }
    EXPECT_FALSE(ran);
}

TEST_P(PressTakingTest, DeletedByItsOwnScriptItTookTheMouseAllTheSame)
{
    Host.Scripts["die"] = [](TeskElement& self) { self.Parent->DeleteChild(&self); };
    for (const auto act : {Press, Release}) {
        EXPECT_TRUE(act(MakeControl("<OnLeftDown>die</OnLeftDown><OnLeftClick>die</OnLeftClick>")));
        EXPECT_TRUE(IsGone());
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, PressTakingTest,
    testing::Values("button", "checkbox", "commandbutton", "commandcheckbox"),
    [](const auto& kind) { return std::string(kind.param); });
