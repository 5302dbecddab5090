#include "teskara/script/UIElementCommand.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Messages.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/script/Arguments.h"

#include <vector>

namespace {

void Kill(TeskElement& element)
{
    if (element.Parent)
        element.Parent->DeleteChild(&element);
}

void Hide(TeskElement& element)
{
    element.Show(false);
}

void Show(TeskElement& element)
{
    element.Show(true);
}

void Toggle(TeskElement& element)
{
    element.Show(!element.Visible);
}

// A flag that acts on the element named behind it.
struct ElementFlag {
    const char* Word;
    const char* Syntax;
    void (*Act)(TeskElement& element);
};

constexpr ElementFlag ElementFlags[] = {
    {"-kill", Messages::KillSyntax, Kill},
    {"-hide", Messages::HideSyntax, Hide},
    {"-show", Messages::ShowSyntax, Show},
    {"-toggle", Messages::ToggleSyntax, Toggle},
};

// From the bottom to the top. Printing a line may run scripts, so the elements are noted before the first one.
void ListTopLevelElements()
{
    std::vector<u32> ids;
    for (const TeskElement* child = g_UIManager.Screen ? g_UIManager.Screen->FirstChild : nullptr; child;
         child = child->Next)
        ids.push_back(child->ID);

    Host::PrintLine(Messages::ElementListHead);
    for (const u32 id : ids) {
        if (const TeskElement* element = g_UIManager.FindElementByID(id)) {
            Host::PrintLine(Messages::ElementListLine, element->Type.c_str(), element->Name.c_str(),
                element->Visible ? "Shown" : "Hidden");
        }
    }
}

void ActOnElement(const ElementFlag& flag, const Arguments& arguments)
{
    if (!arguments.Has(2)) {
        Host::PrintLine(flag.Syntax, arguments.Text(0));
        return;
    }

    TeskElement* element = g_UIManager.FindElement(arguments.Text(2));
    if (element)
        flag.Act(*element);
    else
        Host::PrintLine(Messages::NoElement, arguments.Text(2));
}

} // namespace

int RunUIElementCommand(const Arguments& arguments)
{
    if (arguments.IsWord(1, "-list")) {
        ListTopLevelElements();
        return 0;
    }

    for (const ElementFlag& flag : ElementFlags) {
        if (arguments.IsWord(1, flag.Word)) {
            ActOnElement(flag, arguments);
            return 0;
        }
    }
    Host::PrintLine(Messages::UIElementSyntax, arguments.Text(0));
    return 0;
}
