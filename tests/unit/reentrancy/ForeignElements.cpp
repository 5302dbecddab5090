#include "tests/unit/reentrancy/ForeignElements.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/ElementWatch.h"
#include "tests/unit/reentrancy/Bomb.h"

bool ForeignElement::FromXML(XMLNode* node, XMLNode* templateNode)
{
    const bool read = TeskElement::FromXML(node, templateNode);
    if (read)
        Reach("FromXML");
    return read;
}

void ForeignElement::SizeRecalculated(bool)
{
    Reach("SizeRecalculated");
}

void ForeignElement::Render()
{
    const ElementWatch self(*this);
    Reach("Render");
    if (self.Exists())
        TeskElement::Render();
}

// Runs its script and refuses all the same, so the press is offered a second time.
bool ForeignElement::OnLMouseDoubleClick(_Point2i& point)
{
    const ElementWatch self(*this);
    TeskElement::OnLMouseDoubleClick(point);
    if (self.Exists())
        Reach("refused double click");
    return false;
}

void ForeignElement::OnLMouseDownOther(TeskElement*)
{
    Reach("OnLMouseDownOther");
}

void ForeignElement::OnCreate()
{
    Reach("OnCreate");
}

void ForeignElement::OnDestroy()
{
    Reach("OnDestroy");
}

void ForeignElement::Reach(const char* place) const
{
    if (Name == "self")
        g_Bomb.Reach(place);
}

void ListeningElement::OnNotify(TeskElement* source, unsigned int code, unsigned long long value)
{
    const ElementWatch self(*this);
    g_Bomb.Reach("notification " + std::to_string(code));
    if (self.Exists())
        TeskElement::OnNotify(source, code, value);
}
