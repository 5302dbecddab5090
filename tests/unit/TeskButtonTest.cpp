#include "teskara/controls/TeskButton.h"

#include "tests/unit/PressTest.h"

namespace {

class TeskButtonTest : public PressTest
{
protected:
    TeskButton& MakeButton(const std::string& markup = {}, const char* attributes = "")
    {
        return Make<TeskButton>("button", markup, attributes);
    }

    TeskButton& PlaceButton(const std::string& markup) { return Place<TeskButton>("button", markup); }

    // The image of that number over the whole button.
    static std::string Image(int number)
    {
        return "DrawTexturedRect texture " + std::to_string(number)
            + " to=(10,50,110,70) from=(0,0,0,0) flags=2 alpha=255 orientation=0 mask=00000000\n";
    }

    static std::string Fill(const char* color = "00000000")
    {
        return std::string("DrawRect (10,50,110,70) ") + color + "\n";
    }

    // A text around the middle of the button.
    static std::string Label(const std::string& text, int y = 54)
    {
        return "DrawText \"" + text + "\" (10," + std::to_string(y) + ",110,600) ffffffff format=33 font 1\n";
    }
};

constexpr char AllTextures[] =
    "<Texture Filename='#plain'/><TexturePressed Filename='#pressed'/><TextureHover Filename='#hover'/>";

} // namespace

TEST_F(TeskButtonTest, MarkupGivesItsFields)
{
    const TeskButton& button =
        MakeButton("<BackgroundColor>ff010203</BackgroundColor><BorderColor>ff040506</BorderColor>"
                   "<Border>3</Border><Font><Size>20</Size></Font><Text>Go ${Where}</Text>"
            + std::string(AllTextures));
    EXPECT_EQ(0xff010203u, button.BackgroundColor);
    EXPECT_EQ(0xff040506u, button.BorderColor);
    EXPECT_EQ(3u, button.Border);
    EXPECT_EQ(20, button.Font->Size);
    EXPECT_STREQ("Go ${Where}", button.Text.Text.get());
    EXPECT_NE(0u, button.Text.Sequence);
    EXPECT_EQ("#plain", button.Texture->Filename);
    EXPECT_EQ("#pressed", button.TexturePressed->Filename);
    EXPECT_EQ("#hover", button.TextureHover->Filename);
    EXPECT_FALSE(button.Pressed);
}

TEST_F(TeskButtonTest, WithoutMarkupEveryFieldHasItsDefault)
{
    const TeskButton& button = MakeButton();
    EXPECT_EQ(0u, button.BackgroundColor);
    EXPECT_EQ(0u, button.BorderColor);
    EXPECT_EQ(0u, button.Border);
    EXPECT_EQ(12, button.Font->Size);
    EXPECT_EQ(nullptr, button.Text.Text);
    EXPECT_EQ(0u, button.Text.Sequence);
    EXPECT_FALSE(button.Texture);
    EXPECT_FALSE(button.TexturePressed);
    EXPECT_FALSE(button.TextureHover);
}

TEST_F(TeskButtonTest, ValuesFallBackToTheTemplateOfItsKind)
{
    g_UIManager.AddTemplate("button",
        ("<Template><Border>1</Border><BackgroundColor>5</BackgroundColor><Text>Kind</Text>" + std::string(AllTextures)
            + "</Template>")
            .c_str());
    const TeskButton& button = MakeButton("<Border>2</Border>");
    EXPECT_EQ(2u, button.Border);
    EXPECT_EQ(5u, button.BackgroundColor);
    EXPECT_STREQ("Kind", button.Text.Text.get());
    EXPECT_TRUE(button.TextureHover);
}

TEST_F(TeskButtonTest, ItsTextIsHandedToTheHostOnce)
{
    Host.Recorded = RecordSequences;
    PlaceButton("<Text>Go</Text>");
    Frame();
    EXPECT_EQ("RetrieveProcessedText 1 size=2048\n", Frame());
    g_UIManager.Reset();
    EXPECT_EQ("FreeSequence 1\n", Host.TakeCalls());
}

