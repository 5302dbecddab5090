#include "teskara/controls/TeskCheckBox.h"

#include "tests/unit/PressTest.h"

namespace {

class TeskCheckBoxTest : public PressTest
{
protected:
    TeskCheckBox& MakeCheckBox(const std::string& markup = {}, const char* attributes = "")
    {
        return Make<TeskCheckBox>("checkbox", markup, attributes);
    }

    TeskCheckBox& PlaceCheckBox(const std::string& markup) { return Place<TeskCheckBox>("checkbox", markup); }

    // The image of a loaded texture, 64 by 64, in a rectangle.
    static std::string Image(const char* rect)
    {
        return std::string("DrawTexturedRect texture 1 to=(") + rect
            + ") from=(0,0,64,64) flags=3 alpha=255 orientation=0 mask=00000000\n";
    }

    // The same with a part of the image that is given.
    static std::string Part(const char* rect, const char* from)
    {
        return std::string("DrawTexturedRect texture 1 to=(") + rect + ") from=(" + from
            + ") flags=3 alpha=255 orientation=0 mask=00000000\n";
    }

    static std::string Label(const std::string& text, int x, int y = 54)
    {
        const std::string left = std::to_string(x);
        return "DrawText \"" + text + "\" (" + left + "," + std::to_string(y) + "," + left
            + ",600) ffffffff format=288 font 1\n";
    }
};

constexpr char AllTextures[] =
    "<Texture Filename='#plain'/><TexturePressed Filename='#pressed'/><TextureHover Filename='#hover'/>"
    "<TextureChecked Filename='#checked'/><TextureCheckedPressed Filename='#checked pressed'/>"
    "<TextureCheckedHover Filename='#checked hover'/>";

// An image of which a part 10 high is shown.
constexpr char Texture10[] = "<Texture Filename='#plain'><top>5</top><bottom>15</bottom></Texture>";

} // namespace

TEST_F(TeskCheckBoxTest, MarkupGivesItsFields)
{
    const TeskCheckBox& box =
        MakeCheckBox("<Text>On ${Where}</Text><Font><Size>20</Size></Font>" + std::string(AllTextures));
    EXPECT_STREQ("On ${Where}", box.Text.Text.get());
    EXPECT_EQ(20, box.Font->Size);
    EXPECT_EQ("#plain", box.Texture->Filename);
    EXPECT_EQ("#pressed", box.TexturePressed->Filename);
    EXPECT_EQ("#hover", box.TextureHover->Filename);
    EXPECT_EQ("#checked", box.TextureChecked->Filename);
    EXPECT_EQ("#checked pressed", box.TextureCheckedPressed->Filename);
    EXPECT_EQ("#checked hover", box.TextureCheckedHover->Filename);
    EXPECT_FALSE(box.Pressed);
    EXPECT_FALSE(box.Checked);
}

TEST_F(TeskCheckBoxTest, WithoutMarkupEveryFieldHasItsDefault)
{
    const TeskCheckBox& box = MakeCheckBox();
    EXPECT_EQ(0u, box.Text.Sequence);
    EXPECT_EQ(12, box.Font->Size);
    for (const auto* texture : {&box.Texture, &box.TexturePressed, &box.TextureHover, &box.TextureChecked,
             &box.TextureCheckedPressed, &box.TextureCheckedHover})
        EXPECT_FALSE(*texture);
}

TEST_F(TeskCheckBoxTest, ValuesFallBackToTheTemplateOfItsKind)
{
    g_UIManager.AddTemplate(
        "checkbox", ("<Template><Text>Kind</Text>" + std::string(AllTextures) + "</Template>").c_str());
    const TeskCheckBox& box = MakeCheckBox("<Texture Filename='#own'/>");
    EXPECT_STREQ("Kind", box.Text.Text.get());
    EXPECT_EQ("#own", box.Texture->Filename);
    EXPECT_EQ("#checked hover", box.TextureCheckedHover->Filename);
}

TEST_F(TeskCheckBoxTest, IsACheckBoxAndAnElement)
{
    TeskCheckBox& box = MakeCheckBox();
    EXPECT_TRUE(box.IsTypeOf("CheckBox"));
    EXPECT_TRUE(box.IsTypeOf("teskelement"));
    EXPECT_FALSE(box.IsTypeOf("button"));
    EXPECT_FALSE(box.IsTypeOf(nullptr));
}

