#include "teskara/script/Schema.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/markup/MarkupQuestions.h"
#include "teskara/markup/XMLHelper.h"
#include "teskara/markup/XMLNode.h"
#include "teskara/script/MvTypeDefinition.h"
#include "tests/unit/ToolkitTest.h"

#include <algorithm>
#include <set>

namespace {

// What stands in a value of a plain form.
std::string ContentOf(const SchemaValue& value)
{
    if (value.Form == "toggle")
        return "";
    if (value.Form == "word")
        return value.Words.front();
    return "1";
}

// Asks of a schema what it would say of live markup.
class SchemaTest : public ToolkitTest
{
protected:
    SchemaTest()
    {
        s_Test = this;
        MarkupQuestions::g_Listener = [](const MarkupQuestions::Question& question) { s_Test->Hear(question); };
    }

    ~SchemaTest() override { MarkupQuestions::g_Listener = nullptr; }

    // An element with every value that it may have. Attributes of what is asked of templates only are left out.
    std::string MarkupFor(const SchemaShape& shape, const std::string& tag, const std::string& attributes) const
    {
        std::string start = "<" + tag + attributes;
        std::string content;
        for (const SchemaValue* value : m_Schema.ValuesOf(shape)) {
            if (value->Place == SchemaPlace::Attribute && value->Owner.empty() && !IsOfLoader(value->Name))
                start += " " + value->Name + "='" + AttributeText(*value) + "'";
            else if (!value->IsAttribute() && value->Place != SchemaPlace::TemplateChild)
                content += ChildMarkup(shape, *value);
        }
        if (shape.Holds == "element")
            content += "<frame name='Held'/>";
        return start + ">" + content + "</" + tag + ">";
    }

    std::string ChildMarkup(const SchemaShape& shape, const SchemaValue& value) const
    {
        const SchemaShape* inside = m_Schema.FindShape(value.Form);
        if (inside)
            return MarkupFor(*inside, value.Name, inside->IsKind() ? " name='Part'" : "");

        std::string attributes;
        for (const SchemaValue* other : m_Schema.ValuesOf(shape)) {
            if (other->IsAttribute() && other->Owner == value.Name)
                attributes += " " + other->Name + "='1'";
        }
        return "<" + value.Name + attributes + ">" + ContentOf(value) + "</" + value.Name + ">";
    }

    static std::string AttributeText(const SchemaValue& value) { return value.Form == "file" ? "#fill" : "1"; }

    static bool IsOfLoader(std::string_view name) { return name == "name" || name == "Template"; }

    // The shape of a node by its way from the file on; null: it is in none, as with parts of templates.
    const SchemaShape* ShapeOf(XMLNode* node) const
    {
        const std::string tag = XMLHelper::GetText(node);
        XMLNode* parent = XMLHelper::GetParent(node);
        if (!parent || tag == m_Schema.RootTag)
            return tag == m_Schema.RootTag ? m_Schema.FindShape("interface") : nullptr;

        const SchemaShape* around = ShapeOf(parent);
        if (!around)
            return nullptr;
        if (const SchemaValue* value = m_Schema.FindChild(*around, tag))
            return m_Schema.FindShape(value->Form);
        return around->Holds == "element" ? m_Schema.FindShape(tag) : nullptr;
    }

    // The shape that tells of the attributes of a value: that of the element around it.
    bool IsToldByOwner(const MarkupQuestions::Question& question) const
    {
        const SchemaShape* around = ShapeOf(XMLHelper::GetParent(question.Node));
        return around && m_Schema.FindAttribute(*around, question.Name, XMLHelper::GetText(question.Node));
    }

    void Hear(const MarkupQuestions::Question& question)
    {
        const SchemaShape* shape = ShapeOf(question.Node);
        if (!shape) {
            if (XMLHelper::GetParent(question.Node) && question.OfAttribute && !IsToldByOwner(question))
                m_Untold.insert(std::string(XMLHelper::GetText(question.Node)) + " @" + question.Name);
            return;
        }
        const SchemaValue* value = question.OfAttribute ? m_Schema.FindAttribute(*shape, question.Name, "")
                                                        : m_Schema.FindChild(*shape, question.Name);
        if (!value)
            m_Untold.insert(shape->Name + (question.OfAttribute ? " @" : " ") + question.Name);
        m_Asked.insert(shape->Name + (question.OfAttribute ? " @" : " ") + (value ? value->Name : ""));
    }

    const Schema m_Schema;
    std::set<std::string> m_Asked; // the names that the schema has, as "button Text" and "button @ColorMask"
    std::set<std::string> m_Untold; // those that it does not have

private:
    static inline SchemaTest* s_Test = nullptr;
};

} // namespace

// Readers of markup ask by the tables that the schema tells of, so that it cannot say less than they do.
TEST_F(SchemaTest, NothingIsAskedOfMarkupThatItDoesNotTellOf)
{
    for (const SchemaShape& shape : m_Schema.Shapes) {
        if (shape.Use == SchemaUse::Element)
            Load(MarkupFor(shape, shape.Name, " name='Whole " + shape.Name + "'"));
    }
    EXPECT_EQ(std::set<std::string>(), m_Untold);
}

