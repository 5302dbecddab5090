#include "teskara/controls/TeskCommandCheckBox.h"

#include "tests/unit/PressTest.h"

#include <limits>

namespace {

class TeskCommandCheckBoxTest : public PressTest
{
protected:
    TeskCommandCheckBoxTest() { Host.Recorded = RecordCommands; }

    TeskCommandCheckBox& MakeCheckBox(const std::string& markup)
    {
        auto& box = Make<TeskCommandCheckBox>("commandcheckbox", markup);
        Host.TakeCalls();
        return box;
    }

    TeskCommandCheckBox& PlaceCheckBox(const std::string& markup)
    {
        return Place<TeskCommandCheckBox>("commandcheckbox", markup);
    }
};

} // namespace

TEST_F(TeskCommandCheckBoxTest, MarkupGivesItsFieldsElseTheyAreEmpty)
{
    const TeskCommandCheckBox& box = MakeCheckBox("<Command>on</Command><CommandChecked>off</CommandChecked>"
                                                  "<Console>out</Console><Data>${State}</Data><Text>State</Text>");
    EXPECT_EQ("on", box.Command);
    EXPECT_EQ("off", box.CommandChecked);
    EXPECT_EQ("out", box.Console);
    EXPECT_STREQ("${State}", box.Data.Text.get());
    EXPECT_STREQ("State", box.Text.Text.get());

    const TeskCommandCheckBox& plain = MakeCheckBox("<Data/>");
    EXPECT_EQ("", plain.Command);
    EXPECT_EQ("", plain.CommandChecked);
    EXPECT_EQ("", plain.Console);
    EXPECT_EQ(0u, plain.Data.Sequence);
}

TEST_F(TeskCommandCheckBoxTest, IsACommandCheckBoxAndACheckBox)
{
    TeskCommandCheckBox& box = MakeCheckBox("");
    EXPECT_TRUE(box.IsTypeOf("CommandCheckBox"));
    EXPECT_TRUE(box.IsTypeOf("checkbox"));
    EXPECT_TRUE(box.IsTypeOf("teskelement"));
    EXPECT_FALSE(box.IsTypeOf("commandbutton"));
    EXPECT_FALSE(box.IsTypeOf(nullptr));
    EXPECT_EQ(box.TeskCheckBox::GetMvType(), box.GetMvType());
}

TEST_F(TeskCommandCheckBoxTest, TheCommandIsThatOfTheStateBeforeTheClick)
{
    TeskCommandCheckBox& box = MakeCheckBox("<Command>on</Command><CommandChecked>off</CommandChecked>");
    EXPECT_TRUE(Press(box));
    EXPECT_EQ("", Host.TakeCalls());
    EXPECT_TRUE(Release(box));
    EXPECT_EQ("ExecuteCommand \"on\"\n", Host.TakeCalls());
    EXPECT_TRUE(box.Checked);
    EXPECT_TRUE(Release(box));
    EXPECT_EQ("ExecuteCommand \"off\"\n", Host.TakeCalls());
    EXPECT_FALSE(box.Checked);
}

TEST_F(TeskCommandCheckBoxTest, OneCommandServesBothStates)
{
    TeskCommandCheckBox& box = MakeCheckBox("<Command>turn</Command>");
    EXPECT_TRUE(Release(box));
    EXPECT_TRUE(Release(box));
    EXPECT_EQ("ExecuteCommand \"turn\"\nExecuteCommand \"turn\"\n", Host.TakeCalls());
}

TEST_F(TeskCommandCheckBoxTest, ACommandForTheCheckedStateAloneRunsInThatState)
{
    TeskCommandCheckBox& box = MakeCheckBox("<CommandChecked>off</CommandChecked><Console>out</Console>");
    EXPECT_TRUE(Release(box));
    EXPECT_EQ("", Host.TakeCalls());
    EXPECT_TRUE(Release(box));
    EXPECT_EQ("GetOutputConsole size=1024\nSetOutputConsole \"out\"\nExecuteCommand \"off\"\nSetOutputConsole \"\"\n",
        Host.TakeCalls());
}

TEST_F(TeskCommandCheckBoxTest, TheCommandComesBeforeToggleNewsAndScript)
{
    TeskCommandCheckBox& box = MakeCheckBox("<Command>on</Command><OnLeftClick>click</OnLeftClick>");
    const auto note = [&](const char* what) {
        Parent.Heard.push_back(std::string(what) + (box.Checked ? " checked" : " open"));
    };
    Host.Commands["on"] = [&] { note("command"); };
    Host.Scripts["click"] = [&](TeskElement&) { note("click"); };
    EXPECT_TRUE(Release(box));
    EXPECT_EQ((std::vector<std::string>{"command open", "1:0", "click checked"}), Parent.Heard);
}

