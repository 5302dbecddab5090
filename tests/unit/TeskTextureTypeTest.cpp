#include "teskara/controls/TeskFrame.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

namespace {

// A script host that knows one reference and keeps buffers for ever.
class TestReferences : public HostScriptInterface
{
public:
    bool ParseTypedValue(const char* text, _MvTypeVar& result, u32 flag) override
    {
        EXPECT_EQ(0u, flag);
        if (OnParse)
            OnParse();
        result = Value;
        return std::string_view(text) == Reference;
    }
    char* MakeTempBuffer(std::size_t size, const char* text) override
    {
        if (Refuses)
            return nullptr;

        Buffers.push_back(std::make_unique<char[]>(size));
        std::strncpy(Buffers.back().get(), text, size - 1);
        Size = size;
        return Buffers.back().get();
    }
    MvTypeDefinition* FindTypeByName(const char*, u32, u32) override { return nullptr; }
    u32 RegisterTransientClass2(const char*) override { return 0; }
    void InvalidateTransientObject2(u32, void*) override { }
    u32 CreateQuery(MvTypeDefinition*, const char*, u32) override { return 0; }
    bool EvaluateQuery(u32, _MvTypeVar&, bool&) override { return false; }
    void FreeQuery(u32) override { }

    std::string Reference = "Other";
    _MvTypeVar Value;
    bool Refuses = false;
    std::size_t Size = 0;
    std::vector<std::unique_ptr<char[]>> Buffers;
    std::function<void()> OnParse;
};

// A frame with a texture, and the texture as scripts see it.
struct TextureCase {
    explicit TextureCase(ScriptHost& host) : Host(host) { SetInterface(&References); }
    ~TextureCase() { SetInterface(nullptr); }

    // Which the toolkit asks for when it is given the host.
    void SetInterface(HostScriptInterface* interface)
    {
        Host.Interface = interface;
        F1(&Host);
    }

    ScriptHost& Host;
    TestReferences References;
    TeskFrame& Frame = dynamic_cast<TeskFrame&>(MakeElement("frame", "F"));
    TeskTexture& Texture = *(Frame.Texture.reset(TeskTexture::New("a.png")), Frame.Texture);
    ScriptObject Object = ScriptObject(Frame).Follow("Texture");
};

// The host's own type of paths: as text, "path:" and the units that are bytes.
class TestPathType : public MvTypeDefinition
{
public:
    TestPathType() : MvTypeDefinition("filepath") { }
    bool ToText(MvValue value, char* buffer, u32 size) override
    {
        if (Throws)
            throw 1;
        std::snprintf(buffer, size, "path:%s", Narrow(value).c_str());
        return true;
    }
    static std::string Narrow(MvValue value)
    {
        std::string text;
        for (const auto* unit = static_cast<const char16_t*>(value.Object); *unit; ++unit)
            text += static_cast<char>(*unit);
        return text;
    }
    bool Throws = false;
};

} // namespace

TEST(TeskTextureTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost& host) {
        TextureCase test(host);
        test.Texture.ColorKey = 0xff00ff00;
        test.Texture.Orientation = 3;
        EXPECT_EQ("int -16711936", test.Object.Get("ColorKey"));
        EXPECT_EQ("int 3", test.Object.Get("Orientation"));
        EXPECT_EQ("unknown", test.Object.Get("Width"));
    });
}

TEST(TeskTextureTypeDeathTest, SomeMembersCountOnlyWithTheirFlag)
{
    WithToolkit([](ScriptHost& host) {
        TextureCase test(host);
        test.Texture.Alpha = 0.5f;
        test.Texture.ColorMask = 7;
        test.Texture.Left = 1;
        test.Texture.Right = -2;
        test.Texture.Top = 3;
        test.Texture.Bottom = 4;
        for (const char* member : {"Alpha", "ColorMask", "Left", "Right", "Top", "Bottom"})
            EXPECT_EQ("failed", test.Object.Get(member)) << member;
        for (const char* member : {"HasRect", "HasAlpha", "HasColorMask"})
            EXPECT_EQ("bool false", test.Object.Get(member)) << member;

        test.Texture.Flags = TextureHasRect;
        EXPECT_EQ("bool true", test.Object.Get("HasRect"));
        EXPECT_EQ("int 1", test.Object.Get("Left"));
        EXPECT_EQ("int -2", test.Object.Get("Right"));
        EXPECT_EQ("int 3", test.Object.Get("Top"));
        EXPECT_EQ("int 4", test.Object.Get("Bottom"));
        EXPECT_EQ("failed", test.Object.Get("Alpha"));

        test.Texture.Flags = TextureHasAlpha;
        EXPECT_EQ("bool true", test.Object.Get("HasAlpha"));
        EXPECT_EQ("float 0.5", test.Object.Get("Alpha"));
        EXPECT_EQ("failed", test.Object.Get("ColorMask"));

        test.Texture.Flags = TextureHasColorMask;
        EXPECT_EQ("bool true", test.Object.Get("HasColorMask"));
        EXPECT_EQ("int 7", test.Object.Get("ColorMask"));
        EXPECT_EQ("failed", test.Object.Get("Left"));
    });
}