TEST_F(TeskCheckBoxTest, ItsColorMaskCoversThatOfEachTexture)
{
    const TeskCheckBox& box = MakeCheckBox(AllTextures, "ColorMask='ff112233'");
    for (const auto* texture : {&box.Texture, &box.TexturePressed, &box.TextureHover, &box.TextureChecked,
             &box.TextureCheckedPressed, &box.TextureCheckedHover}) {
        EXPECT_EQ(0xff112233u, (*texture)->ColorMask);
        EXPECT_EQ(u32{TextureHasColorMask}, (*texture)->Flags);
    }
}

TEST_F(TeskCheckBoxTest, AReleaseTogglesIt)
{
    TeskCheckBox& box = MakeCheckBox();
    for (const bool checked : {true, false}) {
        EXPECT_TRUE(Press(box));
        EXPECT_TRUE(box.Pressed);
        EXPECT_NE(checked, box.Checked);
        EXPECT_TRUE(Release(box));
        EXPECT_FALSE(box.Pressed);
        EXPECT_EQ(checked, box.Checked);
    }
    EXPECT_EQ((std::vector<std::string>{"6:0", "1:0", "6:0", "1:0"}), Parent.Heard);
}

TEST_F(TeskCheckBoxTest, ItsParentHearsOfTheNewStateBeforeItsScriptRuns)
{
    TeskCheckBox& box = MakeCheckBox("<OnLeftDown>down</OnLeftDown><OnLeftClick>click</OnLeftClick>");
    const auto note = [&](TeskElement&) { Parent.Heard.push_back(box.Checked ? "checked" : "open"); };
    Parent.Act = note;
    Host.Scripts["down"] = note;
    Host.Scripts["click"] = note;
    EXPECT_TRUE(Press(box));
    EXPECT_TRUE(Release(box));
    EXPECT_EQ((std::vector<std::string>{"6:0", "open", "open", "1:0", "checked", "checked"}), Parent.Heard);
}

TEST_F(TeskCheckBoxTest, WithoutATextureNoBoxIsDrawn)
{
    TeskCheckBox& box = PlaceCheckBox("<Text>On</Text><TextureChecked Filename='#checked'/>");
    EXPECT_EQ(Label("On", 30), Frame());
    box.Checked = true;
    EXPECT_EQ(Label("On", 30), Frame());
}

TEST_F(TeskCheckBoxTest, TheBoxIsSixteenHighUntilTheSizeOfItsImageIsKnown)
{
    PlaceCheckBox("<Texture Filename='#plain'/><Text>On</Text>").Height = 100;
    EXPECT_EQ("DrawTexturedRect texture 1 to=(10,92,26,108) from=(0,0,0,0) flags=2 alpha=255 orientation=0 "
              "mask=00000000\n"
            + Label("On", 30, 94),
        Frame());
    EXPECT_EQ(Image("10,68,74,132") + Label("On", 78, 94), Frame());
}

TEST_F(TeskCheckBoxTest, ABoxHigherThanTheElementIsAsHighAsTheElement)
{
    PlaceCheckBox("<Texture Filename='#plain'/><Text>On</Text>");
    Frame();
    EXPECT_EQ(Image("10,50,30,70") + Label("On", 34), Frame());
}

TEST_F(TeskCheckBoxTest, TheBoxLiesInTheMiddle)
{
    TeskCheckBox& box = PlaceCheckBox(Texture10 + std::string("<Text>On</Text>"));
    EXPECT_EQ(Part("10,55,20,65", "0,5,0,15") + Label("On", 24), Frame());
    box.Height = 21;
    EXPECT_EQ(Part("10,55,20,65", "0,5,0,15") + Label("On", 24), Frame());
    box.Height = 10;
    EXPECT_EQ(Part("10,50,20,60", "0,5,0,15") + Label("On", 24, static_cast<i32>(50u + 0x7fffffffu)), Frame());
    box.Height = 9;
    EXPECT_EQ(Part("10,50,19,59", "0,5,0,15") + Label("On", 23, static_cast<i32>(50u + 0x7ffffffeu)), Frame());
}

TEST_F(TeskCheckBoxTest, AnImageUpsideDownCountsAsHigherThanTheElement)
{
    PlaceCheckBox("<Texture Filename='#plain'><top>15</top><bottom>5</bottom></Texture><Text>On</Text>");
    EXPECT_EQ(Part("10,50,30,70", "0,15,0,5") + Label("On", 34), Frame());
}

