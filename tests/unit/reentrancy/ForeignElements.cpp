#include "tests/unit/reentrancy/ForeignElements.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElementFactory.h"
#include "tests/unit/reentrancy/Bomb.h"

#include <memory>
#include <string>

namespace {

// Those of the elements under test end first.
struct ForeignKinds {
    TeskFactory<ListeningElement> Listeners{"listening"};
    TeskFactory<ForeignFrame> Frames{"foreignframe"};
    TeskFactory<ForeignText> Texts{"foreigntext"};
    TeskFactory<ForeignElement> Elements{"foreign"};
};

std::unique_ptr<ForeignKinds> g_Kinds;

} // namespace

void BeginForeignKinds()
{
    if (!g_Kinds)
        g_Kinds = std::make_unique<ForeignKinds>();
}

void EndForeignKinds()
{
    g_Kinds.reset();
}

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

bool ForeignElement::OnKeyDown(unsigned int key)
{
    const ElementWatch self(*this);
    TeskElement::OnKeyDown(key);
    if (self.Exists())
        Reach("refused key");
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
    g_Bomb.Reach(Name == "self" ? std::string(place) : std::string(place) + " of the child");
}

TeskTexture* ForeignFrame::TextureFromXML(XMLNode* node, const char* tag, XMLNode* templateNode)
{
    TeskTexture* texture = TeskFrame::TextureFromXML(node, tag, templateNode);
    g_Bomb.Reach("TextureFromXML");
    return texture;
}

TeskEmbeddedScript* ForeignFrame::EmbeddedScriptFromXML(
    XMLNode* node, const char* tag, XMLNode* templateNode, const char* arguments)
{
    TeskEmbeddedScript* script = TeskFrame::EmbeddedScriptFromXML(node, tag, templateNode, arguments);
    g_Bomb.Reach("EmbeddedScriptFromXML");
    return script;
}

TeskFont* ForeignText::FontFromXML(XMLNode* node, const char* tag, XMLNode* templateNode)
{
    TeskFont* font = TeskText::FontFromXML(node, tag, templateNode);
    g_Bomb.Reach("FontFromXML");
    return font;
}

void ListeningElement::OnNotify(TeskElement* source, unsigned int code, unsigned long long value)
{
    const ElementWatch self(*this);
    g_Bomb.Reach("notification " + std::to_string(code));
    if (self.Exists())
        TeskElement::OnNotify(source, code, value);
}
