#pragma once

#include "teskara/controls/TeskFrame.h"
#include "teskara/controls/TeskTooltipLine.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/CIndex.h"
#include "teskara/element/TeskFont.h"
#include "teskara/element/TooltipPanel.h"

#include <memory>
#include <string_view>

// A frame that sizes itself to lines of coloured text; its width follows a change of text one frame late. Markup leaves
// it hidden: it is shown by code only, and goes away when the mouse reaches it.
class TESKARA_EXPORT TeskTooltip : public TeskFrame, public TooltipPanel
{
public:
    using TeskFrame::TeskFrame;
    ~TeskTooltip() override;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;
    bool OnMouseMove(_Point2i& point) override;
    MvTypeDefinition* GetMvType() override;
    void ShowOnly(const char* text) override;

    // Adds one line; null is an empty one. A line for which there is no memory is left out, here and below.
    void AddLine(const char* text);

    // Adds a line for each line of the text, and so an empty one for what follows a break at its end. Null adds none.
    void Print(const char* text);

    // The same, after formatting into Limits::TextBuffer4096 bytes.
    void Printf(const char* format, ...) TESKARA_PRINTF_LIKE(2, 3);

    // Takes all lines away.
    void Reset();

    std::unique_ptr<TeskFont> Font;
    CIndex<TeskTooltipLine> Lines; // owned; a free place draws nothing and takes no room
    u32 LineCount = 0;

private:
    void Append(std::string_view text);
    void RenderLines();
    u32 TextHeight() const { return Font ? Font->Size : 0u; }
};
