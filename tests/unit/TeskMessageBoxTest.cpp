#include "teskara/windows/TeskMessageBox.h"

#include "teskara/windows/TeskScriptMessageBox.h"
#include "tests/unit/DialogTest.h"

#include <memory>

namespace {

class TeskMessageBoxTest : public DialogTest
{
protected:
    TeskMessageBoxTest() { SetLook("messagebox", "<Font><Size>12</Size><Color>ffabcdef</Color></Font>"); }

    // Shows a box with that text.
    TeskMessageBox& Show(const std::string& text, eMessageBoxType type = MessageBoxOK)
    {
        TeskMessageBox& box = MakeBox<TeskMessageBox>("messagebox");
        box.Create("Title", text.c_str(), type, nullptr);
        return box;
    }

    bool IsOpen() const { return g_UIManager.FindElement("Box"); }

    TestScript Script;
};

} // namespace

TEST_F(TeskMessageBoxTest, NoMarkupMakesAMessageBox)
{
    Load("<messagebox name='A'/><scriptmessagebox name='B'/><scriptinputbox name='C'/>");
    EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
}

TEST_F(TeskMessageBoxTest, AShortTextGivesAWindowOfTheLeastWidth)
{
    TeskMessageBox& box = Show("Hello");
    EXPECT_EQ("336,278 128x43", PlaceOf(&box)) << "in the middle of the screen, one line of 13 and 30 high";
    EXPECT_EQ("0,0 128x43", PlaceOf(box.Client));
    EXPECT_EQ("0,5 128x14", PlaceOf(box.Client->FindChild("Text")));
    EXPECT_EQ("48,18 32x20", PlaceOf(box.OKButton));
    EXPECT_EQ(nullptr, box.CancelButton);
    EXPECT_EQ(nullptr, box.YesButton);
    EXPECT_EQ(nullptr, box.NoButton);
}

TEST_F(TeskMessageBoxTest, TheWindowIsAsWideAsTheWidestLineAndTheFontIsHigh)
{
    TeskMessageBox& box = Show("Short\nThis is a line of forty characters, yes.");
    EXPECT_EQ("274,272 252x56", PlaceOf(&box));
    EXPECT_EQ("0,5 252x27", PlaceOf(box.Client->FindChild("Text")));
    EXPECT_EQ("110,31 32x20", PlaceOf(box.OKButton));
}

TEST_F(TeskMessageBoxTest, AnOpenMessageBoxTakesTheBorderOutside)
{
    SetLook("messagebox", "<Border>4</Border>");
    TeskMessageBox& box = Show("Hello");
    EXPECT_EQ("332,274 136x51", PlaceOf(&box));
    EXPECT_EQ("0,0 128x43", PlaceOf(box.Client));
    EXPECT_EQ("48,18 32x20", PlaceOf(box.OKButton));
}

TEST_F(TeskMessageBoxTest, ALongTextIsBrokenAtSevenTenthsOfTheScreen)
{
    TeskMessageBox& box = Show(std::string(100, 'x'));
    EXPECT_EQ(576u, box.Client->Width) << "94 letters reach 560, and the font is 12 high";
    EXPECT_EQ(std::string(94, 'x') + '\n' + "xxxxxx", TextOf(*box.Client).Text);
    EXPECT_EQ(2u, TextOf(*box.Client).NumLines);
}

TEST_F(TeskMessageBoxTest, ATextIsCutAt2047Bytes)
{
    const std::string text = Lines(1024); // 2047 bytes
    EXPECT_EQ(text, TextOf(*Show(text + "yz").Client).Text);
}

TEST_F(TeskMessageBoxTest, AVeryLongTextStopsAtThreeQuartersOfTheScreenButItsWindowDoesNot)
{
    TeskMessageBox& box = Show(Lines(50));
    EXPECT_EQ("0,5 128x450", PlaceOf(box.Client->FindChild("Text")));
    EXPECT_EQ(680u, box.Height);
    EXPECT_EQ(static_cast<i32>(0xffffffb0u / 2), box.Y) << "the middle wraps";
    EXPECT_EQ("48,655 32x20", PlaceOf(box.OKButton));
}

