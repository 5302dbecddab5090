#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

namespace {

// Writes down what it hears.
class Listener : public TeskElement
{
public:
    using TeskElement::TeskElement;

    void RecalculateSize(bool recurse) override { Heard += recurse ? "size " : "own size "; }
    void SizeRecalculated(bool) override { Heard += "resized "; }
    bool OnLMouseDown(_Point2i& point) override { return Note("down", point); }
    bool OnLMouseUp(_Point2i& point) override { return Note("up", point); }
    bool OnRMouseDown(_Point2i& point) override { return Note("right down", point); }
    bool OnRMouseUp(_Point2i& point) override { return Note("right up", point); }
    void Show(bool show) override { Heard += show ? "show " : "hide "; }
    void MoveZUp() override { Heard += "up "; }
    void MoveZDown() override { Heard += "down "; }
    void MoveZTop(bool includeParents) override { Heard += includeParents ? "top with parents " : "top "; }
    void MoveZBottom() override { Heard += "bottom "; }
    TeskElement* FindChild(const char* name) override
    {
        Heard += std::string("find ") + name + ' ';
        return nullptr;
    }

    std::string Take() { return std::exchange(Heard, {}); }

    std::string Heard;

private:
    bool Note(const char* what, const _Point2i& point)
    {
        Heard += std::string(what) + ' ' + std::to_string(point.x) + ',' + std::to_string(point.y) + ' ';
        return false;
    }
};

const TeskFactory<Listener>& ListenerFactory()
{
    static const TeskFactory<Listener> factory("listener");
    return factory;
}

Listener& MakeListener(TeskElement* parent = nullptr)
{
    ListenerFactory();
    auto& listener = dynamic_cast<Listener&>(MakeElement("listener", "L", parent));
    listener.Take();
    return listener;
}

} // namespace

TEST(TeskElementTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        TeskElement& element = MakeElement("frame", "Inner", &MakeElement("text", "Outer"));
        const ScriptObject object(element);
        EXPECT_EQ("string inner", object.Get("Name"));
        EXPECT_EQ("string Inner@Outer", object.Get("FullName"));
        EXPECT_EQ("int " + std::to_string(element.ID), object.Get("ID"));
        EXPECT_EQ("string frame", object.Get("Type"));

        element.X = -3;
        element.Y = 4;
        element.AbsoluteX = 5;
        element.AbsoluteY = -6;
        element.Width = 0xfffffff9;
        element.Height = 8;
        EXPECT_EQ("int -3", object.Get("X"));
        EXPECT_EQ("int 4", object.Get("Y"));
        EXPECT_EQ("int 5", object.Get("AbsoluteX"));
        EXPECT_EQ("int -6", object.Get("AbsoluteY"));
        EXPECT_EQ("int -7", object.Get("Width"));
        EXPECT_EQ("int 8", object.Get("Height"));

        element.Alpha = 0.25f;
        element.AbsoluteAlpha = 0.5f;
        element.FadeAlpha = 0.75f;
        element.FadeDelay = 0xffffffff;
        element.FadeDuration = 9;
        EXPECT_EQ("float 0.25", object.Get("Alpha"));
        EXPECT_EQ("float 0.5", object.Get("AbsoluteAlpha"));
        EXPECT_EQ("float 0.75", object.Get("FadeAlpha"));
        EXPECT_EQ("uint 4294967295", object.Get("FadeDelay"));
        EXPECT_EQ("uint 9", object.Get("FadeDuration"));
    });
}

TEST(TeskElementTypeDeathTest, FlagsAreTold)
{
    WithToolkit([](ScriptHost&) {
        TeskElement& element = MakeElement("frame", "F");
        const ScriptObject object(element);
        EXPECT_EQ("bool true", object.Get("Visible"));
        EXPECT_EQ("bool false", object.Get("LeftClickThru"));
        EXPECT_EQ("bool false", object.Get("RightClickThru"));
        EXPECT_EQ("bool false", object.Get("MouseOver"));
        EXPECT_EQ("bool false", object.Get("Focus"));
        element.LeftClickThru = true;
        EXPECT_EQ("bool true", object.Get("LeftClickThru"));
        EXPECT_EQ("bool false", object.Get("RightClickThru"));
        element.RightClickThru = true;
        EXPECT_EQ("bool true", object.Get("RightClickThru"));
        g_UIManager.MouseOverElementID = element.ID;
        EXPECT_EQ("bool true", object.Get("MouseOver"));
        g_UIManager.FocusElementID = element.ID;
        EXPECT_EQ("bool true", object.Get("Focus"));
        element.Visible = false;
        EXPECT_EQ("bool false", object.Get("Visible"));
    });
}

