#pragma once

#include "teskara/controls/TeskButton.h"
#include "teskara/controls/TeskText.h"
#include "teskara/core/MarkupReading.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/markup/MarkupSource.h"
#include "teskara/windows/DialogButton.h"
#include "teskara/windows/DialogLayout.h"
#include "teskara/windows/DialogText.h"

class TeskWindow;

// Puts a dialog together: its text, its window around that, and what stands in the window. Scripts may run in between
// and end the dialog.
class DialogBuilder
{
public:
    // How high a line is, and the room below the text.
    struct Measures {
        u32 LineHeight;
        u32 Room;
    };

    // The faces of a button: those of the dialog's template, or only in place of those that it does not have itself.
    enum class Faces : u8 { All, Missing };

    // templateNode may be null. font is the dialog's, and may be null.
    DialogBuilder(TeskWindow& window, XMLNode* templateNode, TeskFont* font);

    // The values of the dialog's template.
    const MarkupSource& Source() const { return m_Source; }

    // The first two steps. False: the dialog has ended.
    bool BreakText(const char* text, Measures measures);
    bool MakeWindow(const char* title, u32 borderColor);

    // What holds the parts: the client, or the window itself if it has none.
    TeskElement& Area() const;
    u32 AreaWidth() const;
    u32 AreaHeight() const;

    // The text and a button as they are to be made. They borrow from the builder and from the font.
    _CreateText TextRecord() const;
    _CreateButton ButtonRecord(const DialogButton& look, u32 x, u32 width) const;
    void SetFaces(TeskButton& button, const DialogButton& look, Faces faces) const;

private:
    TeskTexture* ReadTexture(TagName tag) const;

    const MarkupReading m_Reading;
    TeskWindow& m_Window;
    const ElementWatch m_Watch;
    const MarkupSource m_Source;
    TeskFont* m_Font;
    DialogText m_Text;
    DialogLayout::Sizes m_Sizes = {};
};
