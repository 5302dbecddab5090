#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskFont.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/element/TeskTexture.h"
#include "teskara/script/ScriptTable.h"
#include "teskara/script/ToolkitType.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

const char* const Arguments7[] = {"1", "2", "3", "4", "5", "6", "7"};

std::vector<const char*> FirstArguments(int count)
{
    return {Arguments7, Arguments7 + count};
}

std::vector<ScriptRow> MembersOf(MvTypeDefinition& type)
{
    std::vector<ScriptRow> rows;
    dynamic_cast<ToolkitType&>(type).VisitMembers([&](const ScriptRow& row) { rows.push_back(row); });
    return rows;
}

std::vector<ScriptRow> MethodsOf(MvTypeDefinition& type)
{
    std::vector<ScriptRow> rows;
    dynamic_cast<ToolkitType&>(type).VisitMethods([&](const ScriptRow& row) { rows.push_back(row); });
    return rows;
}

} // namespace

TEST(TypeTablesDeathTest, EveryRowIsRegisteredUnderItsId)
{
    WithToolkit([](ScriptHost& host) {
        std::size_t rows = 0;
        for (const auto& [name, type] : host.Types) {
            for (const ScriptRow& row : MembersOf(*type)) {
                u32 id = 0;
                EXPECT_TRUE(type->GetMemberID(row.Name, id)) << name << '.' << row.Name;
                EXPECT_EQ(row.ID, id) << name << '.' << row.Name;
                ++rows;
            }
            for (const ScriptRow& row : MethodsOf(*type)) {
                u32 id = 0;
                EXPECT_TRUE(type->GetMethodID(row.Name, id)) << name << ':' << row.Name;
                EXPECT_EQ(row.ID, id) << name << ':' << row.Name;
                ++rows;
            }
        }
        EXPECT_GT(rows, 100u);
    });
}

TEST(TypeTablesDeathTest, NoRowAnswersForNoObject)
{
    WithToolkit([](ScriptHost& host) {
        for (const auto& [name, type] : host.Types) {
            const ScriptObject nobody(*type, nullptr);
            for (const ScriptRow& row : MembersOf(*type))
                EXPECT_EQ("failed", nobody.Get(row.Name, FirstArguments(7))) << name << '.' << row.Name;
            for (const ScriptRow& row : MethodsOf(*type))
                EXPECT_FALSE(nobody.Do(row.Name, FirstArguments(7))) << name << ':' << row.Name;

            char text[16] = "as it was";
            EXPECT_FALSE(type->ToText(nobody.Value(), text, sizeof(text))) << name;
            EXPECT_STREQ("as it was", text) << name;
        }
    });
}

// Each element is asked as what it is and as what it is not: the types of other kinds must not touch it.
TEST(TypeTablesDeathTest, EveryTypeOfElementsMayBeAskedOfEveryElement)
{
    WithToolkit([](ScriptHost& host) {
        for (const auto& [name, type] : host.Types) {
            if (name == "teskara" || name == "teskfont" || name == "tesktexture")
                continue;
            for (const char* kind : {"frame", "text"}) {
                for (const ScriptRow& row : MembersOf(*type)) {
                    TeskElement& element = MakeElement(kind, (std::string(kind) + row.Name).c_str());
                    for (int count = 0; count < 7; ++count)
                        ScriptObject(*type, &element).Get(row.Name, FirstArguments(count));
                    g_UIManager.Screen->DeleteChild(&element);
                }
                for (const ScriptRow& row : MethodsOf(*type)) {
                    for (int count = 0; count < 7; ++count) {
                        TeskElement& element = MakeElement(kind, (std::string(kind) + row.Name).c_str());
                        const u32 id = element.ID;
                        ScriptObject(*type, &element).Do(row.Name, FirstArguments(count));
                        if (TeskElement* left = g_UIManager.FindElementByID(id))
                            g_UIManager.Screen->DeleteChild(left);
                    }
                }
            }
        }
        EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
    });
}

