#include "host/schema/SchemaJson.h"
#include "host/schema/SchemaNotes.h"
#include "host/schema/SchemaPages.h"
#include "host/schema/SchemaXsd.h"
#include "teskara/script/Schema.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

const std::string& PageAt(const std::vector<host::SchemaPage>& pages, std::string_view path)
{
    static const std::string none;
    const auto page =
        std::find_if(pages.begin(), pages.end(), [path](const host::SchemaPage& each) { return each.Path == path; });
    return page == pages.end() ? none : page->Text;
}

bool Holds(const std::string& text, std::string_view part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST(SchemaNotes, EveryKindAndEveryValueHasALine)
{
    const Schema schema;
    for (const SchemaShape& shape : schema.Shapes) {
        EXPECT_FALSE(host::NoteOn(shape).empty()) << shape.Name;
        for (const SchemaValue& value : shape.Values) {
            EXPECT_FALSE(host::NoteOn(shape, value).empty()) << shape.Name << " " << value.Name;
        }
    }
}

TEST(SchemaNotes, NoLineIsOnWhatIsNotThere)
{
    EXPECT_EQ("", host::FirstStrayNote(Schema()));
}

TEST(SchemaPages, AKindLinksToItsBaseItsTypeAndTheShapesOfItsValues)
{
    const auto pages = host::WriteSchemaPages(Schema());
    const std::string& button = PageAt(pages, "kinds/button.md");
    EXPECT_TRUE(Holds(button, "[element](../kinds/element.md)"));
    EXPECT_TRUE(Holds(button, "[teskbutton](../types/teskbutton.md)"));
    EXPECT_TRUE(Holds(button, "| `Font` | [font](../values/font.md) |"));
    EXPECT_TRUE(Holds(PageAt(pages, "kinds/slider.md"), "| `OnChange` |  | The value changed. |"));
    EXPECT_TRUE(
        Holds(PageAt(pages, "types/teskelement.md"), "| `FindChild` | [teskelement](../types/teskelement.md) | 1 |"));
}

TEST(SchemaPages, EveryLinkLeadsToAPage)
{
    const auto pages = host::WriteSchemaPages(Schema());
    for (const host::SchemaPage& page : pages) {
        for (std::size_t at = page.Text.find("](../"); at != std::string::npos; at = page.Text.find("](../", at + 1)) {
            const std::size_t start = at + 5;
            const std::string path = page.Text.substr(start, page.Text.find(')', start) - start);
            EXPECT_NE("", PageAt(pages, path)) << page.Path << " " << path;
        }
    }
}

TEST(SchemaXsd, ValuesHaveTypes)
{
    const std::string xsd = host::WriteSchemaXsd(Schema());
    EXPECT_TRUE(Holds(xsd, "<xs:element name=\"Tesk\" type=\"interface\"/>"));
    EXPECT_TRUE(Holds(xsd, "<xs:element name=\"BackgroundColor\" type=\"hex\">"));
    EXPECT_TRUE(Holds(xsd, "<xs:element name=\"ScrollBar\" type=\"scrollbar-or-template\">"));
    EXPECT_TRUE(Holds(xsd, "<xs:enumeration value=\"textreverse\"/>"));
}

TEST(SchemaJson, IsOneObjectWithEverything)
{
    const std::string json = host::WriteSchemaJson(Schema());
    EXPECT_TRUE(json.starts_with("{\n"));
    EXPECT_TRUE(json.ends_with("}\n"));
    for (const char* part : {"\"root\"", "\"shapes\"", "\"types\"", "\"objects\"", "\"commands\"", "\"notifications\"",
             "\"messages\"", "\"arguments\": \"int X, int Y\""})
        EXPECT_TRUE(Holds(json, part)) << part;
}