TEST_F(TeskMessageBoxTest, EachTypeHasItsButtons)
{
    TeskMessageBox& cancel = Show("Hello", MessageBoxOKCancel);
    EXPECT_EQ(MessageBoxOKCancel, cancel.Type);
    EXPECT_EQ("13,18 32x20", PlaceOf(cancel.OKButton));
    EXPECT_EQ("50,18 64x20", PlaceOf(cancel.CancelButton));
    EXPECT_EQ(cancel.CancelButton, cancel.Client->FindChild("Cancel"));
    EXPECT_STREQ("button", cancel.CancelButton->Type.c_str());
    Click(cancel.CancelButton);
    ASSERT_FALSE(IsOpen());

    TeskMessageBox& yesNo = Show("Hello", MessageBoxYesNo);
    EXPECT_EQ(MessageBoxYesNo, yesNo.Type);
    EXPECT_EQ("29,18 32x20", PlaceOf(yesNo.YesButton));
    EXPECT_EQ("66,18 32x20", PlaceOf(yesNo.NoButton));
    EXPECT_EQ(nullptr, yesNo.OKButton);
    Click(yesNo.YesButton);
    EXPECT_FALSE(IsOpen());
}

TEST_F(TeskMessageBoxTest, TheTextIsCentredInTheFontOfTheBox)
{
    TeskText& text = TextOf(*Show("Hello").Client);
    EXPECT_EQ(AlignCenter, text.Alignment);
    EXPECT_EQ(AlignVerticalCenter, text.VerticalAlignment);
    EXPECT_TRUE(text.Wrap);
    EXPECT_EQ(12, text.Font->Size);
    EXPECT_EQ(0xffabcdefu, text.Font->Color);
}

TEST_F(TeskMessageBoxTest, AllLinesAreDrawn)
{
    Show("One\nTwo");
    const std::string drawn = Frame();
    EXPECT_NE(std::string::npos, drawn.find("DrawText \"One\""));
    EXPECT_NE(std::string::npos, drawn.find("DrawText \"Two\""));
}

TEST_F(TeskMessageBoxTest, SequencesAreEvaluatedOnce)
{
    Host.Expand = [](const std::string& text) { return text == "${x}" ? "value" : text; };
    Host.Recorded |= RecordSequences;
    Host.TakeCalls();
    EXPECT_EQ("value", TextOf(*Show("${x}").Client).Text);
    const std::string calls = Host.TakeCalls();
    EXPECT_EQ(calls.find("DataParse \"${x}\""), calls.rfind("DataParse"));
}

TEST_F(TeskMessageBoxTest, NoTextIsAnEmptyOne)
{
    TeskMessageBox& box = MakeBox<TeskMessageBox>("messagebox");
    box.Create(nullptr, nullptr, MessageBoxOK, nullptr);
    EXPECT_EQ(128u, box.Width);
    EXPECT_EQ("", TextOf(*box.Client).Text);
    EXPECT_EQ(nullptr, box.Title);
}

TEST_F(TeskMessageBoxTest, ColoursAndTexturesComeFromTheTemplateOfTheBox)
{
    SetLook("messagebox",
        "<BackgroundColor>ff000001</BackgroundColor><BorderColor>ff00000a</BorderColor><OKColor>ff000003</OKColor>"
        "<OKTexture Filename='#a'/><OKTextureHover Filename='#b'/><OKTexturePressed Filename='#c'/>");
    TeskMessageBox& box = Show("Hello");
    EXPECT_EQ(0xff000001u, box.BackgroundColor);
    EXPECT_EQ(0xff00000au, box.BorderColor);
    EXPECT_EQ(0xff000003u, box.OKButton->Font->Color);
    EXPECT_EQ(12, box.OKButton->Font->Size);
    EXPECT_EQ("#a", box.OKButton->Texture->Filename);
    EXPECT_EQ("#b", box.OKButton->TextureHover->Filename);
    EXPECT_EQ("#c", box.OKButton->TexturePressed->Filename);
}