TEST(TeskElementTypeDeathTest, WhetherItIsReallyVisibleIsNeverTold)
{
    WithToolkit([](ScriptHost&) { EXPECT_EQ("failed", ScriptObject(*g_UIManager.Screen).Get("ReallyVisible")); });
}

TEST(TeskElementTypeDeathTest, StrataIsSignedAndOnTopAt127)
{
    WithToolkit([](ScriptHost&) {
        TeskElement& element = MakeElement("frame", "F");
        const ScriptObject object(element);
        EXPECT_TRUE(object.Do("SetStrata", {"126"}));
        EXPECT_EQ("int 126", object.Get("Strata"));
        EXPECT_EQ("bool false", object.Get("AlwaysOnTop"));
        EXPECT_TRUE(object.Do("SetStrata", {"127"}));
        EXPECT_EQ("bool true", object.Get("AlwaysOnTop"));
        EXPECT_TRUE(object.Do("SetStrata", {"255"}));
        EXPECT_EQ("int -1", object.Get("Strata"));
        EXPECT_EQ("bool false", object.Get("AlwaysOnTop"));
    });
}

TEST(TeskElementTypeDeathTest, AFadeStateIsAWordAndAnUnknownOneIsEmpty)
{
    WithToolkit([](ScriptHost&) {
        TeskElement& element = MakeElement("frame", "F");
        constexpr const char* words[] = {
            "string NORMAL", "string DELAYING", "string FADING", "string FADED", "string "};
        for (u32 state = 0; state < std::size(words); ++state) {
            element.FadeState = state;
            EXPECT_EQ(words[state], ScriptObject(element).Get("FadeState"));
        }
        element.FadeState = 0xffffffff;
        EXPECT_EQ("string ", ScriptObject(element).Get("FadeState"));
    });
}

TEST(TeskElementTypeDeathTest, RelativesAreOfTheirOwnTypes)
{
    WithToolkit([](ScriptHost&) {
        TeskElement& parent = MakeElement("frame", "P");
        TeskElement& first = MakeElement("text", "A", &parent);
        TeskElement& second = MakeElement("frame", "B", &parent);
        EXPECT_EQ("tesktext a", ScriptObject(parent).Get("Children"));
        EXPECT_EQ("teskframe b", ScriptObject(first).Get("Next"));
        EXPECT_EQ("tesktext a", ScriptObject(second).Get("Previous"));
        EXPECT_EQ("teskframe p", ScriptObject(second).Get("Parent"));
        EXPECT_EQ("teskelement screen", ScriptObject(parent).Get("Parent"));
        EXPECT_EQ("failed", ScriptObject(second).Get("Children"));
        EXPECT_EQ("failed", ScriptObject(second).Get("Next"));
        EXPECT_EQ("failed", ScriptObject(first).Get("Previous"));
        EXPECT_EQ("failed", ScriptObject(*g_UIManager.Screen).Get("Parent"));
    });
}

TEST(TeskElementTypeDeathTest, ChildrenAreFoundByNameAndUsableOnesByKindToo)
{
    WithToolkit([](ScriptHost&) {
        TeskElement& parent = MakeElement("frame", "P");
        MakeElement("text", "Deep", &MakeElement("frame", "A", &parent));
        const ScriptObject object(parent);
        EXPECT_EQ("teskframe a", object.Get("FindChild", {"a"}));
        EXPECT_EQ("failed", object.Get("FindChild", {"Deep"}));
        EXPECT_EQ("failed", object.Get("FindChild"));
        EXPECT_EQ("tesktext deep", object.Get("FindUsableChild", {"DEEP", "text"}));
        EXPECT_EQ("failed", object.Get("FindUsableChild", {"DEEP", "frame"}));
        EXPECT_EQ("failed", object.Get("FindUsableChild", {"DEEP"}));
        EXPECT_EQ("teskframe a", object.Get("FindUsableChild", {"a", "teskelement", "ignored"}));
    });
}