TEST_F(TeskButtonTest, AnEmptyTextIsNoneAndHidesThatOfTheTemplate)
{
    Host.Recorded = RecordSequences;
    g_UIManager.AddTemplate("button", "<Template><Text>Kind</Text></Template>");
    const TeskButton& button = MakeButton("<Text></Text>");
    EXPECT_EQ(0u, button.Text.Sequence);
    EXPECT_EQ("", Host.TakeCalls());
}

TEST_F(TeskButtonTest, ReadAnewItGivesBackWhatItHad)
{
    Host.Recorded = RecordSequences | RecordResources;
    TeskButton& button = PlaceButton("<Text>Go</Text>" + std::string(AllTextures));
    button.Pressed = true;
    Frame();
    XMLNode* node = g_UIManager.AddTemplate("B", "<Template><Border>7</Border></Template>");
    EXPECT_TRUE(button.FromXML(node, nullptr));
    EXPECT_EQ("ReleaseFontResource 1\nFreeSequence 1\nReleaseTextureResource 1\n", Host.TakeCalls());
    EXPECT_EQ(7u, button.Border);
    EXPECT_EQ(nullptr, button.Text.Text);
    EXPECT_FALSE(button.TexturePressed);
}

TEST_F(TeskButtonTest, IsAButtonAndAnElement)
{
    TeskButton& button = MakeButton();
    EXPECT_TRUE(button.IsTypeOf("BUTTON"));
    EXPECT_TRUE(button.IsTypeOf("teskelement"));
    EXPECT_FALSE(button.IsTypeOf("checkbox"));
    EXPECT_FALSE(button.IsTypeOf(nullptr));
}

TEST_F(TeskButtonTest, ItsColorMaskCoversThatOfEachTexture)
{
    const TeskButton& button = MakeButton(
        "<Texture Filename='#a' ColorMask='ff000001'/><TextureHover Filename='#b'/>", "ColorMask='ff112233'");
    for (const TeskTexture* texture : {button.Texture.get(), button.TextureHover.get()}) {
        EXPECT_EQ(0xff112233u, texture->ColorMask);
        EXPECT_EQ(u32{TextureHasColorMask}, texture->Flags);
    }
    EXPECT_FALSE(button.TexturePressed);
}

TEST_F(TeskButtonTest, AColorMaskOfZeroLeavesTheTexturesAlone)
{
    const TeskButton& button =
        MakeButton("<Texture Filename='#a' ColorMask='ff000001'/><TextureHover Filename='#b'/>", "ColorMask='0'");
    EXPECT_EQ(0xff000001u, button.Texture->ColorMask);
    EXPECT_EQ(0u, button.TextureHover->Flags);
}

TEST_F(TeskButtonTest, ItsColorMaskMayStandInTheTemplate)
{
    g_UIManager.AddTemplate("button", "<Template ColorMask='ff112233'/>");
    EXPECT_EQ(0xff112233u, MakeButton("<Texture Filename='#a'/>").Texture->ColorMask);
    EXPECT_EQ(0xff445566u, MakeButton("<Texture Filename='#a'/>", "ColorMask='ff445566'").Texture->ColorMask);
}

TEST_F(TeskButtonTest, ItTakesAPressWithoutAScript)
{
    TeskButton& button = MakeButton();
    EXPECT_TRUE(Press(button));
    EXPECT_TRUE(button.Pressed);
    EXPECT_EQ(std::vector<std::string>{"6:0"}, Parent.Heard);
    EXPECT_TRUE(Release(button));
    EXPECT_FALSE(button.Pressed);
    EXPECT_EQ((std::vector<std::string>{"6:0", "1:0"}), Parent.Heard);
}