TEST_F(TeskMessageBoxTest, FacesOfTheButtonsOwnTemplateComeFirst)
{
    g_UIManager.AddTemplate(
        "Flat", "<Template><Texture Filename='#flat'/><BorderColor>ff000007</BorderColor></Template>");
    SetLook("messagebox",
        "<YesButton>Flat</YesButton><YesTexture Filename='#a'/><YesTextureHover Filename='#b'/>"
        "<NoTexture Filename='#c'/>");
    TeskMessageBox& box = Show("Hello", MessageBoxYesNo);
    EXPECT_EQ("#flat", box.YesButton->Texture->Filename);
    EXPECT_EQ("#b", box.YesButton->TextureHover->Filename);
    EXPECT_EQ(nullptr, box.YesButton->TexturePressed);
    EXPECT_EQ(0xff000007u, box.YesButton->BorderColor);
    EXPECT_EQ("#c", box.NoButton->Texture->Filename);
}

TEST_F(TeskMessageBoxTest, ATemplateThatIsNamedTakesThePlaceOfTheUsualOne)
{
    TeskMessageBox& box = MakeBox<TeskMessageBox>("messagebox");
    box.Create("Title", "Hello", MessageBoxOK,
        g_UIManager.AddTemplate("Mine", "<Template><BackgroundColor>ff000009</BackgroundColor></Template>"));
    EXPECT_EQ(0xff000009u, box.BackgroundColor);
}

TEST_F(TeskMessageBoxTest, TheTitleIsShownInTheTitleBar)
{
    SetLook("messagebox",
        "<Title>Of the template</Title><TitleBar><Width>100%</Width><Height>10</Height><Children><text name='Title'>"
        "</text></Children></TitleBar>");
    TeskMessageBox& box = Show("Hello");
    EXPECT_EQ("Title", *box.Title);
    ASSERT_NE(nullptr, box.TitleText);
    EXPECT_EQ("Title", box.TitleText->Text);
}

TEST_F(TeskMessageBoxTest, WithoutAnyTemplateTheBoxItselfHoldsItsParts)
{
    g_UIManager.ClearTemplates();
    TeskMessageBox& box = Show("Hello", MessageBoxYesNo);
    EXPECT_EQ(nullptr, box.Client);
    EXPECT_EQ("336,278 128x43", PlaceOf(&box));
    EXPECT_EQ("0,5 128x14", PlaceOf(box.FindChild("Text")));
    EXPECT_EQ("29,18 32x20", PlaceOf(box.FindChild("Yes")));
    EXPECT_EQ(0u, box.BackgroundColor);
    EXPECT_EQ(nullptr, box.YesButton->Texture);
    EXPECT_EQ(0xffffffffu, box.YesButton->Font->Color);
    Frame();
    Click(box.NoButton);
    EXPECT_FALSE(IsOpen());
}

TEST_F(TeskMessageBoxTest, OnlyTheReleaseOfItsButtonsEndsTheBox)
{
    TeskMessageBox& box = Show("Hello");
    for (const u32 code : {3u, 4u, 5u, 6u, 7u, 8u, 9u, 10u, 11u, 12u, 13u, 14u, 15u, 50u}) {
        box.OnNotify(box.OKButton, code, 0);
        ASSERT_TRUE(IsOpen()) << code;
    }
    box.OnNotify(box.Client, NotifyLeftReleased, 0);
    box.OnNotify(nullptr, NotifyLeftReleased, 0);
    ASSERT_TRUE(IsOpen());
    box.OnNotify(box.OKButton, NotifyLeftReleased, 0);
    EXPECT_FALSE(IsOpen());
}

TEST_F(TeskMessageBoxTest, ABoxLosesAButtonThatIsDeleted)
{
    TeskMessageBox& box = Show("Hello", MessageBoxOKCancel);
    box.Client->DeleteChild(box.OKButton);
    EXPECT_EQ(nullptr, box.OKButton);
    EXPECT_NE(nullptr, box.CancelButton);
    Frame();
    box.DeleteChild(box.Client);
    EXPECT_EQ(nullptr, box.Client);
    EXPECT_EQ(nullptr, box.CancelButton);
    Frame();
}

