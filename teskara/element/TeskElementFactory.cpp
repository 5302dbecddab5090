#include "teskara/element/TeskElementFactory.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Limits.h"
#include "teskara/core/MarkupReading.h"
#include "teskara/core/Messages.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElement.h"

#include <algorithm>

void TeskElementDeleter::Delete(TeskElement* element)
{
    const ElementWatch self(*element);
    element->OnDestroy();
    if (!self.Exists())
        return;

    if (element->IsLinked())
        element->Detach();
    delete element;
}

TeskElementFactory::~TeskElementFactory()
{
    TearDown();
}

void TeskElementFactory::Register(const char* name, unsigned int version)
{
    if (version != TeskaraVersion) {
        Host::PrintLine(Messages::WrongVersion, TextOrEmpty(name));
        return;
    }

    m_Name = std::make_unique<utf8string>(TextOrEmpty(name));
    FoldAscii(*m_Name);
    g_UIManager.Factories[utf8stringnocase(*m_Name)] = this;
}

void TeskElementFactory::Unregister()
{
    if (!m_Name)
        return;

    const auto entry = g_UIManager.Factories.find(std::string_view(*m_Name));
    if (entry != g_UIManager.Factories.end() && entry->second == this)
        g_UIManager.Factories.erase(entry);
    m_Name.reset();
}

void TeskElementFactory::RemoveInstance(TeskElement* element)
{
    if (element->m_Maker == this)
        element->m_Maker = nullptr;
}

// One deletion may take others of the kind with it, so each is looked up when its turn comes. Scripts that run meanwhile
// make no new ones: those would be left when the code of the kind is gone.
void TeskElementFactory::TearDown()
{
    m_Ending = true;
    if (m_Name) {
        for (const u32 id : Instances()) {
            if (TeskElement* element = g_UIManager.FindElementByID(id))
                EndInstance(*element);
            if (TeskElement* left = g_UIManager.FindElementByID(id))
                TeskElementFactory::RemoveInstance(left); // it lives, so nobody else is told
        }
    }
    Unregister();
}

// The ids of all that live, oldest first.
std::vector<u32> TeskElementFactory::Instances() const
{
    std::vector<u32> ids;
    for (const auto& [id, element] : g_UIManager.ElementsByID) {
        if (element->m_Maker == this)
            ids.push_back(id);
    }
    std::sort(ids.begin(), ids.end());
    return ids;
}

// The element hears OnDestroy twice: here, and when it is deleted. One that outlived its parent is deleted all the same:
// the code of its kind may be gone afterwards.
void TeskElementFactory::EndInstance(TeskElement& element)
{
    const ElementWatch watch(element);
    element.OnDestroy();
    if (!watch.Exists())
        return;

    if (element.Parent)
        element.Parent->DeleteChild(&element);
    else
        element.Delete();
}

bool TeskElementFactory::MayCreateUnder(TeskElement* parent)
{
    if (g_UIManager.IsTearingDown())
        return false;

    return !parent || (!parent->IsGoing() && parent->Depth < Limits::ElementDepth);
}

TeskElement* TeskElementFactory::Enter(TeskElement* element)
{
    if (element)
        element->m_Maker = this;
    return element;
}

TeskElement* TeskElementFactory::ReadAndEnter(TeskElement* element, XMLNode* node, const char* templateName)
{
    if (!element)
        return nullptr;

    const MarkupReading reading;
    const ElementWatch watch(*element);
    const bool read = element->FromXML(node, g_UIManager.FindTemplate(templateName));
    if (!watch.Exists())
        return nullptr;
    if (read)
        return Enter(element);

    if (element->Parent)
        element->Parent->DeleteChild(element);
    else
        m_Deleter.Delete(element);
    return nullptr;
}
