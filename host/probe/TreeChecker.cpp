#include "host/probe/TreeChecker.h"

#include "host/probe/ValueText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"

#include <unordered_set>

namespace {

class TreeCheck
{
public:
    std::optional<std::string> Run()
    {
        if (g_UIManager.Screen)
            CheckElement(*g_UIManager.Screen, nullptr);
        CheckIds();
        CheckNames();
        for (const u32 id : {g_UIManager.FocusElementID, g_UIManager.MouseOverElementID, g_UIManager.LeftPressElementID,
                 g_UIManager.RightPressElementID, g_UIManager.MouseCaptureElementID, g_UIManager.TooltipElementID})
            Require(id < g_UIManager.NextElementID, "the manager holds an id that was never given", nullptr);
        return m_Fault;
    }

private:
    // Costs nothing while all is well: programs check after each of very many steps.
    void Require(bool holds, const char* fault, const TeskElement* element)
    {
        if (!holds)
            Blame(fault, element);
    }

    void Blame(const std::string& fault, const TeskElement* element)
    {
        if (!m_Fault)
            m_Fault = element ? fault + ": " + ElementText(element) : fault;
    }

    // A broken list could be endless, so a check ends at the first fault.
    void CheckElement(const TeskElement& element, const TeskElement* parent)
    {
        Require(m_InTree.insert(&element).second, "an element stands twice in the tree", &element);
        Require(element.Parent == parent, "a child names another parent", &element);
        const auto byId = g_UIManager.ElementsByID.find(element.ID);
        Require(byId != g_UIManager.ElementsByID.end() && byId->second == &element,
            "the id of an element in the tree does not lead to it", &element);
        CheckChildren(element);
    }

    void CheckChildren(const TeskElement& element)
    {
        Require((element.FirstChild == nullptr) == (element.LastChild == nullptr),
            "a list of children has one end only", &element);
        const TeskElement* previous = nullptr;
        for (const TeskElement* child = element.FirstChild; child && !m_Fault; child = child->Next) {
            Require(child->Previous == previous, "a child names another previous one", child);
            CheckElement(*child, &element);
            previous = child;
        }
        Require(m_Fault || element.LastChild == previous, "the last child is not the end of the list", &element);
    }

    void CheckIds()
    {
        for (const auto& [id, element] : g_UIManager.ElementsByID) {
            if (!element || m_Fault)
                continue;
            m_Known.insert(element);
            Require(element->ID == id, "an id leads to an element of another id", element);
            Require(id < g_UIManager.NextElementID, "an element has an id that was never given", element);
            Require(m_InTree.contains(element) || IsBeyondDeletion(*element),
                "an element is known by id and not in the tree", element);
        }
    }

    void CheckNames()
    {
        for (const auto& [name, element] : g_UIManager.ElementsByName) {
            if (!element || m_Fault)
                continue;
            if (!m_Known.contains(element))
                Blame("the name " + Quoted(name.Text()) + " leads to a dead element", nullptr);
            else
                Require(
                    SameWord(name.Text(), element->FullName), "a name leads to an element of another name", element);
        }
    }

    // Elements whose kind has no factory cannot be deleted: they live on outside the tree, with all that is below them.
    bool IsBeyondDeletion(const TeskElement& element) const
    {
        for (const TeskElement* above = &element; above; above = above->Parent) {
            if (m_InTree.contains(above))
                return above != &element && !IsListed(element);
            if (!g_UIManager.FindFactory(above->Type.c_str()) || !above->Parent)
                return true;
        }
        return false;
    }

    static bool IsListed(const TeskElement& element)
    {
        return element.Previous || element.Next
            || (element.Parent && (element.Parent->FirstChild == &element || element.Parent->LastChild == &element));
    }

    std::unordered_set<const TeskElement*> m_InTree;
    std::unordered_set<const TeskElement*> m_Known;
    std::optional<std::string> m_Fault;
};

} // namespace

std::optional<std::string> FindTreeFault()
{
    return TreeCheck().Run();
}
