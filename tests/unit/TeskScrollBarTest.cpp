#include "teskara/controls/TeskScrollBar.h"

#include "teskara/controls/TeskButton.h"
#include "teskara/controls/TeskSlider.h"
#include "teskara/element/TeskElementFactory.h"
#include "tests/unit/PressTest.h"

namespace {

using Heard = std::vector<std::string>;

class TeskScrollBarTest : public PressTest
{
protected:
    TeskScrollBarTest()
    {
        g_UIManager.AddTemplate("scrollbar",
            "<Template><Width>16</Width><Height>105</Height><Range>7</Range>"
            "<Slider><Width>16</Width><Height>105</Height><Range>100</Range><Vertical/></Slider>"
            "<UpButton><Width>16</Width><Height>16</Height><Border>1</Border></UpButton>"
            "<DownButton><Width>16</Width><Height>16</Height><Border>2</Border></DownButton></Template>");
    }

    TeskScrollBar& MakeBar(const std::string& markup = {}) { return Make<TeskScrollBar>("scrollbar", markup); }

    // One made as controls make theirs.
    TeskScrollBar& CreateBar(const _CreateScrollBar& record, const char* templateMarkup)
    {
        auto* bar = TeskElementFactory::New<TeskScrollBar>("scrollbar", &Parent, "vertical");
        XMLNode* node = templateMarkup ? g_UIManager.AddTemplate("created", templateMarkup) : nullptr;
        bar->Create(record, node);
        return *bar;
    }
};

} // namespace

TEST_F(TeskScrollBarTest, MarkupGivesItsFieldsAndParts)
{
    TeskScrollBar& bar = MakeBar("<Vertical/><Range>12</Range>");
    EXPECT_TRUE(bar.Vertical);
    EXPECT_EQ(12u, bar.Range);
    ASSERT_TRUE(bar.Slider && bar.UpButton && bar.DownButton);
    EXPECT_EQ("slider", bar.Slider->Name);
    EXPECT_EQ("upbutton", bar.UpButton->Name);
    EXPECT_EQ("downbutton", bar.DownButton->Name);
    EXPECT_EQ(100u, bar.Slider->Range);
    EXPECT_EQ(1u, bar.UpButton->Border);
    EXPECT_EQ(2u, bar.DownButton->Border);
    EXPECT_EQ(bar.Slider, bar.FirstChild);
}

TEST_F(TeskScrollBarTest, TheSliderMayStandInTheNodeAndTheButtonsInTheTemplateAlone)
{
    const TeskScrollBar& bar = MakeBar("<Slider><Range>5</Range></Slider><UpButton><Border>9</Border></UpButton>"
                                       "<DownButton><Border>9</Border></DownButton>");
    EXPECT_EQ(5u, bar.Slider->Range);
    EXPECT_EQ(1u, bar.UpButton->Border);
    EXPECT_EQ(2u, bar.DownButton->Border);
}

TEST_F(TeskScrollBarTest, PartsWithoutMarkupArePassedOver)
{
    g_UIManager.RemoveTemplate("scrollbar");
    TeskScrollBar& bar = MakeBar();
    EXPECT_EQ(0u, bar.Range);
    EXPECT_FALSE(bar.Vertical);
    EXPECT_EQ(nullptr, bar.FirstChild);
    EXPECT_EQ(0u, bar.GetValue());
    bar.SetRange(5);
    EXPECT_EQ(0u, bar.Range);
    bar.SetValue(3);
    bar.RaiseValue(3);
    bar.LowerValue(3);
    EXPECT_EQ(0u, bar.GetValue());
}

TEST_F(TeskScrollBarTest, APartThatFailsFailsTheBar)
{
    for (const char* part : {"Slider", "UpButton", "DownButton"}) {
        const std::string tag = part;
        g_UIManager.AddTemplate(
            "scrollbar", ("<Template><" + tag + "><OnLoad>die</OnLoad></" + tag + "></Template>").c_str());
        Host.Scripts["die"] = [](TeskElement& self) { self.Parent->DeleteChild(&self); };
        Load("<scrollbar name='B'/><frame name='After " + tag + "'/>");
        EXPECT_EQ(nullptr, g_UIManager.FindElement("B"));
        EXPECT_NE(nullptr, g_UIManager.FindElement(("After " + tag).c_str()));
        EXPECT_EQ("PrintLine \"CreateUIElement failed on 'B' under 'screen'\"\n", Host.TakeCalls());
    }
}

TEST_F(TeskScrollBarTest, APartThatDeletesTheBarEndsItsLoading)
{
    g_UIManager.AddTemplate("scrollbar", "<Template><Slider><OnLoad>die</OnLoad></Slider><UpButton/></Template>");
    Host.Scripts["die"] = [](TeskElement& self) { g_UIManager.Screen->DeleteChild(self.Parent); };
    Load("<scrollbar name='B'/>");
    EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
}

