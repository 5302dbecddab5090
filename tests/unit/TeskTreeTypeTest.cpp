#include "teskara/collections/TeskTree.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

constexpr char Markup[] = "<Template><Font><Size>9</Size></Font><ImageTexture Filename='#a'/><ScrollBar/></Template>";

TeskTree& MakeTree(const char* name = "Tree")
{
    XMLNode* node = g_UIManager.AddTemplate("The markup", Markup);
    return dynamic_cast<TeskTree&>(*g_UIManager.LoadElement(g_UIManager.Screen, "tree", name, node, nullptr));
}

void Delete(TeskTree& tree)
{
    tree.Parent->DeleteChild(&tree);
}

// A host whose queries are texts that must be those of the nodes.
class QueryHost : public HostScriptInterface
{
public:
    bool ParseTypedValue(const char*, _MvTypeVar&, u32) override { return false; }
    MvTypeDefinition* FindTypeByName(const char*, u32, u32) override { return nullptr; }
    char* MakeTempBuffer(std::size_t, const char*) override { return nullptr; }
    u32 RegisterTransientClass2(const char*) override { return 0; }
    void InvalidateTransientObject2(u32, void*) override { }

    u32 CreateQuery(MvTypeDefinition* owner, const char* text, u32 extra) override
    {
        EXPECT_STREQ("tesktreenode", owner->GetName());
        EXPECT_EQ(0u, extra);
        if (OnCreate)
            OnCreate();
        Wanted = text;
        Log += "create ";
        return Wanted.empty() ? 0 : 7;
    }

    bool EvaluateQuery(u32 query, _MvTypeVar& object, bool& result) override
    {
        EXPECT_EQ(7u, query);
        const std::string text = ScriptObject(object).Get("Text");
        Log += text.substr(text.find(' ') + 1) + ' ';
        if (OnEvaluate)
            OnEvaluate();
        result = text == "string " + Wanted;
        return !Fails;
    }

    void FreeQuery(u32 query) override
    {
        EXPECT_EQ(7u, query);
        Log += "free";
    }

    std::string TakeLog() { return std::exchange(Log, {}); }

    std::string Wanted;
    std::string Log;
    bool Fails = false;
    std::function<void()> OnCreate;
    std::function<void()> OnEvaluate;
};

// A tree with the nodes a, b and c at a host with queries.
void WithQueries(const std::function<void(QueryHost& queries, TeskTree& tree)>& body)
{
    WithToolkit([&](ScriptHost& host) {
        QueryHost queries;
        host.Interface = &queries;
        F1(&host);
        TeskTree& tree = MakeTree();
        for (const char* text : {"a", "b", "c"})
            tree.Root->AddChild(text, 0);
        body(queries, tree);
    });
}

} // namespace

TEST(TeskTreeTypeDeathTest, ATreeTellsItsFields)
{
    WithToolkit([](ScriptHost&) {
        TeskTree& tree = MakeTree();
        const ScriptObject object(tree);
        EXPECT_EQ(tree.Font.get(), object.Follow("Font").Value().Object);
        EXPECT_EQ(tree.ImageTexture.get(), object.Follow("Image").Value().Object);
        EXPECT_EQ("failed", object.Get("ImageCollapsible"));
        EXPECT_EQ("failed", object.Get("ImageCollapsed"));
        EXPECT_EQ("failed", object.Get("Selection"));
        EXPECT_EQ("int 0", object.Get("Border")) << "as of a frame";
        EXPECT_EQ("int " + std::to_string(tree.Root->Handle), object.Follow("Root").Get("Handle"));
        tree.Root->Select();
        EXPECT_EQ("string ", object.Follow("Selection").Get("Text"));
    });
}

TEST(TeskTreeTypeDeathTest, ANodeTellsItsFields)
{
    WithToolkit([](ScriptHost&) {
        TeskTree& tree = MakeTree();
        tree.ImageTextureCollapsible.reset(TeskTexture::New("#b"));
        tree.ImageTextureCollapsed.reset(TeskTexture::New("#c"));
        TeskTreeNode& node = *tree.Root->AddChild("a", 0xff000001u);
        node.AddChild("b", 0);
        node.InsertSiblingAfter("c", 0);
        const ScriptObject object = ScriptObject(tree).Follow("Root").Follow("Children");
        EXPECT_EQ("string a", object.Get("Text"));
        EXPECT_EQ("int -16777215", object.Get("TextColor"));
        EXPECT_EQ(node.Image.get(), object.Follow("Image").Value().Object);
        EXPECT_EQ(node.ImageCollapsible.get(), object.Follow("ImageCollapsible").Value().Object);
        EXPECT_EQ(node.ImageCollapsed.get(), object.Follow("ImageCollapsed").Value().Object);
        EXPECT_EQ("string b", object.Follow("Children").Get("Text"));
        EXPECT_EQ("string c", object.Follow("Next").Get("Text"));
        EXPECT_EQ("string a", object.Follow("Next").Follow("Previous").Get("Text"));
        EXPECT_EQ("string ", object.Follow("Parent").Get("Text"));
        EXPECT_EQ("bool true", object.Get("Expanded"));
        EXPECT_EQ("bool false", object.Get("IsSelected"));
        EXPECT_EQ("failed", object.Get("Tree"));
        EXPECT_EQ("failed", object.Get("Previous"));
        EXPECT_EQ("failed", object.Follow("Parent").Get("Parent"));

        char text[16];
        EXPECT_TRUE(object.Type().ToText(object.Value(), text, sizeof(text)));
        EXPECT_EQ(std::to_string(node.Handle), text);
    });
}

