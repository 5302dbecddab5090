#pragma once

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <functional>
#include <string>
#include <vector>

// A parent that keeps what its child tells it, and may act on it.
class PressListener : public TeskElement
{
public:
    PressListener() : TeskElement("", nullptr, "Listener") { }

    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override
    {
        if (code == NotifyChildGoing)
            return;
        Heard.push_back(std::to_string(code) + ":" + std::to_string(value));
        if (Act)
            Act(*source);
    }

    std::vector<std::string> Heard; // code:value
    std::function<void(TeskElement& source)> Act;
};

// Tests of controls that are pressed and released.
class PressTest : public ToolkitTest
{
protected:
    // Makes an element of a kind under the listener.
    template <class Control>
    Control& Make(const char* kind, const std::string& markup = {}, const char* attributes = "")
    {
        const std::string text = std::string("<Template ") + attributes + ">" + markup + "</Template>";
        XMLNode* node = g_UIManager.AddTemplate("The markup", text.c_str());
        const std::string name = "C" + std::to_string(++m_Count);
        return dynamic_cast<Control&>(*g_UIManager.LoadElement(&Parent, kind, name.c_str(), node, nullptr));
    }

    // Loads the element "C" of a kind under the screen, 100 by 20 at 10, 50, and its text in a font of size 12.
    template <class Control> Control& Place(const char* kind, const std::string& markup)
    {
        const std::string word = kind;
        Load("<" + word + " name='C'><X>10</X><Y>50</Y><Width>100</Width><Height>20</Height>" + markup + "</" + word
            + ">");
        Host.TakeCalls();
        return As<Control>("C");
    }

    static bool Press(TeskElement& element) { return element.OnLMouseDown(Point); }
    static bool Release(TeskElement& element) { return element.OnLMouseUp(Point); }
    bool IsGone() const { return Parent.FirstChild == nullptr; }

    static inline _Point2i Point = {1, 2};
    PressListener Parent;

private:
    int m_Count = 0;
};
