#include "teskara/controls/Panel.h"

#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskTexture.h"

void DrawPanel(TeskElement& element, const Panel& panel)
{
    DrawPanel(element, element.ScreenRect(), panel);
}

void DrawPanel(TeskElement& element, const tagRECT& rect, const Panel& panel)
{
    if (!panel.Texture) {
        element.FillRectBordered(rect, panel.BackgroundColor, panel.Border, panel.BorderColor);
    } else if (panel.Texture->Border != 0) {
        element.TexturedRectBordered(rect, panel.Texture, panel.Border);
    } else {
        element.TexturedRect(rect, panel.Texture);
        if (panel.Border != 0)
            element.DrawBorder(rect, panel.Border, panel.BorderColor);
    }
}
