#include "host/lint/LintModel.h"

#include "host/lint/LintName.h"
#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLHelper.h"

#include <algorithm>

namespace host {

namespace {

constexpr const char* TemplateShape = "template element";
constexpr const char* ElementShape = "element";

bool IsElement(const XMLNode* node)
{
    return node->Type == XMLElementNode;
}

bool HasTag(const XMLNode* node, const char* tag)
{
    return IsElement(node) && IsSameName(node->Name, tag);
}

// Whether a value is read where it stands: some are only read from a template.
bool IsReadIn(const XMLNode* node, const SchemaValue& value)
{
    const bool isForTemplates =
        value.Place == SchemaPlace::TemplateChild || value.Place == SchemaPlace::AttributeOfTemplate;
    return !isForTemplates || HasTag(node, "Template");
}

const char* AttributeOf(XMLNode* node, const char* name)
{
    return XMLHelper::GetStringAttribute(node, name, "");
}

} // namespace

LintModel::LintModel(const Schema& schema, const std::vector<const LintFile*>& files, const LintSkin& skin)
    : m_Schema(schema), m_Files(files), m_Skin(skin), m_Templates(skin.Files), m_InFiles(files.size())
{
    for (std::size_t file = 0; file < m_Files.size(); ++file)
        m_Templates.Add(file, MarkupOf(file));
    for (std::size_t file = 0; file < m_Files.size(); ++file)
        CollectSkins(file, skin.Name);
    ReadKindTemplates();
    for (std::size_t file = 0; file < m_Files.size(); ++file)
        ReadFile(file);
    ReadUsed();
    ReadUnusedTemplates();
    for (std::size_t file = 0; file < m_Files.size(); ++file) {
        if (XMLNode* markup = MarkupOf(file))
            Collect(markup, m_InFiles[file]);
    }
}

// A skin has the lines of its template, then its own, which win.
void LintModel::CollectSkins(std::size_t file, const std::string& current)
{
    XMLNode* markup = MarkupOf(file);
    for (XMLNode* node = markup ? markup->FirstChild : nullptr; node; node = node->Next) {
        if (!HasTag(node, "Skin"))
            continue;
        const bool isCurrent = !current.empty() && IsSameName(AttributeOf(node, "name"), current);
        for (const LintTemplate& each : m_Templates.Named(AttributeOf(node, "Template")))
            CollectSkinLines(each.Node, isCurrent);
        CollectSkinLines(node, isCurrent);
    }
}

void LintModel::CollectSkinLines(XMLNode* lines, bool isCurrent)
{
    for (XMLNode* line = lines->FirstChild; line; line = line->Next) {
        const std::string base = HasTag(line, "SkinTemplate") ? AttributeOf(line, "Base") : "";
        const std::string skinned = SkinnedNameOf(line);
        if (base.empty() || skinned.empty())
            continue;
        m_Skinned.emplace(FoldedName(base), skinned);
        if (isCurrent)
            m_Templates.Redirect(base, skinned);
    }
}

// A kind without a template of its own takes that of its name.
void LintModel::ReadKindTemplates()
{
    for (const SchemaShape& shape : m_Schema.Shapes) {
        if (shape.IsKind())
            Use(shape.Name, shape);
    }
    if (const SchemaShape* font = m_Schema.FindShape("font"))
        Use(LintTemplates::DefaultFont, *font);
}

void LintModel::ReadFile(std::size_t file)
{
    XMLNode* markup = MarkupOf(file);
    if (!markup)
        return;

    m_Shapes[markup].push_back(m_Schema.FindShape("interface"));
    for (XMLNode* node = markup->FirstChild; node; node = node->Next) {
        const SchemaShape* skin = m_Schema.FindShape("skin");
        if (HasTag(node, "Skin") && skin)
            ReadInside(node, *skin);
        else if (HasTag(node, "Template"))
            m_Shapes[node];
        else if (IsElement(node))
            ReadElement(node);
    }
}

void LintModel::ReadUnusedTemplates()
{
    for (const auto& [name, templates] : m_Templates.All()) {
        for (const LintTemplate& each : templates) {
            ReadAttributes(each.Node, *m_Schema.FindShape(TemplateShape), "");
            if (m_Shapes[each.Node].empty())
                ReadLoosely(each.Node);
            ReadUsed();
        }
    }
}

void LintModel::ReadElement(XMLNode* node)
{
    const SchemaShape* shape = m_Schema.FindShape(node->Name);
    if (shape && !shape->IsKind())
        shape = nullptr;
    m_Elements.emplace(node, LintElement{node, shape});
    if (shape && shape->Use == SchemaUse::Element)
        ReadInside(node, *shape);
}

void LintModel::ReadInside(XMLNode* node, const SchemaShape& shape)
{
    std::vector<const SchemaShape*>& shapes = m_Shapes[node];
    if (std::find(shapes.begin(), shapes.end(), &shape) != shapes.end())
        return;

    shapes.push_back(&shape);
    ReadAttributes(node, shape, "");
    for (XMLNode* child = node->FirstChild; child; child = child->Next) {
        if (!IsElement(child))
            continue;
        const SchemaValue* value = m_Schema.FindChild(shape, child->Name);
        if (value && IsReadIn(node, *value))
            ReadValue(child, shape, *value);
        else if (!value && shape.Holds == ElementShape)
            ReadElement(child);
    }
}

void LintModel::ReadAttributes(XMLNode* node, const SchemaShape& shape, std::string_view owner)
{
    for (const XMLAttribute* attribute = node->Attributes; attribute; attribute = attribute->Next) {
        const SchemaValue* value = m_Schema.FindAttribute(shape, attribute->Name, owner);
        if (!value || !IsReadIn(node, *value))
            continue;
        m_Attributes[attribute] = value;
        if (owner.empty() && value->Form == "template" && *attribute->Value)
            Use(attribute->Value, shape);
    }
}

void LintModel::ReadValue(XMLNode* node, const SchemaShape& shape, const SchemaValue& value)
{
    m_Values.emplace(node, LintValue{node, nullptr, &shape, &value});
    ReadAttributes(node, shape, value.Name);
    const SchemaShape* inner = m_Schema.FindShape(value.Form);
    if (!inner)
        return;
    const char* text = XMLHelper::GetText(XMLHelper::GetFirstChild(node));
    if (value.Place == SchemaPlace::NamedChild)
        Use(text, *inner);
    ReadInside(node, *inner);
}

void LintModel::ReadTemplate(XMLNode* node, const SchemaShape& shape)
{
    ReadInside(node, shape);
    for (const std::string_view base : TemplateNamesIn(AttributeOf(node, "Template")))
        Use(base, shape);
}

void LintModel::Use(std::string_view name, const SchemaShape& shape)
{
    const auto [use, isNew] = m_Uses.emplace(FoldedName(name), &shape);
    if (isNew)
        m_Unread.push_back(*use);
}

void LintModel::ReadUsed()
{
    while (!m_Unread.empty()) {
        const auto [name, shape] = m_Unread.back();
        m_Unread.pop_back();
        for (const LintTemplate& each : m_Templates.Named(name))
            ReadTemplate(each.Node, *shape);
        const auto [first, last] = m_Skinned.equal_range(name);
        for (auto line = first; line != last; ++line)
            Use(line->second, *shape);
    }
}

void LintModel::ReadLoosely(XMLNode* node)
{
    for (XMLNode* child = node->FirstChild; child; child = child->Next) {
        for (const SchemaShape& shape : m_Schema.Shapes) {
            const SchemaValue* value = IsElement(child) ? m_Schema.FindChild(shape, child->Name) : nullptr;
            if (!value)
                continue;
            ReadValue(child, shape, *value);
            break;
        }
    }
    for (const XMLAttribute* attribute = node->Attributes; attribute; attribute = attribute->Next) {
        for (const SchemaShape& shape : m_Schema.Shapes) {
            if (const SchemaValue* value = m_Schema.FindAttribute(shape, attribute->Name, ""))
                m_Attributes.emplace(attribute, value);
        }
    }
}

// The shape in which the inside of a node was read.
const SchemaShape* LintModel::ShapeAround(XMLNode* node) const
{
    const auto found = m_Shapes.find(node);
    return found == m_Shapes.end() || found->second.empty() ? m_Schema.FindShape(TemplateShape) : found->second.front();
}

void LintModel::Collect(XMLNode* node, InFile& in) const
{
    const bool isFile = IsSameName(node->Name, m_Schema.RootTag);
    for (XMLNode* child = node->FirstChild; child; child = child->Next) {
        if (!IsElement(child))
            continue;
        const auto element = m_Elements.find(child);
        const auto value = m_Values.find(child);
        if (element != m_Elements.end())
            in.Elements.push_back(element->second);
        else if (value != m_Values.end())
            in.Values.push_back(value->second);
        else if (!isFile)
            in.Values.push_back({child, nullptr, ShapeAround(node), nullptr});
        CollectAttributes(child, in);
        if (m_Shapes.contains(child))
            Collect(child, in);
    }
}

// What an element has that is of no kind, or a tag that nobody reads, is not looked at.
void LintModel::CollectAttributes(XMLNode* node, InFile& in) const
{
    const bool isRead = m_Shapes.contains(node) || m_Values.contains(node);
    for (const XMLAttribute* attribute = node->Attributes; isRead && attribute; attribute = attribute->Next) {
        const auto value = m_Attributes.find(attribute);
        in.Values.push_back(
            {node, attribute, ShapeAround(node), value == m_Attributes.end() ? nullptr : value->second});
    }
}

XMLNode* LintModel::FindValue(const LintElement& element, const char* tag, std::size_t file) const
{
    return m_Templates.FindValue(element.Node, tag, element.Shape ? element.Shape->Name : "", file);
}

std::vector<const SchemaShape*> LintModel::ShapesOf(const XMLNode* node) const
{
    const auto found = m_Shapes.find(node);
    return found == m_Shapes.end() ? std::vector<const SchemaShape*>() : found->second;
}

bool LintModel::IsKind(const SchemaShape* shape, std::string_view kind) const
{
    while (shape && !IsSameName(shape->Name, kind))
        shape = m_Schema.FindShape(shape->Base);
    return shape != nullptr;
}

} // namespace host