TEST_F(TeskCheckBoxTest, ItsImageFollowsItsState)
{
    struct State {
        bool Checked;
        bool Pressed;
        bool MouseOver;
        const char* WithAll;
        const char* WithoutPressed;
        const char* WithoutHover;
    };
    constexpr State states[] = {
        {false, false, false, "#plain", "#plain", "#plain"},
        {false, false, true, "#hover", "#hover", "#plain"},
        {false, true, false, "#pressed", "#plain", "#pressed"},
        {false, true, true, "#pressed", "#hover", "#pressed"},
        {true, false, false, "#checked", "#checked", "#checked"},
        {true, false, true, "#checked hover", "#checked hover", "#checked"},
        {true, true, false, "#checked pressed", "#checked", "#checked pressed"},
        {true, true, true, "#checked pressed", "#checked hover", "#checked pressed"},
    };
    Host.Recorded = RecordResources;
    TeskCheckBox& box = PlaceCheckBox(AllTextures);
    const auto image = [&](const State& state) {
        box.Checked = state.Checked;
        box.Pressed = state.Pressed;
        _Point2i point = state.MouseOver ? _Point2i{20, 60} : _Point2i{500, 500};
        g_UIManager.OnMouseMove(point);
        for (const auto* texture : {&box.Texture, &box.TexturePressed, &box.TextureHover, &box.TextureChecked,
                 &box.TextureCheckedPressed, &box.TextureCheckedHover}) {
            if (*texture)
                (*texture)->Set((*texture)->Filename.c_str(), 0);
        }
        Host.TakeCalls();
        const std::string calls = Frame();
        const std::size_t begin = calls.find('"') + 1;
        return calls.substr(begin, calls.find('"', begin) - begin);
    };
    for (const State& state : states)
        EXPECT_EQ(state.WithAll, image(state));

    auto pressed = std::move(box.TexturePressed);
    auto checkedPressed = std::move(box.TextureCheckedPressed);
    for (const State& state : states)
        EXPECT_EQ(state.WithoutPressed, image(state));

    box.TexturePressed = std::move(pressed);
    box.TextureCheckedPressed = std::move(checkedPressed);
    box.TextureHover.reset();
    box.TextureCheckedHover.reset();
    for (const State& state : states)
        EXPECT_EQ(state.WithoutHover, image(state));

    box.TextureChecked.reset();
    EXPECT_EQ("#plain", image({true, false, false, "", "", ""}));
}

TEST_F(TeskCheckBoxTest, AnEmptyTextIsDrawnAllTheSame)
{
    Host.Expand = [](const std::string&) { return std::string(); };
    PlaceCheckBox("<Text>On</Text>");
    EXPECT_EQ(Label("", 30), Frame());
}

TEST_F(TeskCheckBoxTest, AnEvaluatedTextIsCutAt2047Bytes)
{
    Host.Expand = [](const std::string&) { return std::string(5000, 'w'); };
    PlaceCheckBox("<Text>x</Text>");
    EXPECT_EQ(Label(std::string(2047, 'w'), 30), Frame());
}

TEST_F(TeskCheckBoxTest, ATextWithoutAValueOrAFontIsNotDrawn)
{
    TeskCheckBox& box = PlaceCheckBox("<Text>On</Text>");
    Host.RefusesValues = true;
    EXPECT_EQ("", Frame());
    Host.RefusesValues = false;
    box.Font.reset();
    EXPECT_EQ("", Frame());
}

TEST_F(TeskCheckBoxTest, ChildrenAreDrawnOverIt)
{
    Load("<checkbox name='C'><Width>30</Width><Height>20</Height><Text>On</Text><Children><frame name='F'>"
         "<Width>5</Width><Height>5</Height><BackgroundColor>ff000001</BackgroundColor></frame></Children></checkbox>");
    EXPECT_EQ("DrawText \"On\" (20,4,20,600) ffffffff format=288 font 1\nDrawRect (0,0,5,5) ff000001\n", Frame());
}

TEST_F(TeskCheckBoxTest, ATextThatDeletesItsCheckBoxEndsTheDrawing)
{
    Load("<checkbox name='C'><Width>30</Width><Height>20</Height><Text>${Die}</Text><Children><frame name='F'>"
         "<Width>5</Width><Height>5</Height></frame></Children></checkbox>");
    Host.Expand = [](const std::string&) {
        g_UIManager.Screen->DeleteChild(g_UIManager.FindElement("C"));
        return std::string("gone");
    };
    EXPECT_EQ("", Frame());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("C"));
}

TEST_F(TeskCheckBoxTest, MadeWithoutMarkupItWorks)
{
    auto& box = dynamic_cast<TeskCheckBox&>(*g_UIManager.LoadElement(g_UIManager.Screen, "checkbox", "C"));
    box.Text.PreParse("On");
    EXPECT_EQ("", Frame());
    EXPECT_TRUE(Press(box));
    EXPECT_TRUE(Release(box));
    EXPECT_TRUE(box.Checked);
}