TEST_F(TeskMessageBoxTest, ABoxWithoutItsCreationIsAnEmptyWindow)
{
    TeskMessageBox& box = MakeBox<TeskMessageBox>("messagebox");
    Frame();
    EXPECT_EQ(MessageBoxOK, box.Type);
    EXPECT_EQ(nullptr, box.Font);
    box.OnNotify(nullptr, NotifyLeftReleased, 0);
    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(box.IsTypeOf("MessageBox"));
    EXPECT_TRUE(box.IsTypeOf("window"));
    EXPECT_FALSE(box.IsTypeOf("scriptmessagebox"));
}

TEST_F(TeskMessageBoxTest, AScriptHearsWhichButtonItWas)
{
    struct Row {
        eMessageBoxType Type;
        TeskButton* TeskMessageBox::*Button;
        const char* Answer;
    };
    constexpr Row rows[] = {
        {MessageBoxOK, &TeskMessageBox::OKButton, "OK"},
        {MessageBoxOKCancel, &TeskMessageBox::OKButton, "OK"},
        {MessageBoxOKCancel, &TeskMessageBox::CancelButton, "Cancel"},
        {MessageBoxYesNo, &TeskMessageBox::YesButton, "Yes"},
        {MessageBoxYesNo, &TeskMessageBox::NoButton, "No"},
    };
    for (const Row& row : rows) {
        auto& box = MakeBox<TeskScriptMessageBox>("scriptmessagebox");
        box.pScript.Open(Script, box.ID);
        box.Create("Title", "Hello", row.Type, nullptr);
        EXPECT_TRUE(box.IsTypeOf("scriptmessagebox"));
        EXPECT_TRUE(box.IsTypeOf("messagebox"));
        EXPECT_EQ(box.ID, Script.MessageBoxID);
        ASSERT_NE(nullptr, box.*row.Button);
        Click(box.*row.Button);
        EXPECT_STREQ(row.Answer, Script.UserInput);
        EXPECT_EQ(0u, Script.MessageBoxID);
        EXPECT_FALSE(IsOpen());
    }
}

TEST_F(TeskMessageBoxTest, ABoxWhoseScriptHasEndedAnswersNobody)
{
    auto script = std::make_unique<TestScript>();
    auto& box = MakeBox<TeskScriptMessageBox>("scriptmessagebox");
    box.pScript.Open(*script, box.ID);
    box.Create("Title", "Hello", MessageBoxYesNo, nullptr);
    script.reset();
    EXPECT_EQ(nullptr, box.pScript.Get());
    Click(box.YesButton);
    EXPECT_FALSE(IsOpen());
}

TEST_F(TeskMessageBoxTest, ABoxThatIsDeletedGivesNoAnswer)
{
    auto& box = MakeBox<TeskScriptMessageBox>("scriptmessagebox");
    box.pScript.Open(Script, box.ID);
    box.Create("Title", "Hello", MessageBoxYesNo, nullptr);
    g_UIManager.Screen->DeleteChild(&box);
    EXPECT_EQ(0u, Script.MessageBoxID);
    EXPECT_EQ(nullptr, Script.UserInput);
}

TEST_F(TeskMessageBoxTest, ABoxMayEndWhileItIsMade)
{
    const auto end = [] {
        if (TeskElement* box = g_UIManager.FindElement("Box"))
            g_UIManager.Screen->DeleteChild(box);
    };
    Host.Expand = [&](const std::string& text) {
        end();
        return text;
    };
    MakeBox<TeskMessageBox>("messagebox").Create("Title", "${x}", MessageBoxOK, nullptr);
    EXPECT_FALSE(IsOpen());

    Host.Expand = nullptr;
    Host.Scripts["end"] = [&](TeskElement&) { end(); };
    for (const char* part : {"TitleBar", "Client"}) {
        const std::string tag = part;
        const std::string markup = "<Template><" + tag + "><OnLoad>end</OnLoad></" + tag + "></Template>";
        MakeBox<TeskMessageBox>("messagebox")
            .Create("Title", "Hello", MessageBoxOK, g_UIManager.AddTemplate("Ending", markup.c_str()));
        EXPECT_FALSE(IsOpen()) << part;
    }
}
