#pragma once

#include "teskara/controls/TeskFrame.h"
#include "teskara/controls/TeskText.h"
#include "teskara/element/TeskElement.h"

// A kind that is not the toolkit's, which calls out from its own operations: as the element under test, and as a child
// of it.
class ForeignElement : public TeskElement
{
public:
    using TeskElement::TeskElement;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    void SizeRecalculated(bool changed) override;
    void Render() override;
    bool OnLMouseDoubleClick(_Point2i& point) override;
    bool OnKeyDown(unsigned int key) override;
    void OnLMouseDownOther(TeskElement* taker) override;
    void OnCreate() override;
    void OnDestroy() override;

private:
    void Reach(const char* place) const;
};

// Kinds that derive from the toolkit's, and read some of their markup in their own way.
class ForeignFrame : public TeskFrame
{
public:
    using TeskFrame::TeskFrame;

    TeskTexture* TextureFromXML(XMLNode* node, const char* tag, XMLNode* templateNode) override;
    TeskEmbeddedScript* EmbeddedScriptFromXML(
        XMLNode* node, const char* tag, XMLNode* templateNode, const char* arguments) override;
};

class ForeignText : public TeskText
{
public:
    using TeskText::TeskText;

    TeskFont* FontFromXML(XMLNode* node, const char* tag, XMLNode* templateNode) override;
};

// The parent of the element under test: hears what it tells.
class ListeningElement : public TeskElement
{
public:
    using TeskElement::TeskElement;

    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override;
};

// The kinds above are there from the first to the second.
void BeginForeignKinds();
void EndForeignKinds();