// Nor more.
TEST_F(SchemaTest, EveryValueThatItTellsOfIsAskedFor)
{
    std::set<std::string> unasked;
    for (const SchemaShape& shape : m_Schema.Shapes) {
        if (shape.Use != SchemaUse::Element)
            continue;
        Load("<" + shape.Name + " name='Bare " + shape.Name + "'/>"); // asks what stands in for a part
        Load(MarkupFor(shape, shape.Name, " name='Whole " + shape.Name + "'"));
        for (const SchemaValue* value : m_Schema.ValuesOf(shape)) {
            const bool isOfTemplates =
                value->Place == SchemaPlace::TemplateChild || value->Place == SchemaPlace::AttributeOfTemplate;
            const std::string name = shape.Name + (value->IsAttribute() ? " @" : " ") + value->Name;
            if (!isOfTemplates && value->Owner.empty() && value->Form != "row" && !m_Asked.contains(name))
                unasked.insert(name);
        }
    }
    EXPECT_EQ(std::set<std::string>(), unasked);
}

TEST_F(SchemaTest, EveryFactoryHasAShape)
{
    for (const auto& [name, factory] : g_UIManager.Factories) {
        const SchemaShape* shape = m_Schema.FindShape(name);
        ASSERT_NE(nullptr, shape) << std::string_view(name);
        EXPECT_TRUE(shape->IsKind()) << std::string_view(name);
    }
    const auto kinds = std::count_if(
        m_Schema.Shapes.begin(), m_Schema.Shapes.end(), [](const SchemaShape& shape) { return shape.IsKind(); });
    EXPECT_EQ(g_UIManager.Factories.size(), static_cast<std::size_t>(kinds));
}

TEST_F(SchemaTest, ElementsAreOfTheTypeThatItNames)
{
    for (const SchemaShape& shape : m_Schema.Shapes) {
        if (!shape.IsKind())
            continue;
        TeskElement* element = g_UIManager.LoadElement(g_UIManager.Screen, shape.Name.c_str(), shape.Name.c_str());
        ASSERT_NE(nullptr, element) << shape.Name;
        ASSERT_NE(nullptr, element->GetMvType()) << shape.Name;
        const SchemaType* type = m_Schema.TypeOf(shape);
        ASSERT_NE(nullptr, type) << shape.Name;
        EXPECT_EQ(type->Name, element->GetMvType()->GetName()) << shape.Name;
    }
}

TEST_F(SchemaTest, EveryFormIsPlainOrAShape)
{
    const std::set<std::string> plain = {"integer", "hex", "float", "toggle", "string", "word", "sequence", "variable",
        "position", "template", "templates", "file", "script"};
    for (const SchemaShape& shape : m_Schema.Shapes) {
        for (const SchemaValue& value : shape.Values)
            EXPECT_TRUE(plain.contains(value.Form) || m_Schema.FindShape(value.Form)) << shape.Name << value.Name;
        EXPECT_TRUE(shape.Base.empty() || m_Schema.FindShape(shape.Base)) << shape.Name;
    }
}

TEST_F(SchemaTest, ValuesComeWithWhatTheirTableSays)
{
    const SchemaShape* button = m_Schema.FindShape("button");
    ASSERT_NE(nullptr, button);
    EXPECT_EQ("element", button->Base);
    const SchemaValue* text = m_Schema.FindChild(*button, "text");
    ASSERT_NE(nullptr, text);
    EXPECT_EQ("Text", text->Name);
    EXPECT_EQ("sequence", text->Form);
    const SchemaValue* click = m_Schema.FindChild(*button, "OnLeftClick");
    ASSERT_NE(nullptr, click);
    EXPECT_TRUE(click->IsEvent);
    EXPECT_EQ("int X, int Y", click->Arguments);
    EXPECT_EQ("1.0", m_Schema.FindChild(*button, "Alpha")->Default);
    EXPECT_EQ("00000000", m_Schema.FindChild(*button, "BackgroundColor")->Default);
    EXPECT_EQ(nullptr, m_Schema.FindChild(*button, "ColorMask"));
    ASSERT_NE(nullptr, m_Schema.FindAttribute(*button, "ColorMask", ""));

    const SchemaShape* list = m_Schema.FindShape("listbox");
    ASSERT_NE(nullptr, list);
    const std::vector<std::string> words = {"none", "user", "text", "value", "custom", "textreverse", "valuereverse"};
    EXPECT_EQ(words, m_Schema.FindChild(*list, "Sort")->Words);
}

TEST_F(SchemaTest, TypesComeWithTheirBasesAndNames)
{
    EXPECT_EQ(27u, m_Schema.Types.size());
    const SchemaType* combo = m_Schema.FindType("teskcombobox");
    ASSERT_NE(nullptr, combo);
    EXPECT_EQ("tesklistbox", combo->Base);
    const SchemaType* element = m_Schema.FindType("teskelement");
    ASSERT_NE(nullptr, element);
    const auto child = std::find_if(element->Members.begin(), element->Members.end(),
        [](const SchemaName& member) { return member.Name == "FindChild"; });
    ASSERT_NE(element->Members.end(), child);
    EXPECT_EQ(1, child->Needs);
    EXPECT_FALSE(element->Methods.empty());
}

TEST_F(SchemaTest, TellsOfWhatStandsAtTheTop)
{
    EXPECT_EQ((std::vector<std::string>{"UIElement", "UserInput", "Teskara"}), m_Schema.Objects);
    EXPECT_EQ((std::vector<std::string>{"UI", "UIElement", "MessageBox", "InputBox"}), m_Schema.Commands);
    ASSERT_EQ(16u, m_Schema.Notifications.size());
    EXPECT_EQ("NotifyChildGoing", m_Schema.Notifications.back().Name);
    EXPECT_EQ(51u, m_Schema.Notifications.back().Code);
    EXPECT_EQ("Tesk", m_Schema.RootTag);
    EXPECT_EQ(1, std::count(m_Schema.Messages.begin(), m_Schema.Messages.end(), "Could not load interface file '%s'"));
}
