#include "teskara/element/TeskTexture.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/markup/TeskSkin.h"
#include "tests/unit/ToolkitTest.h"

#include <cstring>
#include <memory>

namespace {

using OwnedTexture = std::unique_ptr<TeskTexture>;

class TeskTextureTest : public ToolkitTest
{
protected:
    TeskTextureTest()
    {
        Load("<frame name='Panel'/>");
        Host.TakeCalls();
        Host.Recorded = RecordResources;
        System.Files = {u"a.tga", u"found.tga"};
    }

    OwnedTexture TextureOf(const std::string& markup)
    {
        XMLNode* node = g_UIManager.AddTemplate("Holder", ("<Template>" + markup + "</Template>").c_str());
        return OwnedTexture(Element("Panel").TextureFromXML(node, "Texture", nullptr));
    }

    bool FromArgs(std::vector<const char*> arguments, OwnedTexture& texture)
    {
        return Element("Panel").TextureFromArgs(
            static_cast<int>(arguments.size()), const_cast<char**>(arguments.data()), texture);
    }
};

} // namespace

TEST_F(TeskTextureTest, MarkupIsReadWithoutATemplateAndTheTextureDeletesItself)
{
    XMLNode* const node = g_UIManager.AddTemplate("Node", "<Template Filename='a.tga'><Left>3</Left></Template>");
    TeskTexture* const texture = TeskTexture::New("a.tga");
    ASSERT_TRUE(texture->FromXML(node));
    EXPECT_EQ("a.tga", texture->Filename);
    EXPECT_TRUE(texture->Prepare());
    Host.TakeCalls();
    texture->Delete();
    EXPECT_EQ("ReleaseTextureResource 1\n", Host.TakeCalls());
}

TEST_F(TeskTextureTest, DeleteOfNullIsHarmless)
{
    TeskTexture::Delete(nullptr);
}

TEST_F(TeskTextureTest, IsLoadedAtItsFirstUseAndGivenBackAtItsEnd)
{
    {
        const OwnedTexture texture(TeskTexture::New("a.tga"));
        texture->ColorKey = 0xffff00ff;
        EXPECT_EQ("", Host.TakeCalls());
        EXPECT_TRUE(texture->Prepare());
        EXPECT_TRUE(texture->Prepare());
        EXPECT_EQ("LoadTextureResource \"a.tga\" ffff00ff -> 1\n", Host.TakeCalls());
    }
    EXPECT_EQ("ReleaseTextureResource 1\n", Host.TakeCalls());
}

TEST_F(TeskTextureTest, AnImageThatCannotBeLoadedIsAskedForAgain)
{
    Host.RefusesImages = true;
    const OwnedTexture texture(TeskTexture::New("a.tga"));
    EXPECT_FALSE(texture->Prepare());
    EXPECT_FALSE(texture->Prepare());
    EXPECT_EQ(
        "LoadTextureResource \"a.tga\" 00000000 -> 0\nLoadTextureResource \"a.tga\" 00000000 -> 0\n", Host.TakeCalls());
}

TEST_F(TeskTextureTest, GetSizeFillsInWhatMarkupLeftOutOnceTheImageIsLoaded)
{
    const OwnedTexture texture(TeskTexture::New("a.tga"));
    texture->Left = 5;
    EXPECT_FALSE(texture->GetSize());
    texture->Prepare();
    EXPECT_TRUE(texture->GetSize());
    EXPECT_EQ(TextureHasRect, texture->Flags);
    EXPECT_EQ(5, texture->Left);
    EXPECT_EQ(64, texture->Right);
    EXPECT_EQ(64, texture->Bottom);
}

TEST_F(TeskTextureTest, GetSizeAsksForNothingIfTheRectangleIsKnown)
{
    const OwnedTexture texture(TeskTexture::New("a.tga"));
    texture->Flags = TextureHasRect;
    EXPECT_TRUE(texture->GetSize());
    EXPECT_EQ("", Host.TakeCalls());
}

TEST_F(TeskTextureTest, GetSizeFailsWhenTheHostDoesNotKnow)
{
    Host.RefusesImageSizes = true;
    const OwnedTexture texture(TeskTexture::New("a.tga"));
    texture->Prepare();
    EXPECT_FALSE(texture->GetSize());
    EXPECT_EQ(0u, texture->Flags);
}

