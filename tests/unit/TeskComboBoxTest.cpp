#include "teskara/collections/TeskComboBox.h"
#include "tests/unit/ListTest.h"

class TeskComboBoxTest : public ListTest
{
protected:
    TeskComboBoxTest()
    {
        Host.Scripts["select"] = [this](TeskElement&) { Parent.Heard.push_back("on " + Host.ScriptArguments.at(0)); };
    }

    ~TeskComboBoxTest() override { g_UIManager.MouseCaptureElementID = 0; }

    // A box 100 by 20, with a list of 40 that is dropped, under the listener.
    TeskComboBox& MakeCombo(const std::string& markup = {}) { return Make<TeskComboBox>("combobox", Markup + markup); }

    // The same with rows "a", "b" and "c", on the screen at 10, 50.
    TeskComboBox& PlaceCombo(const std::string& markup = {})
    {
        return Place<TeskComboBox>("combobox", Markup + Rows + markup);
    }

    static bool Click(TeskComboBox& combo)
    {
        combo.OnLMouseDown(Point);
        return combo.OnLMouseUp(Point);
    }

    static constexpr const char* Rows = "<Items><item>a</item><item>b</item><item>c</item></Items>";
    const std::string Markup = "<Width>100</Width><Height>20</Height><FullHeight>60</FullHeight><Font><Size>8</"
                               "Size><Color>ffffffff</Color></Font>"
                               "<OnSelect>select</OnSelect><ListBox><Font><Size>9</Size></Font><SelectMultiple/>"
                               "<ScrollBar>bar</ScrollBar></ListBox>";
};

TEST_F(TeskComboBoxTest, MarkupWithoutValuesGivesEveryDefault)
{
    const TeskComboBox& combo = Make<TeskComboBox>("combobox", "<ListBox><ScrollBar>bar</ScrollBar></ListBox>");
    EXPECT_EQ(nullptr, combo.Texture);
    EXPECT_EQ(nullptr, combo.ButtonTexture);
    EXPECT_EQ(12, combo.Font->Size);
    EXPECT_EQ(0u, combo.Border);
    EXPECT_EQ(0u, combo.FullHeight);
    EXPECT_EQ(0u, combo.ButtonWidth);
    EXPECT_EQ(nullptr, combo.OnSelect);
    EXPECT_FALSE(combo.Down);
    EXPECT_EQ(0u, combo.Selection);
}

TEST_F(TeskComboBoxTest, TheListIsAChildAsWideAsTheBoxAndBelowItsFace)
{
    const TeskComboBox& combo = MakeCombo();
    EXPECT_EQ("list", combo.List->Name);
    EXPECT_EQ(&combo, combo.List->Parent);
    EXPECT_FALSE(combo.List->SelectMultiple);
    EXPECT_EQ(0, combo.List->X);
    EXPECT_EQ(20, combo.List->Y);
    EXPECT_EQ(100u, combo.List->Width);
    EXPECT_EQ(40u, combo.List->Height);
    EXPECT_EQ(20u, combo.ClosedHeight);
}

TEST_F(TeskComboBoxTest, ABoxWithoutAListIsAFailedLoad)
{
    Load("<combobox name='A'/><combobox name='B'><ListBox/></combobox><frame name='F'/>");
    EXPECT_EQ(nullptr, g_UIManager.FindElement("A"));
    EXPECT_EQ(nullptr, g_UIManager.FindElement("B"));
    EXPECT_NE(nullptr, g_UIManager.FindElement("F"));
}

TEST_F(TeskComboBoxTest, ItsOwnRowsGoToTheListAndTheDefaultShows)
{
    TeskComboBox& combo = MakeCombo("<Items><item>a</item><item Default='1' Value='v'>b</item></Items>");
    EXPECT_EQ((Strings{"a", "b"}), Texts(*combo.List));
    EXPECT_STREQ("v", combo.List->RetrieveItem(2)->GetValue());
    EXPECT_EQ(2u, combo.Selection);
    EXPECT_EQ((Strings{"9:2", "on 2"}), TakeHeard());
}

TEST_F(TeskComboBoxTest, RowsOfTheTemplateAreNotItsOwn)
{
    g_UIManager.AddTemplate(
        "combobox", "<Template><Items><item>t</item></Items><ListBox><ScrollBar>bar</ScrollBar></ListBox></Template>");
    TeskComboBox& combo = Make<TeskComboBox>("combobox", "<Height>5</Height>");
    EXPECT_EQ(0u, combo.List->GetItemCount());
}