TEST(TeskElementTypeDeathTest, AKindMayFindItsChildrenInItsOwnWay)
{
    WithToolkit([](ScriptHost&) {
        Listener& listener = MakeListener();
        EXPECT_EQ("failed", ScriptObject(listener).Get("FindChild", {"Nail"}));
        EXPECT_EQ("find Nail ", listener.Take());
    });
}

TEST(TeskElementTypeDeathTest, AHitIsTestedForTheMouseOrForAPoint)
{
    WithToolkit([](ScriptHost&) {
        TeskElement& element = MakeElement("frame", "F");
        element.Width = 10;
        element.Height = 10;
        const ScriptObject object(element);
        g_UIManager.MousePosition = {5, 5};
        EXPECT_EQ("bool true", object.Get("HitTest"));
        g_UIManager.MousePosition = {50, 5};
        EXPECT_EQ("bool false", object.Get("HitTest"));
        EXPECT_EQ("bool true", object.Get("HitTest", {"10", "10"}));
        EXPECT_EQ("bool false", object.Get("HitTest", {"10", "11"}));
        EXPECT_EQ("failed", object.Get("HitTest", {"1"}));
        EXPECT_EQ("failed", object.Get("HitTest", {"1", "2", "3"}));
    });
}

TEST(TeskElementTypeDeathTest, MetadataIsKeptWithTheElementsId)
{
    WithToolkit([](ScriptHost&) {
        TeskElement& element = MakeElement("frame", "F");
        const ScriptObject object(element);
        EXPECT_EQ("failed", object.Get("GetMetadata", {"Key"}));
        EXPECT_TRUE(g_UIManager.ElementMetadata.empty());
        EXPECT_FALSE(object.Do("UnsetMetadata", {"Key"}));
        EXPECT_FALSE(object.Do("SetMetadata", {"Key"}));
        EXPECT_TRUE(object.Do("SetMetadata", {"Key", "a value"}));
        EXPECT_EQ("string a value", object.Get("GetMetadata", {"kEY"}));
        EXPECT_EQ("failed", object.Get("GetMetadata", {"Other"}));
        EXPECT_EQ("failed", object.Get("GetMetadata"));
        EXPECT_TRUE(object.Do("SetMetadata", {"KEY", ""}));
        EXPECT_EQ("string ", object.Get("GetMetadata", {"Key"}));
        EXPECT_FALSE(object.Do("UnsetMetadata"));
        EXPECT_TRUE(object.Do("UnsetMetadata", {"key"}));
        EXPECT_EQ("failed", object.Get("GetMetadata", {"Key"}));

        EXPECT_TRUE(object.Do("SetMetadata", {"Key", "a value"}));
        EXPECT_FALSE(object.Do("Destroy"));
        EXPECT_TRUE(g_UIManager.ElementMetadata.empty());
    });
}

TEST(TeskElementTypeDeathTest, ThePointsOfClicksAreOdd)
{
    struct Row {
        i32 X;
        i32 Y;
        u32 Width;
        u32 Height;
        const char* Left;
        const char* Right;
    };
    constexpr Row rows[] = {
        {0, 0, 100, 50, "50,25", "200,25"},
        {10, 20, 100, 50, "65,55", "215,55"},
        {-10, -4, 4, 4, "2147483635,-4", "2147483641,-4"},
        {0, 0, 0, 0, "0,0", "0,0"},
    };
    WithToolkit([&](ScriptHost&) {
        Listener& listener = MakeListener();
        const ScriptObject object(listener);
        for (const Row& row : rows) {
            listener.X = row.X;
            listener.Y = row.Y;
            listener.Width = row.Width;
            listener.Height = row.Height;
            const std::string left = row.Left;
            const std::string right = row.Right;
            EXPECT_TRUE(object.Do("LeftClick"));
            EXPECT_EQ("down " + left + " up " + left + ' ', listener.Take());
            EXPECT_TRUE(object.Do("LeftMouseDown"));
            EXPECT_EQ("down " + left + ' ', listener.Take());
            EXPECT_TRUE(object.Do("LeftMouseUp"));
            EXPECT_EQ("up " + left + ' ', listener.Take());
            EXPECT_TRUE(object.Do("RightClick"));
            EXPECT_EQ("right down " + left + " right up " + left + ' ', listener.Take());
            EXPECT_TRUE(object.Do("RightMouseDown"));
            EXPECT_EQ("right down " + right + ' ', listener.Take());
            EXPECT_TRUE(object.Do("RightMouseUp"));
            EXPECT_EQ("right up " + right + ' ', listener.Take());
        }
    });
}