TEST_F(TeskScrollBarTest, IsAScrollBarAndAnElement)
{
    TeskScrollBar& bar = MakeBar();
    EXPECT_TRUE(bar.IsTypeOf("ScrollBar"));
    EXPECT_TRUE(bar.IsTypeOf("teskelement"));
    EXPECT_FALSE(bar.IsTypeOf("slider"));
    EXPECT_FALSE(bar.IsTypeOf(nullptr));
}

TEST_F(TeskScrollBarTest, ItsButtonsMoveTheSliderByOneAsTheyGoDown)
{
    TeskScrollBar& bar = MakeBar();
    Press(*bar.UpButton);
    Release(*bar.UpButton);
    Press(*bar.UpButton);
    EXPECT_EQ(2u, bar.GetValue());
    Press(*bar.DownButton);
    Release(*bar.DownButton);
    EXPECT_EQ(1u, bar.GetValue());
    EXPECT_EQ((Heard{"4:1", "4:2", "4:1"}), Parent.Heard);
}

TEST_F(TeskScrollBarTest, AtItsEndsTheButtonsChangeNothing)
{
    TeskScrollBar& bar = MakeBar();
    Press(*bar.DownButton);
    bar.SetValue(100);
    Press(*bar.UpButton);
    EXPECT_EQ(100u, bar.GetValue());
    EXPECT_EQ((Heard{"4:100"}), Parent.Heard);
}

TEST_F(TeskScrollBarTest, TheParentHearsOfTheSliderAsOfTheBar)
{
    TeskScrollBar& bar = MakeBar();
    TeskElement* teller = nullptr;
    Parent.Act = [&](TeskElement& source) { teller = &source; };
    _Point2i point = {0, 0};
    bar.Slider->OnLMouseDown(point);
    EXPECT_EQ(&bar, teller);
    EXPECT_EQ((Heard{"4:100"}), Parent.Heard);
}

TEST_F(TeskScrollBarTest, AllElseEndsAtTheBar)
{
    TeskScrollBar& bar = MakeBar();
    TeskElement* stranger = g_UIManager.LoadElement(&bar, "button", "Stranger");
    for (TeskElement* source : {static_cast<TeskElement*>(bar.UpButton), static_cast<TeskElement*>(bar.Slider),
             stranger, static_cast<TeskElement*>(nullptr)}) {
        for (u32 code = 0; code < 60; ++code) {
            const bool counts = (source == bar.UpButton && code == NotifyLeftPressed)
                || (source == bar.Slider && code == NotifyValueChanged) || code == NotifyChildGoing;
            if (!counts)
                bar.OnNotify(source, code, 1);
        }
    }
    EXPECT_TRUE(Parent.Heard.empty());
    EXPECT_EQ(0u, bar.GetValue());
}

TEST_F(TeskScrollBarTest, ARangeGoesToTheSliderAndKeepsTheValueWithin)
{
    TeskScrollBar& bar = MakeBar();
    bar.SetValue(50);
    EXPECT_EQ(50u, bar.Slider->Position);
    bar.SetRange(200);
    EXPECT_EQ(200u, bar.Range);
    EXPECT_EQ(200u, bar.Slider->Range);
    EXPECT_EQ(75u, bar.Slider->Position);
    bar.SetRange(20);
    EXPECT_EQ(20u, bar.GetValue());
    EXPECT_EQ((Heard{"4:50", "4:20"}), Parent.Heard);
}

TEST_F(TeskScrollBarTest, ItsValueIsRaisedAndLowered)
{
    TeskScrollBar& bar = MakeBar();
    bar.RaiseValue(30);
    EXPECT_EQ(30u, bar.GetValue());
    bar.LowerValue(10);
    EXPECT_EQ(20u, bar.GetValue());
    bar.LowerValue(21);
    EXPECT_EQ(0u, bar.GetValue());
    bar.RaiseValue(1000);
    EXPECT_EQ(100u, bar.GetValue());
}

TEST_F(TeskScrollBarTest, DeletedPartsAreForgotten)
{
    TeskScrollBar& bar = MakeBar();
    TeskButton* up = bar.UpButton;
    bar.DeleteChild(bar.DownButton);
    EXPECT_EQ(nullptr, bar.DownButton);
    EXPECT_EQ(up, bar.UpButton);
    bar.DeleteChild(bar.Slider);
    EXPECT_EQ(nullptr, bar.Slider);
    Press(*up);
    bar.SetRange(4);
    EXPECT_EQ(0u, bar.GetValue());
    bar.DeleteChild(up);
    EXPECT_EQ(nullptr, bar.UpButton);
    EXPECT_TRUE(Parent.Heard.empty());
}

TEST_F(TeskScrollBarTest, TheParentMayDeleteItInTheMiddleOfAPress)
{
    TeskScrollBar& bar = MakeBar();
    Parent.Act = [&](TeskElement& source) { Parent.DeleteChild(&source); };
    EXPECT_TRUE(Press(*bar.UpButton));
    EXPECT_TRUE(IsGone());
}

