#include "tests/fuzz/ElementStock.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/script/Schema.h"
#include "tests/fuzz/ModelCheck.h"

#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

namespace {

// So deep do shapes stand in shapes.
constexpr int Depth = 3;

struct FormTexts {
    const char* Form;
    const char* Ordinary;
    const char* Extreme;
};

constexpr FormTexts Forms[] = {
    {"integer", "5", "-2147483649"},
    {"hex", "80ff8000", "-1"},
    {"float", "0.5", "nan"},
    {"toggle", "1", "x"},
    {"string", "in", "\x07r%s%n"},
    {"sequence", "a ${x} b", "${x}${y}\n\n\x07#"},
    {"variable", "n", ""},
    {"position", "25%", "r4294967295"},
    {"template", "all", "none"},
    {"templates", "all", "all,none,all,"},
    {"file", "#fill", ""},
    {"script", "1", ""},
};

enum class Look { Ordinary, Extreme, Bare };

std::string Tag(const std::string& name, const std::string& attributes, const std::string& inside)
{
    return "<" + name + attributes + (inside.empty() ? "/>" : ">" + inside + "</" + name + ">");
}

// Writes elements as a schema says that they may be.
class StockWriter
{
public:
    explicit StockWriter(Look look) : m_Look(look) { }

    std::string WriteKinds() const
    {
        std::string text;
        for (const SchemaShape& shape : m_Schema.Shapes) {
            if (shape.IsKind() && g_UIManager.FindFactory(shape.Name.c_str()))
                text += Tag(shape.Name, "", m_Look == Look::Bare ? "" : Inside(shape, Depth));
        }
        return text;
    }

private:
    // Sizes that can be seen stand in front, where they count.
    std::string Inside(const SchemaShape& shape, int depth) const
    {
        std::string text;
        if (m_Look == Look::Ordinary)
            text = "<X>5</X><Width>60</Width><Height>60</Height>";
        for (const SchemaValue* value : m_Schema.ValuesOf(shape)) {
            if (!value->IsAttribute())
                text += Value(*value, Attributes(shape, value->Name), depth);
        }
        return text;
    }

    std::string Attributes(const SchemaShape& shape, std::string_view owner) const
    {
        std::string text;
        for (const SchemaValue* value : m_Schema.ValuesOf(shape)) {
            if (value->IsAttribute() && value->Owner == owner && value->Name != "name" && value->Name != "Template")
                text += ' ' + value->Name + "=\"" + Text(*value) + '"';
        }
        return text;
    }

    std::string Value(const SchemaValue& value, const std::string& attributes, int depth) const
    {
        const SchemaShape* const shape = m_Schema.FindShape(value.Form);
        if (!shape)
            return Tag(value.Name, attributes, Text(value));
        if (depth == 0)
            return {};
        return Tag(value.Name, attributes + Attributes(*shape, ""), Inside(*shape, depth - 1));
    }

    std::string Text(const SchemaValue& value) const
    {
        if (!value.Words.empty())
            return m_Look == Look::Ordinary ? value.Words.back() : value.Words.front();
        for (const FormTexts& form : Forms) {
            if (value.Form == form.Form)
                return m_Look == Look::Ordinary ? form.Ordinary : form.Extreme;
        }
        return {};
    }

    Schema m_Schema;
    Look m_Look;
};

} // namespace

ElementStock::ElementStock()
{
    std::string text = "<Tesk>";
    for (const Look look : {Look::Ordinary, Look::Extreme, Look::Bare})
        text += StockWriter(look).WriteKinds();
    text += "</Tesk>";
    Require(m_Document.ParseBuffer(text.c_str(), text.size()), "the stock is no markup");
    for (XMLNode* node = m_Document.Root->FirstChild->FirstChild; node; node = node->Next)
        m_Elements.push_back(node);
}

TeskElement* ElementStock::Make(u8 number, const char* name) const
{
    XMLNode* const node = m_Elements[number % m_Elements.size()];
    g_UIManager.LoadElement(g_UIManager.Screen, node->Name, name, node, nullptr);
    return g_UIManager.FindElement(name); // a window gives its client back
}
