#pragma once

#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskFont.h"
#include "teskara/element/TeskPreParse.h"

#include <memory>

// A small text on the screen, with data sequences that are evaluated only every so many frames. The user drags it about
// while Alt is held; without Alt it lets presses pass.
class TESKARA_EXPORT TeskHudElement : public TeskElement
{
public:
    using TeskElement::TeskElement;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;
    bool OnLMouseUp(_Point2i& point) override;
    bool OnLMouseDown(_Point2i& point) override;
    bool OnMouseMove(_Point2i& point) override;
    MvTypeDefinition* GetMvType() override;

    // Evaluates Text anew. May run scripts, which may end the element. If one of them sets another text, that one's value
    // is kept.
    virtual void UpdateText();

    // Takes another text, and evaluates it; null is the empty one. May run scripts.
    virtual void SetText(const char* text);

    TeskPreParse Text;
    std::unique_ptr<utf8string> Group; // a word of scripts; null for none
    std::unique_ptr<TeskFont> Font;
    u32 UpdateInterval = 0; // frames; 0 is every frame, as is 1
    std::unique_ptr<utf8string> CurrentText; // value of Text; null: there is none yet
    u32 FramesSinceUpdate = 0;
    bool Dragging = false;
    _Point2i DragPoint;

private:
    bool UpdateWhenDue();
    void DrawCurrentText();

    u32 m_Updates = 0; // begun so far: by its number one sees that another began inside it
};
