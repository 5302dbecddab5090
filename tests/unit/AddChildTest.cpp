#include "host/probe/TreeChecker.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/markup/TeskSkin.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

// Scripts make children from markup that they bring along.

TEST(AddChildDeathTest, TheMemberGivesTheChildAndTheMethodTellsThatThereIsOne)
{
    WithToolkit([](ScriptHost&) {
        TeskElement& parent = MakeElement("frame", "P");
        const ScriptObject object(parent);
        const ScriptObject child = object.Follow("AddChild", {"frame", "A", "<x><Width>12</Width></x>"});
        EXPECT_STREQ("teskframe", child.Type().GetName());
        EXPECT_EQ(parent.FindChild("A"), child.Value().Object);
        EXPECT_EQ("int 12", child.Get("Width"));
        EXPECT_TRUE(object.Do("AddChild", {"text", "B", "<any><Text>b</Text></any>"}));
        EXPECT_EQ("string b", ScriptObject(*parent.FindChild("B")).Get("Text"));
        EXPECT_EQ("tesktext c", ScriptObject(*g_UIManager.Screen).Get("AddChild", {"text", "C", "<t/>"}));
    });
}

TEST(AddChildDeathTest, WhatCannotBeMadeFails)
{
    struct Row {
        std::vector<const char*> Arguments;
        std::size_t Lines;
    };
    const Row rows[] = {
        {{}, 0},
        {{"frame", "A"}, 0},
        {{"frame", "A", "<unclosed"}, 0},
        {{"frame", "A", "<a></b>"}, 0},
        {{"frame", "A", ""}, 0},
        {{"frame", "A", "only text"}, 0},
        {{"frame", "", "<a/>"}, 0},
        {{"nonsense", "A", "<a/>"}, 1},
        {{"frame", "Taken", "<a/>"}, 1},
        {{nullptr, nullptr, nullptr, nullptr}, 0},
    };
    WithToolkit([&](ScriptHost& host) {
        TeskElement& parent = MakeElement("frame", "P");
        MakeElement("frame", "Taken", &parent);
        for (const Row& row : rows) {
            host.Lines.clear();
            EXPECT_EQ("failed", ScriptObject(parent).Get("AddChild", row.Arguments));
            EXPECT_EQ(row.Lines, host.Lines.size());
            EXPECT_FALSE(ScriptObject(parent).Do("AddChild", row.Arguments));
            EXPECT_EQ(2 * row.Lines, host.Lines.size());
        }
        EXPECT_EQ(parent.FirstChild, parent.LastChild);
    });
}

TEST(AddChildDeathTest, TheSkinNamedIsInForceWhileTheChildIsMade)
{
    WithToolkit([](ScriptHost& host) {
        TeskElement& parent = MakeElement("frame", "P");
        g_UIManager.AddTemplate("Plain", "<Template><Width>1</Width></Template>");
        g_UIManager.AddTemplate("Fancy", "<Template><Width>2</Width></Template>");
        TeskSkin* skin = g_UIManager.NewSkin("Dark");
        TeskSkin* present = g_UIManager.NewSkin("Light");
        skin->AddTemplate("Plain", "Fancy");
        g_UIManager.CurrentSkin = present;
        std::vector<TeskSkin*> seen;
        host.Scripts["look"] = [&](TeskElement&) { seen.push_back(g_UIManager.CurrentSkin); };

        const char* markup = "<x Template='Plain'><OnLoad>look</OnLoad></x>";
        const ScriptObject object(parent);
        EXPECT_EQ("int 2", object.Follow("AddChild", {"frame", "A", markup, "dARK"}).Get("Width"));
        EXPECT_EQ("int 1", object.Follow("AddChild", {"frame", "B", markup, "nobody"}).Get("Width"));
        EXPECT_EQ("int 1", object.Follow("AddChild", {"frame", "C", markup}).Get("Width"));
        EXPECT_EQ((std::vector<TeskSkin*>{skin, present, present}), seen);
        EXPECT_EQ(present, g_UIManager.CurrentSkin);
        EXPECT_FALSE(object.Do("AddChild", {"nonsense", "D", markup, "dark"}));
        EXPECT_EQ(present, g_UIManager.CurrentSkin);
    });
}