TEST(TeskTextureTypeDeathTest, TheBorderIsWrittenButIsNoValue)
{
    WithToolkit([](ScriptHost& host) {
        TextureCase test(host);
        test.Texture.Border = 9;
        _MvTypeVar result;
        EXPECT_EQ(0, test.Object.Type().DispatchMember(test.Object.Value(), "Border", 0, nullptr, result));
        EXPECT_EQ(9, result.Value.Integer);
        EXPECT_EQ(nullptr, result.Type);
    });
}

TEST(TeskTextureTypeDeathTest, TheFileNameIsAWideTextOfTheHost)
{
    WithToolkit([](ScriptHost& host) {
        TextureCase test(host);
        test.Texture.Filename = "a\xc3\xa4\xf0\x9f\x98\x80";
        const ScriptObject path = test.Object.Follow("Filename");
        EXPECT_STREQ("filepath", path.Type().GetName());
        EXPECT_EQ(u"a\u00e4\U0001F600", std::u16string(static_cast<const char16_t*>(path.Value().Object)));
        EXPECT_EQ(1024u, test.References.Size);
        test.References.Refuses = true;
        EXPECT_EQ("failed", test.Object.Get("Filename"));
    });
}

TEST(TeskTextureTypeDeathTest, AFileNameHas511UnitsAtMost)
{
    WithToolkit([](ScriptHost& host) {
        TextureCase test(host);
        for (const std::size_t length : {510u, 511u, 512u, 5000u}) {
            test.Texture.Filename = std::string(length, 'x');
            const ScriptObject path = test.Object.Follow("Filename");
            EXPECT_EQ(std::min<std::size_t>(length, 511), TestPathType::Narrow(path.Value()).size());
        }
        test.Texture.Filename = std::string(510, 'x') + "\xf0\x9f\x98\x80";
        EXPECT_EQ(510u, TestPathType::Narrow(test.Object.Follow("Filename").Value()).size());
    });
}

TEST(TeskTextureTypeDeathTest, AsTextATextureIsItsPathAsTheHostWritesIt)
{
    WithHost([](ScriptHost& host) {
        TestPathType paths;
        host.OtherTypes["filepath"] = &paths;
        g_UIManager.Initialize();
        TextureCase test(host);
        char text[16] = "";
        EXPECT_TRUE(test.Object.Type().ToText(test.Object.Value(), text, sizeof(text)));
        EXPECT_STREQ("path:a.png", text);
        EXPECT_TRUE(test.Object.Type().ToText(test.Object.Value(), text, 7));
        EXPECT_STREQ("path:a", text);
        paths.Throws = true;
        EXPECT_FALSE(test.Object.Type().ToText(test.Object.Value(), text, sizeof(text)));
        g_UIManager.Shutdown();
    });
}

TEST(TeskTextureTypeDeathTest, WithoutATypeOfPathsThereIsNoTextAndNoFileName)
{
    WithHost([](ScriptHost& host) {
        host.HasTypes = false;
        g_UIManager.Initialize();
        TextureCase test(host);
        char text[16] = "";
        EXPECT_FALSE(test.Object.Type().ToText(test.Object.Value(), text, sizeof(text)));
        EXPECT_EQ("failed", test.Object.Get("Filename"));
        EXPECT_TRUE(test.References.Buffers.empty());
    });
}

TEST(TeskTextureTypeDeathTest, MethodsSetFieldsWithTheirFlags)
{
    WithToolkit([](ScriptHost& host) {
        TextureCase test(host);
        EXPECT_TRUE(test.Object.Do("SetRect", {"1", "2", "3", "4"}));
        EXPECT_EQ("int 1", test.Object.Get("Left"));
        EXPECT_EQ("int 2", test.Object.Get("Top"));
        EXPECT_EQ("int 3", test.Object.Get("Right"));
        EXPECT_EQ("int 4", test.Object.Get("Bottom"));
        EXPECT_FALSE(test.Object.Do("SetRect", {"5", "6", "7"}));
        EXPECT_EQ("int 1", test.Object.Get("Left"));
        EXPECT_TRUE(test.Object.Do("SetAlpha", {"0.5"}));
        EXPECT_EQ("float 0.5", test.Object.Get("Alpha"));
        EXPECT_TRUE(test.Object.Do("SetColorMask", {"ff"}));
        EXPECT_EQ("int 255", test.Object.Get("ColorMask"));
        EXPECT_TRUE(test.Object.Do("SetOrientation", {"258"}));
        EXPECT_EQ("int 2", test.Object.Get("Orientation"));
        EXPECT_TRUE(test.Object.Do("SetBorder", {"7"}));
        EXPECT_EQ(7u, test.Texture.Border);
        EXPECT_EQ(u32{TextureHasRect | TextureHasAlpha | TextureHasColorMask}, test.Texture.Flags);

        EXPECT_TRUE(test.Object.Do("UnsetRect"));
        EXPECT_EQ(u32{TextureHasAlpha | TextureHasColorMask}, test.Texture.Flags);
        EXPECT_TRUE(test.Object.Do("UnsetAlpha"));
        EXPECT_EQ(u32{TextureHasColorMask}, test.Texture.Flags);
        EXPECT_TRUE(test.Object.Do("UnsetColorMask"));
        EXPECT_EQ(0u, test.Texture.Flags);
        for (const char* method : {"Copy", "Set", "SetAlpha", "SetColorMask", "SetOrientation", "SetBorder"})
            EXPECT_FALSE(test.Object.Do(method)) << method;
    });
}

