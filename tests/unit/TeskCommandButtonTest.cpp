#include "teskara/controls/TeskCommandButton.h"

#include "tests/unit/PressTest.h"

#include <stdexcept>

namespace {

class TeskCommandButtonTest : public PressTest
{
protected:
    TeskCommandButtonTest() { Host.Recorded = RecordCommands; }

    TeskCommandButton& MakeButton(const std::string& markup)
    {
        auto& button = Make<TeskCommandButton>("commandbutton", markup);
        Host.TakeCalls();
        return button;
    }
};

constexpr char Turned[] = "GetOutputConsole size=1024\nSetOutputConsole \"out\"\nExecuteCommand \"go\"\n"
                          "SetOutputConsole \"main\"\n";

} // namespace

TEST_F(TeskCommandButtonTest, MarkupGivesItsCommandAndItsConsole)
{
    const TeskCommandButton& button = MakeButton("<Command>go</Command><Console>out</Console><Border>2</Border>");
    EXPECT_EQ("go", button.Command);
    EXPECT_EQ("out", button.Console);
    EXPECT_EQ(2u, button.Border);

    const TeskCommandButton& plain = MakeButton("");
    EXPECT_EQ("", plain.Command);
    EXPECT_EQ("", plain.Console);
}

TEST_F(TeskCommandButtonTest, ValuesFallBackToTheTemplateOfItsKindElseToThatOfAButton)
{
    g_UIManager.AddTemplate("button", "<Template><Border>1</Border><Command>no</Command></Template>");
    EXPECT_EQ(1u, MakeButton("").Border);
    EXPECT_EQ("", MakeButton("").Command);

    g_UIManager.AddTemplate("commandbutton", "<Template><Command>go</Command><Console>out</Console></Template>");
    EXPECT_EQ(0u, MakeButton("").Border);
    EXPECT_EQ("go", MakeButton("").Command);
    EXPECT_EQ("out", MakeButton("").Console);
}

TEST_F(TeskCommandButtonTest, IsACommandButtonAndAButton)
{
    TeskCommandButton& button = MakeButton("");
    EXPECT_TRUE(button.IsTypeOf("CommandButton"));
    EXPECT_TRUE(button.IsTypeOf("button"));
    EXPECT_TRUE(button.IsTypeOf("teskelement"));
    EXPECT_FALSE(button.IsTypeOf("commandcheckbox"));
    EXPECT_FALSE(button.IsTypeOf(nullptr));
    EXPECT_EQ(button.TeskButton::GetMvType(), button.GetMvType());
}

TEST_F(TeskCommandButtonTest, ItsCommandRunsOnTheRelease)
{
    TeskCommandButton& button = MakeButton("<Command>go</Command>");
    EXPECT_TRUE(Press(button));
    EXPECT_EQ("", Host.TakeCalls());
    EXPECT_TRUE(Release(button));
    EXPECT_FALSE(button.Pressed);
    EXPECT_EQ("ExecuteCommand \"go\"\n", Host.TakeCalls());
}

TEST_F(TeskCommandButtonTest, ItsOutputGoesToItsConsole)
{
    Host.Console = "main";
    EXPECT_TRUE(Release(MakeButton("<Command>go</Command><Console>out</Console>")));
    EXPECT_EQ(Turned, Host.TakeCalls());
}

TEST_F(TeskCommandButtonTest, WithoutACommandItTurnsNoOutput)
{
    EXPECT_TRUE(Release(MakeButton("<Console>out</Console>")));
    EXPECT_EQ("", Host.TakeCalls());
}

TEST_F(TeskCommandButtonTest, NewsAndScriptComeBeforeTheCommand)
{
    Host.Scripts["click"] = [&](TeskElement&) { Parent.Heard.push_back("click"); };
    Host.Commands["go"] = [&] { Parent.Heard.push_back("go"); };
    EXPECT_TRUE(Release(MakeButton("<Command>go</Command><OnLeftClick>click</OnLeftClick>")));
    EXPECT_EQ((std::vector<std::string>{"1:0", "click", "go"}), Parent.Heard);
}

TEST_F(TeskCommandButtonTest, DeletedByItsClickItRunsNoCommand)
{
    Host.Scripts["die"] = [](TeskElement& self) { self.Parent->DeleteChild(&self); };
    EXPECT_TRUE(Release(MakeButton("<Command>go</Command><Console>out</Console><OnLeftClick>die</OnLeftClick>")));
    EXPECT_TRUE(IsGone());
    EXPECT_EQ("", Host.TakeCalls());
}

TEST_F(TeskCommandButtonTest, DeletedByItsParentItRunsNoCommand)
{
    Parent.Act = [&](TeskElement& source) { Parent.DeleteChild(&source); };
    EXPECT_TRUE(Release(MakeButton("<Command>go</Command>")));
    EXPECT_TRUE(IsGone());
    EXPECT_EQ("", Host.TakeCalls());
}

TEST_F(TeskCommandButtonTest, ACommandThatDeletesItsButtonStillGivesTheOutputBack)
{
    Host.Console = "main";
    Host.Commands["go"] = [&] { Parent.DeleteChild(Parent.FirstChild); };
    EXPECT_TRUE(Release(MakeButton("<Command>go</Command><Console>out</Console>")));
    EXPECT_TRUE(IsGone());
    EXPECT_EQ(Turned, Host.TakeCalls());
}

TEST_F(TeskCommandButtonTest, ATurnOfTheOutputThatDeletesItsButtonLeavesTheCommandWhole)
{
    Host.Console = "main";
    Host.OnConsole = [&](const std::string&) {
        if (Parent.FirstChild)
            Parent.DeleteChild(Parent.FirstChild);
    };
    EXPECT_TRUE(Release(MakeButton("<Command>go</Command><Console>out</Console>")));
    EXPECT_TRUE(IsGone());
    EXPECT_EQ(Turned, Host.TakeCalls());
}

TEST_F(TeskCommandButtonTest, ACommandMayChangeTheCommandOfItsButton)
{
    TeskCommandButton& button = MakeButton("<Command>go</Command><Console>out</Console>");
    Host.Console = "main";
    Host.OnConsole = [&](const std::string&) {
        button.Command = "another command, long enough to move the text";
        button.Console.clear();
    };
    EXPECT_TRUE(Release(button));
    EXPECT_EQ(Turned, Host.TakeCalls());
}

TEST_F(TeskCommandButtonTest, ACommandThatFailsByAnExceptionGivesTheOutputBack)
{
    TeskCommandButton& button = MakeButton("<Command>go</Command><Console>out</Console>");
    Host.Console = "main";
    Host.Commands["go"] = [] { throw std::runtime_error("the command failed"); };
    Press(button);
    EXPECT_NO_THROW(Release(button));
    EXPECT_EQ("main", Host.Console);
}