TEST_F(TeskButtonTest, ItsParentHearsOfAPressBeforeItsScriptRuns)
{
    TeskButton& button = MakeButton("<OnLeftDown>down</OnLeftDown><OnLeftClick>click</OnLeftClick>");
    Host.Scripts["down"] = [&](TeskElement&) { Parent.Heard.push_back(button.Pressed ? "down" : "too early"); };
    Host.Scripts["click"] = [&](TeskElement&) { Parent.Heard.push_back(button.Pressed ? "too late" : "click"); };
    EXPECT_TRUE(Press(button));
    EXPECT_TRUE(Release(button));
    EXPECT_EQ((std::vector<std::string>{"6:0", "down", "1:0", "click"}), Parent.Heard);
}

TEST_F(TeskButtonTest, WithoutAParentItTakesThePress)
{
    TeskButton button("button", nullptr, "Alone");
    EXPECT_TRUE(Press(button));
    EXPECT_TRUE(Release(button));
}

TEST_F(TeskButtonTest, ReleasedElsewhereItIsClicked)
{
    int clicks = 0;
    Host.Scripts["click"] = [&](TeskElement&) { ++clicks; };
    const TeskButton& button = PlaceButton("<OnLeftClick>click</OnLeftClick>");
    Frame();
    _Point2i inside = {20, 60};
    _Point2i outside = {500, 500};
    g_UIManager.OnMouseMove(inside);
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    g_UIManager.OnMouseMove(outside);
    EXPECT_TRUE(button.Pressed);
    EXPECT_TRUE(g_UIManager.OnLMouseUp());
    EXPECT_FALSE(button.Pressed);
    EXPECT_EQ(1, clicks);
}

TEST_F(TeskButtonTest, WithoutATextureItIsAColorWithABorder)
{
    TeskButton& button = PlaceButton("<BackgroundColor>ff0000ff</BackgroundColor><BorderColor>ffff0000</BorderColor>");
    EXPECT_EQ(Fill("ff0000ff"), Frame());
    button.Border = 1;
    EXPECT_EQ("DrawRect (10,50,110,51) ffff0000\nDrawRect (10,51,11,69) ffff0000\nDrawRect (109,51,110,69) ffff0000\n"
              "DrawRect (10,69,110,70) ffff0000\nDrawRect (11,51,109,69) ff0000ff\n",
        Frame());
}

TEST_F(TeskButtonTest, AnImageWithoutABorderOfItsOwnGetsThePlainOne)
{
    TeskButton& button = PlaceButton("<Texture Filename='#plain'/><BorderColor>ffff0000</BorderColor>");
    EXPECT_EQ(Image(1), Frame());
    button.Border = 1;
    EXPECT_EQ(Image(1)
            + "DrawRect (10,50,110,51) ffff0000\nDrawRect (10,51,11,69) ffff0000\n"
              "DrawRect (109,51,110,69) ffff0000\nDrawRect (10,69,110,70) ffff0000\n",
        Frame());
}

TEST_F(TeskButtonTest, AnImageWithABorderIsDrawnInNineParts)
{
    PlaceButton("<Texture Filename='#plain'><Border>4</Border></Texture><Border>3</Border>");
    const std::string calls = Frame();
    EXPECT_EQ(0u, calls.find("DrawTexturedRects 9\n- texture 1 to=(10,50,13,53) from=(0,0,4,4) "));
    EXPECT_EQ(std::string::npos, calls.find("DrawRect"));
}

TEST_F(TeskButtonTest, AHoverImageAloneIsNeverDrawn)
{
    TeskButton& button = PlaceButton("<TextureHover Filename='#hover'/><TexturePressed Filename='#pressed'/>");
    _Point2i inside = {20, 60};
    g_UIManager.OnMouseMove(inside);
    EXPECT_EQ(Fill(), Frame());
    button.Pressed = true;
    EXPECT_EQ(Fill(), Frame());
}