TEST_F(TeskComboBoxTest, AClickOpensAndAnotherCloses)
{
    TeskComboBox& combo = PlaceCombo();
    combo.OnLMouseDown(Point);
    EXPECT_FALSE(combo.Down);
    EXPECT_TRUE(combo.OnLMouseUp(Point));
    EXPECT_TRUE(combo.Down);
    EXPECT_EQ(60u, combo.Height);
    EXPECT_EQ(20u, combo.ClosedHeight);
    EXPECT_EQ(combo.ID, g_UIManager.MouseCaptureElementID);
    EXPECT_EQ(combo.ID, g_UIManager.FocusElementID);

    EXPECT_TRUE(Click(combo));
    EXPECT_FALSE(combo.Down);
    EXPECT_EQ(20u, combo.Height);
    EXPECT_EQ(0u, g_UIManager.MouseCaptureElementID);
    EXPECT_EQ(combo.ID, g_UIManager.FocusElementID);
}

TEST_F(TeskComboBoxTest, TheListShowsWhileTheBoxIsOpen)
{
    TeskComboBox& combo = PlaceCombo();
    Frame();
    EXPECT_FALSE(combo.List->Visible);
    Click(combo);
    Frame();
    EXPECT_TRUE(combo.List->Visible);
    Click(combo);
    EXPECT_TRUE(combo.List->Visible);
    Frame();
    EXPECT_FALSE(combo.List->Visible);
}

TEST_F(TeskComboBoxTest, APressElsewhereClosesWithoutAnEvent)
{
    TeskComboBox& combo = PlaceCombo("");
    Load("<frame name='F'/>");
    Click(combo);
    combo.OnLMouseDownOther(&combo);
    combo.OnLMouseDownOther(combo.List);
    combo.OnLMouseDownOther(combo.List->ScrollBar);
    EXPECT_TRUE(combo.Down);
    combo.OnLMouseDownOther(&Element("F"));
    EXPECT_FALSE(combo.Down);
    EXPECT_EQ(20u, combo.Height);
    EXPECT_EQ(0u, g_UIManager.MouseCaptureElementID);
    EXPECT_TRUE(TakeHeard().empty());

    Click(combo);
    g_UIManager.MouseCaptureElementID = 77;
    combo.OnLMouseDownOther(nullptr);
    EXPECT_FALSE(combo.Down);
    EXPECT_EQ(77u, g_UIManager.MouseCaptureElementID);
}

TEST_F(TeskComboBoxTest, PickingARowClosesAndTellsItAndKeepsTheMouse)
{
    TeskComboBox& combo = MakeCombo(Rows);
    Parent.Visible = true;
    Click(combo);
    combo.List->SelectItem(2);
    EXPECT_EQ((Strings{"9:2", "on 2"}), TakeHeard());
    EXPECT_FALSE(combo.Down);
    EXPECT_EQ(20u, combo.Height);
    EXPECT_EQ(combo.ID, g_UIManager.MouseCaptureElementID);
}

TEST_F(TeskComboBoxTest, PickingAnotherRowComesAsTwoChanges)
{
    TeskComboBox& combo = MakeCombo(Rows);
    combo.List->SelectItem(2);
    TakeHeard();
    combo.List->SelectItem(3);
    EXPECT_EQ((Strings{"9:0", "on 0", "9:3", "on 3"}), TakeHeard());
    EXPECT_EQ(3u, combo.Selection);
}

TEST_F(TeskComboBoxTest, AClickOnTheSelectedRowClearsItAndCloses)
{
    TeskComboBox& combo = MakeCombo(Rows);
    combo.List->SelectItem(1);
    Click(combo);
    combo.RecalculateSize(true);
    TakeHeard();
    PressOn(*combo.List, 0);
    EXPECT_EQ((Strings{"9:0", "on 0"}), TakeHeard());
    EXPECT_EQ(0u, combo.Selection);
    EXPECT_FALSE(combo.Down);
}

TEST_F(TeskComboBoxTest, OtherNewsEndsAtTheBox)
{
    TeskComboBox& combo = MakeCombo(Rows);
    combo.OnNotify(combo.List, NotifyRowDoubleClick, 1);
    combo.OnNotify(&combo, NotifySelectionChanged, 1);
    combo.OnNotify(nullptr, NotifyFontChanged, 1);
    EXPECT_TRUE(TakeHeard().empty());
    EXPECT_EQ(0u, combo.Selection);
}

TEST_F(TeskComboBoxTest, SizesFollowTheBoxWhileItIsClosedAndNotWhileItIsOpen)
{
    TeskComboBox& combo = MakeCombo(Rows);
    combo.Height = 25;
    combo.Width = 80;
    combo.RecalculateSize(true);
    EXPECT_EQ(25u, combo.ClosedHeight);
    EXPECT_EQ(25, combo.List->Y);
    EXPECT_EQ(35u, combo.List->Height);
    EXPECT_EQ(80u, combo.List->Width);
    Click(combo);
    combo.Height = 30;
    combo.RecalculateSize(true);
    EXPECT_EQ(25u, combo.ClosedHeight);
    EXPECT_EQ(60u, combo.Height);
    EXPECT_EQ(25, combo.List->Y);
}