TEST(TeskElementTypeDeathTest, APlaceIsSetAndNothingIsRecalculated)
{
    WithToolkit([](ScriptHost&) {
        TeskElement& parent = MakeElement("frame", "P");
        Listener& child = MakeListener(&parent);
        EXPECT_TRUE(ScriptObject(parent).Do("SetX", {"-12px"}));
        EXPECT_TRUE(ScriptObject(parent).Do("SetY", {"34"}));
        EXPECT_EQ(-12, parent.X);
        EXPECT_EQ(34, parent.Y);
        EXPECT_TRUE(ScriptObject(parent).Do("SetX", {"left"}));
        EXPECT_EQ(0, parent.X);
        EXPECT_EQ("", child.Take());
        EXPECT_FALSE(ScriptObject(parent).Do("SetX"));
        EXPECT_FALSE(ScriptObject(parent).Do("SetY"));
    });
}

TEST(TeskElementTypeDeathTest, ChildrenFollowANewSizeButTheElementItselfDoesNot)
{
    WithToolkit([](ScriptHost&) {
        Listener& parent = MakeListener();
        Listener& child = MakeListener(&parent);
        parent.Take();
        EXPECT_TRUE(ScriptObject(parent).Do("SetWidth", {"120"}));
        EXPECT_EQ(120u, parent.Width);
        EXPECT_EQ("size ", child.Take());
        EXPECT_TRUE(ScriptObject(parent).Do("SetHeight", {"-1"}));
        EXPECT_EQ(0xffffffffu, parent.Height);
        EXPECT_EQ("size ", child.Take());
        EXPECT_EQ("", parent.Take());
        EXPECT_FALSE(ScriptObject(parent).Do("SetWidth"));
        EXPECT_FALSE(ScriptObject(parent).Do("SetHeight"));
    });
}

TEST(TeskElementTypeDeathTest, TheFocusIsSetOnWhatCanBeSeen)
{
    WithToolkit([](ScriptHost&) {
        TeskElement& element = MakeElement("frame", "F");
        const ScriptObject object(element);
        element.Visible = false;
        EXPECT_TRUE(object.Do("SetFocus"));
        EXPECT_EQ(0u, g_UIManager.FocusElementID);
        element.Visible = true;
        EXPECT_TRUE(object.Do("SetFocus"));
        EXPECT_EQ(element.ID, g_UIManager.FocusElementID);
    });
}

TEST(TeskElementTypeDeathTest, WordsMoveTheElementAmongItsSiblings)
{
    struct Row {
        const char* Word;
        const char* Heard;
    };
    constexpr Row rows[] = {
        {"up", "up "},
        {"MoveUp", "up "},
        {"down", "down "},
        {"MOVEDOWN", "down "},
        {"top", "top with parents "},
        {"movetop", "top with parents "},
        {"Bottom", "bottom "},
        {"movebottom", "bottom "},
        {"alwaysontop", ""},
        {"notalwaysontop", ""},
    };
    WithToolkit([&](ScriptHost&) {
        Listener& listener = MakeListener();
        const ScriptObject object(listener);
        for (const Row& row : rows) {
            EXPECT_TRUE(object.Do("SetZOrder", {row.Word})) << row.Word;
            EXPECT_EQ(row.Heard, listener.Take()) << row.Word;
        }
        EXPECT_FALSE(object.Do("SetZOrder", {"sideways"}));
        EXPECT_FALSE(object.Do("SetZOrder", {""}));
        EXPECT_FALSE(object.Do("SetZOrder"));
        EXPECT_EQ("", listener.Take());

        EXPECT_TRUE(object.Do("SetZOrder", {"AlwaysOnTop"}));
        EXPECT_EQ(127, listener.Strata);
        EXPECT_TRUE(object.Do("SetZOrder", {"NotAlwaysOnTop"}));
        EXPECT_EQ(0, listener.Strata);
        EXPECT_TRUE(object.Do("SetStrata", {"5"}));
        EXPECT_EQ("top ", listener.Take());
        EXPECT_FALSE(object.Do("SetStrata"));
    });
}