TEST(TeskTextureTypeDeathTest, AMaskThatCannotBeReadOnlySetsTheFlag)
{
    WithToolkit([](ScriptHost& host) {
        TextureCase test(host);
        test.Texture.ColorMask = 5;
        EXPECT_TRUE(test.Object.Do("SetColorMask", {"none"}));
        EXPECT_EQ("int 5", test.Object.Get("ColorMask"));
    });
}

TEST(TeskTextureTypeDeathTest, SetNamesAnotherImageAndKeepsTheRest)
{
    WithToolkit([](ScriptHost& host) {
        TextureCase test(host);
        test.Texture.Border = 4;
        EXPECT_TRUE(test.Object.Do("Set", {"b.png", "ff00ff"}));
        EXPECT_EQ("b.png", test.Texture.Filename);
        EXPECT_EQ(0xff00ffu, test.Texture.ColorKey);
        EXPECT_EQ(4u, test.Texture.Border);
        EXPECT_TRUE(test.Object.Do("Set", {"c.png"}));
        EXPECT_EQ(0u, test.Texture.ColorKey);
        test.Texture.ColorKey = 5;
        EXPECT_TRUE(test.Object.Do("Set", {"c.png", "none"}));
        EXPECT_EQ(0u, test.Texture.ColorKey);
    });
}

TEST(TeskTextureTypeDeathTest, CopyTakesOverWhatAReferenceNames)
{
    WithToolkit([](ScriptHost& host) {
        TextureCase test(host);
        auto& other = dynamic_cast<TeskFrame&>(MakeElement("frame", "G"));
        other.Texture.reset(TeskTexture::New("b.png"));
        other.Texture->Border = 6;
        const ScriptObject source = ScriptObject(other).Follow("Texture");
        test.References.Value = {&source.Type(), source.Value()};
        EXPECT_FALSE(test.Object.Do("Copy", {"Nobody"}));
        EXPECT_EQ("a.png", test.Texture.Filename);
        EXPECT_TRUE(test.Object.Do("Copy", {"Other"}));
        EXPECT_EQ("b.png", test.Texture.Filename);
        EXPECT_EQ(6u, test.Texture.Border);

        test.References.Value.Value.Object = nullptr;
        EXPECT_FALSE(test.Object.Do("Copy", {"Other"}));
        test.References.Value.Type = nullptr;
        EXPECT_FALSE(test.Object.Do("Copy", {"Other"}));
        const ScriptObject element(other);
        test.References.Value = {&element.Type(), element.Value()};
        EXPECT_FALSE(test.Object.Do("Copy", {"Other"}));
        EXPECT_EQ("b.png", test.Texture.Filename);
    });
}

TEST(TeskTextureTypeDeathTest, FindingTheSourceMayEndTheTexture)
{
    WithToolkit([](ScriptHost& host) {
        TextureCase test(host);
        auto& other = dynamic_cast<TeskFrame&>(MakeElement("frame", "G"));
        other.Texture.reset(TeskTexture::New("b.png"));
        const ScriptObject source = ScriptObject(other).Follow("Texture");
        test.References.Value = {&source.Type(), source.Value()};
        test.References.OnParse = [&] { g_UIManager.Screen->DeleteChild(&test.Frame); };
        EXPECT_FALSE(test.Object.Do("Copy", {"Other"}));
    });
}

TEST(TeskTextureTypeDeathTest, ATextureThatHasEndedAnswersNothing)
{
    WithToolkit([](ScriptHost& host) {
        TextureCase test(host);
        test.Frame.Texture.reset();
        EXPECT_EQ("failed", test.Object.Get("ColorKey"));
        EXPECT_EQ("failed", test.Object.Get("Filename"));
        EXPECT_FALSE(test.Object.Do("SetBorder", {"5"}));
        char text[16] = "";
        EXPECT_FALSE(test.Object.Type().ToText(test.Object.Value(), text, sizeof(text)));
    });
}