TEST_F(TeskComboBoxTest, AFullHeightBelowTheFaceWraps)
{
    const TeskComboBox& combo = MakeCombo("<FullHeight>60</FullHeight>");
    EXPECT_EQ(40u, combo.List->Height);
    const TeskComboBox& low = Make<TeskComboBox>(
        "combobox", "<Height>20</Height><FullHeight>15</FullHeight><ListBox><ScrollBar>bar</ScrollBar></ListBox>");
    EXPECT_EQ(0xfffffffbu, low.List->Height);
}

TEST_F(TeskComboBoxTest, TheFaceShowsTheSelectedRowBesideTheButton)
{
    TeskComboBox& combo = PlaceCombo("<ButtonWidth>15</ButtonWidth><Border>2</Border>");
    EXPECT_EQ("", Frame());
    combo.Selection = 2;
    EXPECT_EQ("DrawText \"b\" (15,56,92,600) ffffffff format=32 font 1\n", Frame());
    combo.Selection = 9;
    EXPECT_EQ("", Frame());
    combo.Selection = 2;
    combo.List->SetItemText(2, nullptr);
    EXPECT_EQ("", Frame());
}

TEST_F(TeskComboBoxTest, FaceAndButtonHaveImages)
{
    TeskComboBox& combo =
        PlaceCombo("<ButtonWidth>15</ButtonWidth><Texture Filename='#a'/><ButtonTexture Filename='#b'/>");
    const std::string plain = Frame();
    EXPECT_NE(std::string::npos, plain.find("(10,50,95,70)")) << plain;
    EXPECT_NE(std::string::npos, plain.find("(95,50,110,70)")) << plain;
    combo.ButtonWidth = 0;
    const std::string whole = Frame();
    EXPECT_NE(std::string::npos, whole.find("(10,50,110,70)")) << whole;
    EXPECT_EQ(1, std::count(whole.begin(), whole.end(), '\n')) << whole;
}

TEST_F(TeskComboBoxTest, ABoxWhoseListIsGoneStillOpensAndCloses)
{
    TeskComboBox& combo = PlaceCombo();
    combo.DeleteChild(combo.List);
    EXPECT_EQ(nullptr, combo.List);
    combo.Selection = 1;
    Click(combo);
    Frame();
    combo.RecalculateSize(true);
    EXPECT_EQ(60u, combo.Height);
    Click(combo);
    combo.RecalculateSize(true);
    EXPECT_EQ(20u, combo.Height);
}

TEST_F(TeskComboBoxTest, APickMayEndTheBoxAndItsListWithIt)
{
    for (const bool inScript : {false, true}) {
        TeskComboBox& combo = MakeCombo(Rows);
        if (inScript)
            Host.Scripts["select"] = [this](TeskElement& self) { Parent.DeleteChild(&self); };
        else
            Parent.Act = [this](TeskElement& source) { Parent.DeleteChild(&source); };
        Click(combo);
        combo.RecalculateSize(true);
        EXPECT_TRUE(PressOn(*combo.List, 1));
        EXPECT_TRUE(IsGone());
        Parent.Act = nullptr;
    }
}

TEST_F(TeskComboBoxTest, ABoxThatEndsAsItGetsTheFocusCapturesNothing)
{
    TeskComboBox& combo = PlaceCombo("<OnKeyboardEnter>end</OnKeyboardEnter>");
    Host.Scripts["end"] = [](TeskElement& self) { self.Parent->DeleteChild(&self); };
    EXPECT_TRUE(Click(combo));
    EXPECT_EQ(nullptr, g_UIManager.FindElement("C"));
    EXPECT_EQ(0u, g_UIManager.MouseCaptureElementID);
}

TEST_F(TeskComboBoxTest, KnowsTheWordsOfItsKind)
{
    TeskComboBox& combo = MakeCombo();
    EXPECT_TRUE(combo.IsTypeOf("ComboBox"));
    EXPECT_TRUE(combo.IsTypeOf("teskelement"));
    EXPECT_FALSE(combo.IsTypeOf("listbox"));
    EXPECT_FALSE(combo.IsTypeOf(nullptr));
}

TEST_F(TeskComboBoxTest, WithoutMarkupEverythingWorksOnNothing)
{
    auto& combo = dynamic_cast<TeskComboBox&>(*g_UIManager.LoadElement(&Parent, "combobox", "Bare"));
    Click(combo);
    combo.Render();
    combo.RecalculateSize(true);
    combo.OnLMouseDownOther(nullptr);
    combo.Selection = 1;
    combo.Render();
    EXPECT_FALSE(combo.Down);
}
