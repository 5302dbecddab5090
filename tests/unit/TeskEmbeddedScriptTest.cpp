#include "teskara/element/TeskEmbeddedScript.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/Limits.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/script/MvTypeVar.h"
#include "tests/unit/ToolkitTest.h"

#include <algorithm>
#include <functional>

namespace {

// Knows what it was handed in the last run of an atom, and acts during it.
class AtomHost : public TestHost
{
public:
    int ExecuteAtom(u32 atom, u32 unused, int argc, char** argv, _MvTypeVar* self) override
    {
        Atom = atom;
        Unused = unused;
        HasSelf = self != nullptr;
        Self = self ? self->Value.Object : nullptr;
        Type = self ? self->Type : nullptr;
        Arguments.assign(argv, argv + argc);
        ++Runs;
        if (OnRun)
            OnRun();
        return Answer;
    }

    bool GetKeyName(u32 key, char* name, u32 size) override
    {
        KeyNameSize = size;
        std::fill(name, name + size, 'k');
        return key != 0;
    }

    u32 Atom = 0;
    u32 Unused = 1;
    u32 KeyNameSize = 0;
    bool HasSelf = false;
    void* Self = nullptr;
    MvTypeDefinition* Type = nullptr;
    std::vector<std::string> Arguments;
    int Runs = 0;
    int Answer = 0;
    std::function<void()> OnRun;
};

class TeskEmbeddedScriptTest : public ToolkitTest
{
protected:
    TeskEmbeddedScriptTest()
    {
        F1(&Atoms);
        g_UIManager.LoadElement(g_UIManager.Screen, "frame", "panel");
        g_UIManager.LoadElement(g_UIManager.Screen, "text", "other");
        Atoms.Recorded = RecordScripts;
    }

    ~TeskEmbeddedScriptTest() override
    {
        g_UIManager.Reset();
        F1(&Host);
    }

    ScriptPointer MakeScript(const char* text = "body", const char* arguments = nullptr)
    {
        return ScriptPointer(TeskEmbeddedScript::New(&Element("panel"), text, arguments));
    }

    AtomHost Atoms;
};

} // namespace

TEST_F(TeskEmbeddedScriptTest, TheTextBecomesTheBodyOfAnAtomCalledAuto)
{
    const ScriptPointer script = MakeScript("a\nb", "int X, int Y");
    ASSERT_NE(nullptr, script);
    EXPECT_EQ("CompileAtom \"atom auto(int X, int Y)\n{\na\nb\n}\n\"\n", Atoms.TakeCalls());
    EXPECT_EQ(1u, script->Atom);
    EXPECT_EQ(&Element("panel"), script->Element);
    EXPECT_EQ(1u, script->ReferenceCount);
}

TEST_F(TeskEmbeddedScriptTest, NoArgumentsAreAnEmptyList)
{
    const ScriptPointer script = MakeScript("", nullptr);
    EXPECT_EQ("CompileAtom \"atom auto()\n{\n\n}\n\"\n", Atoms.TakeCalls());
}

TEST_F(TeskEmbeddedScriptTest, NothingIsCompiledWithoutAnElementOrAText)
{
    EXPECT_EQ(nullptr, TeskEmbeddedScript::New(nullptr, "body", nullptr));
    EXPECT_EQ(nullptr, TeskEmbeddedScript::New(&Element("panel"), nullptr, "int X"));
    EXPECT_EQ("", Atoms.TakeCalls());
}

TEST_F(TeskEmbeddedScriptTest, AScriptThatDoesNotCompileIsNone)
{
    Atoms.RefusesScripts = true;
    EXPECT_EQ(nullptr, TeskEmbeddedScript::New(&Element("panel"), "body", nullptr));
}

TEST_F(TeskEmbeddedScriptTest, ItsElementIsThisThroughTheElementsOwnType)
{
    const ScriptPointer script = MakeScript();
    char first[] = "1";
    char second[] = "two";
    char* arguments[] = {first, second};
    Atoms.Answer = -7;
    EXPECT_EQ(-7, script->Execute(2, arguments));
    EXPECT_EQ(script->Atom, Atoms.Atom);
    EXPECT_EQ(0u, Atoms.Unused);
    EXPECT_EQ(&Element("panel"), Atoms.Self);
    EXPECT_EQ(Element("panel").GetMvType(), Atoms.Type);
    EXPECT_EQ((std::vector<std::string>{"1", "two"}), Atoms.Arguments);
}

TEST_F(TeskEmbeddedScriptTest, AnotherElementMayBeThis)
{
    const ScriptPointer script = MakeScript();
    script->Execute(&Element("other"), 0, nullptr);
    EXPECT_EQ(&Element("other"), Atoms.Self);
    EXPECT_EQ(Element("other").GetMvType(), Atoms.Type);
}

TEST_F(TeskEmbeddedScriptTest, WithoutAnElementThereIsNoThis)
{
    const ScriptPointer script = MakeScript();
    script->Execute(nullptr, 0, nullptr);
    EXPECT_EQ(1, Atoms.Runs);
    EXPECT_FALSE(Atoms.HasSelf);
}

