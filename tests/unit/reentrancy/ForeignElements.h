#pragma once

#include "teskara/element/TeskElement.h"

// A kind that is not the toolkit's, which calls out from its own operations.
class ForeignElement : public TeskElement
{
public:
    using TeskElement::TeskElement;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    void SizeRecalculated(bool changed) override;
    void Render() override;
    bool OnLMouseDoubleClick(_Point2i& point) override;
    void OnLMouseDownOther(TeskElement* taker) override;
    void OnCreate() override;
    void OnDestroy() override;

private:
    void Reach(const char* place) const;
};

// The parent of the element under test: hears what it tells.
class ListeningElement : public TeskElement
{
public:
    using TeskElement::TeskElement;

    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override;
};