TEST_F(TeskCommandCheckBoxTest, DeletedByItsCommandItTellsNobody)
{
    Host.Commands["on"] = [&] { Parent.DeleteChild(Parent.FirstChild); };
    Host.Scripts["click"] = [&](TeskElement&) { Parent.Heard.push_back("click"); };
    EXPECT_TRUE(Release(MakeCheckBox("<Command>on</Command><Console>out</Console><OnLeftClick>click</OnLeftClick>")));
    EXPECT_TRUE(IsGone());
    EXPECT_TRUE(Parent.Heard.empty());
    EXPECT_EQ("", Host.Console);
}

TEST_F(TeskCommandCheckBoxTest, DeletedByItsParentItRunsNoScript)
{
    Parent.Act = [&](TeskElement& source) { Parent.DeleteChild(&source); };
    Host.Scripts["click"] = [&](TeskElement&) { Parent.Heard.push_back("click"); };
    EXPECT_TRUE(Release(MakeCheckBox("<Command>on</Command><OnLeftClick>click</OnLeftClick>")));
    EXPECT_TRUE(IsGone());
    EXPECT_EQ(std::vector<std::string>{"1:0"}, Parent.Heard);
}

TEST_F(TeskCommandCheckBoxTest, ItFollowsItsDataInEveryFrame)
{
    TeskCommandCheckBox& box = PlaceCheckBox("<Data>${State}</Data>");
    Host.Expand = [](const std::string&) { return std::string("state"); };
    for (const double value : {1.0, 0.0, -0.5, 0.0}) {
        Host.Values["state"] = value;
        Frame();
        EXPECT_EQ(value != 0, box.Checked) << value;
    }
    Host.Values["state"] = std::numeric_limits<double>::quiet_NaN();
    Frame();
    EXPECT_TRUE(box.Checked);
}

TEST_F(TeskCommandCheckBoxTest, ItSnapsBackAfterAClickThatTheDataDoesNotFollow)
{
    TeskCommandCheckBox& box = PlaceCheckBox("<Data>0</Data>");
    Host.Values["0"] = 0;
    EXPECT_TRUE(Release(box));
    EXPECT_TRUE(box.Checked);
    Frame();
    EXPECT_FALSE(box.Checked);
}

TEST_F(TeskCommandCheckBoxTest, DataWithoutANumberLeavesIt)
{
    Host.Recorded = RecordSequences;
    TeskCommandCheckBox& box = PlaceCheckBox("<Data>${State}</Data>");
    box.Checked = true;
    EXPECT_EQ("RetrieveProcessedText 1 size=2048\nCalculate \"${State}\"\n", Frame());
    EXPECT_TRUE(box.Checked);
    Host.RefusesValues = true;
    EXPECT_EQ("RetrieveProcessedText 1 size=2048\n", Frame());
    EXPECT_TRUE(box.Checked);
}

TEST_F(TeskCommandCheckBoxTest, TheDataIsEvaluatedBeforeTheText)
{
    Host.Recorded = RecordSequences;
    PlaceCheckBox("<Text>text</Text><Data>data</Data>");
    EXPECT_EQ("RetrieveProcessedText 2 size=2048\nCalculate \"data\"\nRetrieveProcessedText 1 size=2048\n", Frame());
}

TEST_F(TeskCommandCheckBoxTest, DataThatDeletesItsCheckBoxEndsTheDrawing)
{
    const auto die = [] { g_UIManager.Screen->DeleteChild(g_UIManager.FindElement("C")); };
    Host.Recorded = RecordDrawing | RecordSequences;
    Host.Values["data"] = 1;

    PlaceCheckBox("<Text>text</Text><Data>data</Data>");
    Host.Expand = [&](const std::string& text) {
        die();
        return text;
    };
    EXPECT_EQ("RetrieveProcessedText 2 size=2048\nFreeSequence 2\nFreeSequence 1\n", Frame());

    Host.Expand = nullptr;
    PlaceCheckBox("<Text>text</Text><Data>data</Data>");
    Host.OnCalculate = die;
    EXPECT_EQ("RetrieveProcessedText 4 size=2048\nCalculate \"data\"\nFreeSequence 4\nFreeSequence 3\n", Frame());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("C"));
}
