#include "teskara/controls/TeskFrame.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

// What a method of an element sets off may end the element in the middle of the method.

namespace {

TeskElement& MakeScripted(TeskElement& parent, const char* markup)
{
    const ScriptObject child = ScriptObject(parent).Follow("AddChild", {"frame", "S", markup});
    return *static_cast<TeskElement*>(child.Value().Object);
}

} // namespace

TEST(ElementTypeReentrancyDeathTest, APressThatEndsTheElementIsNotReleased)
{
    WithToolkit([](ScriptHost& host) {
        int pressed = 0;
        host.Scripts["end"] = [&](TeskElement& self) {
            ++pressed;
            self.Parent->DeleteChild(&self);
        };
        host.Scripts["fail"] = [](TeskElement&) { ADD_FAILURE() << "a dead element was clicked"; };
        TeskElement& left =
            MakeScripted(*g_UIManager.Screen, "<x><OnLeftDown>end</OnLeftDown><OnLeftClick>fail</OnLeftClick></x>");
        EXPECT_TRUE(ScriptObject(left).Do("LeftClick"));
        TeskElement& right =
            MakeScripted(*g_UIManager.Screen, "<x><OnRightDown>end</OnRightDown><OnRightClick>fail</OnRightClick></x>");
        EXPECT_TRUE(ScriptObject(right).Do("RightClick"));
        EXPECT_EQ(2, pressed);
        EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
    });
}

TEST(ElementTypeReentrancyDeathTest, AnElementMayDestroyItselfInItsOwnEvent)
{
    WithToolkit([](ScriptHost& host) {
        bool result = true;
        host.Scripts["destroy"] = [&](TeskElement& self) { result = ScriptObject(self).Do("Destroy"); };
        TeskElement& element = MakeScripted(*g_UIManager.Screen, "<x><OnLeftClick>destroy</OnLeftClick></x>");
        EXPECT_TRUE(ScriptObject(element).Do("LeftMouseUp"));
        EXPECT_FALSE(result);
        EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
    });
}

TEST(ElementTypeReentrancyDeathTest, DestroyingTwiceRunsOnUnloadOnce)
{
    WithToolkit([](ScriptHost& host) {
        int unloaded = 0;
        host.Scripts["destroy"] = [&](TeskElement& self) {
            ++unloaded;
            ScriptObject(self).Do("Destroy");
        };
        TeskElement& element = MakeScripted(*g_UIManager.Screen, "<x><OnUnload>destroy</OnUnload></x>");
        EXPECT_FALSE(ScriptObject(element).Do("Destroy"));
        EXPECT_EQ(1, unloaded);
    });
}

TEST(ElementTypeReentrancyDeathTest, AClickThatClicksItselfEnds)
{
    WithToolkit([](ScriptHost& host) {
        int clicks = 0;
        host.Scripts["click"] = [&](TeskElement& self) {
            ++clicks;
            ScriptObject(self).Do("LeftClick");
        };
        TeskElement& element = MakeScripted(*g_UIManager.Screen, "<x><OnLeftClick>click</OnLeftClick></x>");
        EXPECT_TRUE(ScriptObject(element).Do("LeftClick"));
        EXPECT_GT(clicks, 1);
        EXPECT_LE(clicks, 64);
    });
}

TEST(ElementTypeReentrancyDeathTest, AFocusThatEndsTheElementIsNone)
{
    WithToolkit([](ScriptHost& host) {
        host.Scripts["end"] = [](TeskElement& self) { self.Parent->DeleteChild(&self); };
        TeskElement& element = MakeScripted(*g_UIManager.Screen, "<x><OnKeyboardEnter>end</OnKeyboardEnter></x>");
        EXPECT_TRUE(ScriptObject(element).Do("SetFocus"));
        EXPECT_EQ(0u, g_UIManager.FocusElementID);
    });
}

TEST(ElementTypeReentrancyDeathTest, AChildThatIsMeasuredMayEndItsParent)
{
    class Ender : public TeskElement
    {
    public:
        using TeskElement::TeskElement;
        void SizeRecalculated(bool) override
        {
            if (Armed)
                g_UIManager.Screen->DeleteChild(Parent);
        }
        bool Armed = false;
    };

    WithToolkit([](ScriptHost&) {
        const TeskFactory<Ender> factory("ender");
        TeskElement& parent = MakeElement("frame", "P");
        dynamic_cast<Ender&>(MakeElement("ender", "E", &parent)).Armed = true;
        MakeElement("frame", "F", &parent);
        EXPECT_TRUE(ScriptObject(parent).Do("SetWidth", {"5"}));
        EXPECT_EQ(nullptr, g_UIManager.FindElement("P"));
    });
}

// The children of a dying element still reach it through their parent.
TEST(ElementTypeReentrancyDeathTest, OfAnElementBeingDestroyedOnlyTheBaseAnswers)
{
    WithToolkit([](ScriptHost& host) {
        ScriptObject* parent = nullptr;
        std::string name;
        std::string border;
        std::string own;
        bool destroyed = true;
        host.Scripts["look"] = [&](TeskElement& self) {
            name = ScriptObject(self).Follow("Parent").Get("Name");
            own = ScriptObject(self).Get("Parent");
            border = parent->Get("Border");
            destroyed = parent->Do("Destroy");
            EXPECT_FALSE(parent->Do("SetBorder", {"1"}));
            EXPECT_FALSE(parent->Do("SetTexture", {"<T Filename='#fill'/>"}));
            EXPECT_FALSE(parent->Do("AddChild", {"frame", "New", "<x/>"}));
            EXPECT_TRUE(parent->Do("SetMetadata", {"a", "b"}));
            EXPECT_TRUE(parent->Do("SetFocus"));
            EXPECT_TRUE(parent->Do("SetZOrder", {"top"}));
            EXPECT_TRUE(parent->Do("LeftClick"));
        };
        TeskElement& element = MakeElement("frame", "P");
        ScriptObject object(element);
        parent = &object;
        MakeScripted(element, "<x><OnUnload>look</OnUnload></x>");
        g_UIManager.Screen->DeleteChild(&element);
        EXPECT_EQ("string p", name);
        EXPECT_EQ("teskelement p", own);
        EXPECT_EQ("failed", border);
        EXPECT_FALSE(destroyed);
        EXPECT_EQ(0u, g_UIManager.FocusElementID);
        EXPECT_TRUE(g_UIManager.ElementMetadata.empty());
    });
}

TEST(ElementTypeReentrancyDeathTest, AFrameMayEndWhileItReadsATexture)
{
    class Ender : public TeskFrame
    {
    public:
        using TeskFrame::TeskFrame;
        TeskTexture* TextureFromXML(XMLNode*, const char*, XMLNode*) override
        {
            Parent->DeleteChild(this);
            return TeskTexture::New("late.png");
        }
    };

    WithToolkit([](ScriptHost&) {
        const TeskFactory<Ender> factory("ender");
        EXPECT_FALSE(ScriptObject(MakeElement("ender", "E")).Do("SetTexture", {"<T Filename='#fill'/>"}));
        EXPECT_EQ(nullptr, g_UIManager.FindElement("E"));
    });
}
