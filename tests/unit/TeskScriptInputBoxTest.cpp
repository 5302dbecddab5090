#include "teskara/windows/TeskScriptInputBox.h"

#include "teskara/element/TeskElementFactory.h"
#include "teskara/text/TeskTextEntry.h"
#include "tests/unit/DialogTest.h"

#include <memory>

namespace {

class TeskScriptInputBoxTest : public DialogTest
{
protected:
    TeskScriptInputBoxTest()
    {
        SetLook("scriptinputbox", "<Font><Size>20</Size><Color>ffabcdef</Color></Font>");
        g_UIManager.AddTemplate("textentry", "<Template><MaxLength>64</MaxLength></Template>");
    }

    // Shows a box with that text and that default.
    TeskScriptInputBox& Show(const std::string& text, const char* initial = "me")
    {
        auto& box = MakeBox<TeskScriptInputBox>("scriptinputbox");
        box.pScript.Open(Script, box.ID);
        box.Create("Title", text.c_str(), initial, nullptr);
        return box;
    }

    bool IsOpen() const { return g_UIManager.FindElement("Box"); }

    TestScript Script;
};

} // namespace

TEST_F(TeskScriptInputBoxTest, LinesAreThirteenHighWhateverTheFont)
{
    TeskScriptInputBox& box = Show("One\nTwo");
    EXPECT_EQ("336,259 128x81", PlaceOf(&box)) << "two lines of 13 and 55";
    EXPECT_EQ("0,0 128x81", PlaceOf(box.Client));
    EXPECT_EQ("0,5 128x27", PlaceOf(box.Client->FindChild("Text")));
    EXPECT_EQ("5,31 118x20", PlaceOf(box.Entry));
    EXPECT_EQ("13,56 32x20", PlaceOf(box.OKButton));
    EXPECT_EQ("50,56 64x20", PlaceOf(box.CancelButton));
}

TEST_F(TeskScriptInputBoxTest, TheWidthDependsOnTheFont)
{
    TeskScriptInputBox& box = Show("This is a line of forty characters, yes.");
    EXPECT_EQ(260u, box.Width) << "240 and the font's 20";
    EXPECT_EQ("5,18 250x20", PlaceOf(box.Entry));
    EXPECT_EQ("79,43 32x20", PlaceOf(box.OKButton));
    EXPECT_EQ("116,43 64x20", PlaceOf(box.CancelButton));
}

TEST_F(TeskScriptInputBoxTest, TheFieldHoldsTheDefault)
{
    TeskScriptInputBox& box = Show("Name?", "Nobody");
    EXPECT_STREQ("Nobody", box.Entry->Text.From(0));
    EXPECT_EQ(1u, box.Entry->Border);
    EXPECT_TRUE(box.Entry->Visible);
    EXPECT_EQ(box.Entry, box.Client->FindChild("Entry"));
    EXPECT_STREQ("textentry", box.Entry->Type.c_str());
}

TEST_F(TeskScriptInputBoxTest, BorderColourIsReadAsADecimalNumber)
{
    SetLook("scriptinputbox",
        "<BorderColor>12ff00</BorderColor><BackgroundColor>ff000002</BackgroundColor><Texture Filename='#back'/>"
        "<Border>3</Border>");
    TeskScriptInputBox& box = Show("Name?");
    EXPECT_EQ(12u, box.BorderColor);
    EXPECT_EQ(0xff000002u, box.BackgroundColor);
    EXPECT_EQ("#back", box.Texture->Filename);
    EXPECT_EQ("333,263 134x74", PlaceOf(&box));
}

TEST_F(TeskScriptInputBoxTest, FacesAreThoseOfTheBoxAlone)
{
    g_UIManager.AddTemplate("button",
        "<Template><Texture Filename='#flat'/><TextureHover Filename='#hot'/><BorderColor>ff000007</BorderColor>"
        "</Template>");
    SetLook("scriptinputbox",
        "<OKTexture Filename='#a'/><OKColor>ff000005</OKColor><OKButton>Other</OKButton>"
        "<CancelTexturePressed Filename='#b'/>");
    TeskScriptInputBox& box = Show("Name?");
    EXPECT_EQ("#a", box.OKButton->Texture->Filename);
    EXPECT_EQ(nullptr, box.OKButton->TextureHover);
    EXPECT_EQ(0xff000005u, box.OKButton->Font->Color);
    EXPECT_EQ(0xff000007u, box.OKButton->BorderColor);
    EXPECT_EQ(nullptr, box.CancelButton->Texture);
    EXPECT_EQ("#b", box.CancelButton->TexturePressed->Filename);
}

TEST_F(TeskScriptInputBoxTest, OKAnswersWithWhatWasTyped)
{
    TeskScriptInputBox& box = Show("Name?", "me");
    EXPECT_EQ(box.ID, Script.InputBoxID);
    box.Entry->SetText("myself");
    Click(box.OKButton);
    EXPECT_FALSE(IsOpen());
    EXPECT_STREQ("myself", Script.UserInput);
    EXPECT_EQ(0u, Script.InputBoxID);
}

