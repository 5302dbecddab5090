#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace {

struct Kind {
    const char* Word;
    const char* Base; // what it answers to besides
};

// clang-format off
constexpr Kind Kinds[] = {
    {"button",           "teskelement"},
    {"checkbox",         "teskelement"},
    {"combobox",         "teskelement"},
    {"commandbutton",    "button"},
    {"commandcheckbox",  "checkbox"},
    {"commandentry",     "textentry"},
    {"console",          "teskelement"},
    {"contextmenu",      "frame"},
    {"frame",            "teskelement"},
    {"gauge",            "frame"},
    {"gaugefiller",      "teskelement"},
    {"hudelement",       "teskelement"},
    {"listbox",          "teskelement"},
    {"map",              "teskelement"},
    {"mapblip",          "frame"},
    {"mapblipview",      "frame"},
    {"mapview",          "teskelement"},
    {"messagebox",       "window"},
    {"scriptinputbox",   "window"},
    {"scriptmessagebox", "messagebox"},
    {"scrollbar",        "teskelement"},
    {"slider",           "teskelement"},
    {"tabcontrol",       "teskelement"},
    {"table",            "frame"},
    {"tablecell",        "frame"},
    {"text",             "teskelement"},
    {"textedit",         "frame"},
    {"textentry",        "teskelement"},
    {"tooltip",          "frame"},
    {"tree",             "frame"},
    {"variablegauge",    "gauge"},
    {"variableslider",   "slider"},
    {"window",           "frame"},
    // A frame that is not found as one.
    {"windowclient",     "teskelement"},
};
// clang-format on

// Whether the word is that of the kind or of one of its bases.
bool AnswersTo(std::string_view kind, std::string_view word)
{
    if (kind == word)
        return true;
    const auto* row = std::ranges::find(Kinds, kind, [](const Kind& each) { return std::string_view(each.Word); });
    return row != std::end(Kinds) && AnswersTo(row->Base, word);
}

std::string UpperCase(std::string text)
{
    std::ranges::transform(text, text.begin(), [](char letter) { return static_cast<char>(letter - 'a' + 'A'); });
    return text;
}

using KindsTest = ToolkitTest;

} // namespace

TEST_F(KindsTest, TheseAreAll)
{
    EXPECT_EQ(std::size(Kinds), g_UIManager.Factories.size());
    for (const Kind& kind : Kinds)
        EXPECT_TRUE(g_UIManager.FindFactory(kind.Word)) << kind.Word;
}

TEST_F(KindsTest, EachAnswersToItsWordAndToThoseOfItsBases)
{
    for (const Kind& kind : Kinds) {
        TeskElement* element = g_UIManager.LoadElement(g_UIManager.Screen, kind.Word, kind.Word);
        ASSERT_TRUE(element) << kind.Word;

        for (const Kind& other : Kinds) {
            EXPECT_EQ(AnswersTo(kind.Word, other.Word), element->IsTypeOf(other.Word))
                << kind.Word << ' ' << other.Word;
            EXPECT_EQ(element->IsTypeOf(other.Word), element->IsTypeOf(UpperCase(other.Word).c_str())) << kind.Word;
        }
        EXPECT_TRUE(element->IsTypeOf("teskelement")) << kind.Word;
        EXPECT_FALSE(element->IsTypeOf("screen")) << kind.Word;
        EXPECT_FALSE(element->IsTypeOf("")) << kind.Word;
    }
}