TEST(TeskTreeTypeDeathTest, NodesAreAddedByMembersAndByMethods)
{
    WithToolkit([](ScriptHost&) {
        TeskTree& tree = MakeTree();
        const ScriptObject root = ScriptObject(tree).Follow("Root");
        const ScriptObject node = root.Follow("AddChild", {"b"});
        EXPECT_EQ("int -1", node.Get("TextColor")) << "white without a colour";
        EXPECT_EQ("string a", node.Follow("InsertSiblingBefore", {"a", "10"}).Get("Text"));
        EXPECT_EQ("int 16", node.Follow("Previous").Get("TextColor"));
        EXPECT_EQ("string c", node.Follow("InsertSiblingAfter", {"c"}).Get("Text"));
        EXPECT_TRUE(node.Do("AddChild", {"d"}));
        EXPECT_TRUE(node.Do("InsertSiblingBefore", {"e"}));
        EXPECT_TRUE(node.Do("InsertSiblingAfter", {"f"}));
        EXPECT_EQ(7u, tree.GetNodeCount());
        for (const char* name : {"AddChild", "InsertSiblingBefore", "InsertSiblingAfter"}) {
            EXPECT_EQ("failed", node.Get(name)) << name;
            EXPECT_FALSE(node.Do(name)) << name;
        }
        EXPECT_EQ("failed", root.Get("InsertSiblingAfter", {"x"}));
        EXPECT_FALSE(root.Do("InsertSiblingBefore", {"x"}));
        EXPECT_EQ(7u, tree.GetNodeCount());
    });
}

TEST(TeskTreeTypeDeathTest, MethodsChangeANode)
{
    WithToolkit([](ScriptHost&) {
        TeskTree& tree = MakeTree();
        TeskTreeNode& node = *tree.Root->AddChild("a", 0);
        const ScriptObject object = ScriptObject(tree).Follow("Root").Follow("Children");
        EXPECT_TRUE(object.Do("SetText", {"other"}));
        EXPECT_EQ("other", node.Text);
        EXPECT_FALSE(object.Do("SetText"));
        EXPECT_EQ("other", node.Text);
        EXPECT_TRUE(object.Do("SetText", {""}));
        EXPECT_EQ("", node.Text);
        EXPECT_TRUE(object.Do("SetTextColor", {"ff"}));
        EXPECT_EQ(255u, node.TextColor);
        EXPECT_TRUE(object.Do("SetTextColor", {"no colour"}));
        EXPECT_EQ(255u, node.TextColor);
        EXPECT_FALSE(object.Do("SetTextColor"));
        EXPECT_TRUE(object.Do("Collapse"));
        EXPECT_FALSE(node.IsExpanded());
        EXPECT_TRUE(object.Do("ToggleExpand"));
        EXPECT_TRUE(node.IsExpanded());
        EXPECT_TRUE(object.Do("Collapse"));
        EXPECT_TRUE(object.Do("Expand"));
        EXPECT_TRUE(node.IsExpanded());
        EXPECT_TRUE(object.Do("Select"));
        EXPECT_EQ("bool true", object.Get("IsSelected"));
        EXPECT_TRUE(object.Do("SetMetadata", {"Key", "value"}));
        EXPECT_EQ("string value", object.Get("GetMetadata", {"KEY"}));
        EXPECT_EQ("failed", object.Get("GetMetadata"));
        EXPECT_TRUE(object.Do("UnsetMetadata", {"key"}));
        EXPECT_EQ("failed", object.Get("GetMetadata", {"key"}));
        EXPECT_FALSE(object.Do("Remove")) << "though it is removed";
        EXPECT_EQ(1u, tree.GetNodeCount());
    });
}

TEST(TeskTreeTypeDeathTest, TheRootDoesOnlyWhatARootCan)
{
    WithToolkit([](ScriptHost&) {
        TeskTree& tree = MakeTree();
        tree.Root->AddChild("a", 0);
        const ScriptObject root = ScriptObject(tree).Follow("Root");
        for (const char* name : {"SetText", "SetTextColor", "Remove", "Expand", "Collapse", "ToggleExpand"})
            EXPECT_FALSE(root.Do(name, {"ff"})) << name;
        EXPECT_EQ("", tree.Root->Text);
        EXPECT_TRUE(tree.Root->IsExpanded());
        EXPECT_EQ(2u, tree.GetNodeCount());
        EXPECT_TRUE(root.Do("Select"));
        EXPECT_TRUE(root.Do("SetMetadata", {"Key", "value"}));
        EXPECT_TRUE(root.Do("UnsetMetadata", {"Key"}));
        EXPECT_TRUE(root.Do("RemoveChildren"));
        EXPECT_EQ(1u, tree.GetNodeCount());
    });
}