TEST_F(TeskScriptInputBoxTest, EnterAnswersAsOKDoes)
{
    TeskScriptInputBox& box = Show("Name?", "me");
    g_UIManager.SetFocusElement(box.Entry);
    EXPECT_TRUE(g_UIManager.OnKeyDown(13));
    EXPECT_FALSE(IsOpen());
    EXPECT_STREQ("me", Script.UserInput);
}

TEST_F(TeskScriptInputBoxTest, EnterOfAnythingElseIsIgnored)
{
    TeskScriptInputBox& box = Show("Name?", "me");
    box.OnNotify(box.OKButton, NotifyEnter, 0);
    box.OnNotify(nullptr, NotifyEnter, 0);
    EXPECT_TRUE(IsOpen());
}

TEST_F(TeskScriptInputBoxTest, EscapeDoesNothing)
{
    TeskScriptInputBox& box = Show("Name?", "me");
    g_UIManager.SetFocusElement(box.Entry);
    g_UIManager.OnKeyDown(27);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(nullptr, Script.UserInput);
}

TEST_F(TeskScriptInputBoxTest, CancelClearsTheAnswer)
{
    TeskScriptInputBox& box = Show("Name?", "me");
    Script.SetUserInput("old");
    Click(box.CancelButton);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(nullptr, Script.UserInput);
}

TEST_F(TeskScriptInputBoxTest, AReleaseOfAnythingElseClosesWithoutAnAnswer)
{
    for (const bool hasSource : {true, false}) {
        TeskScriptInputBox& box = Show("Name?", "me");
        Script.SetUserInput("old");
        box.OnNotify(hasSource ? box.Client : nullptr, NotifyLeftReleased, 0);
        EXPECT_FALSE(IsOpen());
        EXPECT_STREQ("old", Script.UserInput);
        EXPECT_EQ(0u, Script.InputBoxID);
    }
}

TEST_F(TeskScriptInputBoxTest, OtherNewsIsIgnored)
{
    TeskScriptInputBox& box = Show("Name?", "me");
    for (const u32 code : {3u, 4u, 6u, 7u, 8u, 9u, 10u, 11u, 12u, 13u, 14u, 15u, 50u}) {
        box.OnNotify(box.OKButton, code, 0);
        ASSERT_TRUE(IsOpen()) << code;
    }
}

TEST_F(TeskScriptInputBoxTest, WithoutAnyTemplateTheBoxItselfHoldsItsParts)
{
    g_UIManager.ClearTemplates();
    TeskScriptInputBox& box = Show("Name?");
    EXPECT_EQ(nullptr, box.Client);
    EXPECT_EQ("336,266 128x68", PlaceOf(&box));
    EXPECT_EQ("0,5 128x14", PlaceOf(box.FindChild("Text")));
    EXPECT_EQ("5,18 118x20", PlaceOf(box.Entry));
    EXPECT_EQ("13,43 32x20", PlaceOf(box.FindChild("OK")));
    Frame();
    Click(box.OKButton);
    EXPECT_FALSE(IsOpen());
}

TEST_F(TeskScriptInputBoxTest, ABoxThatLostItsFieldAnswersWithNothing)
{
    TeskScriptInputBox& box = Show("Name?", "me");
    box.Client->DeleteChild(box.Entry);
    EXPECT_EQ(nullptr, box.Entry);
    Script.SetUserInput("old");
    Click(box.OKButton);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(nullptr, Script.UserInput);
}

TEST_F(TeskScriptInputBoxTest, ABoxLosesItsPartsWithItsClient)
{
    TeskScriptInputBox& box = Show("Name?", "me");
    box.DeleteChild(box.Client);
    EXPECT_EQ(nullptr, box.Client);
    EXPECT_EQ(nullptr, box.Entry);
    EXPECT_EQ(nullptr, box.OKButton);
    EXPECT_EQ(nullptr, box.CancelButton);
    Frame();
}

TEST_F(TeskScriptInputBoxTest, ABoxWhoseScriptHasEndedAnswersNobody)
{
    auto script = std::make_unique<TestScript>();
    TeskScriptInputBox& box = Show("Name?", "me");
    box.pScript.Open(*script, box.ID);
    script.reset();
    Click(box.OKButton);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(nullptr, Script.UserInput);
}

TEST_F(TeskScriptInputBoxTest, ABoxWhosePartsCannotBeMadeHasNone)
{
    TeskElementFactory* factory = g_UIManager.FindFactory("textentry");
    factory->Unregister();
    TeskScriptInputBox& box = Show("Name?", "me");
    factory->Register("textentry", TeskaraVersion);
    EXPECT_EQ(nullptr, box.Entry);
    EXPECT_NE(nullptr, box.OKButton);
    box.OnNotify(nullptr, NotifyEnter, 0);
    EXPECT_TRUE(IsOpen());
}
