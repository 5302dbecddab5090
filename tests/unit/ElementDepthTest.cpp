#include "teskara/core/CUIManager.h"
#include "teskara/core/Limits.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <pthread.h>

namespace {

// Frames are several times as large under the address sanitizer.
#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t StackSize = 4 * 1024 * 1024;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr std::size_t StackSize = 4 * 1024 * 1024;
#else
constexpr std::size_t StackSize = 512 * 1024;
#endif
#else
constexpr std::size_t StackSize = 512 * 1024;
#endif

// Does some work on a thread with a small stack and waits for its end.
template <class Work> void OnSmallStack(Work work)
{
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    ASSERT_EQ(0, pthread_attr_setstacksize(&attributes, StackSize));
    pthread_t thread;
    const auto run = [](void* argument) -> void* {
        (*static_cast<Work*>(argument))();
        return nullptr;
    };
    ASSERT_EQ(0, pthread_create(&thread, &attributes, run, &work));
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

class ElementDepthTest : public ToolkitTest
{
protected:
    // A chain of elements, one inside the other, of one kind.
    void LoadChain(const std::string& kind, const std::string& settings, u32 depth)
    {
        const std::string open =
            "<" + kind + " name='E'><X>1</X><Width>r1</Width><Height>100%</Height>" + settings + "<Children>";
        const std::string close = "</Children></" + kind + ">";
        std::string markup;
        for (u32 level = 0; level < depth; ++level)
            markup += open;
        for (u32 level = 0; level < depth; ++level)
            markup += close;
        Load(markup);
    }

    static u32 CountChain()
    {
        u32 count = 0;
        for (const TeskElement* element = g_UIManager.Screen->FirstChild; element; element = element->FirstChild)
            ++count;
        return count;
    }

    static TeskElement& Last()
    {
        TeskElement* element = g_UIManager.Screen;
        while (element->FirstChild)
            element = element->FirstChild;
        return *element;
    }

    // Everything that goes through the whole tree.
    void UseTree()
    {
        g_UIManager.Render();
        _Point2i point = {400, 300};
        g_UIManager.OnMouseMove(point);
        EXPECT_TRUE(Last().IsMouseOver());
        g_UIManager.OnLMouseDown();
        g_UIManager.OnLMouseUp();
        g_UIManager.OnMouseWheel(120);
        g_UIManager.Screen->Width = 0;
        g_UIManager.Render(); // computes all sizes anew
        Last().MoveZTop(true);
        EXPECT_EQ(nullptr, Last().Walk(false, nullptr));
        EXPECT_EQ(nullptr, g_UIManager.Screen->FindUsableChild("none", "frame"));
        g_UIManager.SetFocusElement(&Last());
        g_UIManager.OnKeyDown('A');
        g_UIManager.ShowElement("E", false);
        g_UIManager.Render();
        g_UIManager.ShowElement("E", true);
        Host.TakeCalls();
    }
};

constexpr char Scripts[] = "<OnLoad>nothing</OnLoad><OnRender>nothing</OnRender><OnUnload>nothing</OnUnload>";

} // namespace

TEST_F(ElementDepthTest, TheDeepestTreeOfEachKindFitsOnASmallStack)
{
    const std::pair<const char*, std::string> kinds[] = {
        {"frame", Scripts},
        {"frame", std::string("<Border>2</Border><Texture Filename='#fill'><Border>3</Border></Texture>") + Scripts},
        {"text", std::string("<Wrap>1</Wrap><Text>some words to be wrapped</Text>") + Scripts},
        {"text", std::string("<Wrap>1</Wrap><Text>${some} words to be wrapped</Text>") + Scripts},
        {"button", std::string("<Text>${some} words</Text>") + Scripts},
        {"commandcheckbox", std::string("<Text>${some} words</Text><Data>1</Data>") + Scripts},
    };
    for (const auto& [kind, settings] : kinds) {
        SCOPED_TRACE(kind + settings);
        OnSmallStack([&, &kind = kind, &settings = settings] {
            LoadChain(kind, settings, Limits::ElementDepth);
            EXPECT_EQ(Limits::ElementDepth, CountChain());
            UseTree();
            g_UIManager.Reset();
        });
    }
}

TEST_F(ElementDepthTest, AnElementBeyondTheDeepestIsNotMade)
{
    LoadChain("frame", "", Limits::ElementDepth - 1);
    EXPECT_EQ("", Host.TakeCalls());
    EXPECT_NE(nullptr, g_UIManager.LoadElement(&Last(), "frame", "E"));
    EXPECT_EQ(nullptr, g_UIManager.LoadElement(&Last(), "frame", "E"));
    EXPECT_EQ("PrintLine \"CreateUIElement failed on 'E' under 'e'\"\n", Host.TakeCalls());
    EXPECT_EQ(Limits::ElementDepth, CountChain());
}