TEST(TeskTreeTypeDeathTest, ANodeThatIsGoneAnswersNothing)
{
    WithToolkit([](ScriptHost&) {
        TeskTree& tree = MakeTree();
        tree.Root->AddChild("a", 0);
        const ScriptObject root = ScriptObject(tree).Follow("Root");
        const ScriptObject node = root.Follow("Children");
        tree.Root->RemoveChildren();
        tree.Root->AddChild("b", 0); // perhaps at the same address
        char text[16];
        EXPECT_EQ("failed", node.Get("Text"));
        EXPECT_FALSE(node.Do("Select"));
        EXPECT_FALSE(node.Type().ToText(node.Value(), text, sizeof(text)));
        Delete(tree);
        EXPECT_EQ("failed", root.Get("Text"));
        MvValue nonsense;
        for (const u64 word : {u64{1}, ~u64{0}, u64{0x100000001}}) {
            nonsense.Words[0] = nonsense.Words[1] = word;
            _MvTypeVar value;
            value.Type = &node.Type();
            value.Value = nonsense;
            EXPECT_EQ("failed", ScriptObject(value).Get("Text"));
        }
    });
}

TEST(TeskTreeTypeDeathTest, ANumberIsAHandle)
{
    WithQueries([](QueryHost& queries, TeskTree& tree) {
        const ScriptObject object(tree);
        const std::string handle = std::to_string(tree.Root->FirstChild->Handle);
        EXPECT_EQ("string a", object.Follow("GetNode", {handle.c_str()}).Get("Text"));
        EXPECT_EQ("string a", object.Follow("GetNode", {(handle + ".9").c_str()}).Get("Text"));
        EXPECT_EQ("failed", object.Get("GetNode", {("-" + handle).c_str()}));
        EXPECT_EQ("failed", object.Get("GetNode", {"0"}));
        EXPECT_EQ("failed", object.Get("GetNode", {"999999"}));
        EXPECT_EQ("failed", object.Get("GetNode"));
        EXPECT_EQ("", queries.TakeLog());
    });
}

TEST(TeskTreeTypeDeathTest, AnyOtherTextIsAQueryWhichTheFirstNodeMeets)
{
    WithQueries([](QueryHost& queries, TeskTree& tree) {
        const ScriptObject object(tree);
        tree.Root->FirstChild->InsertSiblingBefore("b", 0);
        const std::string handle = std::to_string(tree.Root->FirstChild->Next->Next->Handle);
        EXPECT_EQ("int " + handle, object.Follow("GetNode", {"b"}).Get("Handle")) << "the older one";
        EXPECT_EQ("create  a b free", queries.TakeLog());
        EXPECT_EQ("failed", object.Get("GetNode", {"none"}));
        EXPECT_EQ("create  a b c b free", queries.TakeLog());
        EXPECT_EQ("failed", object.Get("GetNode", {""}));
        EXPECT_EQ("create ", queries.TakeLog()) << "what was not made is not freed";
        queries.Fails = true;
        EXPECT_EQ("failed", object.Get("GetNode", {"a"}));
        EXPECT_EQ("create  a b c b free", queries.TakeLog());
    });
}

TEST(TeskTreeTypeDeathTest, AQueryMayChangeTheNodes)
{
    WithQueries([](QueryHost& queries, TeskTree& tree) {
        const ScriptObject object(tree);
        queries.OnEvaluate = [&] { tree.Root->AddChild("none", 0); };
        EXPECT_EQ("failed", object.Get("GetNode", {"none"})) << "new nodes are not asked";
        EXPECT_EQ("create  a b c free", queries.TakeLog());
        queries.OnEvaluate = [&] { tree.Root->RemoveChildren(); };
        EXPECT_EQ("failed", object.Get("GetNode", {"c"}));
        EXPECT_EQ("create  free", queries.TakeLog());
    });
}

TEST(TeskTreeTypeDeathTest, AQueryMayEndWhatItFindsAndTheTree)
{
    WithQueries([](QueryHost& queries, TeskTree& tree) {
        queries.OnEvaluate = [&] {
            if (tree.Root->FirstChild && queries.Log.ends_with("a "))
                tree.Root->FirstChild->Remove();
        };
        EXPECT_EQ("failed", ScriptObject(tree).Get("GetNode", {"a"}));
        EXPECT_EQ("create  a free", queries.TakeLog());
        queries.OnEvaluate = [&] { Delete(tree); };
        EXPECT_EQ("failed", ScriptObject(tree).Get("GetNode", {"b"}));
        EXPECT_EQ("create  free", queries.TakeLog());
        queries.OnEvaluate = nullptr;
        queries.OnCreate = [] { Delete(dynamic_cast<TeskTree&>(*g_UIManager.FindElement("Tree"))); };
        EXPECT_EQ("failed", ScriptObject(MakeTree()).Get("GetNode", {"b"}));
        EXPECT_EQ("create free", queries.TakeLog());
    });
}