TEST_F(TeskTextureTest, SetNamesAnotherImageAndKeepsTheRest)
{
    const OwnedTexture texture(TeskTexture::New("a.tga"));
    texture->Border = 4;
    texture->Prepare();
    Host.TakeCalls();
    texture->Set("b.tga", 7);
    EXPECT_EQ("ReleaseTextureResource 1\n", Host.TakeCalls());
    EXPECT_EQ("b.tga", texture->Filename);
    EXPECT_EQ(7u, texture->ColorKey);
    EXPECT_EQ(4u, texture->Border);
    EXPECT_EQ(0u, texture->TextureID);
    texture->Set(nullptr, 0);
    EXPECT_EQ("", texture->Filename);
}

TEST_F(TeskTextureTest, ACopyLoadsItsSourceAndItselfAtItsFirstUse)
{
    const OwnedTexture source(TeskTexture::New("a.tga"));
    source->Flags = TextureHasAlpha;
    source->Alpha = 0.25f;
    source->Border = 3;
    source->Orientation = 2;
    source->ColorKey = 9;
    source->X3 = 1.5f;
    const OwnedTexture copy(TeskTexture::New(*source));
    EXPECT_EQ("LoadTextureResource \"a.tga\" 00000009 -> 1\n", Host.TakeCalls());
    EXPECT_EQ(0u, copy->TextureID);
    EXPECT_EQ("a.tga", copy->Filename);
    EXPECT_EQ(TextureHasAlpha, copy->Flags);
    EXPECT_EQ(0.25f, copy->Alpha);
    EXPECT_EQ(3u, copy->Border);
    EXPECT_EQ(2, copy->Orientation);
    EXPECT_EQ(9u, copy->ColorKey);
    EXPECT_EQ(1.5f, copy->X3);
    copy->Prepare();
    EXPECT_EQ("LoadTextureResource \"a.tga\" 00000009 -> 2\n", Host.TakeCalls());
}

TEST_F(TeskTextureTest, SetFromReleasesTheImageAndTakesEverythingOver)
{
    const OwnedTexture source(TeskTexture::New("a.tga"));
    source->Alpha = 0.5f;
    const OwnedTexture texture(TeskTexture::New("b.tga"));
    texture->Prepare();
    Host.TakeCalls();
    texture->SetFrom(*source);
    EXPECT_EQ("ReleaseTextureResource 1\nLoadTextureResource \"a.tga\" 00000000 -> 2\n", Host.TakeCalls());
    EXPECT_EQ("a.tga", texture->Filename);
    EXPECT_EQ(0.5f, texture->Alpha);
    EXPECT_EQ(0u, texture->TextureID);
    texture->SetFrom(*texture);
    EXPECT_EQ("a.tga", texture->Filename);
}

TEST_F(TeskTextureTest, MarkupGivesAllFields)
{
    const OwnedTexture texture =
        TextureOf("<Texture Filename='a.tga' ColorKey='ffff00ff'><left>1</left><top>2</top>"
                  "<right>30</right><bottom>40</bottom><Border>5</Border>"
                  "<Orientation>259</Orientation><Alpha>0.5</Alpha><ColorMask>80ffffff</ColorMask>"
                  "<Triangle X1='1' Y1='2' X2='3' Y2='4' X3='5' Y3='6.5'/></Texture>");
    ASSERT_TRUE(texture);
    EXPECT_EQ("a.tga", texture->Filename);
    EXPECT_EQ(23u, texture->Flags);
    EXPECT_EQ(1, texture->Left);
    EXPECT_EQ(2, texture->Top);
    EXPECT_EQ(30, texture->Right);
    EXPECT_EQ(40, texture->Bottom);
    EXPECT_EQ(5u, texture->Border);
    EXPECT_EQ(3, texture->Orientation);
    EXPECT_EQ(0.5f, texture->Alpha);
    EXPECT_EQ(0x80ffffffu, texture->ColorMask);
    EXPECT_EQ(0xffff00ffu, texture->ColorKey);
    EXPECT_EQ(1.0f, texture->X1);
    EXPECT_EQ(6.5f, texture->Y3);
}