TEST_F(TeskScrollBarTest, CreatedItTakesItsPartsFromTheElementsOfTheTemplate)
{
    _CreateScrollBar record;
    record.Width = 16;
    record.Height = 105;
    record.Range = 30;
    TeskScrollBar& bar = CreateBar(record,
        "<Template><Slider><Range>9</Range><Border>3</Border></Slider><UpButton><Border>1</Border></UpButton>"
        "<DownButton><Border>2</Border></DownButton></Template>");
    EXPECT_EQ(16u, bar.Width);
    EXPECT_EQ(30u, bar.Range);
    EXPECT_FALSE(bar.Vertical);
    EXPECT_EQ("up", bar.UpButton->Name);
    EXPECT_EQ("down", bar.DownButton->Name);
    EXPECT_EQ("slider", bar.Slider->Name);
    EXPECT_EQ("button", bar.UpButton->Type);
    EXPECT_EQ("slider", bar.Slider->Type);
    EXPECT_EQ(1u, bar.UpButton->Border);
    EXPECT_EQ(2u, bar.DownButton->Border);
    EXPECT_EQ(3u, bar.Slider->Border);
    EXPECT_EQ(30u, bar.Slider->Range);
    EXPECT_TRUE(bar.Slider->Vertical); // even in a bar that lies
    EXPECT_EQ(bar.UpButton, bar.FirstChild);
    EXPECT_EQ(bar.Slider, bar.LastChild);
}

TEST_F(TeskScrollBarTest, CreatedItTakesItsPartsFromTheImagesOfTheTemplate)
{
    _CreateScrollBar record;
    record.Range = 30;
    TeskScrollBar& bar = CreateBar(record,
        "<Template><UpTexture Filename='#u'/><UpTextureHover Filename='#uh'/><UpTexturePressed Filename='#up'/>"
        "<DownTexture Filename='#d'/><DownTextureHover Filename='#dh'/><DownTexturePressed Filename='#dp'/>"
        "<SliderTexture Filename='#s'/><SliderHandleTexture Filename='#sh'/></Template>");
    EXPECT_EQ("#u", bar.UpButton->Texture->Filename);
    EXPECT_EQ("#uh", bar.UpButton->TextureHover->Filename);
    EXPECT_EQ("#up", bar.UpButton->TexturePressed->Filename);
    EXPECT_EQ("#d", bar.DownButton->Texture->Filename);
    EXPECT_EQ("#dh", bar.DownButton->TextureHover->Filename);
    EXPECT_EQ("#dp", bar.DownButton->TexturePressed->Filename);
    EXPECT_EQ("#s", bar.Slider->Texture->Filename);
    EXPECT_EQ("#sh", bar.Slider->HandleTexture->Filename);
    EXPECT_EQ(30u, bar.Slider->Range);
    EXPECT_FALSE(bar.Slider->Vertical);
    EXPECT_TRUE(bar.UpButton->Visible);
}

TEST_F(TeskScrollBarTest, CreatedWithoutATemplateItTakesThatOfItsDirection)
{
    g_UIManager.AddTemplate("verticalscrollbar", "<Template><Slider><Border>4</Border></Slider></Template>");
    _CreateScrollBar record;
    EXPECT_EQ(1u, CreateBar(record, nullptr).UpButton->Border);
    record.Vertical = true;
    TeskScrollBar& bar = CreateBar(record, nullptr);
    EXPECT_TRUE(bar.Vertical);
    EXPECT_EQ(0u, bar.UpButton->Border);
    EXPECT_EQ(4u, bar.Slider->Border);
}

TEST_F(TeskScrollBarTest, CreatedWithoutAnyTemplateItHasBarePartsAndWorks)
{
    g_UIManager.ClearTemplates();
    _CreateScrollBar record;
    record.Range = 10;
    record.Vertical = true;
    TeskScrollBar& bar = CreateBar(record, nullptr);
    EXPECT_TRUE(bar.Slider->Vertical);
    bar.Slider->Height = 105;
    Press(*bar.UpButton);
    EXPECT_EQ((Heard{"4:1"}), Parent.Heard);
}

TEST_F(TeskScrollBarTest, APartThatDeletesTheBarEndsItsCreation)
{
    for (const char* part : {"UpButton", "DownButton", "Slider"}) {
        const std::string tag = part;
        Host.RestorePosition = [](TeskElement& element) { element.Parent->Parent->DeleteChild(element.Parent); };
        auto* bar = TeskElementFactory::New<TeskScrollBar>("scrollbar", &Parent, "vertical");
        bar->Create({},
            g_UIManager.AddTemplate(
                "created", ("<Template><" + tag + "><StorePosition/></" + tag + "></Template>").c_str()));
        EXPECT_TRUE(IsGone()) << part;
    }
}

TEST_F(TeskScrollBarTest, APartThatDeletesItselfIsMissing)
{
    Host.RestorePosition = [](TeskElement& element) { element.Parent->DeleteChild(&element); };
    TeskScrollBar& bar = CreateBar({}, "<Template><UpButton><StorePosition/></UpButton></Template>");
    EXPECT_EQ(nullptr, bar.UpButton);
    EXPECT_NE(nullptr, bar.DownButton);
    EXPECT_NE(nullptr, bar.Slider);
}