TEST_F(TeskButtonTest, ItsImageFollowsItsState)
{
    struct State {
        bool Pressed;
        bool MouseOver;
        const char* WithAll;
        const char* WithoutPressed;
        const char* WithoutHover;
    };
    constexpr State states[] = {
        {false, false, "#plain", "#plain", "#plain"},
        {false, true, "#hover", "#hover", "#plain"},
        {true, false, "#pressed", "#plain", "#pressed"},
        {true, true, "#pressed", "#hover", "#pressed"},
    };
    Host.Recorded = RecordResources;
    TeskButton& button = PlaceButton("");
    const auto image = [&](const State& state, const char* pressed, const char* hover) {
        button.Texture.reset(TeskTexture::New("#plain"));
        button.TexturePressed.reset(pressed ? TeskTexture::New(pressed) : nullptr);
        button.TextureHover.reset(hover ? TeskTexture::New(hover) : nullptr);
        button.Pressed = state.Pressed;
        _Point2i point = state.MouseOver ? _Point2i{20, 60} : _Point2i{500, 500};
        g_UIManager.OnMouseMove(point);
        Host.TakeCalls();
        const std::string calls = Frame();
        const std::size_t begin = calls.find('"') + 1;
        return calls.substr(begin, calls.find('"', begin) - begin);
    };
    for (const State& state : states) {
        SCOPED_TRACE(std::to_string(state.Pressed) + std::to_string(state.MouseOver));
        EXPECT_EQ(state.WithAll, image(state, "#pressed", "#hover"));
        EXPECT_EQ(state.WithoutPressed, image(state, nullptr, "#hover"));
        EXPECT_EQ(state.WithoutHover, image(state, "#pressed", nullptr));
    }
}

TEST_F(TeskButtonTest, ItsTextStandsInTheMiddle)
{
    TeskButton& button = PlaceButton("<Text>Go</Text>");
    EXPECT_EQ(Fill() + Label("Go"), Frame());
    button.Font->Size = 13;
    EXPECT_EQ(Fill() + Label("Go", 53), Frame());
}

TEST_F(TeskButtonTest, ATextHigherThanTheButtonWrapsAsAllLengthsDo)
{
    PlaceButton("<Text>Go</Text>").Height = 10;
    EXPECT_EQ("DrawRect (10,50,110,60) 00000000\n" + Label("Go", static_cast<i32>(50u + 0x7fffffffu)), Frame());
}

TEST_F(TeskButtonTest, ItsTextIsEvaluatedInEveryFrame)
{
    int frame = 0;
    Host.Expand = [&](const std::string& text) { return text + std::to_string(++frame); };
    PlaceButton("<Text>No. </Text>");
    EXPECT_EQ(Fill() + Label("No. 1"), Frame());
    EXPECT_EQ(Fill() + Label("No. 2"), Frame());
}

TEST_F(TeskButtonTest, AnEvaluatedTextIsCutAt2047Bytes)
{
    Host.Expand = [](const std::string&) { return std::string(5000, 'w'); };
    PlaceButton("<Text>x</Text>");
    EXPECT_EQ(Fill() + Label(std::string(2047, 'w')), Frame());
}

TEST_F(TeskButtonTest, ATextWithoutAValueOrAFontIsNotDrawn)
{
    TeskButton& button = PlaceButton("<Text>Go</Text>");
    Host.RefusesValues = true;
    EXPECT_EQ(Fill(), Frame());
    Host.RefusesValues = false;
    Host.Expand = [](const std::string&) { return std::string(); };
    EXPECT_EQ(Fill(), Frame());
    Host.Expand = nullptr;
    button.Font.reset();
    EXPECT_EQ(Fill(), Frame());
}

TEST_F(TeskButtonTest, ChildrenAreDrawnOverIt)
{
    Load("<button name='B'><Width>30</Width><Height>20</Height><Text>Go</Text><Children><frame name='F'>"
         "<Width>5</Width><Height>5</Height><BackgroundColor>ff000001</BackgroundColor></frame></Children></button>");
    EXPECT_EQ("DrawRect (0,0,30,20) 00000000\nDrawText \"Go\" (0,4,30,600) ffffffff format=33 font 1\n"
              "DrawRect (0,0,5,5) ff000001\n",
        Frame());
}