TEST(TeskElementTypeDeathTest, ShowingGoesThroughTheElement)
{
    WithToolkit([](ScriptHost&) {
        Listener& listener = MakeListener();
        const ScriptObject object(listener);
        EXPECT_TRUE(object.Do("Show"));
        EXPECT_TRUE(object.Do("Hide"));
        EXPECT_EQ("show hide ", listener.Take());
        listener.Visible = true;
        EXPECT_TRUE(object.Do("ToggleVisible"));
        listener.Visible = false;
        EXPECT_TRUE(object.Do("ToggleVisible"));
        EXPECT_EQ("hide show ", listener.Take());
    });
}

TEST(TeskElementTypeDeathTest, ClickThroughIsSetByWordOrNumber)
{
    WithToolkit([](ScriptHost&) {
        TeskElement& element = MakeElement("frame", "F");
        const ScriptObject object(element);
        for (const char* yes : {"true", "TRUE", "1", "-0.5", "1e1"}) {
            EXPECT_TRUE(object.Do("SetLeftClickThru", {yes}));
            EXPECT_TRUE(object.Do("SetRightClickThru", {yes}));
            EXPECT_TRUE(element.LeftClickThru && element.RightClickThru) << yes;
            EXPECT_TRUE(object.Do("SetLeftClickThru", {"abc"}));
            EXPECT_TRUE(object.Do("SetRightClickThru", {"0"}));
            EXPECT_FALSE(element.LeftClickThru || element.RightClickThru);
        }
        EXPECT_FALSE(object.Do("SetLeftClickThru"));
        EXPECT_FALSE(object.Do("SetRightClickThru"));
    });
}

TEST(TeskElementTypeDeathTest, OpacityAndFadesAreSet)
{
    WithToolkit([](ScriptHost&) {
        TeskElement& element = MakeElement("frame", "F");
        const ScriptObject object(element);
        EXPECT_TRUE(object.Do("SetAlpha", {"0.5"}));
        EXPECT_TRUE(object.Do("SetFadeAlpha", {"0.25x"}));
        EXPECT_TRUE(object.Do("SetFadeDelay", {"100"}));
        EXPECT_TRUE(object.Do("SetFadeDuration", {"-1"}));
        EXPECT_EQ(0.5f, element.Alpha);
        EXPECT_EQ(0.25f, element.FadeAlpha);
        EXPECT_EQ(100u, element.FadeDelay);
        EXPECT_EQ(0xffffffffu, element.FadeDuration);
        for (const char* method : {"SetAlpha", "SetFadeAlpha", "SetFadeDelay", "SetFadeDuration"})
            EXPECT_FALSE(object.Do(method)) << method;

        g_UIManager.FrameTick = 4711;
        EXPECT_TRUE(object.Do("InstantFade"));
        EXPECT_EQ(FadeFaded, element.FadeState);
        EXPECT_NE(4711u, element.FadeStart);
        EXPECT_TRUE(object.Do("BeginFade"));
        EXPECT_EQ(FadeDelaying, element.FadeState);
        EXPECT_EQ(4711u, element.FadeStart);
        EXPECT_TRUE(object.Do("ResetFade"));
        EXPECT_EQ(FadeNormal, element.FadeState);
    });
}

TEST(TeskElementTypeDeathTest, TheScreenCannotBeDestroyed)
{
    WithToolkit([](ScriptHost&) {
        const ScriptObject screen(*g_UIManager.Screen);
        EXPECT_FALSE(screen.Do("Destroy"));
        EXPECT_EQ(screen.Value().Object, g_UIManager.Screen);
        for (const char* method : {"LeftClick", "RightClick", "Show", "BeginFade", "SetFocus"})
            EXPECT_TRUE(screen.Do(method)) << method;
    });
}