TEST_F(TeskTextureTest, MarkupWithNothingButAFileGivesEveryDefault)
{
    const OwnedTexture texture = TextureOf("<Texture Filename='a.tga'><left>0</left><top>0</top></Texture>");
    ASSERT_TRUE(texture);
    EXPECT_EQ(0u, texture->Flags);
    EXPECT_EQ(1.0f, texture->Alpha);
    EXPECT_EQ(0u, texture->ColorMask);
    EXPECT_EQ(0u, texture->ColorKey);
    EXPECT_EQ(0u, texture->Border);
}

TEST_F(TeskTextureTest, ATemplateGivesTheFileAndWhatTheTagLeavesOut)
{
    g_UIManager.AddTemplate("T",
        "<Template Filename='a.tga' ColorKey='12'><left>7</left><Alpha>0.5</Alpha>"
        "<Border>3</Border></Template>");
    const OwnedTexture texture = TextureOf("<Texture Template='T'><Alpha/><Border>9</Border></Texture>");
    ASSERT_TRUE(texture);
    EXPECT_EQ("a.tga", texture->Filename);
    EXPECT_EQ(7, texture->Left);
    EXPECT_EQ(0.0f, texture->Alpha);
    EXPECT_EQ(9u, texture->Border);
    EXPECT_EQ(0x12u, texture->ColorKey);
    EXPECT_EQ(TextureHasRect | TextureHasAlpha, texture->Flags);
}

TEST_F(TeskTextureTest, ATemplateIsReadAlsoWhenTheTagHasAFileOfItsOwn)
{
    g_UIManager.AddTemplate("T", "<Template Filename='a.tga'><left>7</left></Template>");
    const OwnedTexture texture = TextureOf("<Texture Template='T' Filename='found.tga'/>");
    ASSERT_TRUE(texture);
    EXPECT_EQ("found.tga", texture->Filename);
    EXPECT_EQ(7, texture->Left);
}

TEST_F(TeskTextureTest, AColorMaskAttributeOfTheTemplateAloneTurnsTheMaskOnWithZero)
{
    g_UIManager.AddTemplate(
        "T", "<Template Filename='a.tga' ColorMask='ff112233'><ColorMask>44</ColorMask></Template>");
    const OwnedTexture texture = TextureOf("<Texture Template='T'/>");
    ASSERT_TRUE(texture);
    EXPECT_EQ(TextureHasColorMask, texture->Flags);
    EXPECT_EQ(0u, texture->ColorMask);

    const OwnedTexture own = TextureOf("<Texture Template='T' ColorMask='ff445566'/>");
    EXPECT_EQ(0xff445566u, own->ColorMask);
}

TEST_F(TeskTextureTest, FillIsATextureWithoutAnImage)
{
    const OwnedTexture texture = TextureOf("<Texture Filename='#FILL' ColorMask='ff000000'/>");
    ASSERT_TRUE(texture);
    EXPECT_EQ("", texture->Filename);
}

TEST_F(TeskTextureTest, OtherNamesThatBeginWithAHashGoToTheHostAsTheyStand)
{
    const OwnedTexture texture = TextureOf("<Texture Filename='#camera'/>");
    ASSERT_TRUE(texture);
    EXPECT_EQ("#camera", texture->Filename);
}

TEST_F(TeskTextureTest, WithoutAFileThereIsNoTexture)
{
    EXPECT_FALSE(TextureOf(""));
    EXPECT_FALSE(TextureOf("<Texture/>"));
    EXPECT_FALSE(TextureOf("<Texture Filename='none.tga'/>"));
    EXPECT_FALSE(TextureOf("<Texture Template='none'/>"));
    EXPECT_EQ("", Host.TakeCalls());
}

TEST_F(TeskTextureTest, TheHostsAnswerIsUsedIfItExists)
{
    Host.FoundResources["b.tga"] = "found.tga";
    Host.FoundResources["a.tga"] = "gone.tga";
    EXPECT_EQ("found.tga", TextureOf("<Texture Filename='b.tga'/>")->Filename);
    EXPECT_FALSE(TextureOf("<Texture Filename='a.tga'/>"));
}