TEST_F(TeskButtonTest, ATextThatDeletesItsButtonEndsTheDrawing)
{
    Load("<button name='B'><Width>30</Width><Height>20</Height><Text>${Die}</Text><Children><frame name='F'>"
         "<Width>5</Width><Height>5</Height></frame></Children></button>");
    Host.Expand = [](const std::string&) {
        g_UIManager.Screen->DeleteChild(g_UIManager.FindElement("B"));
        return std::string("gone");
    };
    EXPECT_EQ("DrawRect (0,0,30,20) 00000000\n", Frame());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("B"));
}

TEST_F(TeskButtonTest, ATextMaySetTheTextOfItsButton)
{
    TeskButton& button = PlaceButton("<Text>first</Text>");
    Host.Expand = [&](const std::string& text) {
        button.Text.PreParse("second");
        return text;
    };
    EXPECT_EQ(Fill() + Label("first"), Frame());
    EXPECT_EQ(Fill() + Label("second"), Frame());
}

TEST_F(TeskButtonTest, MadeWithoutMarkupItWorks)
{
    auto& button = dynamic_cast<TeskButton&>(*g_UIManager.LoadElement(g_UIManager.Screen, "button", "B"));
    button.Text.PreParse("Go");
    EXPECT_EQ("DrawRect (0,0,0,0) 00000000\n", Frame());
    EXPECT_TRUE(Press(button));
    EXPECT_TRUE(Release(button));
}

TEST_F(TeskButtonTest, ARecordFillsIt)
{
    TeskButton& button = MakeButton();
    g_UIManager.AddTemplate("button",
        ("<Template><BackgroundColor>5</BackgroundColor><BorderColor>6</BorderColor><Border>9</Border>"
            + std::string(AllTextures) + "</Template>")
            .c_str());
    _CreateButton record;
    record.X = 1;
    record.Width = 30;
    record.Text = "Go";
    record.Font.Size = 20;
    record.BackgroundColor = 7;
    record.Border = 2;
    record.BorderColor = 8;
    button.Create(record, nullptr);
    EXPECT_EQ(1, button.X);
    EXPECT_EQ(30u, button.Width);
    EXPECT_STREQ("Go", button.Text.Text.get());
    EXPECT_EQ(20, button.Font->Size);
    EXPECT_EQ(7u, button.BackgroundColor);
    EXPECT_EQ(2u, button.Border);
    EXPECT_EQ(8u, button.BorderColor);
    EXPECT_FALSE(button.Texture);
}

TEST_F(TeskButtonTest, WhatARecordLeavesOpenComesFromATemplate)
{
    TeskButton& button = MakeButton("<Text>Before</Text>");
    g_UIManager.AddTemplate("button",
        "<Template><BackgroundColor>5</BackgroundColor><BorderColor>6</BorderColor>"
        "<Border>9</Border></Template>");
    XMLNode* other = g_UIManager.AddTemplate("other",
        ("<Template Size='9'><BackgroundColor>15</BackgroundColor>" + std::string(AllTextures) + "</Template>")
            .c_str());
    button.Create({}, nullptr);
    EXPECT_EQ(5u, button.BackgroundColor);
    EXPECT_EQ(6u, button.BorderColor);
    EXPECT_EQ(0u, button.Border);
    EXPECT_STREQ("Before", button.Text.Text.get());

    _CreateButton record;
    record.TexturesFromTemplate = true;
    button.Create(record, other);
    EXPECT_EQ(0x15u, button.BackgroundColor);
    EXPECT_EQ(0u, button.BorderColor);
    EXPECT_EQ(9, button.Font->Size);
    EXPECT_EQ("#plain", button.Texture->Filename);
    EXPECT_EQ("#pressed", button.TexturePressed->Filename);
    EXPECT_EQ("#hover", button.TextureHover->Filename);
}
