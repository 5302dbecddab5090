#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace {

struct Kind {
    const char* Word;
    const char* Base; // what it answers to besides
    const char* Parts; // what its markup cannot do without; null if no markup makes it
};

constexpr const char* CodeAlone = nullptr;
constexpr char TabParts[] =
    "<TabTexture Filename='#fill'/><TabSelectedTexture Filename='#fill'/><Tabs><Tab Name='a'/></Tabs>";

// clang-format off
constexpr Kind Kinds[] = {
    {"button",           "teskelement", ""},
    {"checkbox",         "teskelement", ""},
    {"combobox",         "teskelement", "<ListBox><ScrollBar/></ListBox>"},
    {"commandbutton",    "button",      ""},
    {"commandcheckbox",  "checkbox",    ""},
    {"commandentry",     "textentry",   "<MaxLength>5</MaxLength>"},
    {"console",          "teskelement", "<ScrollBar/>"},
    {"contextmenu",      "frame",       CodeAlone},
    {"frame",            "teskelement", ""},
    {"gauge",            "frame",       ""},
    {"gaugefiller",      "teskelement", CodeAlone},
    {"hudelement",       "teskelement", ""},
    {"listbox",          "teskelement", "<ScrollBar/>"},
    {"map",              "teskelement", ""},
    {"mapblip",          "frame",       ""},
    {"mapblipview",      "frame",       CodeAlone},
    {"mapview",          "teskelement", ""},
    {"messagebox",       "window",      CodeAlone},
    {"scriptinputbox",   "window",      CodeAlone},
    {"scriptmessagebox", "messagebox",  CodeAlone},
    {"scrollbar",        "teskelement", ""},
    {"slider",           "teskelement", ""},
    {"tabcontrol",       "teskelement", TabParts},
    {"table",            "frame",       ""},
    {"tablecell",        "frame",       ""},
    {"text",             "teskelement", ""},
    {"textedit",         "frame",       "<VerticalScrollBar/>"},
    {"textentry",        "teskelement", "<MaxLength>5</MaxLength>"},
    {"tooltip",          "frame",       ""},
    {"tree",             "frame",       "<ScrollBar/>"},
    {"variablegauge",    "gauge",       ""},
    {"variableslider",   "slider",      ""},
    {"window",           "frame",       "<Client><Width>9</Width></Client>"},
    // A frame that is not found as one.
    {"windowclient",     "teskelement", ""},
};
// clang-format on

// Whether the word is that of the kind or of one of its bases.
bool AnswersTo(std::string_view kind, std::string_view word)
{
    if (kind == word)
        return true;
    const auto* row =
        std::find_if(std::begin(Kinds), std::end(Kinds), [kind](const Kind& each) { return each.Word == kind; });
    return row != std::end(Kinds) && AnswersTo(row->Base, word);
}

std::string Markup(const Kind& kind, const std::string& inside)
{
    const std::string word = kind.Word;
    return '<' + word + " name='Q'><Width>50</Width><Height>50</Height>" + kind.Parts + inside + "</" + word + '>';
}

// A window client reads what any frame reads.
std::string TemplateOf(const Kind& kind)
{
    return kind.Word == std::string_view("windowclient") ? "frame" : kind.Word;
}

std::string UpperCase(std::string text)
{
    std::transform(
        text.begin(), text.end(), text.begin(), [](char letter) { return static_cast<char>(letter - 'a' + 'A'); });
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

TEST_F(KindsTest, EachTakesItsSettingsFromItsTemplate)
{
    for (const Kind& kind : Kinds) {
        if (!kind.Parts)
            continue;

        const std::string word = kind.Word;
        Load("<Template name='" + TemplateOf(kind) + "'><Width>33</Width>" + kind.Parts + "</Template><" + word
            + " name='Q'/>");
        TeskElement* element = g_UIManager.FindElement("Q");
        ASSERT_TRUE(element) << word;
        EXPECT_EQ(33u, element->Width) << word;
        g_UIManager.Reset();
        g_UIManager.ClearTemplates();
    }
}

TEST_F(KindsTest, EachDrawsItsChildrenWithItsOpacity)
{
    for (const Kind& kind : Kinds) {
        if (!kind.Parts)
            continue;

        Load(Markup(kind,
            "<Alpha>0.5</Alpha><Children><frame name='In'><BackgroundColor>ff0000aa</BackgroundColor>"
            "</frame></Children>"));
        Element("Q").Show(true);
        EXPECT_NE(std::string::npos, Frame().find("7f0000aa")) << kind.Word;
        g_UIManager.Reset();
    }
}

TEST_F(KindsTest, SomeAreMadeByCodeAlone)
{
    for (const Kind& kind : Kinds) {
        if (kind.Parts)
            continue;

        Load('<' + std::string(kind.Word) + " name='Q'/>");
        EXPECT_FALSE(g_UIManager.FindElement("Q")) << kind.Word;
    }
}