TEST(TypeTablesDeathTest, ARowDoesNotAnswerWithTooFewArguments)
{
    WithToolkit([](ScriptHost& host) {
        TeskElement& frame = MakeElement("frame", "F");
        const ScriptObject object(host.Type("teskelement"), &frame);
        for (const ScriptRow& row : MembersOf(object.Type())) {
            for (int count = 0; count < row.Needs; ++count)
                EXPECT_EQ("failed", object.Get(row.Name, FirstArguments(count))) << row.Name << count;
        }
        for (const ScriptRow& row : MethodsOf(object.Type())) {
            for (int count = 0; count < row.Needs; ++count)
                EXPECT_FALSE(object.Do(row.Name, FirstArguments(count))) << row.Name << count;
        }
    });
}

TEST(TypeTablesDeathTest, AValueIsOfTheTypeThatTheRowSays)
{
    WithToolkit([](ScriptHost& host) {
        TeskElement& frame = MakeElement("frame", "F");
        MakeElement("text", "T", &frame);
        const ScriptObject object(host.Type("teskelement"), &frame);
        for (const ScriptRow& row : MembersOf(object.Type())) {
            _MvTypeVar result;
            const int answer = object.Type().DispatchMember(object.Value(), row.Name, 0, nullptr, result);
            if (answer != DispatchDone)
                continue;
            const std::string type = result.Type->GetName();
            EXPECT_EQ(row.Result, type == "teskelement" || type == "tesktext" ? "element" : type) << row.Name;
        }
    });
}

TEST(TypeTablesDeathTest, NothingIsAnsweredAtAHostWithoutTypes)
{
    WithHost([](ScriptHost& host) {
        host.HasTypes = false;
        g_UIManager.Initialize();
        const ScriptObject object(MakeElement("frame", "F"));
        EXPECT_EQ("failed", object.Get("Width"));
        EXPECT_EQ("failed", object.Get("Name"));
        EXPECT_EQ("failed", object.Get("Visible"));
        EXPECT_EQ("failed", object.Get("Alpha"));
        EXPECT_EQ("failed", object.Get("FadeDelay"));
        EXPECT_TRUE(object.Do("SetWidth", {"7"}));
        EXPECT_STREQ("teskelement", object.Follow("Parent").Type().GetName());
    });
}

TEST(TypeTablesDeathTest, ANameThatAHostAddsToATypeIsKnownAndFails)
{
    WithToolkit([](ScriptHost& host) {
        host.Type("teskframe").AddMember(77, "Extra", nullptr);
        host.Type("teskframe").AddMethod(77, "Extra", nullptr);
        const ScriptObject object(MakeElement("frame", "F"));
        EXPECT_EQ("failed", object.Get("Extra"));
        EXPECT_FALSE(object.Do("Extra"));
        EXPECT_EQ("unknown", object.Get("Extras"));
    });
}

TEST(TypeTablesDeathTest, AnElementAsTextIsItsNameCutToTheSize)
{
    WithToolkit([](ScriptHost& host) {
        TeskElement& inner = MakeElement("text", "Inner", &MakeElement("frame", "Outer"));
        char text[16] = "as it was";
        ScriptObject object(inner);
        EXPECT_TRUE(object.Type().ToText(object.Value(), text, sizeof(text)));
        EXPECT_STREQ("inner", text);
        EXPECT_TRUE(object.Type().ToText(object.Value(), text, 3));
        EXPECT_STREQ("in", text);
        EXPECT_TRUE(object.Type().ToText(object.Value(), text, 0));
        EXPECT_STREQ("in", text);
        EXPECT_FALSE(object.Type().ToText(object.Value(), nullptr, 16));
        EXPECT_TRUE(host.Type("teskelement").ToText(object.Value(), text, sizeof(text)));
        EXPECT_STREQ("inner", text);
    });
}

TEST(TypeTablesDeathTest, AHostThatThrowsWhenAskedForATypeGetsNothing)
{
    class Thrower : public TeskElement
    {
    public:
        using TeskElement::TeskElement;
        MvTypeDefinition* GetMvType() override { throw 1; }
        bool OnLMouseDown(_Point2i&) override { throw 2; }
    };

    WithToolkit([](ScriptHost& host) {
        const TeskFactory<Thrower> factory("thrower");
        TeskElement& thrower = MakeElement("thrower", "T");
        const ScriptObject screen(*g_UIManager.Screen);
        EXPECT_EQ("failed", screen.Get("Children"));
        EXPECT_FALSE(ScriptObject(host.Type("teskelement"), &thrower).Do("LeftClick"));
    });
}
