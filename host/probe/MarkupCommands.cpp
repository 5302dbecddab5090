// The commands that store templates and skins, and those that parse markup.

#include "host/probe/ProbeCommands.h"

#include "host/probe/ProbeSession.h"
#include "host/probe/ValueText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/markup/TeskSkin.h"
#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLDocument.h"
#include "teskara/markup/XMLNode.h"

namespace {

void Template(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(BoolText(g_UIManager.AddTemplate(call.Text(0).c_str(), call.Body().c_str()) != nullptr));
}

void TemplateRemove(ProbeSession&, const CommandCall& call)
{
    g_UIManager.RemoveTemplate(call.Text(0).c_str());
}

void TemplatesClear(ProbeSession&, const CommandCall&)
{
    g_UIManager.ClearTemplates();
}

std::string AttributesText(const XMLNode& node)
{
    std::string text;
    for (const XMLAttribute* attribute = node.Attributes; attribute; attribute = attribute->Next)
        text += ' ' + std::string(attribute->Name) + '=' + Quoted(attribute->Value);
    return text;
}

void FindTemplate(ProbeSession& session, const CommandCall& call)
{
    const XMLNode* node = g_UIManager.FindTemplate(call.Text(0).c_str());
    if (!node) {
        session.Output.Result("null");
        return;
    }

    std::string text = node->Name + AttributesText(*node) + " :";
    for (const XMLNode* child = node->FirstChild; child; child = child->Next) {
        if (child->Type == XMLElementNode)
            text += ' ' + std::string(child->Name);
    }
    session.Output.Result(text);
}

void SkinNew(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(BoolText(g_UIManager.NewSkin(call.Text(0).c_str()) != nullptr));
}

void SkinRemove(ProbeSession& session, const CommandCall& call)
{
    const char* name = call.Text(0).c_str();
    const bool known = g_UIManager.FindSkin(name) != nullptr;
    g_UIManager.RemoveSkin(name);
    session.Output.Result(BoolText(known));
}

void SkinMap(ProbeSession& session, const CommandCall& call)
{
    TeskSkin* skin = g_UIManager.FindSkin(call.Text(0).c_str());
    if (skin)
        skin->AddTemplate(call.Text(1).c_str(), call.Text(2).c_str());
    session.Output.Result(BoolText(skin != nullptr));
}

std::string NodeText(const XMLNode& node)
{
    switch (node.Type) {
    case XMLCommentNode:
        return "comment " + Quoted(node.Name);
    case XMLTextNode:
        return "text " + Quoted(node.Name);
    case XMLInstructionNode:
        return "instruction " + std::string(node.Name) + AttributesText(node);
    case XMLDoctypeNode:
        return "doctype " + std::string(node.Name) + AttributesText(node);
    default:
        return "element " + std::string(node.Name) + AttributesText(node);
    }
}

// A document may be nested as deep as the parser allows, so this does not recurse.
void PrintNodes(ProbeOutput& output, const XMLNode& root)
{
    std::size_t depth = 0;
    const XMLNode* node = root.FirstChild;
    while (node) {
        output.Result(std::string(depth * 2, ' ') + OnOneLine(NodeText(*node)));
        if (node->FirstChild) {
            node = node->FirstChild;
            ++depth;
            continue;
        }
        while (node != &root && !node->Next) {
            node = node->Parent;
            if (node != &root)
                --depth;
        }
        node = node == &root ? nullptr : node->Next;
    }
}

void PrintDocument(ProbeOutput& output, const XMLDocument& document, bool parsed)
{
    output.Result(BoolText(parsed));
    if (!parsed)
        output.Result("error " + Quoted(document.ErrorText));
    else if (document.Root)
        PrintNodes(output, *document.Root);
}

void Parse(ProbeSession& session, const CommandCall& call)
{
    XMLDocument document;
    const bool parsed = document.ParseBuffer(call.Body().c_str(), call.Body().size());
    PrintDocument(session.Output, document, parsed);
}

void ParseFile(ProbeSession& session, const CommandCall& call)
{
    XMLDocument document;
    const bool parsed = document.ParseFile(session.Files.PathOf(call.Text(0)).c_str());
    PrintDocument(session.Output, document, parsed);
}

constexpr ProbeCommand Commands[] = {
    {"template", "NAME <<", 1, 1, CommandForm::Words, Template},
    {"template-remove", "NAME", 1, 1, CommandForm::Words, TemplateRemove},
    {"templates-clear", "", 0, 0, CommandForm::Words, TemplatesClear},
    {"find-template", "NAME", 1, 1, CommandForm::Words, FindTemplate},
    {"skin-new", "NAME", 1, 1, CommandForm::Words, SkinNew},
    {"skin-remove", "NAME", 1, 1, CommandForm::Words, SkinRemove},
    {"skin-map", "NAME BASE SKINNED", 3, 3, CommandForm::Words, SkinMap},
    {"parse", "<<", 0, 0, CommandForm::Words, Parse},
    {"parse-file", "NAME", 1, 1, CommandForm::Words, ParseFile},
};

} // namespace

std::span<const ProbeCommand> MarkupCommands()
{
    return Commands;
}