TEST_F(TeskEmbeddedScriptTest, EachRunHoldsAReference)
{
    const ScriptPointer script = MakeScript();
    std::vector<u32> counts;
    Atoms.OnRun = [&] {
        counts.push_back(script->ReferenceCount);
        if (Atoms.Runs < 3)
            script->Execute(0, nullptr);
        counts.push_back(script->ReferenceCount);
    };
    script->Execute(0, nullptr);
    EXPECT_EQ((std::vector<u32>{2, 3, 4, 4, 3, 2}), counts);
    EXPECT_EQ(1u, script->ReferenceCount);
}

TEST_F(TeskEmbeddedScriptTest, AScriptDroppedWhileItRunsEndsWhenItReturns)
{
    ScriptPointer script = MakeScript();
    Atoms.TakeCalls();
    Atoms.Answer = 5;
    Atoms.OnRun = [&] {
        script.reset();
        EXPECT_EQ("", Atoms.TakeCalls());
    };
    EXPECT_EQ(5, script->Execute(0, nullptr));
    EXPECT_EQ("ReleaseAtom 1\n", Atoms.TakeCalls());
}

TEST_F(TeskEmbeddedScriptTest, ScriptsInsideScriptsEndAtTheLimit)
{
    const ScriptPointer script = MakeScript();
    Atoms.Answer = 1;
    std::vector<int> answers;
    Atoms.OnRun = [&] { answers.push_back(script->Execute(0, nullptr)); };
    EXPECT_EQ(1, script->Execute(0, nullptr));
    EXPECT_EQ(static_cast<int>(Limits::NestedScripts), Atoms.Runs);
    EXPECT_EQ(0, answers.front()); // the innermost did not run
    EXPECT_EQ(1, answers.back());
    EXPECT_EQ(1u, script->ReferenceCount);
}

TEST_F(TeskEmbeddedScriptTest, TheNameOfAKeyHasSixtyThreeBytes)
{
    TeskElement& panel = Element("panel");
    panel.Events.OnKeyDown = MakeScript("body", "string Key");
    EXPECT_TRUE(panel.OnKeyDown(65));
    EXPECT_EQ(64u, Atoms.KeyNameSize);
    EXPECT_EQ(std::vector<std::string>{std::string(63, 'k')}, Atoms.Arguments);
    EXPECT_FALSE(panel.OnKeyDown(0));
    EXPECT_EQ(1, Atoms.Runs);
}

TEST_F(TeskEmbeddedScriptTest, CoordinatesAndOffsetsAreWrittenToTheEndsOfTheirRange)
{
    TeskElement& panel = Element("panel");
    panel.Events.OnMouseMove = MakeScript("body", "int X, int Y");
    panel.Events.OnMouseWheel = MakeScript("body", "int Offset");
    _Point2i point{-2147483647 - 1, 2147483647};
    EXPECT_TRUE(panel.OnMouseMove(point));
    EXPECT_EQ((std::vector<std::string>{"-2147483648", "2147483647"}), Atoms.Arguments);
    EXPECT_TRUE(panel.OnMouseWheel(-2147483647 - 1));
    EXPECT_EQ((std::vector<std::string>{"-2147483648"}), Atoms.Arguments);
}

TEST_F(TeskEmbeddedScriptTest, MarkupIsLookedUpInTheNodeAndThenInItsTemplate)
{
    XMLNode* node = g_UIManager.AddTemplate("node", "<Template><OnA>a</OnA><OnEmpty/></Template>");
    XMLNode* base =
        g_UIManager.AddTemplate("base", "<Template><ona>b</ona><OnB>b</OnB><OnEmpty>b</OnEmpty></Template>");
    const auto compile = [&](XMLNode* from, const char* tag) {
        const ScriptPointer script(Element("panel").EmbeddedScriptFromXML(from, tag, base, nullptr));
        return script ? Atoms.Calls.at(0) : "none";
    };
    const auto expect = [&](const char* body, XMLNode* from, const char* tag) {
        const std::string text = compile(from, tag);
        EXPECT_EQ(*body ? "CompileAtom \"atom auto()\n{\n" + std::string(body) + "\n}\n\"" : "none", text) << tag;
        Atoms.TakeCalls();
    };
    expect("a", node, "ONA");
    expect("b", node, "OnB");
    expect("b", nullptr, "OnA");
    expect("", node, "OnEmpty");
    expect("", node, "OnC");
}

TEST_F(TeskEmbeddedScriptTest, WithoutATagTheNodeItselfIsTheScript)
{
    XMLNode* node = g_UIManager.AddTemplate("node", "<Template>body</Template>");
    TeskElement& panel = Element("panel");
    const ScriptPointer script(panel.EmbeddedScriptFromXML(node, nullptr, nullptr, "int Row"));
    EXPECT_EQ("CompileAtom \"atom auto(int Row)\n{\nbody\n}\n\"\n", Atoms.TakeCalls());
    EXPECT_EQ(nullptr, panel.EmbeddedScriptFromXML(nullptr, nullptr, node, nullptr));
    EXPECT_EQ("", Atoms.TakeCalls());

    Atoms.RefusesScripts = true;
    Atoms.Recorded = 0;
    EXPECT_EQ(nullptr, panel.EmbeddedScriptFromXML(node, nullptr, nullptr, nullptr));
    EXPECT_EQ("PrintLine \" embedded script failed to load\"\n", Atoms.TakeCalls());
}