TEST_F(TeskTextureTest, AFileBesideTheInterfaceFileWinsOverTheHostsSearch)
{
    std::strcpy(g_UIManager.CurrentFile, "C:\\ui\\main.xml");
    System.Files.insert(u"C:\\ui\\a.tga");
    Host.FoundResources["a.tga"] = "found.tga";
    EXPECT_EQ("C:\\ui\\a.tga", TextureOf("<Texture Filename='a.tga'/>")->Filename);
    System.Files.erase(u"C:\\ui\\a.tga");
    EXPECT_EQ("found.tga", TextureOf("<Texture Filename='a.tga'/>")->Filename);
    *g_UIManager.CurrentFile = 0;
}

TEST_F(TeskTextureTest, APathThatIsTooLongNamesNothing)
{
    const std::u16string atLimit(512, u'a');
    System.Files = {atLimit, atLimit + u"a"};
    EXPECT_TRUE(TextureOf("<Texture Filename='" + std::string(512, 'a') + "'/>"));
    EXPECT_FALSE(TextureOf("<Texture Filename='" + std::string(513, 'a') + "'/>"));
}

TEST_F(TeskTextureTest, AnArgumentReplacesTheTexture)
{
    OwnedTexture texture(TeskTexture::New("old.tga"));
    EXPECT_TRUE(FromArgs({"<Texture Filename='a.tga'/>"}, texture));
    ASSERT_TRUE(texture);
    EXPECT_EQ("a.tga", texture->Filename);
}

TEST_F(TeskTextureTest, ABadArgumentLeavesNoTexture)
{
    for (const char* argument : {"", "<Texture", "text", "<!-- comment -->", "<Texture Filename='none.tga'/>"}) {
        OwnedTexture texture(TeskTexture::New("old.tga"));
        EXPECT_FALSE(FromArgs({argument}, texture)) << argument;
        EXPECT_FALSE(texture) << argument;
    }
    OwnedTexture texture(TeskTexture::New("old.tga"));
    EXPECT_FALSE(FromArgs({}, texture));
    EXPECT_FALSE(texture);
}

TEST_F(TeskTextureTest, ASkinIsInForceWhileAnArgumentIsRead)
{
    g_UIManager.NewSkin("dark")->AddTemplate("base", "darkbase");
    g_UIManager.AddTemplate("darkbase", "<Template Filename='a.tga'/>");
    OwnedTexture texture;
    EXPECT_FALSE(FromArgs({"<Texture Template='base'/>"}, texture));
    EXPECT_TRUE(FromArgs({"<Texture Template='base'/>", "dark"}, texture));
    EXPECT_EQ(nullptr, g_UIManager.CurrentSkin);
    g_UIManager.RemoveSkin("dark");
}

TEST_F(TeskTextureTest, OnlyABackslashPartsTheFolderOfTheInterfaceFile)
{
    std::strcpy(g_UIManager.CurrentFile, "/ui/main.xml");
    System.Files = {u"/ui/a.tga", u"found.tga"};
    Host.FoundResources["a.tga"] = "found.tga";
    EXPECT_EQ("found.tga", TextureOf("<Texture Filename='a.tga'/>")->Filename);
    *g_UIManager.CurrentFile = 0;
}

TEST_F(TeskTextureTest, OnlyTheNamesThatAreSoughtTouchTheDisk)
{
    class WatchedPlatform : public TestPlatform
    {
    public:
        std::FILE* OpenFile(const char16_t*) override
        {
            Asked += "open;";
            return nullptr;
        }
        bool FileExists(const char16_t* path) override
        {
            for (; *path; ++path)
                Asked += static_cast<char>(*path);
            Asked += ";";
            return true;
        }
        std::string Asked;
    };

    WatchedPlatform watched;
    SetPlatform(&watched);
    std::strcpy(g_UIManager.CurrentFile, "C:\\ui\\main.xml");
    const OwnedTexture texture = TextureOf("<Texture Filename='../../secret.tga'/>");
    EXPECT_EQ("C:\\ui\\../../secret.tga;", watched.Asked);
    watched.Asked.clear();
    EXPECT_TRUE(TextureOf("<Texture Filename='#camera'/>"));
    EXPECT_TRUE(texture);
    Frame();
    EXPECT_EQ("", watched.Asked);
    *g_UIManager.CurrentFile = 0;
    SetPlatform(&System);
}