TEST(AddChildDeathTest, AChildThatEndsInItsOwnScriptIsNone)
{
    WithToolkit([](ScriptHost& host) {
        TeskElement& parent = MakeElement("frame", "P");
        host.Scripts["end"] = [&](TeskElement& self) { self.Parent->DeleteChild(&self); };
        host.Scripts["end all"] = [&](TeskElement&) { g_UIManager.Screen->DeleteChild(&parent); };
        const ScriptObject object(parent);
        EXPECT_EQ("failed", object.Get("AddChild", {"frame", "A", "<x><OnLoad>end</OnLoad></x>"}));
        EXPECT_EQ(nullptr, parent.FirstChild);
        EXPECT_FALSE(object.Do("AddChild", {"frame", "A", "<x><OnLoad>end all</OnLoad></x>"}));
        EXPECT_EQ(nullptr, g_UIManager.FindElement("P"));
    });
}

TEST(AddChildDeathTest, TheSkinMayGoWhileTheChildIsMade)
{
    WithToolkit([](ScriptHost& host) {
        TeskElement& parent = MakeElement("frame", "P");
        g_UIManager.NewSkin("Dark");
        g_UIManager.CurrentSkin = g_UIManager.NewSkin("Light");
        host.Scripts["drop"] = [](TeskElement&) {
            g_UIManager.RemoveSkin("Dark");
            g_UIManager.RemoveSkin("Light");
        };
        EXPECT_TRUE(ScriptObject(parent).Do("AddChild", {"frame", "A", "<x><OnLoad>drop</OnLoad></x>", "Dark"}));
        EXPECT_EQ(nullptr, g_UIManager.CurrentSkin);
    });
}

TEST(AddChildDeathTest, AnElementOnItsWayOutGetsNoChild)
{
    WithToolkit([](ScriptHost& host) {
        TeskElement& parent = MakeElement("frame", "P");
        bool made = true;
        host.Scripts["add"] = [&](TeskElement& self) {
            made = ScriptObject(self).Do("AddChild", {"frame", "A", "<x/>"});
        };
        EXPECT_TRUE(ScriptObject(parent).Do("AddChild", {"frame", "C", "<x><OnUnload>add</OnUnload></x>"}));
        EXPECT_FALSE(ScriptObject(*parent.FirstChild).Do("Destroy"));
        EXPECT_FALSE(made);
    });
}

TEST(AddChildDeathTest, ChildrenThatAddChildrenEndSomewhere)
{
    WithToolkit([](ScriptHost& host) {
        TeskElement& parent = MakeElement("frame", "P");
        int made = 0;
        host.Scripts["add"] = [&](TeskElement& self) {
            ++made;
            ScriptObject(self).Do("AddChild", {"frame", "A", "<x><OnLoad>add</OnLoad></x>"});
        };
        EXPECT_TRUE(ScriptObject(parent).Do("AddChild", {"frame", "A", "<x><OnLoad>add</OnLoad></x>"}));
        EXPECT_GT(made, 1);
        EXPECT_LE(made, 200);
    });
}

// What stands first in the markup is read, whatever it is.
TEST(AddChildDeathTest, AnyNodeIsReadAsAnElement)
{
    WithToolkit([](ScriptHost&) {
        TeskElement& parent = MakeElement("frame", "P");
        for (const char* markup : {"<!-- a comment -->", "<!-- a comment --><x/>", "<?instruction a='b'?>",
                 "<!DOCTYPE x SYSTEM \"y\">", " ", "<x/>"}) {
            for (const char* kind : {"frame", "text", "listbox", "window", "tree"}) {
                ScriptObject(parent).Do("AddChild", {kind, "A", markup});
                ScriptObject(parent).Do("SetTexture", {markup});
                EXPECT_EQ(std::nullopt, FindTreeFault()) << markup;
                if (TeskElement* child = parent.FindChild("A"))
                    parent.DeleteChild(child);
            }
        }
        EXPECT_TRUE(ScriptObject(parent).Do("AddChild", {"frame", "A", "<!-- a comment -->"}));
    });
}
