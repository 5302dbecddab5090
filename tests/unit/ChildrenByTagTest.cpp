#include "teskara/markup/ChildrenByTag.h"
#include "teskara/markup/XMLNode.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class ChildrenByTagTest : public testing::Test
{
protected:
    XMLNode* Add(const std::string& tag)
    {
        XMLNode* const child = XMLNode::Create(m_Root.get(), tag, XMLElementNode);
        m_Children.Add(child);
        return child;
    }

    XMLNode* TakeFirst(const char* tag) { return m_Children.TakeFirst(tag); }

private:
    const XMLTree m_Root{XMLNode::Create(nullptr, "root", XMLElementNode)};
    ChildrenByTag m_Children;
};

} // namespace

TEST_F(ChildrenByTagTest, TheFirstOfATagIsTakenWhateverItsCase)
{
    XMLNode* const first = Add("Width");
    Add("Height");
    XMLNode* const second = Add("WIDTH");
    EXPECT_EQ(first, TakeFirst("width"));
    EXPECT_EQ(second, TakeFirst("Width"));
    EXPECT_EQ(nullptr, TakeFirst("Width"));
    EXPECT_NE(nullptr, TakeFirst("Height"));
}

TEST_F(ChildrenByTagTest, ATagThatIsGoneCanComeAgain)
{
    EXPECT_EQ(nullptr, TakeFirst("a"));
    Add("a");
    EXPECT_EQ(nullptr, TakeFirst("b"));
    TakeFirst("a");
    XMLNode* const again = Add("A");
    XMLNode* const last = Add("a");
    EXPECT_EQ(again, TakeFirst("a"));
    EXPECT_EQ(last, TakeFirst("a"));
    EXPECT_EQ(nullptr, TakeFirst("a"));
}

TEST_F(ChildrenByTagTest, ManyTagsAreKeptApart)
{
    constexpr int Count = 1000;
    std::vector<XMLNode*> children;
    for (int round = 0; round < 2; ++round)
        for (int index = 0; index < Count; ++index)
            children.push_back(Add("n" + std::to_string(index)));
    for (int index = 0; index < Count; index += 3)
        EXPECT_EQ(children[static_cast<std::size_t>(index)], TakeFirst(("N" + std::to_string(index)).c_str()));
    for (int index = 0; index < Count; ++index) {
        const std::string tag = "n" + std::to_string(index);
        const bool isSecond = index % 3 == 0;
        EXPECT_EQ(children[static_cast<std::size_t>(isSecond ? index + Count : index)], TakeFirst(tag.c_str()));
        EXPECT_EQ(isSecond, TakeFirst(tag.c_str()) == nullptr);
    }
}
