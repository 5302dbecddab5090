#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <random>

namespace {

// The walk as a list of steps, to be compared with the operation itself.
TeskElement* PlainWalk(TeskElement* element, bool forward, bool visibleOnly, const TeskElement* stop)
{
    const auto first = [forward](const TeskElement* of) { return forward ? of->FirstChild : of->LastChild; };
    const auto next = [forward](const TeskElement* of) { return forward ? of->Next : of->Previous; };
    const auto usable = [visibleOnly, next](TeskElement* from) {
        while (from && visibleOnly && !from->Visible)
            from = next(from);
        return from;
    };

    if (!visibleOnly || element->Visible) {
        if (TeskElement* child = usable(first(element)))
            return child;
    }
    if (TeskElement* sibling = usable(next(element)))
        return sibling;
    if (element == stop)
        return nullptr;

    TeskElement* place = element;
    while (true) {
        place = place->Parent;
        if (!place || place == stop)
            return nullptr;

        TeskElement* after = next(place);
        if (!after)
            continue;
        if (!visibleOnly || after->Visible)
            return next(after);
        if (TeskElement* found = usable(after))
            return found;
    }
}

class ElementWalkTest : public ToolkitTest
{
protected:
    // Elements below the screen, each under one of those before it.
    static std::vector<TeskElement*> MakeTree(unsigned seed)
    {
        g_UIManager.Reset();
        std::mt19937 random(seed);
        std::vector<TeskElement*> elements = {g_UIManager.Screen};
        for (int index = 0; index < 12; ++index) {
            TeskElement* parent = elements[random() % elements.size()];
            const std::string name = "E" + std::to_string(index);
            elements.push_back(g_UIManager.LoadElement(parent, "frame", name.c_str()));
            elements.back()->Visible = random() % 3 != 0;
        }
        return elements;
    }
};

} // namespace

TEST_F(ElementWalkTest, BothDirectionsFollowTheirStepsOnAllTrees)
{
    for (unsigned seed = 0; seed < 40; ++seed) {
        std::vector<TeskElement*> elements = MakeTree(seed);
        std::vector<TeskElement*> stops = elements;
        stops.push_back(nullptr);
        for (TeskElement* element : elements) {
            for (TeskElement* stop : stops) {
                for (const bool visibleOnly : {false, true}) {
                    EXPECT_EQ(PlainWalk(element, true, visibleOnly, stop), element->Walk(visibleOnly, stop));
                    EXPECT_EQ(PlainWalk(element, false, visibleOnly, stop), element->WalkReverse(visibleOnly, stop));
                }
            }
        }
    }
    g_UIManager.Screen->Visible = true;
}

TEST_F(ElementWalkTest, AStopHoldsBackNeitherChildrenNorSiblings)
{
    Load("<frame name='A'><Children><frame name='A1'/></Children></frame><frame name='B'/><frame name='C'/>");
    EXPECT_EQ(&Element("A1@A"), Element("A").Walk(false, &Element("A")));
    EXPECT_EQ(&Element("C"), Element("B").Walk(false, &Element("B")));
    EXPECT_EQ(nullptr, Element("C").Walk(false, &Element("C")));
    EXPECT_EQ(nullptr, Element("A1@A").Walk(false, &Element("A1@A")));
    EXPECT_EQ(nullptr, Element("A1@A").Walk(false, &Element("A")));
    EXPECT_EQ(&Element("C"), Element("A1@A").Walk(false, g_UIManager.Screen));
}

TEST_F(ElementWalkTest, AVisibleSiblingOfAnAncestorIsSkippedAndAHiddenOneIsNot)
{
    Load("<frame name='A'><Children><frame name='A1'/></Children></frame><frame name='B'/><frame name='C'/>"
         "<frame name='D'/>");
    EXPECT_EQ(&Element("C"), Element("A1@A").Walk(true, nullptr));
    Element("B").Visible = false;
    EXPECT_EQ(&Element("C"), Element("A1@A").Walk(true, nullptr));
    Element("B").Visible = true;
    Element("C").Visible = false;
    EXPECT_EQ(&Element("C"), Element("A1@A").Walk(true, nullptr)); // what the skip reaches is not looked at
}

TEST_F(ElementWalkTest, AnElementAloneLeadsNowhere)
{
    EXPECT_EQ(nullptr, g_UIManager.Screen->Walk(false, nullptr));
    EXPECT_EQ(nullptr, g_UIManager.Screen->WalkReverse(true, nullptr));
}
