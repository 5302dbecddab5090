// Scripts may hand anything to any member and method. What comes back is a value, a failure or "unknown", and the tree
// is whole.

#include "host/probe/TreeChecker.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/script/ScriptTable.h"
#include "teskara/script/ToolkitType.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

const std::string LongText(5000, 'x');

// Numbers beyond their ranges, texts that are none, markup that is broken, names that nobody has.
const char* const Texts[] = {"", " ", "0", "-1", "2147483648", "-2147483649", "4294967296", "99999999999999999999",
    "1e39", "nan", "-inf", "0x7fffffff", "ff00ff00", "%s%n", "${x}", "\x07", "\xff\xfe", "<", "<frame/>", "<a><b></a>",
    "<T Filename='#fill'/>", "Asked", "frame", "nobody", "alwaysontop", LongText.c_str()};

constexpr const char* Kinds[] = {
    "frame", "text", "button", "checkbox", "commandbutton", "commandcheckbox", "hudelement", "tooltip"};

// The parts of an element that scripts can reach, and the element itself.
constexpr const char* Parts[] = {"", "Font", "Texture"};

constexpr char Markup[] = "<T><Font><Name>Sans</Name><Size>12</Size></Font><Texture Filename='#camera'/>"
                          "<Text>${x}</Text><Children><frame name='Child'/></Children></T>";

// All names of a type and its bases.
std::vector<std::string> NamesOf(
    MvTypeDefinition* type, void (ToolkitType::*visit)(const ToolkitType::RowVisitor&) const)
{
    std::vector<std::string> names = {"", "Nonsense", "destroy"};
    for (; type; type = type->GetBase())
        (dynamic_cast<ToolkitType&>(*type).*visit)([&](const ScriptRow& row) { names.push_back(row.Name); });
    return names;
}

TeskElement& MakeAsked(const char* kind)
{
    if (TeskElement* old = g_UIManager.FindElement("Asked"))
        g_UIManager.Screen->DeleteChild(old);
    EXPECT_TRUE(ScriptObject(*g_UIManager.Screen).Do("AddChild", {kind, "Asked", Markup}));
    return *g_UIManager.FindElement("Asked");
}

// The texts from a place in the table on, round and round.
std::vector<const char*> TextsFrom(std::size_t place, std::size_t count)
{
    std::vector<const char*> texts;
    for (std::size_t index = 0; index < count; ++index)
        texts.push_back(Texts[(place + index * 7) % std::size(Texts)]);
    return texts;
}

// Calls ask with every text in front, and with some more behind it.
template <class Ask> void WithAllTexts(const char* kind, const char* part, Ask ask)
{
    for (std::size_t place = 0; place < std::size(Texts); ++place) {
        for (const std::size_t count : {1u, 2u, 4u}) {
            const ScriptObject element(MakeAsked(kind));
            ask(*part ? element.Follow(part) : element, TextsFrom(place, count));
        }
    }
}

void AskEveryName(const char* kind, const char* part)
{
    const ScriptObject element(MakeAsked(kind));
    const std::string found = *part ? element.Get(part) : "element";
    if (found == "unknown" || found == "failed")
        return;

    MvTypeDefinition& type = *part ? element.Follow(part).Type() : element.Type();
    for (const std::string& name : NamesOf(&type, &ToolkitType::VisitMembers)) {
        SCOPED_TRACE(std::string(kind) + " " + part + "." + name);
        WithAllTexts(kind, part, [&](const ScriptObject& object, const std::vector<const char*>& texts) {
            object.Get(name.c_str(), texts);
        });
        EXPECT_EQ(std::nullopt, FindTreeFault());
    }
    for (const std::string& name : NamesOf(&type, &ToolkitType::VisitMethods)) {
        SCOPED_TRACE(std::string(kind) + " " + part + "." + name);
        WithAllTexts(kind, part, [&](const ScriptObject& object, const std::vector<const char*>& texts) {
            object.Do(name.c_str(), texts);
            g_UIManager.Render();
        });
        EXPECT_EQ(std::nullopt, FindTreeFault());
    }
}

} // namespace

TEST(HostileArgumentsDeathTest, AnyNameStandsAnyTexts)
{
    for (const char* kind : Kinds) {
        WithToolkit([kind](ScriptHost& host) {
            host.Recorded = 0;
            for (const char* part : Parts)
                AskEveryName(kind, part);
        });
    }
}
