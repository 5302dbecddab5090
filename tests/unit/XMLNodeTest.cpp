#include "tests/unit/XMLPlainParser.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLDocument.h"
#include "teskara/markup/XMLNode.h"

#include <gtest/gtest.h>

#include <string>

namespace {

XMLTree NewTree(std::string_view name)
{
    return XMLTree(XMLNode::Create(nullptr, name, XMLElementNode));
}

} // namespace

TEST(XMLNode, ANewOneStandsAloneOrLast)
{
    const XMLTree root = NewTree("Root");
    EXPECT_STREQ(root->Name, "Root");
    EXPECT_EQ(root->Type, u32{XMLElementNode});
    EXPECT_EQ(root->Parent, nullptr);
    EXPECT_EQ(root->FirstChild, nullptr);
    EXPECT_EQ(root->Attributes, nullptr);

    XMLNode* const first = XMLNode::Create(root.get(), "a", XMLElementNode);
    XMLNode* const second = XMLNode::Create(root.get(), "", XMLTextNode);
    EXPECT_EQ(root->FirstChild, first);
    EXPECT_EQ(root->LastChild, second);
    EXPECT_EQ(first->Next, second);
    EXPECT_EQ(second->Prev, first);
    EXPECT_EQ(second->Parent, root.get());
    EXPECT_STREQ(second->Name, "");
}

TEST(XMLNode, ItsNameIsACopy)
{
    std::string name = "Name";
    const XMLTree root = NewTree(name);
    name[0] = '#';
    EXPECT_STREQ(root->Name, "Name");
    EXPECT_TRUE(root->HasName("nAME", FoldedHash("NAME")));
    EXPECT_FALSE(root->HasName("Names", FoldedHash("Names")));
}

TEST(XMLNode, DeletingNoneIsAllowed)
{
    XMLNode::Delete(nullptr);
}

TEST(XMLNode, DeletingALeafTakesNothingElse)
{
    const XMLTree root = NewTree("a");
    XMLNode* const leaf = XMLNode::Create(root.get(), "b", XMLElementNode);
    root->FirstChild = root->LastChild = nullptr;
    leaf->SetAttribute("x", "y");
    leaf->Attributes->Delete();
    leaf->Delete();
    EXPECT_EQ(DumpTree(root.get()), "1 'a'\n");
}

TEST(XMLNode, AnAttributeIsReplacedWithoutCaseAndKeepsItsSpelling)
{
    const XMLTree root = NewTree("a");
    root->SetAttribute("One", "1");
    root->SetAttribute("two", "2");
    root->SetAttribute("ONE", "3");
    root->SetAttribute(nullptr, nullptr);
    root->SetAttribute("", "4");
    EXPECT_EQ(DumpTree(root.get()), "1 'a' One=3 two=2 =4\n");
    EXPECT_STREQ(root->FindAttribute("TWO")->Value, "2");
    EXPECT_EQ(root->FindAttribute("three"), nullptr);
}

TEST(XMLNode, AnAttributeKeepsACopyOfItsTexts)
{
    const XMLTree root = NewTree("a");
    std::string text = "text";
    root->SetAttribute(text.c_str(), text.c_str());
    text = "TEXT";
    EXPECT_EQ(DumpTree(root.get()), "1 'a' text=text\n");
}

TEST(XMLNode, ACloneHasEverythingAndStandsAlone)
{
    XMLDocument document;
    ASSERT_TRUE(document.ParseBuffer("<A Bc='1' dE=\"2\">x<!--y--><C><d/></C>z<?e f='g'?></A>"));
    const std::string before = DumpTree(document.Root->FirstChild);
    const XMLTree clone(document.Root->FirstChild->Clone(nullptr));
    document.Reset();
    EXPECT_EQ(DumpTree(clone.get()), before);
    EXPECT_EQ(clone->Parent, nullptr);
    EXPECT_EQ(clone->Next, nullptr);
    EXPECT_TRUE(clone->HasName("a", FoldedHash("a")));
    EXPECT_STREQ(clone->FindAttribute("DE")->Value, "2");
}

TEST(XMLNode, ACloneUnderAParentIsItsLastChild)
{
    const XMLTree target = NewTree("t");
    XMLNode::Create(target.get(), "first", XMLElementNode);
    {
        const XMLTree source = NewTree("s");
        XMLNode::Create(source.get(), "child", XMLElementNode)->SetAttribute("a", "b");
        XMLNode* const copy = source->Clone(target.get());
        EXPECT_EQ(copy->Parent, target.get());
        EXPECT_EQ(target->LastChild, copy);
        EXPECT_EQ(copy->Prev, target->FirstChild);
    }
    EXPECT_EQ(DumpTree(target.get()), "1 't'\n.1 'first'\n.1 's'\n..1 'child' a=b\n");
}

TEST(XMLNode, ANodeCanBeClonedBelowItself)
{
    const XMLTree root = NewTree("a");
    XMLNode* const child = XMLNode::Create(root.get(), "b", XMLElementNode);
    EXPECT_NE(root->Clone(child), nullptr);
    EXPECT_EQ(DumpTree(root.get()), "1 'a'\n.1 'b'\n..1 'a'\n...1 'b'\n");
    EXPECT_NE(root->Clone(root.get()), nullptr);
    EXPECT_EQ(DumpTree(root.get()), "1 'a'\n.1 'b'\n..1 'a'\n...1 'b'\n.1 'a'\n..1 'b'\n...1 'a'\n....1 'b'\n");
}

TEST(XMLNode, CloningANodeLeavesItsSiblingsOut)
{
    XMLDocument document;
    ASSERT_TRUE(document.ParseBuffer("<a/><b><c/></b><d/>"));
    const XMLTree clone(document.Root->FirstChild->Next->Clone(nullptr));
    EXPECT_EQ(DumpTree(clone.get()), "1 'b'\n.1 'c'\n");
    const XMLTree first(document.Root->FirstChild->Clone(nullptr));
    EXPECT_EQ(DumpTree(first.get()), "1 'a'\n");
}

// A tree may be far deeper than a parser lets it get, since nodes can be made by hand.
TEST(XMLNode, DepthCostsNoStack)
{
    XMLTree root = NewTree("a");
    XMLNode* node = root.get();
    for (int level = 0; level < 300000; ++level)
        node = XMLNode::Create(node, "a", XMLElementNode);
    XMLTree clone(root->Clone(nullptr));
    ASSERT_NE(clone, nullptr);
    int levels = 0;
    for (node = clone.get(); node->FirstChild; node = node->FirstChild)
        ++levels;
    EXPECT_EQ(levels, 300000);
}

TEST(XMLNode, TextsOfAllLengthsLieWhole)
{
    const XMLTree root = NewTree(std::string(5000, 'r'));
    std::string expected = "1 '" + std::string(5000, 'r') + "'\n";
    for (std::size_t length = 0; length < 3000; length += 7) {
        const std::string text(length, 't');
        XMLNode::Create(root.get(), text, XMLTextNode)->SetAttribute("v", text.c_str());
        expected += ".3 '" + text + "' v=" + text + "\n";
    }
    XMLNode::Create(root.get(), std::string(1000000, 'b'), XMLTextNode);
    expected += ".3 '" + std::string(1000000, 'b') + "'\n";
    EXPECT_EQ(DumpTree(root.get()), expected);
    const XMLTree clone(root->Clone(nullptr));
    EXPECT_EQ(DumpTree(clone.get()), expected);
}
